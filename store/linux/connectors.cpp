#include "store/linux/connectors.h"

#include <algorithm>
#include <string_view>

#include "store/source.h"

namespace VNT::Linux {

namespace {

constexpr char Devices[] = "sys/devices/";
constexpr char Debug[] = "sys/kernel/debug/dri/";
constexpr int MostText = 4096;  // a page: as much as an attribute has

bool IsWord(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); }

bool IsPlain(const std::string& text, std::string_view others) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [others](char c) {
        return IsWord(c) || others.find(c) != std::string_view::npos;
    });
}

bool IsNumber(const std::string& text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// A file of the connector's own: no link leads from it to another.
std::string OwnFile(const Host& host, const std::string& folder, const std::string& name) {
    const std::string path = folder + "/" + name;
    return !folder.empty() && host.Resolve(path) == path && host.IsFile(path) ? path : std::string();
}

std::string ReadOwnLine(const Host& host, const std::string& folder, const std::string& name) {
    const std::string path = OwnFile(host, folder, name);
    const std::optional<Bytes> bytes = path.empty() ? std::nullopt : host.Read(path, MostText);
    const std::string text = bytes ? ToText(*bytes) : std::string();
    return text.substr(0, text.find('\n'));
}

// The connector of an entry in /sys/class/drm, if it is one.
std::optional<Connector> ReadConnector(const Host& host, const std::string& entry) {
    const std::size_t hyphen = entry.find('-');
    if (hyphen == std::string::npos || !entry.starts_with("card")) return std::nullopt;
    Connector connector;
    connector.card = entry.substr(0, hyphen);
    connector.name = entry.substr(hyphen + 1);
    if (!IsNumber(connector.card.substr(4)) || !IsConnectorName(connector.name)) return std::nullopt;
    const std::optional<std::string> folder = host.Resolve("sys/class/drm/" + entry);
    const std::string end = "/drm/" + connector.card + "/" + entry;
    if (!folder || !folder->starts_with(Devices) || !folder->ends_with(end)) return std::nullopt;
    connector.folder = *folder;
    const std::size_t begin = std::string_view(Devices).size();
    if (folder->size() <= begin + end.size()) return std::nullopt;
    connector.device = folder->substr(begin, folder->size() - begin - end.size());
    if (!IsPlain(connector.device, ":._,@+=/-") || !host.IsFolder(*folder)) return std::nullopt;
    return connector;
}

}  // namespace

bool IsConnectorName(const std::string& name) { return name.size() <= 64 && IsPlain(name, "-"); }

std::vector<Connector> FindConnectors(const Host& host) {
    std::vector<Connector> connectors;
    for (const std::string& entry : host.Names("sys/class/drm")) {
        if (const std::optional<Connector> connector = ReadConnector(host, entry)) connectors.push_back(*connector);
    }
    return connectors;
}

bool IsConnected(const Host& host, const Connector& connector) {
    return ReadOwnLine(host, connector.folder, "status") == "connected";
}

Bytes ReadEdid(const Host& host, const Connector& connector) {
    const std::string path = OwnFile(host, connector.folder, "edid");
    if (path.empty()) return {};
    return host.Read(path, Source::MostEdidBytes).value_or(Bytes());
}

std::string DriverOf(const Host& host, const Connector& connector) {
    if (connector.folder.empty()) return {};
    const std::optional<std::string> driver = host.Resolve(Devices + connector.device + "/driver");
    const std::string name = driver ? driver->substr(driver->rfind('/') + 1) : std::string();
    return IsPlain(name, "-_") && driver->starts_with("sys/bus/") ? name : std::string();
}

std::string CardNameOf(const Host& host, const Connector& connector) {
    if (connector.folder.empty()) return {};
    const std::string folder = Devices + connector.device;
    for (const char* file : {"product_name", "label"}) {
        const std::string name = ReadOwnLine(host, folder, file);
        if (!name.empty()) return name;
    }
    const std::string vendor = ReadOwnLine(host, folder, "vendor");
    const std::string device = ReadOwnLine(host, folder, "device");
    return vendor.empty() || device.empty() ? std::string() : vendor + ":" + device;
}

// A folder of the card's place in the machine (kernels since 6.11), or of its number.
std::string OverrideFile(const Host& host, const Connector& connector) {
    if (connector.folder.empty()) return {};
    for (const std::string& card : {connector.DeviceName(), connector.card.substr(4)}) {
        const std::optional<std::string> folder = host.Resolve(Debug + card);
        if (!folder || !folder->starts_with(Debug)) continue;
        // "amdgpu dev=0000:03:00.0 unique=0000:03:00.0"
        const std::string name = ReadOwnLine(host, *folder, "name") + " ";
        const bool isOther = name.find(" dev=") != std::string::npos &&
                             name.find(" dev=" + connector.DeviceName() + " ") == std::string::npos;
        const std::string file = OwnFile(host, *folder + "/" + connector.name, "edid_override");
        if (!isOther && !file.empty()) return file;
    }
    return {};
}

}  // namespace VNT::Linux
