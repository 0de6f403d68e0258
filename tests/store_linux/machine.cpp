#include "tests/store_linux/machine.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <unistd.h>

namespace fs = std::filesystem;

// The stack of each allocation costs more than the allocation, and memory that is used again is in the cache.
extern "C" const char* __asan_default_options() { return "malloc_context_size=2:quarantine_size_mb=8"; }

namespace VNT::Linux::Sample {

namespace {

constexpr char Drm[] = "sys/class/drm/";
constexpr char FirmwarePath[] = "sys/module/firmware_class/parameters/path";
constexpr char Live[] = "sys/module/drm/parameters/edid_firmware";

fs::path FreshFolder() {
    const testing::TestInfo* info = testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string(info->test_suite_name()) + "_" + info->name();
    std::replace(name.begin(), name.end(), '/', '_');
    // In memory where that can be had: each file that is written has to be on the disk before the next.
    const fs::path memory = "/dev/shm";
    const fs::path place = access(memory.c_str(), W_OK) == 0 ? memory : fs::temp_directory_path();
    const fs::path folder = place / ("vantelle_linux_" + name + "_" + std::to_string(getpid()));
    fs::remove_all(folder);
    fs::create_directories(folder);
    return folder;
}

// drm_edid_valid(): whole blocks, as many as the first one counts, each with its checksum.
bool IsValid(const Bytes& edid) {
    if (edid.Size() < 128 || edid.Size() != (edid.At(126) + 1) * 128) return false;
    for (int block = 0; block < edid.Size(); block += 128) {
        int sum = 0;
        for (int i = 0; i < 128; ++i) sum += edid.At(block + i);
        if (sum % 256 != 0) return false;
    }
    return true;
}

}  // namespace

Bytes MakeEdid(int product, int blocks) {
    Bytes edid(blocks * 128, 0);
    for (int i = 1; i < 7; ++i) edid.At(i) = 255;
    edid.At(8) = 0x5A;  // "VTA"
    edid.At(9) = 0x81;
    edid.At(10) = static_cast<std::uint8_t>(product % 256);
    edid.At(11) = static_cast<std::uint8_t>(product / 256);
    edid.At(126) = static_cast<std::uint8_t>(blocks - 1);
    for (int block = 0; block < blocks; ++block) {
        if (block > 0) edid.At(block * 128) = 2, edid.At(block * 128 + 1) = static_cast<std::uint8_t>(block % 256);
        int sum = 0;
        for (int i = 0; i < 127; ++i) sum += edid.At(block * 128 + i);
        edid.At(block * 128 + 127) = static_cast<std::uint8_t>((256 - sum % 256) % 256);
    }
    return edid;
}

std::string Differences(const std::map<std::string, std::string>& before,
                        const std::map<std::string, std::string>& after) {
    std::string text;
    for (const auto& [path, content] : before) {
        if (!after.contains(path)) text += path + " is gone\n";
    }
    for (const auto& [path, content] : after) {
        const auto found = before.find(path);
        if (found != before.end() && found->second == content) continue;
        text += path + (found == before.end() ? " is new: " : " is changed: ");
        for (const char c : content.substr(0, 300)) text += c == '\n' || (c >= ' ' && c <= '~') ? c : '.';
        text += "\n";
    }
    return text;
}

Machine::Machine() : SystemHost(FreshFolder()), tree_(FreshFolder()) {}

Machine::~Machine() {
    std::error_code error;
    fs::remove_all(tree_, error);
}

void Machine::Put(const std::string& path, const std::string& text) {
    fs::create_directories((tree_ / path).parent_path());
    std::ofstream(tree_ / path, std::ios::binary) << text;
}

void Machine::Put(const std::string& path, const Bytes& bytes) { Put(path, ToText(bytes)); }

void Machine::Link(const std::string& path, const std::string& target) {
    fs::create_directories((tree_ / path).parent_path());
    fs::create_symlink(target, tree_ / path);
}

void Machine::Delete(const std::string& path) { fs::remove_all(tree_ / path); }

std::string Machine::Get(const std::string& path) const {
    std::ifstream in(tree_ / path, std::ios::binary | std::ios::ate);
    std::string text(static_cast<std::size_t>(std::max<std::streamoff>(in.tellg(), 0)), '\0');
    in.seekg(0).read(text.data(), static_cast<std::streamsize>(text.size()));
    return text;
}

bool Machine::Has(const std::string& path) const { return fs::exists(fs::symlink_status(tree_ / path)); }

std::map<std::string, std::string> Machine::FilesBelow(const std::string& folder) const {
    std::map<std::string, std::string> files;
    if (!fs::is_directory(tree_ / folder)) return files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(tree_ / folder)) {
        const std::string path = entry.path().string().substr(tree_.string().size() + 1);
        if (entry.is_symlink()) {
            files[path] = "-> " + fs::read_symlink(entry.path()).string();
        } else if (entry.is_regular_file()) {
            files[path] = Get(path);
        } else if (path.starts_with("etc/") || path.starts_with("lib/") || path.starts_with("usr/")) {
            files[path] = "a folder";
        }
    }
    return files;
}

std::map<std::string, std::string> Machine::Snapshot(bool withState) const {
    std::map<std::string, std::string> files = FilesBelow("");
    std::erase_if(files, [withState](const auto& entry) {
        const std::string& path = entry.first;
        return path.starts_with("run/") || path == FirmwarePath || (!withState && path.starts_with(StateFolder));
    });
    return files;
}

void Machine::AddConnector(const std::string& device, const std::string& card, const std::string& name, bool connected,
                           const Bytes& edid) {
    const std::string entry = card + "-" + name;
    const std::string folder = "sys/devices/" + device + "/drm/" + card + "/" + entry;
    Put(folder + "/status", connected ? "connected\n" : "disconnected\n");
    Put(folder + "/edid", edid);
    Link(Drm + entry, "../../devices/" + device + "/drm/" + card + "/" + entry);
    Put("sys/kernel/debug/dri/" + card.substr(4) + "/" + name + "/edid_override", "");
    Put("sys/kernel/debug/dri/" + card.substr(4) + "/name",
        "amdgpu dev=" + device.substr(device.rfind('/') + 1) + " unique=" + device + "\n");
    reported_[folder] = edid;
}

void Machine::AddCards() {
    const std::string first = "pci0000:00/0000:00:02.0";
    const std::string second = "pci0000:00/0000:00:01.0/0000:03:00.0";
    const std::string third = "platform/soc@0/fd4a0000.gpu";
    Bytes broken = MakeEdid(0x1004);
    broken.At(20) = 99;
    AddConnector(first, "card0", "eDP-1", true, MakeEdid(0x1001));
    AddConnector(first, "card0", "HDMI-A-1", false, {});
    AddConnector(second, "card1", "DP-1", true, MakeEdid(0x1002, 2));
    AddConnector(second, "card1", "DP-2", true, MakeEdid(0x1002, 2));
    AddConnector(second, "card1", "DP-10", true, MakeEdid(0x1003, 256));
    AddConnector(second, "card1", "HDMI-A-2", true, {});
    AddConnector(third, "card2", "HDMI-A-3", true, broken);
    AddConnector(third, "card2", "DVI-D-1", true, MakeEdid(0x1005));
    Link("sys/bus/pci/drivers/amdgpu/x", "nowhere");
    Link("sys/devices/" + second + "/driver", "../../../../bus/pci/drivers/amdgpu");
    Put("sys/devices/" + second + "/product_name", "Sample Graphics 6\n");
    Put("sys/devices/" + first + "/vendor", "0x8086\n");
    Put("sys/devices/" + first + "/device", "0x9a49\n");
    Link(std::string(Drm) + "card0", "../../devices/" + first + "/drm/card0");
    Link(std::string(Drm) + "renderD128", "../../devices/" + first + "/drm/renderD128");
    Put(std::string(Drm) + "version", "drm 1.1.0 20060810\n");
    Put(Live, "\n");
    Put("usr/lib/firmware/amdgpu/navi.bin", "firmware");
    Put("usr/lib/modules/6.1.0-13-amd64/vmlinuz", "kernel");
    Link("lib", "usr/lib");
    fs::create_directories(tree_ / "etc");
    fs::create_directories(tree_ / "var/lib");
    fs::create_directories(tree_ / "run");
}

Connector Machine::Find(const std::string& fullName) const {
    for (const Connector& connector : FindConnectors(*this)) {
        if (connector.FullName() == fullName) return connector;
    }
    ADD_FAILURE() << fullName;
    return {};
}

// What the kernel does when a connector is probed: an override, then a firmware file, then the display itself.
void Machine::Probe(const std::string& folder) {
    const std::string entry = folder.substr(folder.rfind('/') + 1);
    const std::size_t hyphen = entry.find('-');
    const std::string name = entry.substr(hyphen + 1);
    const std::string given =
        Get("sys/kernel/debug/dri/" + entry.substr(4, hyphen - 4) + "/" + name + "/edid_override");
    std::string value = Get(Live);
    value.resize(value.find_last_not_of('\n') + 1);
    const std::string file = FileFor(value, name);
    Bytes edid = reported_[folder];
    const Bytes firmware = ToBytes(file.empty() ? "" : Get("lib/firmware/" + file));
    const Bytes elsewhere = ToBytes(file.empty() ? "" : Get(Get(FirmwarePath) + "/" + file));
    for (const Bytes& bytes : {firmware, elsewhere}) {
        if (IsValid(bytes)) edid = bytes;
    }
    if (!given.empty()) edid = ToBytes(given);
    if (ignoresOverrides_) edid = reported_[folder];
    Put(folder + "/edid", edid);
}

void Machine::Restart() {
    ValuePlace place;
    const std::string line = CommandLine();
    const Found found = FindParameter(line, place);
    Put(Live, (found == Found::Yes ? line.substr(place.begin, place.end - place.begin) : "") + "\n");
    const std::string name = "firmware_class.path=/";
    const std::size_t path = line.find(name);
    const std::size_t begin = path + name.size();
    Put(FirmwarePath, path == std::string::npos ? "" : line.substr(begin, line.find_first_of(" \n", begin) - begin));
    for (const auto& [folder, edid] : reported_) {
        const std::string entry = folder.substr(folder.rfind('/') + 1);
        const std::size_t hyphen = entry.find('-');
        Put("sys/kernel/debug/dri/" + entry.substr(4, hyphen - 4) + "/" + entry.substr(hyphen + 1) + "/edid_override",
            "");
        Probe(folder);
    }
}

std::error_code Machine::Write(const std::string& path, const Bytes& bytes, bool executable) {
    if (Fails()) return std::make_error_code(std::errc::no_space_on_device);
    return SystemHost::Write(path, bytes, executable);
}

std::error_code Machine::Remove(const std::string& path) {
    if (Fails()) return std::make_error_code(std::errc::permission_denied);
    return SystemHost::Remove(path);
}

std::error_code Machine::WriteAttribute(const std::string& path, const Bytes& bytes) {
    if (Fails()) return std::make_error_code(std::errc::io_error);
    const bool isOverride = path.ends_with("/edid_override");
    const bool isReset = isOverride && bytes == ToBytes("reset");
    if (isOverride && refusesOverrides_) return std::make_error_code(std::errc::operation_not_permitted);
    if (isOverride && !isReset && !IsValid(bytes)) return std::make_error_code(std::errc::invalid_argument);
    if (path.ends_with("/status")) {
        if (bytes != ToBytes("detect")) return std::make_error_code(std::errc::invalid_argument);
        Probe(path.substr(0, path.rfind('/')));
        return {};
    }
    return SystemHost::WriteAttribute(path, isReset ? Bytes() : bytes);
}

std::string Machine::Shell(const std::string& script) const {
    // A shell says the same of the same files: only the first time is it asked.
    static std::map<std::string, std::string> answers;
    std::string question = script;
    for (const auto& [path, content] : FilesBelow("etc")) question += '\0' + path + '\0' + content;
    const auto known = answers.find(question);
    if (known != answers.end()) return known->second;
    const std::string command = "cd '" + tree_.string() + "' && " + script;
    std::FILE* pipe = popen(("bash -c '" + command + "'").c_str(), "r");
    std::string output;
    char piece[4096];
    for (std::size_t count = 0; pipe != nullptr && (count = std::fread(piece, 1, sizeof(piece), pipe)) > 0;) {
        output.append(piece, count);
    }
    EXPECT_EQ(pipe == nullptr ? -1 : pclose(pipe), 0) << script;
    return answers[question] = output;
}

std::error_code Machine::Run(const Command& command, int& status, std::string* output) {
    const bool isQuery = command == Command{"grubby", "--info=ALL"} || command == Command{"rpm-ostree", "kargs"};
    std::string printed;
    status = 0;
    if (!isQuery) {
        calls_.push_back(CommandText(command));
        if (Fails() || command[0] == failingProgram_) {
            status = 3;
            printed = "some lines\nno space left\n";
        }
    }
    if (!FindProgram(*this, command[0])) return std::make_error_code(std::errc::no_such_file_or_directory);
    const bool isIdle = !isQuery && command[0] == idleProgram_;
    if (status == 0 && !isIdle && !RunProgram(command, printed)) status = 1;
    if (output != nullptr) *output = printed;
    return {};
}

}  // namespace VNT::Linux::Sample
