#include "cli/outline.h"

namespace VNT::Cli {

namespace {
bool IsControl(char32_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0); }
}  // namespace

std::string OneLine(const String& text) {
    String line;
    for (const char32_t character : text.View()) {
        if (IsControl(character)) {
            line += String(U"\\x") + NumberText(character, 16, 2, true);
        } else {
            line.Append(character);
        }
    }
    return line.ToUtf8();
}

void Outline::Line(const String& text) {
    out_ << std::string(static_cast<std::size_t>(level_) * 2, ' ') << (text.IsEmpty() ? "?" : OneLine(text)) << '\n';
}

void Outline::ShowParts(const std::vector<ItemPart>& parts) {
    for (const ItemPart& part : parts) {
        Line(part.text);
        Deeper().ShowParts(part.parts);
    }
}

}  // namespace VNT::Cli
