#include <array>

#include "picture/parts.h"

namespace VNT::Picture {

namespace {

// The colours of single wavelengths in the CIE 1931 diagram (2 degrees), from 380 to 700 nm.
constexpr Point Locus[] = {
    {.1741, .0050}, {.1733, .0048}, {.1714, .0051}, {.1689, .0069}, {.1644, .0109}, {.1566, .0177}, {.1440, .0297},
    {.1355, .0399}, {.1241, .0578}, {.1096, .0868}, {.0913, .1327}, {.0687, .2007}, {.0454, .2950}, {.0235, .4127},
    {.0082, .5384}, {.0039, .6548}, {.0139, .7502}, {.0389, .8120}, {.0743, .8338}, {.1142, .8262}, {.1547, .8059},
    {.1929, .7816}, {.2296, .7543}, {.2658, .7243}, {.3016, .6923}, {.3373, .6589}, {.3731, .6245}, {.4087, .5896},
    {.4441, .5547}, {.4788, .5202}, {.5125, .4866}, {.5448, .4544}, {.5752, .4242}, {.6029, .3965}, {.6270, .3725},
    {.6482, .3514}, {.6658, .3340}, {.6915, .3083}, {.7079, .2920}, {.7190, .2809}, {.7260, .2740}, {.7347, .2653},
};

struct Gamut {
    const char* name;
    const char* style;
    std::array<Point, 3> corners;  // red, green, blue
};

constexpr Gamut Standards[] = {
    {"BT.2020", "gamut bt2020", {{{.708, .292}, {.170, .797}, {.131, .046}}}},
    {"DCI-P3", "gamut p3", {{{.680, .320}, {.265, .690}, {.150, .060}}}},
    {"sRGB", "gamut srgb", {{{.640, .330}, {.300, .600}, {.150, .060}}}},
};

constexpr double Scale = 480;  // of a coordinate of 1
constexpr double Left = 34, Top = 30;
constexpr double MostX = 0.8, MostY = 0.9;

class Chart {
public:
    explicit Chart(Point at) : at_(at) {}
    Point Place(Point color) const { return {at_.x + Left + color.x * Scale, at_.y + Top + (MostY - color.y) * Scale}; }
    template <class Points>
    std::vector<Point> PlaceAll(const Points& points) const {
        std::vector<Point> placed;
        for (const Point& point : points) placed.push_back(Place(point));
        return placed;
    }

private:
    Point at_;
};

// Twice the area of a triangle.
double AreaOf(const std::array<Point, 3>& t) {
    const double area = (t[1].x - t[0].x) * (t[2].y - t[0].y) - (t[2].x - t[0].x) * (t[1].y - t[0].y);
    return area < 0 ? -area : area;
}

void DrawAxes(Svg& svg, const Chart& chart) {
    constexpr int ticks = 8;
    for (int i = 0; i <= ticks + 1; ++i) {
        const double value = i / 10.0;
        const std::string label = NumberText(value);
        if (i <= ticks) {
            const Point bottom = chart.Place({value, 0});
            svg.Line(bottom, chart.Place({value, MostY}), "grid");
            svg.Text({bottom.x, bottom.y + 14}, label, "small", "middle");
        }
        const Point start = chart.Place({0, value});
        svg.Line(start, chart.Place({MostX, value}), "grid");
        svg.Text({start.x - 5, start.y + 4}, label, "small", "end");
    }
}

std::string Percent(double part, double whole) {
    return whole > 0 ? std::to_string(static_cast<int>(part / whole * 100 + 0.5)) + " %" : "";
}

}  // namespace

double DrawGamut(Svg& svg, Point at, const EdidColorCoordinates& colors) {
    const Chart chart(at);
    const auto color = [&colors](int index) {
        const auto i = static_cast<std::size_t>(index);
        constexpr double steps = 1024;
        return Point{colors.raw[i] / steps, colors.raw[i + 1] / steps};
    };
    svg.Open("g", {{"id", "gamut"}});
    svg.Text({at.x, at.y + 16}, "Gamut (CIE 1931)", "heading");
    DrawAxes(svg, chart);
    svg.Path(chart.PlaceAll(Locus), true, "locus", "All colors that can be seen");
    for (const Gamut& standard : Standards) {
        svg.Path(chart.PlaceAll(standard.corners), true, standard.style, standard.name);
    }
    using Fields = EdidColorCoordinatesFields;
    const std::array<Point, 3> own{color(Fields::RedX), color(Fields::GreenX), color(Fields::BlueX)};
    svg.Path(chart.PlaceAll(own), true, "gamut own", "This display");
    const std::pair<const char*, Point> points[] = {
        {"Red", own[0]}, {"Green", own[1]}, {"Blue", own[2]}, {"White", color(Fields::WhiteX)}};
    for (const auto& [name, point] : points) {
        const std::string x = DecimalToText(Decimal::FromDouble(point.x).RoundNearest(3), 3).ToUtf8();
        const std::string y = DecimalToText(Decimal::FromDouble(point.y).RoundNearest(3), 3).ToUtf8();
        svg.Circle(chart.Place(point), 4, "primary", std::string(name) + ": " + x + ", " + y,
                   {{"data-name", name}, {"data-x", x}, {"data-y", y}});
    }
    // Beside the curve of the wavelengths is room for what the lines mean.
    double y = at.y + Top + 22;
    const double x = at.x + Left + 0.47 * Scale;
    const auto explain = [&](const std::string& style, const std::string& text) {
        svg.Line({x, y - 4}, {x + 24, y - 4}, style);
        svg.Text({x + 30, y}, text, "small");
        y += 17;
    };
    explain("gamut own", "This display");
    for (const Gamut& standard : Standards)
        explain(standard.style,
                std::string(standard.name) + " (" + Percent(AreaOf(own), AreaOf(standard.corners)) + ")");
    svg.Close("g");
    return Top + MostY * Scale + 24;
}

}  // namespace VNT::Picture
