#include <algorithm>
#include <sstream>

#include "store/linux/boot_loader.h"
#include "store/linux/grub_defaults.h"

// grubby(8), of Fedora and its kin: the one way there to change the entries of all kernels, of those to come too.
namespace VNT::Linux {

namespace {

constexpr char Entries[] = "boot/loader/entries";

struct Kernel {
    std::string path;
    std::string value;  // of the parameter; empty: none
    bool operator==(const Kernel&) const = default;
};

std::string Unquoted(std::string text) {
    if (text.size() >= 2 && text.front() == '"' && text.back() == '"') text = text.substr(1, text.size() - 2);
    return text;
}

std::optional<std::vector<Kernel>> ReadKernels(Host& host) {
    int status = 0;
    std::string output;
    if (host.Run({"grubby", "--info=ALL"}, status, &output) || status != 0) return std::nullopt;
    std::vector<Kernel> kernels;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("kernel=")) kernels.push_back({Unquoted(line.substr(7)), ""});
        if (!line.starts_with("args=") || kernels.empty()) continue;
        ValuePlace place;
        const Found found = FindParameter(line, place);
        if (found == Found::Unclear) return std::nullopt;
        if (found == Found::Yes) kernels.back().value = line.substr(place.begin, place.end - place.begin);
    }
    if (kernels.empty()) return std::nullopt;
    return kernels;
}

class Grubby : public BootLoader {
public:
    explicit Grubby(Host& host) : host_(host) {}

    std::string Name() const override { return "grubby"; }
    std::string FirmwareFolder() const override { return UsualFirmwareFolder(host_); }

    bool Plan(const EntryChange& entries, bool, const KeptFiles& kept, Changes& changes) override {
        const std::optional<std::vector<Kernel>> kernels = ReadKernels(host_);
        if (!kernels) return false;
        std::vector<Kernel> wanted = *kernels;
        for (Kernel& kernel : wanted) {
            kernel.value = AddEntries(RemoveEntries(kernel.value, entries.before), entries.after);
        }
        if (wanted != *kernels) PlanCalls(*kernels, wanted, changes);
        const auto strip = [&](const std::string& text) -> std::optional<std::string> {
            const std::optional<std::string> left = RemoveFromGrub(text, entries.before);
            return left ? RemoveFromText(*left, entries.before) : left;
        };
        std::vector<std::string> files{"etc/default/grub", "etc/kernel/cmdline"};
        for (const std::string& name : host_.Names(Entries)) files.push_back(std::string(Entries) + "/" + name);
        const bool isLast = entries.after.empty();
        for (const std::string& file : files) {
            if (isLast || wanted != *kernels) kept.PlanAround(changes, file, isLast, strip);
        }
        return true;
    }

private:
    // One call for all kernels, new ones included, where they are alike; else one for each.
    void PlanCalls(const std::vector<Kernel>& kernels, const std::vector<Kernel>& wanted, Changes& changes) {
        const bool alike = std::all_of(kernels.begin(), kernels.end(),
                                       [&](const Kernel& kernel) { return kernel.value == kernels[0].value; });
        const auto check = [&host = host_, wanted] { return ReadKernels(host) == wanted; };
        for (std::size_t i = 0; i < kernels.size(); ++i) {
            const std::string path = alike ? "ALL" : kernels[i].path;
            const bool isLast = alike || i + 1 == kernels.size();
            changes.Run(Call(path, wanted[i].value), Call(path, kernels[i].value),
                        isLast ? std::function<bool()>(check) : std::function<bool()>());
            if (alike) break;
        }
    }

    // What was there goes first, by its name: grubby's own replacement knows no value with commas.
    static Command Call(const std::string& kernel, const std::string& value) {
        Command command{"grubby", "--update-kernel=" + kernel, std::string("--remove-args=") + EdidParameter};
        if (!value.empty()) command.push_back(std::string("--args=") + EdidParameter + "=" + value);
        return command;
    }

    Host& host_;
};

}  // namespace

std::unique_ptr<BootLoader> FindGrubby(Host& host) {
    if (!FindProgram(host, "grubby") || !host.IsFolder("boot")) return nullptr;
    return std::make_unique<Grubby>(host);
}

}  // namespace VNT::Linux
