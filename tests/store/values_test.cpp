#include "store/values.h"

#include <gtest/gtest.h>

#include "store/registry_layout.h"
#include "tests/store/sample.h"

namespace VNT {

using namespace Sample;

class Values : public testing::Test {
protected:
    Values() { Add(platform, First, true, Bytes()).hardwareKey->values.Put(L"empty", Bytes()); }
    std::shared_ptr<RegistryKey> Key() {
        const auto set = platform.OpenMonitor(First, false);
        EXPECT_TRUE(set->EnumDevice(0));
        return set->OpenHardwareKey(KeyAccess::Read);
    }

    MemoryPlatform platform;
};

TEST_F(Values, OneWithoutBytesIsThere) {
    Bytes bytes{1, 2, 3};
    EXPECT_EQ(ReadValue(*Key(), L"empty", bytes), SystemErrors::None);
    EXPECT_EQ(bytes, Bytes());
}

TEST_F(Values, OneThatIsNotThereLeavesTheBytes) {
    Bytes bytes{1, 2, 3};
    EXPECT_EQ(ReadValue(*Key(), L"none", bytes), SystemErrors::FileNotFound);
    EXPECT_EQ(bytes, (Bytes{1, 2, 3}));
}

TEST_F(Values, ListEndsWhereAKeyDoesNot) {
    std::vector<std::wstring> names;
    EXPECT_EQ(ListValues(*Key(), names), SystemErrors::NoMoreItems);
    EXPECT_EQ(names, std::vector<std::wstring>{L"empty"});
    platform.endless = true;
    EXPECT_EQ(ListValues(*Key(), names), SystemErrors::None);
    EXPECT_EQ(names.size(), static_cast<std::size_t>(RegistryLayout::MostNames));
}

}  // namespace VNT
