#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>

#include "cli/show.h"
#include "tests/support/difference.h"
#include "tests/support/edids.h"
#include "tests/support/items.h"

namespace VNT {

namespace {

using namespace Testing;

// The files of the corpus that a read and a write don't give back to the byte, each with the reason.
const std::map<std::string, std::string> KnownChanges{};

std::string Shown(const Edid& edid) {
    std::ostringstream out;
    Cli::ShowEdid(edid, out);
    return out.str();
}

// Whether a whole block that was read and counted is written differently.
bool IsChanged(const Bytes& read, const Bytes& written) {
    const int common = std::min(read.Size() / Edid::BlockSize * Edid::BlockSize, written.Size());
    return !(read.Slice(0, common) == written.Slice(0, common));
}

// What holds of any EDID at all. Returns whether it came back changed.
bool CheckPromises(const NamedEdid& sample) {
    SCOPED_TRACE(sample.name);
    const Edid edid = ReadAs<Edid>(sample.bytes);
    const Bytes written = edid.GetBytes();
    EXPECT_EQ(written.Size(), edid.GetSize());
    const int blocks = std::max(1, sample.bytes.Size() / Edid::BlockSize);
    EXPECT_TRUE(written.Slice(blocks * Edid::BlockSize, written.Size()).IsAll(0)) << "of the blocks that are appended";

    const Edid again = ReadAs<Edid>(written);
    EXPECT_EQ(again.GetBytes(), written);
    EXPECT_EQ(Shown(again), Shown(edid));

    const Edid once(static_cast<const EdidFields&>(edid));
    const Edid twice(static_cast<const EdidFields&>(once));
    EXPECT_EQ(once.GetBytes().Size(), once.GetSize());
    EXPECT_EQ(twice.GetBytes(), once.GetBytes());
    EXPECT_EQ(ReadAs<Edid>(once.GetBytes()).GetBytes(), once.GetBytes());
    return IsChanged(sample.bytes, written);
}

std::set<std::string> ChangedOf(const std::vector<NamedEdid>& edids) {
    std::set<std::string> changed;
    for (const NamedEdid& sample : edids) {
        if (CheckPromises(sample)) changed.insert(sample.name);
    }
    return changed;
}

class EachSet : public testing::TestWithParam<std::string> {};

TEST_P(EachSet, KeepsEveryPromiseButForTheKnownChanges) {
    const std::vector<NamedEdid> edids = EdidsOf(GetParam(), VANTELLE_SOURCE_DIR);
    ASSERT_FALSE(edids.empty());
    std::set<std::string> known;
    for (const NamedEdid& edid : edids) {
        if (KnownChanges.contains(edid.name)) known.insert(edid.name);
    }
    EXPECT_TRUE(HaveNoDifference(known, ChangedOf(edids)));
}

INSTANTIATE_TEST_SUITE_P(Of, EachSet, testing::ValuesIn(EdidSets(VANTELLE_SOURCE_DIR)),
                         [](const auto& set) { return set.param; });

}  // namespace
}  // namespace VNT
