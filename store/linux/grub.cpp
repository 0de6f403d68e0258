#include <algorithm>

#include "store/linux/boot_loader.h"
#include "store/linux/grub_defaults.h"

// GRUB as grub-mkconfig sets it up: /etc/default/grub, and where that program reads them the drop-ins in
// /etc/default/grub.d, then one program that writes the loader's own file anew.
namespace VNT::Linux {

namespace {

constexpr char MainFile[] = "etc/default/grub";
constexpr char DropIns[] = "etc/default/grub.d";
constexpr char OwnDropIn[] = "etc/default/grub.d/zz-vantelle.cfg";  // behind those that set the variable anew

std::string DropInText(const std::vector<FirmwareEntry>& ours) {
    return std::string(OwnFileMark) + "\n" + GrubDefaultLine + "=\"$" + GrubDefaultLine + " " + EdidParameter + "=" +
           AddEntries("", ours) + "\"\n";
}

std::optional<Command> FindUpdate(const Host& host) {
    if (FindProgram(host, "update-grub")) return Command{"update-grub"};
    for (const std::string name : {"grub", "grub2"}) {
        const std::string file = "boot/" + name + "/grub.cfg";
        if (FindProgram(host, name + "-mkconfig") && host.IsFile(file)) {
            return Command{name + "-mkconfig", "-o", "/" + file};
        }
    }
    return std::nullopt;
}

bool ReadsDropIns(const Host& host) {
    if (!host.IsFolder(DropIns)) return false;
    for (const char* name : {"grub-mkconfig", "grub2-mkconfig"}) {
        const std::optional<std::string> program = FindProgram(host, name);
        if (program && ReadText(host, *program).find("/default/grub.d") != std::string::npos) return true;
    }
    return false;
}

class Grub : public BootLoader {
public:
    Grub(Host& host, Command update) : host_(host), update_(std::move(update)) {}

    std::string Name() const override { return "GRUB"; }
    std::string FirmwareFolder() const override { return UsualFirmwareFolder(host_); }

    bool Plan(const EntryChange& entries, bool isDue, const KeptFiles& kept, Changes& changes) override {
        const auto strip = [&](const std::string& text) { return RemoveFromGrub(text, entries.before); };
        std::vector<std::string> paths{MainFile};
        const bool hasDropIns = ReadsDropIns(host_);
        for (const std::string& name : hasDropIns ? host_.Names(DropIns) : std::vector<std::string>()) {
            const std::string path = std::string(DropIns) + "/" + name;
            if (name.ends_with(".cfg") && path != OwnDropIn) paths.push_back(path);
        }
        std::vector<std::string> texts;
        for (const std::string& path : paths) {
            const KeptFiles::Base base = kept.FindBase(path, strip);
            if (base.isUnclear) return false;
            texts.push_back(base.content ? ToText(*base.content) : std::string());
        }
        const KeptFiles::Base own = kept.FindBaseOfOwn(OwnDropIn);
        if (own.isUnclear) return false;

        const GrubPlace place = FindGrubPlace(texts);
        const bool inDropIn = hasDropIns && !place.hasParameter && !entries.after.empty();
        if (place.found == Found::Unclear && !entries.after.empty()) {
            // A drop-in of ours adds to whatever the others make of the variable, but not to a parameter among it.
            const bool hasParameter = std::any_of(texts.begin(), texts.end(), [](const std::string& text) {
                return text.find(EdidParameter) != std::string::npos;
            });
            if (!inDropIn || hasParameter) return false;
        }
        std::vector<std::string> wanted = texts;
        if (!inDropIn) {
            const std::optional<std::string> text = AddToGrub(texts[place.file], place, entries.after);
            if (!text) return false;
            wanted[place.file] = *text;
        }
        bool changed = false;
        for (std::size_t i = 0; i < paths.size(); ++i) {
            changed = Put(kept, paths[i], ToBytes(texts[i]), ToBytes(wanted[i]), changes) || changed;
        }
        const Content dropIn = inDropIn ? Content(ToBytes(DropInText(entries.after))) : own.content;
        changed = Put(kept, OwnDropIn, own.content, dropIn, changes) || changed;
        if (changed || isDue) changes.Run(update_, update_);
        return true;
    }

private:
    bool Put(const KeptFiles& kept, const std::string& path, const Content& base, const Content& content,
             Changes& changes) const {
        const bool changed = host_.Read(path) != content;
        kept.Plan(changes, path, base, content);
        return changed;
    }

    Host& host_;
    Command update_;
};

}  // namespace

std::unique_ptr<BootLoader> FindGrub(Host& host) {
    const std::optional<Command> update = FindUpdate(host);
    if (!update || !host.IsFile(MainFile)) return nullptr;
    return std::make_unique<Grub>(host, *update);
}

}  // namespace VNT::Linux
