#include "picture/svg.h"

#include <cmath>

#include "model/core/text.h"

namespace VNT::Picture {

namespace {

// What XML can't hold stands as a question mark.
std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        if (c == '&') {
            escaped += "&amp;";
        } else if (c == '<') {
            escaped += "&lt;";
        } else if (c == '>') {
            escaped += "&gt;";
        } else if (c == '"') {
            escaped += "&quot;";
        } else {
            escaped += static_cast<unsigned char>(c) < 0x20 || c == 0x7F ? '?' : c;
        }
    }
    return escaped;
}

// About what a character takes, of the small size that most text here has.
constexpr double CharacterWidth = 6.3;

std::string Shortened(const std::string& text, double room) {
    const String whole{std::string_view(text)};
    const int most = static_cast<int>(room / CharacterWidth);
    if (room <= 0 || whole.Length() <= most) return text;
    String cut;
    for (int i = 0; i < most - 1; ++i) cut.Append(whole[i]);
    cut.Append(U'\u2026');
    return cut.ToUtf8();
}

}  // namespace

std::string NumberText(double number) {
    constexpr double most = 1e9, hundredths = 100;
    if (!(number > -most && number < most)) return "0";
    const auto count = static_cast<std::int64_t>(std::llround(number * hundredths));
    return DecimalToText(Decimal(count, 2), DecimalFormat{2, 21, true}).ToUtf8();
}

void Svg::Open(const std::string& tag, const Attributes& attributes) {
    text_ += "<" + tag;
    for (const auto& [name, value] : attributes) text_ += " " + name + "=\"" + Escaped(value) + "\"";
    text_ += ">\n";
}

void Svg::Close(const std::string& tag) { text_ += "</" + tag + ">\n"; }

void Svg::Shape(const std::string& tag, Attributes attributes, const std::string& style, const std::string& hint) {
    if (!style.empty()) attributes.emplace_back("class", style);
    text_ += "<" + tag;
    for (const auto& [name, value] : attributes) text_ += " " + name + "=\"" + Escaped(value) + "\"";
    text_ += hint.empty() ? "/>\n" : "><title>" + Escaped(hint) + "</title></" + tag + ">\n";
}

void Svg::Rect(Point at, Point size, const std::string& style, const std::string& hint) {
    Shape("rect",
          {{"x", NumberText(at.x)},
           {"y", NumberText(at.y)},
           {"width", NumberText(size.x)},
           {"height", NumberText(size.y)}},
          style, hint);
}

void Svg::Circle(Point at, double radius, const std::string& style, const std::string& hint, const Attributes& more) {
    Attributes attributes{{"cx", NumberText(at.x)}, {"cy", NumberText(at.y)}, {"r", NumberText(radius)}};
    attributes.insert(attributes.end(), more.begin(), more.end());
    Shape("circle", std::move(attributes), style, hint);
}

void Svg::Line(Point from, Point to, const std::string& style) {
    Shape("line",
          {{"x1", NumberText(from.x)}, {"y1", NumberText(from.y)}, {"x2", NumberText(to.x)}, {"y2", NumberText(to.y)}},
          style, "");
}

void Svg::Path(const std::vector<Point>& points, bool isClosed, const std::string& style, const std::string& hint) {
    std::string list;
    for (const Point& point : points) {
        if (!list.empty()) list += " ";
        list += NumberText(point.x) + "," + NumberText(point.y);
    }
    Shape(isClosed ? "polygon" : "polyline", {{"points", list}}, style, hint);
}

void Svg::Text(Point at, const std::string& text, const std::string& style, const std::string& anchor, double room) {
    Attributes attributes{{"x", NumberText(at.x)}, {"y", NumberText(at.y)}};
    if (anchor != "start") attributes.emplace_back("text-anchor", anchor);
    if (!style.empty()) attributes.emplace_back("class", style);
    text_ += "<text";
    for (const auto& [name, value] : attributes) text_ += " " + name + "=\"" + value + "\"";
    text_ += ">" + Escaped(Shortened(text, room)) + "</text>\n";
}

}  // namespace VNT::Picture
