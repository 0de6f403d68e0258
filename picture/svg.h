#pragma once

#include <string>
#include <utility>
#include <vector>

namespace VNT::Picture {

struct Point {
    double x = 0;
    double y = 0;
};

// Writes the elements of a picture one after the other. Colours are classes, which the picture's style explains.
class Svg {
public:
    using Attributes = std::vector<std::pair<std::string, std::string>>;

    void Open(const std::string& tag, const Attributes& attributes);
    void Close(const std::string& tag);
    // `hint` is what a viewer shows of the shape under the pointer.
    void Rect(Point at, Point size, const std::string& style, const std::string& hint = "");
    void Circle(Point at, double radius, const std::string& style, const std::string& hint = "",
                const Attributes& more = {});
    void Line(Point from, Point to, const std::string& style);
    void Path(const std::vector<Point>& points, bool isClosed, const std::string& style, const std::string& hint = "");
    // `anchor` is start, middle or end; what would be wider than `room` is cut off with an ellipsis.
    void Text(Point at, const std::string& text, const std::string& style = "", const std::string& anchor = "start",
              double room = 0);

    const std::string& Written() const { return text_; }

private:
    void Shape(const std::string& tag, Attributes attributes, const std::string& style, const std::string& hint);
    std::string text_;
};

// A length or coordinate, with up to two decimals.
std::string NumberText(double number);

}  // namespace VNT::Picture
