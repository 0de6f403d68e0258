#include "json/node.h"

#include <algorithm>
#include <cstdio>

#include "model/core/text.h"

namespace VNT::Json {

namespace {

constexpr int MostDecimals = 6;
constexpr std::size_t IndentStep = 2;

void PrintText(const std::string& text, std::string& out) {
    out += '"';
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
            char code[8];
            std::snprintf(code, sizeof code, "\\u%04x", static_cast<unsigned>(c));
            out += code;
        } else {
            out += c;
        }
    }
    out += '"';
}

bool IsPlain(const Node& node) { return !node.Is(Node::Kind::List) && !node.Is(Node::Kind::Object); }

// `indent` is npos for one line.
class Printer {
public:
    explicit Printer(bool isShort) : isShort_(isShort) {}
    void Print(const Node& node, std::size_t indent) {
        switch (node.GetKind()) {
            case Node::Kind::Null:
                text += "null";
                break;
            case Node::Kind::Truth:
                text += node.IsTrue() ? "true" : "false";
                break;
            case Node::Kind::Number:
                text += DecimalToText(node.Number(), DecimalFormat{MostDecimals, 40, true}).ToUtf8();
                break;
            case Node::Kind::Text:
                PrintText(node.Text(), text);
                break;
            case Node::Kind::List:
                PrintList(node, indent);
                break;
            case Node::Kind::Object:
                PrintObject(node, indent);
                break;
        }
    }

    std::string text;

private:
    void Break(std::size_t indent) {
        if (isShort_) return;
        text += '\n';
        text.append(indent, ' ');
    }
    void PrintList(const Node& node, std::size_t indent) {
        const bool inLine = isShort_ || std::all_of(node.Items().begin(), node.Items().end(), IsPlain);
        text += '[';
        bool isFirst = true;
        for (const Node& item : node.Items()) {
            if (!isFirst) text += inLine ? ", " : ",";
            isFirst = false;
            if (!inLine) Break(indent + IndentStep);
            Print(item, indent + IndentStep);
        }
        if (!inLine) Break(indent);
        text += ']';
    }
    void PrintObject(const Node& node, std::size_t indent) {
        text += '{';
        bool isFirst = true;
        for (const auto& [name, value] : node.Members()) {
            if (!isFirst) text += isShort_ ? ", " : ",";
            isFirst = false;
            Break(indent + IndentStep);
            PrintText(name, text);
            text += ": ";
            Print(value, indent + IndentStep);
        }
        if (!node.Members().empty()) Break(indent);
        text += '}';
    }

    bool isShort_;
};

}  // namespace

Node Node::Of(bool truth) {
    Node node;
    node.kind_ = Kind::Truth;
    node.truth_ = truth;
    return node;
}

Node Node::Of(Decimal number) {
    Node node;
    node.kind_ = Kind::Number;
    node.number_ = number;
    return node;
}

Node Node::Of(std::string text) {
    Node node;
    node.kind_ = Kind::Text;
    node.text_ = std::move(text);
    return node;
}

Node Node::EmptyList() {
    Node node;
    node.kind_ = Kind::List;
    return node;
}

Node Node::EmptyObject() {
    Node node;
    node.kind_ = Kind::Object;
    return node;
}

const Node* Node::Find(std::string_view name) const {
    const auto found =
        std::find_if(members_.begin(), members_.end(), [name](const Member& m) { return m.first == name; });
    return found == members_.end() ? nullptr : &found->second;
}

void Node::Set(std::string_view name, Node node) {
    const auto found =
        std::find_if(members_.begin(), members_.end(), [name](const Member& m) { return m.first == name; });
    if (found == members_.end()) {
        members_.emplace_back(name, std::move(node));
    } else {
        found->second = std::move(node);
    }
}

void Node::Remove(std::string_view name) {
    std::erase_if(members_, [name](const Member& m) { return m.first == name; });
}

bool Node::operator==(const Node& other) const {
    return kind_ == other.kind_ && truth_ == other.truth_ && number_ == other.number_ && text_ == other.text_ &&
           items_ == other.items_ && members_ == other.members_;
}

std::string Print(const Node& node) {
    Printer printer(false);
    printer.Print(node, 0);
    return printer.text + "\n";
}

std::string PrintShort(const Node& node) {
    Printer printer(true);
    printer.Print(node, 0);
    return printer.text;
}

}  // namespace VNT::Json
