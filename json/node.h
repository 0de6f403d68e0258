// A value of JSON as this room works with it: numbers exact to six decimals, the names of an object in their order.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/core/decimal.h"

namespace VNT::Json {

class Node {
public:
    enum class Kind { Null, Truth, Number, Text, List, Object };
    using Member = std::pair<std::string, Node>;

    Node() = default;
    static Node Of(bool truth);
    static Node Of(Decimal number);
    static Node Of(std::string text);
    static Node OfNumber(std::int64_t number) { return Of(Decimal(number)); }
    static Node EmptyList();
    static Node EmptyObject();

    Kind GetKind() const { return kind_; }
    bool Is(Kind kind) const { return kind_ == kind; }
    bool IsTrue() const { return truth_; }
    Decimal Number() const { return number_; }
    const std::string& Text() const { return text_; }

    // Of a list.
    const std::vector<Node>& Items() const { return items_; }
    void Add(Node node) { items_.push_back(std::move(node)); }

    // Of an object.
    const std::vector<Member>& Members() const { return members_; }
    const Node* Find(std::string_view name) const;
    void Set(std::string_view name, Node node);
    void Remove(std::string_view name);

    bool operator==(const Node& other) const;

private:
    Kind kind_ = Kind::Null;
    bool truth_ = false;
    Decimal number_;
    std::string text_;
    std::vector<Node> items_;
    std::vector<Member> members_;
};

// Two blanks of indentation a level; lists of what isn't a list or an object stand in one line.
std::string Print(const Node& node);
// One line.
std::string PrintShort(const Node& node);

// Text that is no JSON, or that goes deeper or has more digits than any EDID: `problem` says what and where.
std::optional<Node> Parse(std::string_view text, std::string& problem);

}  // namespace VNT::Json
