// `check` names what its own limits refuse, and nothing else: against a second opinion from the bytes.
#include <gtest/gtest.h>
#include <random>

#include "cli/check.h"
#include "tests/corpus/sound_block.h"
#include "tests/support/difference.h"
#include "tests/support/edids.h"
#include "tests/support/items.h"

namespace VNT {
namespace {

using namespace Testing;

// The items that reasons are about. A field's name, with that of the part that it is in, stands behind its item's path,
// which ends in a number where the item is one of a list.
std::set<std::string> NamedPaths(const Bytes& block) {
    std::set<std::string> paths;
    for (const std::string& reason : Cli::CheckEdid(ReadAs<Edid>(block), block)) {
        const bool isOfLimits = reason.ends_with(" expected") || reason.ends_with(" out of limits");
        if (!isOfLimits || reason.starts_with("extensions")) continue;
        std::string path = reason.substr(0, reason.find(' '));
        for (std::size_t last = path.rfind('/'); last != path.npos; last = path.rfind('/')) {
            if (path.find_first_not_of("0123456789", last + 1) == path.npos) break;
            path.erase(last);
        }
        paths.insert(path);
    }
    return paths;
}

class LimitsOfEachSet : public testing::TestWithParam<std::string> {};

TEST_P(LimitsOfEachSet, AreNamedAsTheyAreBroken) {
    for (const NamedEdid& edid : EdidsOf(GetParam(), VANTELLE_SOURCE_DIR)) {
        const Bytes block = edid.bytes.Slice(0, Edid::BlockSize);
        EXPECT_TRUE(HaveNoDifference(UnsoundPaths(block), NamedPaths(block))) << edid.name;
    }
}

INSTANTIATE_TEST_SUITE_P(Of, LimitsOfEachSet, testing::ValuesIn(EdidSets(VANTELLE_SOURCE_DIR)),
                         [](const auto& set) { return set.param; });

// Blocks of random descriptors of every tag, each with a few bytes of a sound one, so that all limits are met.
TEST(Limits, OfRandomBlocksAreNamedAsTheyAreBroken) {
    constexpr int rounds = 5000;
    constexpr std::uint8_t tags[] = {0x10, 0xF7, 0xF8, 0xF9, 0xFA, 0xFB, 0xFC, 0xFD, 0xFE, 0xFF, 0x42, 0x00};
    const Bytes sound = FromHex(
        "00 FF FF FF FF FF FF 00 41 D0 FF 09 01 00 00 00 01 1E 01 04 95 35 1E 78 3A 0F 91 AD 4F 43 A6 26 0F 50 54 20 "
        "00 00 81 80 D1 C0 01 01 01 01 01 01 01 01 01 01 01 01 02 3A 80 18 71 38 2D 40 58 2C 45 00 0F 48 42 00 00 1E "
        "00 00 00 FD 00 32 4C 1E 53 11 04 11 00 F0 F8 18 00 3C 00 00 00 FC 00 41 42 43 0A 20 20 20 20 20 20 20 20 20 "
        "00 00 00 F8 00 01 1B 24 4E 1B 24 09 00 00 00 00 00 00 00 00");
    std::mt19937 random{20260107};
    const auto upTo = [&random](unsigned most) { return static_cast<int>(random() % (most + 1)); };
    std::set<std::string> seen;
    for (int round = 0; round < rounds && !testing::Test::HasFailure(); ++round) {
        Bytes block = sound;
        for (int changes = upTo(12); changes > 0; --changes)
            block.At(8 + upTo(117)) = static_cast<std::uint8_t>(upTo(255));
        for (int slot = 0; slot < 4; ++slot) {
            if (upTo(2) == 0) {
                block.At(54 + slot * 18) = block.At(55 + slot * 18) = 0;
                block.At(57 + slot * 18) = tags[upTo(11)];
            }
        }
        EXPECT_TRUE(HaveNoDifference(UnsoundPaths(block), NamedPaths(block))) << ToHex(block);
        seen.merge(UnsoundPaths(block));
    }
    for (const char* path :
         {"properties", "descriptors/0", "descriptors/3", "descriptors/3/resolutions/2", "standard/1"})
        EXPECT_TRUE(seen.contains(path)) << path;
}

}  // namespace
}  // namespace VNT
