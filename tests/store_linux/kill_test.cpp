// The program ended at each of its calls, or refused by the system at each that changes something, while it writes or
// takes off an override: what it leaves of the machine.

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <initializer_list>
#include <set>
#include <sstream>

#include "cli/command.h"
#include "cli/linux_store.h"
#include "store/write_file.h"
#include "tests/shim/shim.h"
#include "tests/store_linux/machine_host.h"

namespace fs = std::filesystem;

namespace VNT::Linux::Sample {

namespace {

constexpr char Name[] = "card1-DP-2";

// The kernel takes its attributes, and a program of the system runs, as a whole: each is one call, and what happens
// within is not this program's.
class WatchedMachine : public Machine {
public:
    std::error_code WriteAttribute(const std::string& path, const Bytes& bytes) override {
        return AsOneCall([&] { return Machine::WriteAttribute(path, bytes); });
    }
    std::error_code Run(const Command& command, int& status, std::string* output) override {
        return AsOneCall([&] { return Machine::Run(command, status, output); });
    }

private:
    template <class Action>
    static std::error_code AsOneCall(const Action& action) {
        if (Shim::Enter(nullptr)) return std::make_error_code(std::errc::no_space_on_device);
        const Shim::Rest rest;
        return action();
    }
};

struct Case {
    int number;
    const char* name;
    void (*add)(Machine&);
};

const Case Cases[] = {
    {0, "Debian", [](Machine& machine) { machine.AddDebian(); }},
    {1, "Grub", [](Machine& machine) { machine.AddGrub("GRUB_TIMEOUT=1\nGRUB_CMDLINE_LINUX_DEFAULT='quiet'\n"); }},
    {2, "Silverblue", [](Machine& machine) { machine.AddSilverblue(); }},
};

using Files = std::map<std::string, std::string>;

void CopyTree(const fs::path& from, const fs::path& to) {
    fs::remove_all(to);
    fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::copy_symlinks);
}

class EndedOn : public testing::TestWithParam<Case> {
protected:
    EndedOn() {
        machine.AddCards();
        for (const std::string& name : machine.Names("sys/class/drm")) {
            if (name != Name && name != "card1-DP-1") machine.Delete("sys/class/drm/" + name);
        }
        GetParam().add(machine);
        machine.Put("new.bin", wanted);
        machine.Restart();
        own = machine.Snapshot();
        const Report silent{[](const std::string&) {}, [](const std::string&) {}};
        EXPECT_TRUE(Overrides(machine, silent, {}).Set(machine.Find(Name), before));
        old = machine.Snapshot();
        CopyTree(machine.Root(), GetCopy("old"));
    }
    ~EndedOn() override {
        for (const fs::path& copy : copies) fs::remove_all(copy);
    }

    fs::path GetCopy(const std::string& name) {
        const fs::path copy = machine.Root().string() + "_" + name;
        copies.insert(copy);
        return copy;
    }
    void PutBack(const fs::path& copy) { CopyTree(copy, machine.Root()); }
    int Call(const std::vector<std::string>& words) {
        std::istringstream in;
        std::ostringstream out;
        const auto open = [this](const Cli::StoreMode& mode, const Cli::Console& console) {
            return Cli::OpenLinuxStore(std::make_unique<MachineHost>(machine), mode, console);
        };
        const int status = Cli::Run(words, {in, out, out, open});
        said = out.str();
        return status;
    }

    // Each display shows something whole; each file of the system is one that it was or was to be.
    void ExpectWhole(const Files& done, const std::string& where) {
        const Bytes shown = machine.Shown(Name);
        EXPECT_TRUE(shown == MakeEdid(0x1002, 2) || shown == before || shown == wanted) << where;
        EXPECT_EQ(machine.Shown("card1-DP-1"), MakeEdid(0x1002, 2)) << where;
        for (const auto& [path, content] : machine.Snapshot(false)) {
            bool isKnown = IsFreshName(fs::path(path).filename().string());
            for (const Files* files : std::initializer_list<const Files*>{&own, &old, &done}) {
                const auto found = files->find(path);
                isKnown = isKnown || (found != files->end() && found->second == content);
            }
            EXPECT_TRUE(isKnown) << where << ": " << path << " holds:\n" << content;
        }
    }
    void ExpectResetRestores(const std::string& where) {
        EXPECT_EQ(Call({"reset", "--all"}), 0) << where << ": " << said;
        EXPECT_EQ(Differences(own, machine.Snapshot()), "") << where;
    }

    // A file that is being written is the same however much of it is there.
    Files Seen() const {
        Files files;
        for (const auto& [path, content] : machine.Snapshot()) {
            const fs::path name(path);
            const bool isFresh = IsFreshName(name.filename().string());
            files[isFresh ? (name.parent_path() / "fresh").string() : path] = isFresh ? "" : content;
        }
        return files;
    }

    // What would be left on the disk if the program were ended at one of its calls: each state once.
    std::vector<fs::path> FindStates(const std::vector<std::string>& words, int& calls) {
        std::vector<fs::path> states;
        std::set<Files> known;
        PutBack(GetCopy("old"));
        const Shim::Watch watch(machine.Root().string(), [&](bool isChange) {
            calls += isChange ? 1 : 0;
            if (!known.insert(Seen()).second) return false;
            states.push_back(GetCopy(std::to_string(states.size())));
            CopyTree(machine.Root(), states.back());
            return false;
        });
        EXPECT_EQ(Call(words), 0) << said;
        return states;
    }
    void EndEverywhere(const std::vector<std::string>& words) {
        int calls = 0;
        const std::vector<fs::path> states = FindStates(words, calls);
        const Files done = machine.Snapshot();
        const Bytes shown = machine.Shown(Name);
        EXPECT_GT(calls, 20) << "the shim was not there";
        EXPECT_GT(states.size(), 10u);
        // Of what may happen then each system has another at each state, so that all of it happens on one.
        int turn = GetParam().number;
        for (const fs::path& state : states) {
            const std::string where = words[0] + ", ended with what is in " + state.filename().string();
            PutBack(state);
            ExpectWhole(done, where);
            switch (turn++ % 3) {
                case 0:  // the user tries again
                    EXPECT_EQ(Call(words), 0) << where << ": " << said;
                    EXPECT_EQ(machine.Shown(Name), shown) << where;
                    EXPECT_EQ(Differences(done, machine.Snapshot()), "") << where;
                    break;
                case 1:
                    machine.Restart();
                    ExpectWhole(done, where + ", started anew");
                    break;
                default:
                    break;
            }
            ExpectResetRestores(where);
            if (HasFailure()) return;
        }
    }

    WatchedMachine machine;
    const Bytes before = MakeEdid(0x2002, 3);
    const Bytes wanted = MakeEdid(0x2001, 2);
    Files own;
    Files old;
    std::set<fs::path> copies;
    std::string said;
};

std::string NameOf(const testing::TestParamInfo<Case>& info) { return info.param.name; }

}  // namespace

TEST_P(EndedOn, AWriteThatTheSystemRefusesAtACallSaysSoOrIsDone) {
    const std::vector<std::string> words{"write", Name, (machine.Root() / "new.bin").string()};
    int calls = 0;
    FindStates(words, calls);
    EXPECT_GT(calls, 20) << "the shim was not there";
    const Files done = machine.Snapshot();
    // Each system has another third of the calls.
    for (int refused = 1 + GetParam().number; refused <= calls; refused += 3) {
        const std::string where = "write, refused at change " + std::to_string(refused);
        PutBack(GetCopy("old"));
        int change = 0;
        int status = 0;
        {
            const Shim::Watch watch(machine.Root().string(),
                                    [&](bool isChange) { return isChange && ++change == refused; });
            status = Call(words);
        }
        ExpectWhole(done, where);
        const std::string differences = Differences(done, machine.Snapshot());
        // Done as a whole, or a line tells what is not.
        EXPECT_TRUE(status == 0 || status == 2) << where;
        EXPECT_TRUE(differences.empty() || said.find("vantelle-cli: ") != std::string::npos) << where << differences;
        ExpectResetRestores(where);
        if (HasFailure()) return;
    }
}

TEST_P(EndedOn, AWriteLeavesWhatAResetTakesOff) {
    EndEverywhere({"write", Name, (machine.Root() / "new.bin").string()});
}

TEST_P(EndedOn, AResetLeavesWhatAnotherTakesOff) { EndEverywhere({"reset", Name}); }

INSTANTIATE_TEST_SUITE_P(Systems, EndedOn, testing::ValuesIn(Cases), &NameOf);

}  // namespace VNT::Linux::Sample
