// The one file that knows the library which reads JSON.
#include <nlohmann/json.hpp>

#include "json/node.h"
#include "model/core/text.h"

namespace VNT::Json {

namespace {

constexpr std::size_t MostDepth = 32;

// Makes nodes of what the library reads. Numbers come as they are written, so that no binary fraction gets between.
class Builder : public nlohmann::json_sax<nlohmann::json> {
public:
    bool null() override { return Put(Node()); }
    bool boolean(bool value) override { return Put(Node::Of(value)); }
    bool number_integer(number_integer_t value) override { return PutNumber(std::to_string(value)); }
    bool number_unsigned(number_unsigned_t value) override { return PutNumber(std::to_string(value)); }
    bool number_float(number_float_t, const string_t& text) override { return PutNumber(text); }
    bool string(string_t& value) override { return Put(Node::Of(value)); }
    bool binary(binary_t&) override { return false; }
    bool start_object(std::size_t) override { return Open(Node::EmptyObject()); }
    bool key(string_t& name) override {
        if (open_.back().first.Find(name) != nullptr) return Fail("\"" + name + "\" is there twice");
        open_.back().second = name;
        return true;
    }
    bool end_object() override { return Close(); }
    bool start_array(std::size_t) override { return Open(Node::EmptyList()); }
    bool end_array() override { return Close(); }
    bool parse_error(std::size_t position, const std::string&, const nlohmann::detail::exception&) override {
        return Fail("no JSON at byte " + std::to_string(position));
    }

    Node root;
    std::string problem;

private:
    bool Fail(const std::string& what) {
        if (problem.empty()) problem = what;
        return false;
    }
    // With an exponent it is no number of any field here.
    bool PutNumber(const std::string& text) {
        constexpr std::size_t mostDigits = 18;
        Decimal number;
        if (text.size() > mostDigits || !TextToDecimal(String(text.c_str()), number))
            return Fail(text + " is no number of an EDID");
        return Put(Node::Of(number));
    }
    bool Put(Node node) {
        if (open_.empty()) {
            root = std::move(node);
        } else if (open_.back().first.Is(Node::Kind::List)) {
            open_.back().first.Add(std::move(node));
        } else {
            open_.back().first.Set(open_.back().second, std::move(node));
        }
        return true;
    }
    bool Open(Node node) {
        if (open_.size() >= MostDepth) return Fail("too deep");
        open_.emplace_back(std::move(node), std::string());
        return true;
    }
    bool Close() {
        Node node = std::move(open_.back().first);
        open_.pop_back();
        return Put(std::move(node));
    }

    std::vector<std::pair<Node, std::string>> open_;
};

}  // namespace

std::optional<Node> Parse(std::string_view text, std::string& problem) {
    Builder builder;
    if (!nlohmann::json::sax_parse(text.begin(), text.end(), &builder)) {
        problem = builder.problem.empty() ? "no JSON" : builder.problem;
        return std::nullopt;
    }
    return std::move(builder.root);
}

}  // namespace VNT::Json
