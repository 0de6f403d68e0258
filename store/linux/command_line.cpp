#include "store/linux/boot_loader.h"
#include "store/linux/early_image.h"

// /etc/kernel/cmdline: what kernel-install(8) writes into the entries of systemd-boot and into unified kernel images,
// and what mkinitcpio(8) puts into those that it makes.
namespace VNT::Linux {

namespace {

constexpr char OwnLine[] = "etc/kernel/cmdline";
constexpr char VendorLine[] = "usr/lib/kernel/cmdline";  // what counts where there is no other

// The kernels that kernel-install put where the loader finds them: nothing is installed anew that wasn't there.
std::vector<std::string> InstalledKernels(const Host& host) {
    std::vector<std::string> versions;
    for (const std::string& version : host.Names("lib/modules")) {
        bool isInstalled = false;
        for (const std::string boot : {"boot", "efi", "boot/efi"}) {
            for (const std::string& name : host.Names(boot + "/loader/entries")) {
                isInstalled = isInstalled || name.ends_with("-" + version + ".conf") ||
                              name.find("-" + version + "+") != std::string::npos;  // with a count of its starts
            }
            for (const std::string& name : host.Names(boot + "/EFI/Linux")) {
                isInstalled = isInstalled || name.ends_with("-" + version + ".efi") ||
                              name.find("-" + version + "+") != std::string::npos;
            }
        }
        if (isInstalled) versions.push_back(version);
    }
    return versions;
}

// Whether mkinitcpio makes unified images, by its presets.
bool MakesUnifiedImages(const Host& host) {
    if (FindImageMaker(host) != ImageMaker::Mkinitcpio) return false;
    for (const std::string& name : host.Names("etc/mkinitcpio.d")) {
        for (const std::string& line : ReadLines(host, "etc/mkinitcpio.d/" + name)) {
            const std::size_t sign = line.find('=');
            if (sign != std::string::npos && line.substr(0, sign).ends_with("_uki") && line[0] != '#') return true;
        }
    }
    return false;
}

class CommandLine : public BootLoader {
public:
    CommandLine(Host& host, std::vector<Command> calls) : host_(host), calls_(std::move(calls)) {}

    std::string Name() const override { return "kernel-install"; }
    std::string FirmwareFolder() const override { return UsualFirmwareFolder(host_); }

    bool MakesImages() const override {
        if (calls_[0] == MakeImages(ImageMaker::Mkinitcpio)) return true;
        const ImageMaker maker = FindImageMaker(host_);
        const std::string folder = "usr/lib/kernel/install.d/";
        return (maker == ImageMaker::Dracut && host_.IsFile(folder + "50-dracut.install")) ||
               (maker == ImageMaker::Mkinitcpio && host_.IsFile(folder + "50-mkinitcpio.install"));
    }

    bool Plan(const EntryChange& entries, bool isDue, const KeptFiles& kept, Changes& changes) override {
        const KeptFiles::Base base =
            kept.FindBase(OwnLine, [&](const std::string& text) { return RemoveFromText(text, entries.before); });
        if (base.isUnclear) return false;
        const std::string text = base.content ? ToText(*base.content) : ReadText(host_, VendorLine);
        const std::optional<std::string> changed = AddToCommandLine(text, entries.after);
        if (!changed) return false;
        const Content content = entries.after.empty() ? base.content : Content(ToBytes(*changed));
        isDue = isDue || host_.Read(OwnLine) != content;
        kept.Plan(changes, OwnLine, base.content, content);
        for (const Command& call : calls_) {
            if (isDue) changes.Run(call, call);
        }
        return true;
    }

private:
    Host& host_;
    std::vector<Command> calls_;
};

}  // namespace

std::unique_ptr<BootLoader> FindCommandLine(Host& host) {
    if (!host.IsFile(OwnLine) && !host.IsFile(VendorLine)) return nullptr;
    std::vector<Command> calls;
    for (const std::string& version : InstalledKernels(host)) {
        for (const std::string& image : {"lib/modules/" + version + "/vmlinuz", "boot/vmlinuz-" + version}) {
            if (!host.IsFile(image) || !FindProgram(host, "kernel-install")) continue;
            calls.push_back({"kernel-install", "add", version, "/" + image});
            break;
        }
    }
    if (calls.empty() && MakesUnifiedImages(host)) calls.push_back(MakeImages(ImageMaker::Mkinitcpio));
    if (calls.empty()) return nullptr;
    return std::make_unique<CommandLine>(host, std::move(calls));
}

}  // namespace VNT::Linux
