#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

#include "cli/show.h"
#include "samples/displays.h"
#include "tests/support/items.h"

namespace fs = std::filesystem;

namespace VNT {

namespace {

using namespace Testing;

constexpr const char* CorpusFolder = VANTELLE_SOURCE_DIR "/../shared/corpus";

// The files of the corpus that a read and a write don't give back to the byte, each with the reason.
const std::map<std::string, std::string> KnownChanges{};

struct NamedEdid {
    std::string name;
    Bytes bytes;
};

std::vector<NamedEdid> Samples() {
    std::vector<NamedEdid> edids;
    for (const Samples::Display& display : Samples::MakeDisplays()) {
        edids.push_back({display.instanceId, Bytes(display.edid)});
        if (!display.edidOverride.empty())
            edids.push_back({display.instanceId + " override", Bytes(display.edidOverride)});
    }
    return edids;
}

std::vector<NamedEdid> Corpus() {
    std::vector<NamedEdid> edids;
    for (const auto& entry : fs::recursive_directory_iterator(CorpusFolder)) {
        if (!entry.is_regular_file() || entry.path().extension() == ".md") continue;
        std::ifstream file(entry.path(), std::ios::binary);
        edids.push_back({fs::relative(entry.path(), CorpusFolder).generic_string(),
                         Bytes(std::vector<std::uint8_t>(std::istreambuf_iterator<char>(file), {}))});
    }
    std::sort(edids.begin(), edids.end(), [](const NamedEdid& a, const NamedEdid& b) { return a.name < b.name; });
    return edids;
}

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

}  // namespace

TEST(Corpus, TheSamplesKeepEveryPromise) {
    const std::vector<NamedEdid> samples = Samples();
    ASSERT_FALSE(samples.empty());
    EXPECT_EQ(ChangedOf(samples), std::set<std::string>());
}

TEST(Corpus, TheCorpusKeepsEveryPromiseButForTheKnownChanges) {
    if (!fs::is_directory(CorpusFolder)) GTEST_SKIP() << "no " << CorpusFolder;
    const std::vector<NamedEdid> corpus = Corpus();
    ASSERT_FALSE(corpus.empty());
    std::set<std::string> known;
    for (const auto& [file, reason] : KnownChanges) known.insert(file);
    EXPECT_EQ(ChangedOf(corpus), known);
}

}  // namespace VNT
