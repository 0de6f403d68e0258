// What is drawn, read back from the shapes.
#include "picture/picture.h"

#include <cmath>

#include "json/edid_json.h"
#include "picture/facts.h"
#include "tests/picture/xml.h"
#include "tests/support/edids.h"

namespace VNT::Testing {
namespace {

Element Drawn(const Bytes& bytes) {
    const auto picture = Picture::PictureOf(bytes);
    EXPECT_TRUE(picture);
    return picture ? XmlReader(*picture).ReadDocument() : Element();
}

// A part of the picture; one without shapes, and the test has failed, if it isn't there.
const Element& PartOf(const Element& picture, const char* id) {
    static const Element nothing;
    const Element* part = picture.FindId(id);
    EXPECT_NE(part, nullptr) << id;
    return part != nullptr ? *part : nothing;
}

Bytes Built(const char* text) {
    std::string problem;
    const auto node = Json::Parse(text, problem);
    EXPECT_EQ(problem, "");
    Json::Building building;
    const auto bytes = Json::BuildEdid(node.value_or(Json::Node()), building);
    EXPECT_EQ(building.error, "");
    return bytes.value_or(Bytes());
}

const char* const Lively = R"({
  "vendorId": "ABC",
  "established": ["640x480 @ 60 Hz", "800x600 @ 75 Hz"],
  "standardResolutions": [{"width": 1280, "refreshRate": 60, "aspectRatio": "16:9"}],
  "descriptors": [
    {"type": "Detailed resolution", "mode": "CVT-RB standard", "hactive": 2560, "vactive": 1440, "vrate": 60},
    {"type": "Detailed resolution", "mode": "CVT-RB standard", "hactive": 1920, "vactive": 1080, "vrate": 120},
    {"type": "Range limits", "minVRate": 50, "maxVRate": 70, "minHRate": 30, "maxHRate": 160, "maxPixelClock": 250},
    {"type": "Name", "text": "A<&>\"B"}
  ],
  "extensionBlocks": [
    {"type": "CTA-861", "dataBlocks": [
      {"type": "Video resolutions", "List": [{"code": 16}, {"code": 97}]},
      {"type": "HDMI v1", "PhysicalAddress": 4096, "MaxTmdsClock": 300}
    ]}
  ]
})";

TEST(Picture, PutsThePrimariesWhereTheirNumbersSay) {
    const Element picture = Drawn(Built(R"({"colors": {"redX": 700, "redY": 300, "greenX": 174, "greenY": 815,
        "blueX": 134, "blueY": 47, "whiteX": 320, "whiteY": 337}})"));
    const auto points = PartOf(picture, "gamut").FindAll("circle", "primary");
    ASSERT_EQ(points.size(), 4u);
    // The scale as two of them tell it; the others and the triangle have to keep to it.
    const Element &red = *points[0], &blue = *points[2];
    const double scaleX = (red.Number("cx") - blue.Number("cx")) / (red.Number("data-x") - blue.Number("data-x"));
    const double scaleY = (red.Number("cy") - blue.Number("cy")) / (red.Number("data-y") - blue.Number("data-y"));
    EXPECT_NEAR(scaleX, -scaleY, 2);  // the higher, the greener
    const double expected[][2] = {{700, 300}, {174, 815}, {134, 47}, {320, 337}};
    for (std::size_t i = 0; i < points.size(); ++i) {
        EXPECT_NEAR(points[i]->Number("data-x"), expected[i][0] / 1024, 0.0006);
        EXPECT_NEAR(points[i]->Number("data-y"), expected[i][1] / 1024, 0.0006);
        EXPECT_NEAR(points[i]->Number("cx"),
                    red.Number("cx") + (points[i]->Number("data-x") - red.Number("data-x")) * scaleX, 1);
        EXPECT_NEAR(points[i]->Number("cy"),
                    red.Number("cy") + (points[i]->Number("data-y") - red.Number("data-y")) * scaleY, 1);
    }
    for (const char* name : {"srgb", "p3", "bt2020", "own"})
        EXPECT_EQ(PartOf(picture, "gamut").FindAll("polygon", name).size(), 1u) << name;
    EXPECT_EQ(points[0]->Title(), "Red: 0.684, 0.293");
}

TEST(Picture, DrawsOneFrameToScaleForEachTiming) {
    const Element picture = Drawn(Built(Lively));
    const auto frames = PartOf(picture, "timings").FindAll("g", "timing");
    ASSERT_EQ(frames.size(), 2u);
    EXPECT_EQ(frames[1]->attributes.at("data-path"), "descriptors[1]");
    const Element& frame = *frames[0];
    const Element &blank = *frame.FindAll("rect", "blank")[0], &active = *frame.FindAll("rect", "active")[0];
    const Element &h = *frame.FindAll("rect", "h")[0], &v = *frame.FindAll("rect", "v")[0];
    // CVT with reduced blanking: 2720 pixels and 1481 lines in all, sync of 32 pixels behind 48, of 5 lines behind 3.
    const double scale = blank.Number("width") / 2720;
    EXPECT_NEAR(blank.Number("height") / scale, 1481, 1);
    EXPECT_NEAR(active.Number("width") / scale, 2560, 1);
    EXPECT_NEAR(active.Number("height") / scale, 1440, 1);
    EXPECT_NEAR((h.Number("x") - blank.Number("x")) / scale, 2560 + 48, 1);
    EXPECT_NEAR(h.Number("width") / scale, 32, 1);
    EXPECT_NEAR((v.Number("y") - blank.Number("y")) / scale, 1440 + 3, 1);
    EXPECT_NEAR(v.Number("height") / scale, 5, 1);
    EXPECT_EQ(h.Title(), "Horizontal sync: 32 pixels +");
    EXPECT_EQ(v.Title(), "Vertical sync: 5 lines -");
}

TEST(Picture, MarksTheModesBeyondABorder) {
    const Element picture = Drawn(Built(Lively));
    const Element& modes = PartOf(picture, "modes");
    std::map<std::string, bool> isOut;
    for (const Element* mode : modes.FindAll("circle", "mode")) {
        if (!mode->attributes.contains("data-width")) continue;  // the legend's
        isOut[mode->attributes.at("data-width") + "x" + mode->attributes.at("data-height") + "@" +
              mode->attributes.at("data-rate")] = mode->Is("circle", "out");
    }
    const std::map<std::string, bool> expected{
        {"640x480@60", false},   {"800x600@75", true},    {"1280x720@60", false}, {"2560x1440@60", false},
        {"1920x1080@120", true}, {"1920x1080@60", false}, {"3840x2160@60", true}};
    EXPECT_EQ(isOut, expected);
    EXPECT_EQ(modes.FindAll("g", "beyond").size(), 3u);
    EXPECT_EQ(modes.FindAll("polyline", "border").size(), 4u);  // two rates and two clocks
}

TEST(Picture, MapsEachByteOfEachBlockOnce) {
    for (const NamedEdid& edid : Samples()) {
        const Element picture = Drawn(edid.bytes);
        const auto blocks = PartOf(picture, "bytes").FindAll("g", "block");
        ASSERT_FALSE(blocks.empty());
        for (const Element* block : blocks) {
            double next = 0;
            for (const Element* area : block->FindAll("g", "area")) {
                EXPECT_EQ(area->Number("data-start"), next) << edid.name;
                next += area->Number("data-size");
                double width = 0;
                for (const Element* rect : area->FindAll("rect", "use")) width += rect->Number("width");
                EXPECT_NEAR(width / 14, area->Number("data-size"), 0.01) << edid.name;
            }
            EXPECT_EQ(next, 128) << edid.name;
        }
    }
}

TEST(Picture, SaysWhatTakesTheBytesOfABlock) {
    const Element picture = Drawn(Built(Lively));
    const auto blocks = PartOf(picture, "bytes").FindAll("g", "block");
    ASSERT_EQ(blocks.size(), 2u);
    std::vector<std::string> areas;
    for (const Element* area : blocks[1]->FindAll("g", "area"))
        areas.push_back(area->attributes.at("data-name") + " " + area->attributes.at("data-size"));
    EXPECT_EQ(areas,
              (std::vector<std::string>{"Header 4", "Video resolutions 3", "HDMI v1 8", "Free 112", "Checksum 1"}));
}

// Whatever the text, all shapes stay on the page and no number is none.
TEST(Picture, StaysOnItsPage) {
    std::vector<NamedEdid> edids = Samples();
    std::size_t count = 0;
    for (NamedEdid& edid : Corpus(VANTELLE_SOURCE_DIR)) {
        if (count++ % 40 == 0) edids.push_back(std::move(edid));
    }
    for (const NamedEdid& edid : edids) {
        const auto text = Picture::PictureOf(edid.bytes);
        if (!text) continue;
        SCOPED_TRACE(edid.name);
        EXPECT_EQ(text->find("nan"), std::string::npos);
        EXPECT_EQ(text->find("<script"), std::string::npos);
        EXPECT_EQ(text->find("href"), std::string::npos);
        const Element picture = XmlReader(*text).ReadDocument();
        const double width = picture.Number("width"), height = picture.Number("height");
        for (const char* style : {"use", "active", "blank", "sync"}) {
            for (const Element* rect : picture.FindAll("rect", style)) {
                EXPECT_GE(rect->Number("x"), 0);
                EXPECT_LE(rect->Number("x") + rect->Number("width"), width + 1);
                EXPECT_LE(rect->Number("y") + rect->Number("height"), height + 1);
            }
        }
    }
}

TEST(Picture, IsNoneOfWhatIsNoEdid) { EXPECT_FALSE(Picture::PictureOf(Bytes{1, 2, 3})); }

}  // namespace
}  // namespace VNT::Testing
