#include "store/linux/boot_loader.h"

namespace VNT::Linux {

namespace {

constexpr char Efivars[] = "sys/firmware/efi/efivars/";
constexpr char LoaderVendor[] = "-4a67b082-0a4c-41cf-b6c7-440b29bb8c4f";  // of the boot loader interface's variables

// The text of a variable: four bytes of attributes, then UTF-16.
std::string ReadEfiText(const Host& host, const std::string& name) {
    const std::optional<Bytes> bytes = host.Read(Efivars + name + LoaderVendor, 1024);
    std::string text;
    for (int i = 4; bytes && i + 1 < bytes->Size() && bytes->At(i) != 0; i += 2) {
        text += static_cast<char>(bytes->At(i));
    }
    return text;
}

// Whether systemd's loader, or its stub without a loader, started the kernel.
bool IsStartedBySystemd(const Host& host) {
    return ReadEfiText(host, "LoaderInfo").starts_with("systemd-boot") ||
           (ReadEfiText(host, "StubInfo").starts_with("systemd-stub") && ReadEfiText(host, "LoaderInfo").empty());
}

}  // namespace

std::unique_ptr<BootLoader> FindBootLoader(Host& host) {
    if (host.IsFile("run/ostree-booted")) return FindRpmOstree(host);
    if (IsStartedBySystemd(host)) return FindCommandLine(host);
    for (const auto find : {&FindGrubby, &FindGrub, &FindCommandLine}) {
        if (std::unique_ptr<BootLoader> found = find(host)) return found;
    }
    return nullptr;
}

std::string UsualFirmwareFolder(const Host& host) {
    const std::optional<std::string> folder = host.Resolve("lib/firmware");
    if (folder && host.IsFolder(*folder)) return *folder;
    const std::optional<std::string> above = host.Resolve("lib");
    return above && host.IsFolder(*above + "/modules") ? *above + "/firmware" : std::string();
}

}  // namespace VNT::Linux
