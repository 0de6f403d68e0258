#include <algorithm>
#include <cmath>
#include <set>

#include "picture/parts.h"

namespace VNT::Picture {

namespace {

constexpr double Width = 640, Height = 432, Left = 36, Top = 30;
constexpr double LeastPixels = 0.2e6;  // sizes stand by their logarithm, so that small ones don't crowd

// Sizes people know, as marks of the axis.
struct KnownSize {
    int width;
    int height;
};
constexpr KnownSize KnownSizes[] = {{640, 480},   {1280, 720},  {1920, 1080}, {2560, 1440},
                                    {3840, 2160}, {5120, 2880}, {7680, 4320}};

class Chart {
public:
    Chart(Point at, const std::vector<Mode>& modes, const Borders& borders) : at_(at) {
        for (const Mode& mode : modes) {
            mostPixels_ = std::max(mostPixels_, mode.width * 1.3 * mode.height);
            mostRate_ = std::max(mostRate_, mode.rate * 1.08);
        }
        mostRate_ = std::max(mostRate_, std::min(borders.maxRate, 600.0) * 1.08);
    }
    double MostPixels() const { return mostPixels_; }
    double MostRate() const { return mostRate_; }
    Point Place(double pixels, double rate) const {
        const double share =
            std::log(std::max(pixels, LeastPixels) / LeastPixels) / std::log(mostPixels_ / LeastPixels);
        return {at_.x + Left + std::min(share, 1.0) * Width,
                at_.y + Top + (1 - std::min(rate / mostRate_, 1.0)) * Height};
    }

private:
    Point at_;
    double mostPixels_ = 2.4e6;
    double mostRate_ = 80;
};

void DrawAxes(Svg& svg, const Chart& chart) {
    svg.Rect(chart.Place(LeastPixels, chart.MostRate()), {Width, Height}, "plot");
    const double step = chart.MostRate() > 400 ? 100 : chart.MostRate() > 160 ? 50 : 20;
    for (double rate = 0; rate < chart.MostRate(); rate += step) {
        const Point start = chart.Place(LeastPixels, rate);
        svg.Line(start, chart.Place(chart.MostPixels(), rate), "grid");
        svg.Text({start.x - 5, start.y + 4}, NumberText(rate), "small", "end");
    }
    for (const KnownSize& size : KnownSizes) {
        const double pixels = size.width * 1.0 * size.height;
        if (pixels > chart.MostPixels()) break;
        const Point bottom = chart.Place(pixels, 0);
        svg.Line(bottom, chart.Place(pixels, chart.MostRate()), "grid");
        svg.Text({bottom.x, bottom.y + 14}, std::to_string(size.width) + "x" + std::to_string(size.height), "small",
                 "middle");
    }
}

// Where the visible pixels alone take all of a clock.
void DrawClock(Svg& svg, const Chart& chart, double clock, const std::string& style, const std::string& hint) {
    constexpr int steps = 60;
    std::vector<Point> line;
    for (int i = 0; i <= steps; ++i) {
        const double share = i / static_cast<double>(steps);
        const double pixels = LeastPixels * std::pow(chart.MostPixels() / LeastPixels, share);
        const double rate = clock * 1e6 / pixels;
        if (rate <= chart.MostRate()) line.push_back(chart.Place(pixels, rate));
    }
    if (line.size() > 1) svg.Path(line, false, style, hint);
}

void DrawBorders(Svg& svg, const Chart& chart, const Borders& borders) {
    for (const double rate : {borders.minRate, borders.maxRate}) {
        if (rate <= 0 || rate > chart.MostRate()) continue;
        svg.Path({chart.Place(LeastPixels, rate), chart.Place(chart.MostPixels(), rate)}, false, "border range",
                 "Range limits: " + NumberText(rate) + " Hz");
    }
    if (borders.maxClock > 0)
        DrawClock(svg, chart, borders.maxClock, "border range",
                  "Range limits: " + NumberText(borders.maxClock) + " MHz");
    if (borders.interfaceClock > 0)
        DrawClock(svg, chart, borders.interfaceClock, "border interface",
                  "Interface: " + NumberText(borders.interfaceClock) + " MHz");
}

void DrawCross(Svg& svg, Point at, const std::string& hint) {
    constexpr double reach = 5;
    svg.Open("g", {{"class", "beyond"}});
    svg.Path({{at.x - reach, at.y - reach},
              {at.x, at.y},
              {at.x - reach, at.y + reach},
              {at.x, at.y},
              {at.x + reach, at.y + reach},
              {at.x, at.y},
              {at.x + reach, at.y - reach}},
             false, "cross", hint);
    svg.Close("g");
}

// A name at the largest sizes, where it has room of its own.
void NameSome(Svg& svg, const Chart& chart, std::vector<Mode> modes) {
    std::stable_sort(modes.begin(), modes.end(), [](const Mode& a, const Mode& b) {
        const double first = a.VisibleClock(), second = b.VisibleClock();
        return first > second;
    });
    constexpr double lineHeight = 13, character = 6.9;
    struct Box {
        double left, right, y;
    };
    std::vector<Box> taken;
    std::set<std::string> named;
    constexpr std::size_t most = 8;
    for (const Mode& mode : modes) {
        if (taken.size() >= most) break;
        const std::string text = std::to_string(mode.width) + "x" + std::to_string(mode.height) +
                                 (mode.isInterlaced ? "i" : "") + " @ " + NumberText(mode.rate);
        const Point point = chart.Place(mode.width * 1.0 * mode.height, mode.rate);
        const double width = static_cast<double>(text.size()) * character;
        if (!named.insert(text).second) continue;
        const double start = chart.Place(LeastPixels, 0).x, edge = chart.Place(chart.MostPixels(), 0).x;
        const auto isFree = [&](const Box& box) {
            const bool hidesMode = std::any_of(modes.begin(), modes.end(), [&](const Mode& other) {
                const Point place = chart.Place(other.width * 1.0 * other.height, other.rate);
                constexpr double radius = 5;
                return std::abs(place.y - point.y) < lineHeight && place.x + radius > box.left &&
                       place.x - radius < box.right;
            });
            const bool hidesName = std::any_of(taken.begin(), taken.end(), [&](const Box& other) {
                return std::abs(other.y - box.y) < lineHeight && box.left < other.right && other.left < box.right;
            });
            return !hidesMode && !hidesName && box.left >= start && box.right <= edge;
        };
        constexpr double aside = 10;
        const Box right{point.x + aside, point.x + aside + width, point.y + 4};
        const Box left{point.x - aside - width, point.x - aside, point.y + 4};
        const bool isLeft = !isFree(right);
        const Box& box = isLeft ? left : right;
        if (!isFree(box)) continue;
        taken.push_back(box);
        svg.Text({isLeft ? box.right : box.left, box.y}, text, "small name", isLeft ? "end" : "start");
    }
}

}  // namespace

double DrawModes(Svg& svg, Point at, const std::vector<Mode>& modes, const Borders& borders) {
    const Chart chart(at, modes, borders);
    svg.Open("g", {{"id", "modes"}});
    const auto beyond = std::count_if(modes.begin(), modes.end(), [](const Mode& m) { return !m.beyond.empty(); });
    svg.Text({at.x, at.y + 16},
             "Modes: size against rate in Hz (" + std::to_string(modes.size()) +
                 (beyond > 0 ? ", " + std::to_string(beyond) + " beyond a border)" : ")"),
             "heading");
    DrawAxes(svg, chart);
    DrawBorders(svg, chart, borders);
    for (const Mode& mode : modes) {
        const Point point = chart.Place(mode.width * 1.0 * mode.height, mode.rate);
        const std::string hint = mode.text + (mode.beyond.empty() ? "" : ": " + mode.beyond);
        svg.Circle(point, 4, mode.beyond.empty() ? "mode" : "mode out", hint,
                   {{"data-width", std::to_string(mode.width)},
                    {"data-height", std::to_string(mode.height)},
                    {"data-rate", NumberText(mode.rate)}});
        if (!mode.beyond.empty()) DrawCross(svg, point, hint);
    }
    NameSome(svg, chart, modes);
    double x = at.x + Left;
    const double y = at.y + Top + Height + 34;
    const auto explain = [&](const std::string& style, const std::string& text) {
        svg.Line({x, y - 4}, {x + 24, y - 4}, style);
        svg.Text({x + 30, y}, text, "small");
        x += 44 + static_cast<double>(text.size()) * 6.3;
    };
    if (borders.maxRate > 0 || borders.maxClock > 0) explain("border range", "Range limits");
    if (borders.interfaceClock > 0)
        explain("border interface", "Interface: " + NumberText(borders.interfaceClock) + " MHz");
    if (beyond > 0) {
        svg.Circle({x + 8, y - 4}, 4, "mode out");
        svg.Text({x + 18, y}, "Beyond a border", "small");
    }
    svg.Close("g");
    return Top + Height + 44;
}

}  // namespace VNT::Picture
