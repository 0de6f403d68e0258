#include <map>

#include "tests/cli/commands_fixture.h"

namespace VNT::Cli {
namespace {

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        EXPECT_EQ(line.empty() ? ' ' : line.back(), '\r');
        if (!line.empty()) line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

// The sections of an INF, as Windows takes it apart: comments and blank lines gone.
std::map<std::string, std::vector<std::string>> SectionsOf(const std::string& text) {
    std::map<std::string, std::vector<std::string>> sections;
    std::string section;
    for (const std::string& line : LinesOf(text)) {
        if (line.empty() || line[0] == ';') continue;
        if (line[0] == '[') {
            section = line.substr(1, line.find(']') - 1);
            EXPECT_FALSE(sections.contains(section)) << section;
            sections[section];
        } else {
            sections[section].push_back(line);
        }
    }
    return sections;
}

std::string ValueOf(const std::vector<std::string>& section, const std::string& key) {
    for (const std::string& line : section) {
        if (line.starts_with(key + "=")) return line.substr(key.size() + 1);
    }
    return "";
}

// The bytes of the entries "0", "1" and so on.
Samples::Block OverrideOf(const std::vector<std::string>& entries) {
    Samples::Block bytes;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const std::string head = "HKR,EDID_OVERRIDE,\"" + std::to_string(i) + "\",0x01,";
        EXPECT_TRUE(entries[i].starts_with(head)) << entries[i];
        std::istringstream in(entries[i].substr(head.size()));
        for (std::string byte; std::getline(in, byte, ',');)
            bytes.push_back(static_cast<std::uint8_t>(std::stoi(byte, nullptr, 16)));
        EXPECT_EQ(bytes.size(), (i + 1) * 128);
    }
    return bytes;
}

class Inf : public Commands {
protected:
    std::string Made(const std::vector<std::string>& more, int sample = 2) {
        std::vector<std::string> words{"inf", Sample(sample), Path("out.inf")};
        words.insert(words.end(), more.begin(), more.end());
        const Outcome outcome = Call(words);
        EXPECT_EQ(outcome.status, Success) << outcome.err;
        EXPECT_EQ(outcome.err, "vantelle-cli: " + Path("out.inf") + ": has to be signed before Windows installs it\n");
        return Content(Path("out.inf"));
    }
};

TEST_F(Inf, HoldsTheBytesOfTheFile) {
    for (std::size_t i = 0; i < Samples::MakeDisplays().size(); ++i) {
        const Samples::Block bytes = Samples::MakeDisplays()[i].edid;
        if (bytes.size() != (bytes[126] + 1u) * 128) continue;  // the one that lies
        auto sections = SectionsOf(Made({"--id", "ABC1234"}, static_cast<int>(i)));
        EXPECT_EQ(OverrideOf(sections["Override.AddReg"]), bytes) << i;
    }
}

TEST_F(Inf, LeadsFromEachMachineToTheEntries) {
    const std::string text = Made({"--id", "abc12ef"});
    auto sections = SectionsOf(text);
    EXPECT_EQ(ValueOf(sections["Version"], "Class"), "Monitor");
    EXPECT_EQ(ValueOf(sections["Version"], "ClassGuid"), "{4d36e96e-e325-11ce-bfc1-08002be10318}");
    EXPECT_EQ(ValueOf(sections["Version"], "CatalogFile"), "ABC12EF.cat");
    const std::string models = ValueOf(sections["Manufacturer"], "%Provider%");
    ASSERT_EQ(models, "Monitor,NTx86,NTamd64,NTarm64");
    for (const char* machine : {"NTx86", "NTamd64", "NTarm64"}) {
        const std::string install = ValueOf(sections[std::string("Monitor.") + machine], "%Name%");
        EXPECT_EQ(install, "Override,MONITOR\\ABC12EF") << machine;
    }
    EXPECT_TRUE(sections.contains("Override"));
    EXPECT_EQ(ValueOf(sections["Override.HW"], "AddReg"), "Override.AddReg");
    EXPECT_NE(text.find("has to be signed"), std::string::npos);
}

TEST_F(Inf, TakesIdAndNameFromTheEdid) {
    auto sections = SectionsOf(Made({}));
    const std::string id = Samples::MakeDisplays()[2].instanceId.substr(8, 7);
    EXPECT_EQ(ValueOf(sections["Monitor.NTamd64"], "%Name%"), "Override,MONITOR\\" + id);
    EXPECT_NE(ValueOf(sections["Strings"], "Name"), "");
    EXPECT_NE(ValueOf(sections["Strings"], "Name"), "\"" + id + "\"");
}

TEST_F(Inf, DoublesQuotesAndPercentSignsOfAName) {
    auto sections = SectionsOf(Made({"--name", "27\" at 100%; [x]"}));
    EXPECT_EQ(ValueOf(sections["Strings"], "Name"), "\"27\"\" at 100%%; [x]\"");
}

TEST_F(Inf, IsUtf16WhereANameIsNotAscii) {
    const std::string text = Made({"--name", "M\xC3\xB6nitor \xF0\x9F\x96\xA5"});
    ASSERT_EQ(text.substr(0, 2), "\xFF\xFE");
    EXPECT_NE(text.find(std::string("M\0\xF6\0n\0", 6)), std::string::npos);
    EXPECT_NE(text.find(std::string("\x3D\xD8\xA5\xDD", 4)), std::string::npos);
}

TEST_F(Inf, RefusesWhatIsNoId) {
    for (const char* id : {"", "ABC123", "ABC12345", "AB11234", "ABCDEFG", "ABC 123", "ABC123\xC3\xA9"}) {
        const Outcome outcome = Call({"inf", Sample(2), Path("none.inf"), "--id", id});
        EXPECT_EQ(outcome.status, Refused) << id;
        EXPECT_NE(outcome.err.find("three letters and four hexadecimal digits are needed"), std::string::npos);
    }
    ExpectRefused(Call({"inf", Sample(2), Path("none.inf"), "--name", "a\nb"}), "--name: has a control character");
    EXPECT_FALSE(fs::exists(Path("none.inf")));
}

TEST_F(Inf, RefusesAFileThatLacksBlocksOrHasMore) {
    ExpectRefused(Call({"inf", Sample(5), Path("none.inf")}), Sample(5) + ": 256 bytes behind the last block");
    Samples::Block bytes = Samples::MakeDisplays()[2].edid;
    bytes.resize(128);
    Put(Path("short.bin"), bytes);
    ExpectRefused(Call({"inf", Path("short.bin"), Path("none.inf")}), Path("short.bin") + ": 1 block missing");
}

}  // namespace
}  // namespace VNT::Cli
