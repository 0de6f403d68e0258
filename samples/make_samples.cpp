// make-samples OUT: writes the sample displays as a folder that vantelle-cli reads (OUT/displays/) and as a registry
// file for a Wine prefix (OUT/displays.reg).

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "samples/displays.h"

namespace fs = std::filesystem;

namespace {

std::string Replaced(std::string text, char from, const std::string& to) {
    std::string out;
    for (const char c : text) out += c == from ? to : std::string(1, c);
    return out;
}

void WriteFile(const fs::path& file, const char* data, std::size_t size) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary).write(data, static_cast<std::streamsize>(size));
}

void WriteBlock(const fs::path& file, const Samples::Block& block) {
    WriteFile(file, reinterpret_cast<const char*>(block.data()), block.size());
}

void WriteText(const fs::path& file, const std::string& text) { WriteFile(file, text.data(), text.size()); }

Samples::Block BlockOf(const Samples::Block& all, std::size_t index) {
    const auto start = all.begin() + static_cast<std::ptrdiff_t>(index * 128);
    return {start, start + 128};
}

void WriteFolder(const fs::path& displays, const Samples::Display& display) {
    const fs::path folder = displays / Replaced(display.instanceId, '\\', "#");
    WriteBlock(folder / "EDID", display.edid);
    WriteText(folder / "DeviceDesc", display.description);
    WriteText(folder / "Driver", display.driverKey);
    if (display.active) WriteText(folder / "Active", "");
    for (std::size_t i = 0; i * 128 < display.edidOverride.size(); ++i) {
        WriteBlock(folder / "EDID_OVERRIDE" / std::to_string(i), BlockOf(display.edidOverride, i));
    }
}

std::string Hex(const Samples::Block& bytes) {
    std::string text;
    char digits[4];
    for (const std::uint8_t byte : bytes) {
        std::snprintf(digits, sizeof digits, "%02x", byte);
        text += (text.empty() ? "" : ",") + std::string(digits);
    }
    return text;
}

Samples::Block Utf16(const std::string& ascii) {
    Samples::Block bytes;
    for (const char c : ascii + '\0') {
        bytes.push_back(static_cast<std::uint8_t>(c));
        bytes.push_back(0);
    }
    return bytes;
}

// The registry values by which SetupAPI under Wine finds a monitor, its key and its properties.
std::string Registry(const Samples::Display& d) {
    constexpr const char* propertySet = "Properties\\{a45c254e-df1c-4efd-8020-67d146a850e0}\\";
    constexpr const char* interfaceClass = "{E6F07B5F-EE97-4A90-B076-33F57BF4EAA7}";
    const std::string key = "HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Enum\\" + d.instanceId;
    const std::string quotedId = Replaced(d.instanceId, '\\', "\\\\");
    const std::string hashedId = Replaced(d.instanceId, '\\', "#");
    const std::string hardware = "MONITOR\\" + d.instanceId.substr(8, d.instanceId.find('\\', 8) - 8);
    std::string text =
        "[" + key + "]\n\"Class\"=\"Monitor\"\n\"ClassGUID\"=\"{4D36E96E-E325-11CE-BFC1-08002BE10318}\"\n";
    text += "\"DeviceDesc\"=\"" + d.description + "\"\n\"Driver\"=\"" + Replaced(d.driverKey, '\\', "\\\\") + "\"\n";
    text += "\"HardwareID\"=hex(7):" + Hex(Utf16(hardware)) + ",00,00\n\n";
    text += "[" + key + "\\Device Parameters]\n\"EDID\"=hex:" + Hex(d.edid) + "\n\n";
    if (!d.edidOverride.empty()) text += "[" + key + "\\Device Parameters\\EDID_OVERRIDE]\n";
    for (std::size_t i = 0; i * 128 < d.edidOverride.size(); ++i) {
        text += "\"" + std::to_string(i) + "\"=hex:" + Hex(BlockOf(d.edidOverride, i)) + "\n";
    }
    text += "\n[" + key + "\\" + propertySet + "000B]\n@=hex(ffff0012):" + Hex(Utf16(d.driverKey)) + "\n\n";
    text += "[" + key + "\\" + propertySet + "0002]\n@=hex(ffff0012):" + Hex(Utf16(d.description)) + "\n\n";
    const std::string link = std::string("HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Control\\DeviceClasses\\") +
                             interfaceClass + "\\##?#" + hashedId + "#" + interfaceClass;
    text += "[" + link + "]\n\"DeviceInstance\"=\"" + quotedId + "\"\n\n";
    text += "[" + link + "\\#]\n\"SymbolicLink\"=\"\\\\\\\\?\\\\" + hashedId + "#" + interfaceClass + "\"\n\n";
    text += "[" + link + "\\#\\Control]\n\"Linked\"=dword:" + (d.active ? "00000001" : "00000000") + "\n\n";
    return text;
}

}  // namespace

int main(int count, char** words) {
    if (count != 2) {
        std::cerr << "usage: make-samples OUT\n";
        return 2;
    }
    const fs::path out = words[1];
    std::error_code ignored;
    fs::remove_all(out / "displays", ignored);
    std::string registry = "REGEDIT4\n\n";
    for (const Samples::Display& display : Samples::MakeDisplays()) {
        WriteFolder(out / "displays", display);
        registry += Registry(display);
    }
    WriteText(out / "displays.reg", registry);
    return 0;
}
