#include "store/linux/early_image.h"

namespace VNT::Linux {

namespace {

constexpr char HookFile[] = "etc/initramfs-tools/hooks/vantelle";
constexpr char DracutFile[] = "etc/dracut.conf.d/vantelle.conf";
constexpr char MkinitcpioFolder[] = "etc/mkinitcpio.conf.d";
constexpr char MkinitcpioDropIn[] = "etc/mkinitcpio.conf.d/vantelle.conf";
constexpr char MkinitcpioFile[] = "etc/mkinitcpio.conf";

// initramfs-tools(7): a hook is asked for its prerequisites first.
std::string HookText(const std::vector<std::string>& files) {
    std::string text = "#!/bin/sh\n" + std::string(OwnFileMark) +
                       "\ncase \"$1\" in prereqs) exit 0 ;; esac\n. /usr/share/initramfs-tools/hook-functions\n";
    for (const std::string& file : files) text += "copy_file firmware /" + file + "\n";
    return text;
}

// dracut.conf(5): names within install_items are separated by blanks.
std::string DracutText(const std::vector<std::string>& files) {
    std::string text = std::string(OwnFileMark) + "\ninstall_items+=\"";
    for (const std::string& file : files) text += " /" + file;
    return text + " \"\n";
}

// mkinitcpio.conf(5): an array of the shell's.
std::string MkinitcpioText(const std::vector<std::string>& files) {
    std::string text = std::string(OwnFileMark) + "\nFILES+=(";
    for (const std::string& file : files) text += (&file == &files.front() ? "/" : " /") + file;
    return text + ")\n";
}

// Takes our lines off the end of /etc/mkinitcpio.conf, whatever stands behind them now.
std::optional<std::string> StripMkinitcpio(const std::string& text) {
    const std::size_t mark = text.find(OwnFileMark);
    if (mark == std::string::npos) return text;
    std::size_t end = text.find('\n', mark);
    if (end == std::string::npos || text.compare(end + 1, 8, "FILES+=(") != 0) return std::nullopt;
    end = text.find('\n', end + 1);
    return text.substr(0, mark) + (end == std::string::npos ? "" : text.substr(end + 1));
}

bool PlanOwnFile(const KeptFiles& kept, const std::string& path, const std::vector<std::string>& files,
                 const std::string& text, bool executable, Changes& changes) {
    const KeptFiles::Base base = kept.FindBaseOfOwn(path);
    if (base.isUnclear) return false;
    kept.Plan(changes, path, base.content, files.empty() ? base.content : Content(ToBytes(text)), executable);
    return true;
}

bool PlanMkinitcpio(const KeptFiles& kept, const std::vector<std::string>& files, Changes& changes) {
    const KeptFiles::Base base = kept.FindBase(MkinitcpioFile, StripMkinitcpio);
    if (base.isUnclear || !base.content) return false;
    const std::string text = ToText(*base.content);
    const std::string gap = text.empty() || text.back() == '\n' ? "" : "\n";
    kept.Plan(changes, MkinitcpioFile, base.content,
              files.empty() ? base.content : Content(ToBytes(text + gap + MkinitcpioText(files))));
    return true;
}

}  // namespace

ImageMaker FindImageMaker(const Host& host) {
    // Debian's package of hooks is there only where its program makes the images, even if dracut's parts are there too.
    if (host.IsFile("usr/share/initramfs-tools/hook-functions") && FindProgram(host, "update-initramfs")) {
        return ImageMaker::InitramfsTools;
    }
    const bool hasDracut = FindProgram(host, "dracut").has_value();
    const bool hasMkinitcpio = FindProgram(host, "mkinitcpio") && host.IsFile(MkinitcpioFile);
    if (hasDracut == hasMkinitcpio) return ImageMaker::None;
    return hasDracut ? ImageMaker::Dracut : ImageMaker::Mkinitcpio;
}

Command MakeImages(ImageMaker maker) {
    switch (maker) {
        case ImageMaker::InitramfsTools:
            return {"update-initramfs", "-u", "-k", "all"};
        case ImageMaker::Dracut:
            return {"dracut", "--regenerate-all", "--force"};
        case ImageMaker::Mkinitcpio:
            return {"mkinitcpio", "-P"};
        case ImageMaker::None:
            break;
    }
    return {};
}

bool PlanImage(ImageMaker maker, const Host& host, const KeptFiles& kept, const std::vector<std::string>& files,
               Changes& changes) {
    switch (maker) {
        case ImageMaker::InitramfsTools:
            return PlanOwnFile(kept, HookFile, files, HookText(files), true, changes);
        case ImageMaker::Dracut:
            return PlanOwnFile(kept, DracutFile, files, DracutText(files), false, changes);
        case ImageMaker::Mkinitcpio:
            // Older ones read no folder of drop-ins.
            if (!host.IsFolder(MkinitcpioFolder)) return PlanMkinitcpio(kept, files, changes);
            return PlanOwnFile(kept, MkinitcpioDropIn, files, MkinitcpioText(files), false, changes);
        case ImageMaker::None:
            break;
    }
    return false;
}

}  // namespace VNT::Linux
