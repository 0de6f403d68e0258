#pragma once

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <string_view>
#include <vector>

// Reads the XML that the pictures are, to the letter: whatever is not well-formed fails the test.
namespace VNT::Testing {

struct Element {
    std::string tag;
    std::map<std::string, std::string> attributes;
    std::vector<Element> children;
    std::string text;

    double Number(const std::string& name) const {
        const auto found = attributes.find(name);
        EXPECT_NE(found, attributes.end()) << tag << " lacks " << name;
        return found == attributes.end() ? 0 : std::stod(found->second);
    }
    bool Is(const std::string& wanted, const std::string& style) const {
        const auto found = attributes.find("class");
        return tag == wanted && found != attributes.end() &&
               (" " + found->second + " ").find(" " + style + " ") != std::string::npos;
    }
    // All elements of a tag and a class, at any depth.
    std::vector<const Element*> FindAll(const std::string& wanted, const std::string& style) const {
        std::vector<const Element*> found;
        if (Is(wanted, style)) found.push_back(this);
        for (const Element& child : children) {
            for (const Element* more : child.FindAll(wanted, style)) found.push_back(more);
        }
        return found;
    }
    const Element* FindId(const std::string& id) const {
        const auto own = attributes.find("id");
        if (own != attributes.end() && own->second == id) return this;
        for (const Element& child : children) {
            if (const Element* found = child.FindId(id)) return found;
        }
        return nullptr;
    }
    std::string Title() const {
        for (const Element& child : children) {
            if (child.tag == "title") return child.text;
        }
        return "";
    }
};

class XmlReader {
public:
    explicit XmlReader(std::string_view text) : rest_(text) {}
    Element ReadDocument() {
        Expect("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
        SkipBlanks();
        Element root = ReadElement();
        SkipBlanks();
        EXPECT_TRUE(rest_.empty()) << "behind the root: " << rest_.substr(0, 40);
        return root;
    }

private:
    void Expect(std::string_view word) {
        const bool isThere = rest_.starts_with(word);
        EXPECT_TRUE(isThere) << "no " << word << " at " << rest_.substr(0, 40);
        rest_.remove_prefix(isThere ? word.size() : rest_.size());
    }
    void SkipBlanks() {
        while (!rest_.empty() && (rest_[0] == ' ' || rest_[0] == '\n')) rest_.remove_prefix(1);
    }
    std::string Take(std::string_view ends) {
        const std::size_t end = std::min(rest_.find_first_of(ends), rest_.size());
        const std::string taken(rest_.substr(0, end));
        rest_.remove_prefix(end);
        return taken;
    }
    static std::string Plain(std::string text) {
        const std::pair<const char*, const char*> names[] = {
            {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}};
        std::string plain;
        for (std::size_t i = 0; i < text.size();) {
            std::size_t length = 1;
            char c = text[i];
            EXPECT_TRUE(static_cast<unsigned char>(c) >= 0x20 || c == '\n') << "a control character";
            for (const auto& [name, meant] : names) {
                if (text.compare(i, std::string_view(name).size(), name) != 0) continue;
                c = *meant;
                length = std::string_view(name).size();
            }
            EXPECT_FALSE(text[i] == '&' && length == 1) << "a bare & in " << text;
            plain += c;
            i += length;
        }
        return plain;
    }
    Element ReadElement() {
        Element element;
        Expect("<");
        element.tag = Take(" >/");
        for (SkipBlanks(); !rest_.empty() && rest_[0] != '>' && rest_[0] != '/'; SkipBlanks()) {
            const std::string name = Take("=");
            Expect("=\"");
            const std::string value = Take("\"<");
            Expect("\"");
            EXPECT_TRUE(element.attributes.emplace(name, Plain(value)).second) << name << " twice";
        }
        if (rest_.starts_with("/>")) {
            Expect("/>");
            return element;
        }
        Expect(">");
        while (!rest_.empty() && !rest_.starts_with("</")) {
            if (rest_[0] == '<') {
                element.children.push_back(ReadElement());
            } else {
                element.text += Plain(Take("<"));
            }
        }
        Expect("</" + element.tag + ">");
        return element;
    }

    std::string_view rest_;
};

}  // namespace VNT::Testing
