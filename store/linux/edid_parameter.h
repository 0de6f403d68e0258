#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The kernel parameter drm.edid_firmware: entries `connector:file`, separated by commas, the file below the firmware
// folder. An entry serves each connector whose name begins with the entry's, the first one in the list wins, and one
// without a connector serves those that no other does (drivers/gpu/drm/drm_edid_load.c).
namespace VNT::Linux {

inline constexpr char EdidParameter[] = "drm.edid_firmware";
inline constexpr std::size_t MostParameterText = 1024;  // the command line of x86 holds 2048 bytes in all

struct FirmwareEntry {
    std::string connector;  // "DP-2"
    std::string file;       // "edid/VTA1001-DP-2.bin"
    std::string Text() const { return connector + ":" + file; }
    bool operator==(const FirmwareEntry&) const = default;
};

// The value with our entries where the kernel finds them for their connectors, those of others kept.
std::string AddEntries(const std::string& value, const std::vector<FirmwareEntry>& ours);
// The inverse.
std::string RemoveEntries(const std::string& value, const std::vector<FirmwareEntry>& ours);
// The file that the kernel loads for a connector, empty for none.
std::string FileFor(const std::string& value, const std::string& connector);

// Where a value stands in a text.
struct ValuePlace {
    std::size_t begin = 0;
    std::size_t end = 0;
};
enum class Found { No, Yes, Unclear };
// The value of the parameter in words of the kernel's command line, quoted or not; of several the last, which is the
// one that counts. Unclear: it holds what no list of files does, such as a shell's variable.
Found FindParameter(std::string_view text, ValuePlace& place);
// The text with the value's entries added or taken off; a parameter that is left without entries goes too. Without a
// parameter the first puts one at `end`, if it lies within the text; nothing if a value is unclear.
std::optional<std::string> AddToText(const std::string& text, const std::vector<FirmwareEntry>& ours, std::size_t end);
std::optional<std::string> RemoveFromText(const std::string& text, const std::vector<FirmwareEntry>& ours);

// A file that is one command line, such as /etc/kernel/cmdline.
std::optional<std::string> AddToCommandLine(const std::string& text, const std::vector<FirmwareEntry>& ours);

}  // namespace VNT::Linux
