#include "store/load.h"
#include "store/save.h"
#include "store/values.h"
#include "store/windows/windows_platform.h"
#include "tests/store/blocks.h"
#include "tests/store_windows/prefix.h"

namespace VNT {

using namespace Sample;

namespace {

class Registry : public PrefixTest {
protected:
    DisplayList Load() {
        DisplayList list;
        EXPECT_TRUE(LoadDisplays(platform_, list, true));
        return list;
    }
    Display* Find(DisplayList& list, const PrefixDisplay& display) {
        for (Display& found : list) {
            if (found.InstanceId == UpperAscii(display.InstanceId())) return &found;
        }
        return nullptr;
    }
    Display LoadOne(const PrefixDisplay& display) {
        DisplayList list = Load();
        const Display* found = Find(list, display);
        return found != nullptr ? *found : Display();
    }

    WindowsPlatform platform_{[](const wchar_t*) {}};
    PrefixDisplay plain_ = {L"VTA1001", L"4&a1b2&0&UID1", L"{4D36E96E-E325-11CE-BFC1-08002BE10318}\\0101",
                            L"Plain sample monitor", Base(1)};
    PrefixDisplay other_ = {L"VTB2002", L"4&a1b2&0&UID2", L"{4D36E96E-E325-11CE-BFC1-08002BE10318}\\0102",
                            L"Other sample monitor", Join({Base(2, 1), Block(2, 2)})};

    std::wstring Override(const PrefixDisplay& display) const { return display.ParametersPath() + L"\\EDID_OVERRIDE"; }

    // The names of the override's values, sorted, each with a blank behind it.
    std::wstring OverrideNames(const PrefixDisplay& display) {
        const auto set = platform_.OpenMonitor(display.InstanceId(), false);
        if (set == nullptr || !set->EnumDevice(0)) return L"no device";
        std::shared_ptr<RegistryKey> key;
        if (set->OpenHardwareKey(KeyAccess::Read)->OpenKey(L"EDID_OVERRIDE", KeyAccess::Read, key) != 0) return L"-";
        std::vector<std::wstring> names;
        ListValues(*key, names);
        std::sort(names.begin(), names.end());
        std::wstring all;
        for (const std::wstring& name : names) all += name + L" ";
        return all;
    }
};

}  // namespace

TEST_F(Registry, ListsDisplaysWithAllTheirFields) {
    Add(plain_);
    Add(other_);
    AddOverride(other_, L"0", Base(7, 2));
    AddOverride(other_, L"2", Block(2, 7));
    AddOverride(other_, L"007", Block(2, 9));
    const Display plain = LoadOne(plain_);
    EXPECT_EQ(plain.InstanceId, L"DISPLAY\\VTA1001\\4&A1B2&0&UID1");
    EXPECT_EQ(plain.DriverKey, plain_.driverKey);
    EXPECT_EQ(plain.DeviceDescription, plain_.description);
    EXPECT_EQ(plain.EdidData, plain_.edid);
    EXPECT_EQ(plain.CurrentData, plain_.edid);
    EXPECT_TRUE(plain.Active);
    const Display other = LoadOne(other_);
    EXPECT_EQ(other.EdidData, other_.edid);
    EXPECT_EQ(other.OverrideData, Join({Base(7, 2), Zeros(), Block(2, 7)}));
    EXPECT_EQ(other.CurrentData, other.OverrideData);
}

TEST_F(Registry, DisplayWithoutEdidIsListedWhilePresent) {
    plain_.edid = {};
    Add(plain_);
    EXPECT_EQ(LoadOne(plain_).DeviceDescription, plain_.description);
    EXPECT_TRUE(LoadOne(plain_).CurrentData.IsEmpty());
}

TEST_F(Registry, OverrideIsWrittenSparseAndSequential) {
    Add(plain_);
    const Bytes sparse = Join({Base(3, 2), Zeros(), Block(2, 3)});
    const Bytes sequential = Join({Block(1, 3), Zeros(), Block(2, 3)});
    for (const Bytes& data : {sparse, sequential}) {
        DisplayList list = Load();
        ASSERT_NE(Find(list, plain_), nullptr);
        ASSERT_TRUE(Find(list, plain_)->SetData(data));
        ASSERT_TRUE(SaveDisplays(platform_, list));
        EXPECT_EQ(OverrideNames(plain_), data == sparse ? L"0 2 " : L"0 1 2 ");
        EXPECT_EQ(LoadOne(plain_).CurrentData, data);
    }
}

TEST_F(Registry, OverrideValuesAreBinaryAndOfOneBlock) {
    Add(plain_);
    DisplayList list = Load();
    const Bytes data = Base(3);
    Find(list, plain_)->SetData(data);
    ASSERT_TRUE(SaveDisplays(platform_, list));
    std::string line = String(Override(plain_) + L" 0 3").ToUtf8();
    for (const std::uint8_t byte : data.View()) line.append(" ").append(std::to_string(byte));
    EXPECT_EQ(Dump(Override(plain_)), line + "\n");
}

TEST_F(Registry, StaleBlocksAreGone) {
    Add(plain_);
    for (const wchar_t* name : {L"0", L"1", L"2", L"junk"}) AddOverride(plain_, name, Base(9));
    DisplayList list = Load();
    Find(list, plain_)->SetData(Base(3));
    EXPECT_TRUE(SaveDisplays(platform_, list));
    EXPECT_EQ(OverrideNames(plain_), L"0 ");
}

TEST_F(Registry, EmptyDataTakesTheOverrideAwayAndRestoresTheEdid) {
    Add(plain_);
    const std::string before = Dump(plain_.Path());
    AddOverride(plain_, L"0", Base(9));
    DisplayList list = Load();
    Find(list, plain_)->SetData({});
    HKEY key = nullptr;
    ASSERT_EQ(RegOpenKeyExW(HKEY_LOCAL_MACHINE, plain_.ParametersPath().c_str(), 0, KEY_WRITE, &key), 0);
    RegDeleteValueW(key, L"EDID");
    RegCloseKey(key);
    EXPECT_TRUE(SaveDisplays(platform_, list));
    EXPECT_EQ(Dump(plain_.Path()), before);
}

TEST_F(Registry, UneditedDisplayIsUntouchedToTheByte) {
    Add(plain_);
    Add(other_);
    AddOverride(other_, L"0", Base(7, 2));
    AddOverride(other_, L"01", Bytes(3, 9));
    const std::string before = Dump(other_.Path());
    ASSERT_FALSE(before.empty());
    DisplayList list = Load();
    Find(list, plain_)->SetData(Base(3));
    Find(list, other_)->SetData(Find(list, other_)->CurrentData);
    EXPECT_TRUE(SaveDisplays(platform_, list));
    EXPECT_EQ(Dump(other_.Path()), before);
    EXPECT_EQ(OverrideNames(plain_), L"0 ");
}

TEST_F(Registry, DeviceThatIsNotOnRecordCannotBeSavedAndTheOthersAre) {
    Add(plain_);
    DisplayList list(1);
    list[0].InstanceId = L"DISPLAY\\VTZ9999\\1";
    list[0].SetData(Base(1));
    list.push_back(LoadOne(plain_));
    list[1].SetData(Base(3));
    EXPECT_FALSE(SaveDisplays(platform_, list));
    EXPECT_FALSE(list[0].Saved);
    EXPECT_EQ(OverrideNames(plain_), L"0 ");
}

TEST_F(Registry, TheDefaultMonitorOfTheSystemIsMarked) {
    for (const Display& display : Load()) {
        EXPECT_EQ(display.NotDefaultMonitor, display.InstanceId.find(L"DEFAULT_MONITOR") == std::wstring::npos);
    }
}

}  // namespace VNT
