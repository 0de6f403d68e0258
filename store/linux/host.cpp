#include "store/linux/host.h"

#include <sstream>

namespace VNT::Linux {

Bytes ToBytes(const std::string& text) { return Bytes(std::vector<std::uint8_t>(text.begin(), text.end())); }

std::string ToText(const Bytes& bytes) { return {bytes.View().begin(), bytes.View().end()}; }

std::string ReadText(const Host& host, const std::string& path) {
    const std::optional<Bytes> bytes = host.Read(path);
    return bytes ? ToText(*bytes) : std::string();
}

std::string ReadLine(const Host& host, const std::string& path) {
    const std::string text = ReadText(host, path);
    return text.substr(0, text.find('\n'));
}

std::vector<std::string> ReadLines(const Host& host, const std::string& path) {
    std::vector<std::string> lines;
    std::istringstream text(ReadText(host, path));
    for (std::string line; std::getline(text, line);) {
        if (!line.empty()) lines.push_back(line);
    }
    return lines;
}

std::optional<std::string> FindProgram(const Host& host, const std::string& name) {
    for (const char* folder : {"usr/sbin/", "usr/bin/", "sbin/", "bin/"}) {
        if (host.IsFile(folder + name)) return folder + name;
    }
    return std::nullopt;
}

std::string CommandText(const Command& command) {
    std::string text;
    for (const std::string& word : command) text += (text.empty() ? "" : " ") + word;
    return text;
}

}  // namespace VNT::Linux
