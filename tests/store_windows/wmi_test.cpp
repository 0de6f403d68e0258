#include <objidl.h>

#include "store/windows/com.h"
#include "tests/store/blocks.h"
#include "tests/store_windows/stand_ins.h"

namespace VNT {

using namespace Sample;

namespace {

using Errors = std::vector<std::wstring>;

class Wmi : public StandInTest {
protected:
    bool Read(const std::string& text) {
        InstallWmi(text);
        errors_.clear();
        return platform_.ReadWmiMonitors(records_);
    }

    std::vector<WmiMonitorRecord> records_;
};

const std::string TwoMonitors = "monitor Display\\vta1001\\4&1&0&uid1_0\n" + EdidLine(Join({Base(1, 1), Block(2, 2)})) +
                                "monitor PLAIN\n" + EdidLine(Base(3));

// Counts what is allocated through COM, which strings, variants' texts and arrays are.
class AllocationCount : public IMallocSpy {
public:
    STDMETHODIMP QueryInterface(REFIID, void** out) override {
        *out = this;
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP_(SIZE_T) PreAlloc(SIZE_T size) override { return size; }
    STDMETHODIMP_(void*) PostAlloc(void* block) override {
        ++made_;
        ++alive_;
        return block;
    }
    STDMETHODIMP_(void*) PreFree(void* block, WINBOOL spied) override {
        if (spied && block != nullptr) --alive_;
        return block;
    }
    STDMETHODIMP_(void) PostFree(WINBOOL) override {}
    STDMETHODIMP_(SIZE_T) PreRealloc(void* block, SIZE_T size, void** out, WINBOOL) override {
        *out = block;
        return size;
    }
    STDMETHODIMP_(void*) PostRealloc(void* block, WINBOOL) override { return block; }
    STDMETHODIMP_(void*) PreGetSize(void* block, WINBOOL) override { return block; }
    STDMETHODIMP_(SIZE_T) PostGetSize(SIZE_T size, WINBOOL) override { return size; }
    STDMETHODIMP_(void*) PreDidAlloc(void* block, WINBOOL) override { return block; }
    STDMETHODIMP_(int) PostDidAlloc(void*, WINBOOL, int actual) override { return actual; }
    STDMETHODIMP_(void) PreHeapMinimize() override {}
    STDMETHODIMP_(void) PostHeapMinimize() override {}

    int made_ = 0;
    int alive_ = 0;
};

}  // namespace

TEST_F(Wmi, MonitorsAreReadBlockByBlock) {
    EXPECT_TRUE(Read(TwoMonitors));
    EXPECT_TRUE(errors_.empty());
    EXPECT_EQ(records_, (std::vector<WmiMonitorRecord>{
                            {L"DISPLAY\\VTA1001\\4&1&0&UID1", Join({Base(1, 1), Block(2, 2)})}, {L"PLAIN", Base(3)}}));
    EXPECT_EQ(Report(L"vantelle_wmi"), "objects 0\n");
}

TEST_F(Wmi, NoMonitorIsASuccess) {
    EXPECT_TRUE(Read(""));
    EXPECT_TRUE(records_.empty());
}

TEST_F(Wmi, MonitorWithNoBlocksGivesARecordWithEmptyData) {
    EXPECT_TRUE(Read("monitor A_0\nmonitor B_0\n" + EdidLine(Base(1))));
    EXPECT_EQ(records_, (std::vector<WmiMonitorRecord>{{L"A", {}}, {L"B", Base(1)}}));
}

TEST_F(Wmi, EachStepThatFailsHasItsOwnText) {
    const std::pair<const char*, const wchar_t*> rows[] = {
        {"CreateInstance", L"CoCreateInstance failed."},
        {"ConnectServer", L"IWbemLocator::ConnectServer(\"ROOT\\WMI\") failed."},
        {"SetBlanket", L"CoSetProxyBlanket failed."},
        {"GetObject", L"IWbemServices::GetObjectW(\"WmiMonitorDescriptorMethods\") failed."},
        {"GetMethod", L"WmiMonitorDescriptorMethods::GetMethod(\"WmiGetMonitorRawEEdidV1Block\") failed."},
        {"SpawnInstance", L"WmiGetMonitorRawEEdidV1Block::SpawnInstance failed."},
        {"Next", L"IEnumWbemClassObject::Next failed."},
        {"Get.__Path", L"IWbemClassObject::Get(\"__Path\") failed."},
        {"Get.InstanceName", L"IWbemClassObject::Get(\"InstanceName\") failed."},
        {"Put.BlockId", L"WmiGetMonitorRawEEdidV1Block::Put(\"BlockId\") failed."},
        {"Get.BlockContent", L"WmiGetMonitorRawEEdidV1Block::Get(\"BlockContent\") failed."},
    };
    for (const auto& [call, text] : rows) {
        EXPECT_FALSE(Read(TwoMonitors + "fail " + call + " -2147217407\n")) << call;
        EXPECT_EQ(errors_, Errors{text}) << call;
        EXPECT_EQ(Report(L"vantelle_wmi"), "objects 0\n") << call;
    }
}

TEST_F(Wmi, FailedQueryShowsNothing) {
    EXPECT_FALSE(Read(TwoMonitors + "fail ExecQuery\n"));
    EXPECT_TRUE(errors_.empty());
    EXPECT_EQ(Report(L"vantelle_wmi"), "objects 0\n");
}

TEST_F(Wmi, FailedMethodEndsTheBlocksInSilence) {
    EXPECT_TRUE(Read(TwoMonitors + "fail ExecMethod -1 1\n"));
    EXPECT_TRUE(errors_.empty());
    EXPECT_EQ(records_.at(0).EdidData, Base(1, 1));
    EXPECT_TRUE(records_.at(1).EdidData.IsEmpty());
}

TEST_F(Wmi, LibraryThatIsNotThereFailsAtItsStep) {
    UnregisterWmi();
    EXPECT_FALSE(platform_.ReadWmiMonitors(records_));
    EXPECT_EQ(errors_, Errors{L"CoCreateInstance failed."});
}

TEST_F(Wmi, ComInAnotherModeFailsAtItsStep) {
    ASSERT_GE(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), 0);
    EXPECT_FALSE(Read(TwoMonitors));
    EXPECT_EQ(errors_, Errors{L"CoInitializeEx failed."});
    CoUninitialize();
}

TEST_F(Wmi, ComIsFreeForAnotherModeAfterwards) {
    EXPECT_TRUE(Read(TwoMonitors));
    EXPECT_GE(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), 0);
    CoUninitialize();
}

TEST_F(Wmi, NullPointersAreFailuresOfTheirStep) {
    for (const char* call :
         {"ConnectServer", "GetObject", "GetMethod", "SpawnInstance", "Get.__Path", "Get.InstanceName"}) {
        EXPECT_FALSE(Read(TwoMonitors + "null " + call + "\n")) << call;
        EXPECT_EQ(errors_.size(), 1u) << call;
        EXPECT_EQ(Report(L"vantelle_wmi"), "objects 0\n") << call;
    }
    EXPECT_FALSE(Read(TwoMonitors + "null ExecQuery\n"));
    EXPECT_TRUE(errors_.empty());
}

TEST_F(Wmi, NullMonitorEndsTheListAndNullParametersTheBlocks) {
    EXPECT_TRUE(Read(TwoMonitors + "null Next\n"));
    EXPECT_TRUE(records_.empty());
    EXPECT_TRUE(Read(TwoMonitors + "null ExecMethod\n"));
    ASSERT_EQ(records_.size(), 2u);
    EXPECT_TRUE(records_[0].EdidData.IsEmpty());
    EXPECT_TRUE(Read(TwoMonitors + "null Get.BlockContent\n"));
    EXPECT_TRUE(records_.at(0).EdidData.IsEmpty());
}

TEST_F(Wmi, PropertiesOfAnotherTypeAreNotTaken) {
    EXPECT_FALSE(Read(TwoMonitors + "wrong InstanceName\n"));
    EXPECT_EQ(errors_, Errors{L"IWbemClassObject::Get(\"InstanceName\") failed."});
    EXPECT_TRUE(Read(TwoMonitors + "wrong BlockContent\n"));
    EXPECT_TRUE(records_.at(0).EdidData.IsEmpty());
}

TEST_F(Wmi, EndlessMonitorsWithLargeBlocksEnd) {
    EXPECT_TRUE(Read(TwoMonitors + "endless\nclaim Get.BlockContent 50000\n"));
    EXPECT_EQ(records_.size(), 1024u);
    EXPECT_EQ(records_[0].EdidData.Size(), 32768);
    EXPECT_EQ(Report(L"vantelle_wmi"), "objects 0\n");
}

TEST_F(Wmi, StringsVariantsAndArraysAreReleased) {
    using SetNoCache = void(WINAPI*)();
    const auto setNoCache = reinterpret_cast<SetNoCache>(
        reinterpret_cast<void (*)()>(GetProcAddress(GetModuleHandleW(L"oleaut32.dll"), "SetOaNoCache")));
    ASSERT_NE(setNoCache, nullptr);
    setNoCache();
    for (const char* fault : {"", "fail Get.BlockContent -1 1\n", "wrong InstanceName\n", "fail ExecQuery\n"}) {
        AllocationCount count;
        ASSERT_EQ(CoRegisterMallocSpy(&count), S_OK);
        Read(TwoMonitors + fault);
        EXPECT_EQ(CoRevokeMallocSpy(), S_OK);
        EXPECT_GT(count.made_, 2) << fault;
        EXPECT_EQ(count.alive_, 0) << fault;
    }
}

}  // namespace VNT
