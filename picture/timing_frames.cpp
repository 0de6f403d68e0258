#include <algorithm>

#include "picture/parts.h"

namespace VNT::Picture {

namespace {

constexpr int Columns = 3;
constexpr double Gap = 26;
constexpr double CellWidth = (PictureWidth - 2 * 20 - (Columns - 1) * Gap) / Columns;
constexpr double FrameHeight = 200;
constexpr double TextLine = 15;
constexpr double CellHeight = FrameHeight + 5 * TextLine + 16;

// The whole frame to scale: the picture at the top left, behind it the front porch, the sync and the back porch.
void DrawFrame(Svg& svg, Point at, const Timing& timing) {
    const double total = std::max(1, timing.HTotal()), lines = std::max(1, timing.VTotal());
    const double scale = std::min(CellWidth / total, FrameHeight / lines);
    const auto size = [scale](double width, double height) { return Point{width * scale, height * scale}; };
    const auto place = [at, scale](double x, double y) { return Point{at.x + x * scale, at.y + y * scale}; };
    svg.Rect(at, size(total, lines), "blank", "Blanking");
    if (timing.hsync > 0)
        svg.Rect(place(timing.hactive + timing.hfront, 0), size(timing.hsync, lines), "sync h",
                 "Horizontal sync: " + std::to_string(timing.hsync) + " pixels " + timing.hpolarity);
    if (timing.vsync > 0)
        svg.Rect(place(0, timing.vactive + timing.vfront), size(total, timing.vsync), "sync v",
                 "Vertical sync: " + std::to_string(timing.vsync) + " lines " + timing.vpolarity);
    svg.Rect(at, size(timing.hactive, timing.vactive), "active",
             std::to_string(timing.hactive) + "x" + std::to_string(timing.vactive));
    svg.Text({at.x + timing.hactive * scale / 2, at.y + timing.vactive * scale / 2 + 5},
             std::to_string(timing.hactive) + "x" + std::to_string(timing.vactive) + (timing.isInterlaced ? "i" : ""),
             "onactive", "middle", timing.hactive * scale);
}

std::string RateText(double rate) {
    return DecimalToText(Decimal::FromDouble(rate).RoundNearest(3), DecimalFormat{3, 21, true}).ToUtf8();
}

std::string AxisText(int active, int front, int sync, int blank, const std::string& polarity) {
    const auto text = [](int number) { return std::to_string(number); };
    return text(active) + " + " + text(front) + " front + " + text(sync) + " sync" +
           (polarity.empty() ? "" : " (" + polarity + ")") + " + " + text(blank - front - sync) +
           " back = " + text(active + blank);
}

void DrawTiming(Svg& svg, Point at, const Timing& timing) {
    svg.Open("g", {{"class", "timing"}, {"data-path", timing.path}});
    svg.Text({at.x, at.y + 12}, timing.path, "small", "start", CellWidth);
    DrawFrame(svg, {at.x, at.y + 20}, timing);
    double y = at.y + 20 + FrameHeight + TextLine;
    const double hrate = timing.HTotal() > 0 ? timing.clock * 1000 / timing.HTotal() : 0;
    for (const std::string& line :
         {RateText(timing.Rate()) + " Hz, " + RateText(hrate) + " kHz, " + RateText(timing.clock) + " MHz" +
              (timing.isInterlaced ? ", interlaced" : ""),
          "H " + AxisText(timing.hactive, timing.hfront, timing.hsync, timing.hblank, timing.hpolarity),
          "V " + AxisText(timing.vactive, timing.vfront, timing.vsync, timing.vblank, timing.vpolarity)}) {
        svg.Text({at.x, y}, line, "small", "start", CellWidth);
        y += TextLine;
    }
    svg.Close("g");
}

}  // namespace

double DrawTimings(Svg& svg, Point at, const std::vector<Timing>& timings) {
    svg.Open("g", {{"id", "timings"}});
    svg.Text({at.x, at.y + 16}, "Detailed resolutions", "heading");
    double x = at.x;
    const auto explain = [&](const std::string& style, const std::string& text) {
        svg.Rect({x, at.y + 26}, {14, 14}, style);
        svg.Text({x + 20, at.y + 38}, text, "small");
        x += 34 + static_cast<double>(text.size()) * 6.3;
    };
    explain("active", "Picture");
    explain("blank", "Porches");
    explain("sync h", "Horizontal sync");
    explain("sync v", "Vertical sync");
    constexpr double head = 54;
    int index = 0;
    for (const Timing& timing : timings) {
        const int column = index % Columns, row = index / Columns;
        DrawTiming(svg, {at.x + column * (CellWidth + Gap), at.y + head + row * CellHeight}, timing);
        ++index;
    }
    svg.Close("g");
    if (timings.empty()) svg.Text({at.x, at.y + head + 12}, "None", "small");
    const int rows = (static_cast<int>(timings.size()) + Columns - 1) / Columns;
    return head + (rows == 0 ? 24 : rows * CellHeight);
}

}  // namespace VNT::Picture
