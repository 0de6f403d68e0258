#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "store/linux/overrides.h"
#include "store/linux/system_host.h"

// A Linux machine in a folder, with a kernel and the programs of distributions as their manuals tell of them.
namespace VNT::Linux::Sample {

// An EDID of so many blocks with sound checksums; `product` makes it one of its own.
Bytes MakeEdid(int product, int blocks = 1);

class Machine : public SystemHost {
public:
    // An empty one, in a folder of the running test's name.
    Machine();
    ~Machine() override;

    // Files of the tree. A text is what a here-document would write.
    void Put(const std::string& path, const std::string& text);
    void Put(const std::string& path, const Bytes& bytes);
    // A variable that the boot loader left: four bytes of attributes, then UTF-16.
    void PutEfiText(const std::string& name, const std::string& text);
    static std::string EfiPath(const std::string& name);
    void Link(const std::string& path, const std::string& target);
    void Delete(const std::string& path);
    std::string Get(const std::string& path) const;
    bool Has(const std::string& path) const;
    // All files but those that do not outlive a start, with their contents; links with their targets.
    std::map<std::string, std::string> Snapshot(bool withState = true) const;
    const std::filesystem::path& Root() const { return tree_; }

    // The machine of most tests: three cards and eight connectors (connected, disconnected, without an EDID, of 256
    // blocks, built in, with a broken EDID, two equal monitors), debugfs and a firmware folder.
    void AddCards();
    // A connector with what it reports; its card's folders are made as needed.
    void AddConnector(const std::string& device, const std::string& card, const std::string& name, bool connected,
                      const Bytes& edid);
    Connector Find(const std::string& fullName) const;
    Bytes Shown(const std::string& fullName) const { return ReadEdid(*this, Find(fullName)); }

    // The systems, each with the files and programs by which it is known.
    void AddDebian();                           // GRUB with drop-ins, initramfs-tools
    void AddGrub(const std::string& defaults);  // as upstream: no drop-ins, grub-mkconfig
    void AddFedora();                           // grubby, dracut
    void AddSystemdBoot();                      // kernel-install, dracut
    void AddArch(bool withDropIns);             // unified images of mkinitcpio
    void AddSilverblue();                       // rpm-ostree
    void AddDracut();
    void Make(const Command& command);  // as the user would run it

    // Starts the machine anew with the command line that its boot loader has now, or with none of a loader.
    void Restart();
    std::string CommandLine() const;  // what the next start gives the kernel
    std::string EarlyImage() const;   // the files of ours in the image, a line each

    // The count-th call that changes something fails (1: the next), or all of a program.
    void FailChange(int count) { failAt_ = changes_ + count; }
    void FailProgram(const std::string& name) { failingProgram_ = name; }
    void IdleProgram(const std::string& name) { idleProgram_ = name; }  // it ends well and has changed nothing
    void ClearFaults() { failAt_ = 0, failingProgram_.clear(), refusesOverrides_ = false; }
    void RefuseOverrides() { refusesOverrides_ = true; }  // as a locked-down kernel does
    void IgnoreOverrides() { ignoresOverrides_ = true; }  // as some drivers do
    void TakeRights() { hasRights_ = false; }
    int ChangeCount() const { return changes_; }
    const std::vector<std::string>& Calls() const { return calls_; }  // programs that were run to change something

    std::error_code Write(const std::string& path, const Bytes& bytes, bool executable) override;
    std::error_code Remove(const std::string& path) override;
    std::error_code WriteAttribute(const std::string& path, const Bytes& bytes) override;
    bool MayWrite(const std::string& path) const override { return hasRights_ && SystemHost::MayWrite(path); }
    bool MayRun() const override { return hasRights_; }
    std::error_code Run(const Command& command, int& status, std::string* output) override;

private:
    std::map<std::string, std::string> FilesBelow(const std::string& folder) const;
    bool Fails() { return ++changes_ == failAt_; }
    void Probe(const std::string& folder);
    std::string Shell(const std::string& script) const;  // what it prints, run in the tree
    bool RunProgram(const Command& command, std::string& output);
    void RunGrubby(const Command& command, std::string& output);
    void RunRpmOstree(const Command& command, std::string& output);

    std::filesystem::path tree_;
    std::map<std::string, Bytes> reported_;  // by the connector's folder: what the display itself says
    std::vector<std::string> calls_;
    std::string failingProgram_;
    std::string idleProgram_;
    int changes_ = 0;
    int failAt_ = 0;
    bool refusesOverrides_ = false;
    bool ignoresOverrides_ = false;
    bool hasRights_ = true;
};

// The paths that two snapshots differ in, and what the second has there.
std::string Differences(const std::map<std::string, std::string>& before,
                        const std::map<std::string, std::string>& after);

// What was told, all lines of both kinds.
class Told {
public:
    Report AsReport() {
        return {[this](const std::string& line) { did += line + "\n"; },
                [this](const std::string& line) { wrong += line + "\n"; }};
    }
    std::string did;
    std::string wrong;
};

}  // namespace VNT::Linux::Sample
