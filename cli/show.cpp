#include "cli/show.h"

#include <optional>

#include "cli/command.h"
#include "cli/edid_files.h"
#include "cli/outline.h"
#include "cli/words.h"
#include "model/edid/cta_extension_block.h"
#include "model/edid/displayid_extension_block.h"
#include "model/edid/vtb_extension_block.h"

namespace VNT::Cli {

namespace {

String Number(std::int64_t value) { return value == Undefined ? String("Undefined") : NumberText(value, 10, 0, false); }

String TwoDecimals(Decimal value) { return value.IsUndefined() ? String("Undefined") : DecimalToText(value, 2); }

template <class Enum, std::size_t n>
String RowText(Enum value, const ValueText<Enum> (&rows)[n]) {
    for (const auto& row : rows) {
        if (row.value == value) return row.text;
    }
    return String("Other (") + Number(static_cast<int>(value)) + ")";
}

template <class Flags, class Enum, std::size_t n>
String FlagTexts(const Flags& flags, const ValueText<Enum> (&rows)[n], std::size_t first = 0, std::size_t last = n) {
    String text;
    for (std::size_t i = first; i < last; ++i) {
        if (!flags.Test(rows[i].value)) continue;
        if (!text.IsEmpty()) text += ", ";
        text += rows[i].text;
    }
    return text.IsEmpty() ? String("None") : text;
}

String ScreenSize(const EdidProperties& p) {
    if (p.horizontalSize == Undefined && p.verticalSize == Undefined) return "Undefined";
    const auto side = [](int size) { return size == Undefined ? String("?") : Number(size); };
    return side(p.horizontalSize) + " x " + side(p.verticalSize) + " cm";
}

String RawPair(const EdidColorCoordinates& colors, std::size_t first) {
    return String("raw ") + Number(colors.raw[first]) + ", " + Number(colors.raw[first + 1]);
}

// A row of the properties form: its label, the field that says whether it applies (null: always), its value.
struct PropertyRow {
    const char* label;
    const char* field;
    String (*value)(const EdidProperties&);
};

using P = EdidProperties;
constexpr PropertyRow PropertyRows[] = {
    {"Vendor ID", nullptr, [](const P& p) { return p.vendorId; }},
    {"Product ID", nullptr, [](const P& p) { return NumberText(p.productId, 16, 4, true); }},
    {"Serial number", nullptr, [](const P& p) { return Number(p.serialNumber); }},
    {"Week", nullptr,
     [](const P& p) { return p.IsVersion14() && p.modelYear ? String("Model year") : Number(p.week); }},
    {"Year", nullptr, [](const P& p) { return Number(p.year); }},
    {"Version", nullptr, [](const P& p) { return Number(p.version) + "." + Number(p.revision); }},
    {"Signal type", nullptr, [](const P& p) { return RowText(p.digital, EdidSignalTypeTexts); }},
    {"Analog signal level", "analogSignalLevel",
     [](const P& p) { return RowText(p.analogSignalLevel, EdidAnalogSignalLevelEnum::Texts); }},
    {"Analog flags", "analogFlags", [](const P& p) { return FlagTexts(p.analogFlags, EdidAnalogFlagEnum::Texts); }},
    {"Digital interface", "digitalFlags",
     [](const P& p) { return FlagTexts(p.digitalFlags, EdidDigitalFlagEnum::Texts); }},
    {"Digital interface", "digitalInterface",
     [](const P& p) { return RowText(p.digitalInterface, EdidDigitalInterfaceEnum::Texts); }},
    {"Digital color depth", "digitalColorDepth",
     [](const P& p) { return RowText(p.digitalColorDepth, EdidDigitalColorDepthEnum::Texts); }},
    {"Screen information", "screenFieldsPresent",
     [](const P& p) { return RowText(p.screenFieldsPresent, EdidScreenFieldsPresentEnum::Texts); }},
    {"Screen size", "horizontalSize", &ScreenSize},
    {"Aspect ratio", "aspectRatio", [](const P& p) { return TwoDecimals(p.aspectRatio); }},
    {"Gamma", nullptr, [](const P& p) { return TwoDecimals(p.gamma); }},
    {"Power management", nullptr, [](const P& p) { return FlagTexts(p.powerFlags, EdidPowerFlagEnum::Texts); }},
    {"Color type", "colorType", [](const P& p) { return RowText(p.colorType, EdidColorTypeEnum::Texts); }},
    {"Digital color formats", "digitalColorFormats",
     [](const P& p) { return FlagTexts(p.digitalColorFormats, EdidDigitalColorFormatFlagEnum::Texts); }},
    {"Timing", nullptr,
     [](const P& p) {
         return p.IsVersion14() ? FlagTexts(p.flags, EdidFlagEnum::Texts14, 1)
                                : FlagTexts(p.flags, EdidFlagEnum::Texts, 1);
     }},
    {"Color space", nullptr, [](const P& p) { return FlagTexts(p.flags, EdidFlagEnum::Texts, 0, 1); }},
    {"Red", nullptr, [](const P& p) { return RawPair(p.colors, EdidColorCoordinates::RedX); }},
    {"Green", nullptr, [](const P& p) { return RawPair(p.colors, EdidColorCoordinates::GreenX); }},
    {"Blue", nullptr, [](const P& p) { return RawPair(p.colors, EdidColorCoordinates::BlueX); }},
    {"White", nullptr, [](const P& p) { return RawPair(p.colors, EdidColorCoordinates::WhiteX); }},
};

void ShowProperties(const EdidProperties& properties, Outline outline) {
    outline.Line("Properties");
    const ItemStatus status = properties.GetStatus();
    for (const PropertyRow& row : PropertyRows) {
        if (row.field != nullptr && !status.IsPresent(row.field)) continue;
        outline.Deeper().Line(String(row.label) + ": " + row.value(properties));
    }
}

void ShowEstablished(const EdidFields& fields, Outline outline) {
    outline.Line("Established resolutions");
    int flag = 0;
    for (const char* text : EdidEstablishedResolutionFlagEnum::Texts) {
        if (fields.established.Test(static_cast<EdidEstablishedResolutionFlagEnum::Enum>(flag++)))
            outline.Deeper().Line(text);
    }
}

// The lists of a block as its form shows them: with the room that an edit has.
template <class X>
X Edited(const X& block) {
    return X(static_cast<const typename X::FieldsType&>(block));
}

void ShowLists(const EdidCtaExtensionBlock& block, Outline outline) {
    const EdidCtaExtensionBlock edited = Edited(block);
    outline.ShowList(edited.GetDataBlockLimits(), block.dataBlocks, DataBlockCaptions);
    outline.ShowList(edited.GetDescriptorLimits(), block.descriptors, DescriptorCaptions);
}

void ShowLists(const EdidVtbExtensionBlock& block, Outline outline) {
    const EdidVtbExtensionBlock edited = Edited(block);
    outline.ShowList(edited.GetLimitsOf(block.detailed), block.detailed, DetailedResolutionCaptions);
    outline.ShowList(edited.GetLimitsOf(block.cvtResolutions), block.cvtResolutions, CvtResolutionCaptions);
    outline.ShowList(edited.GetLimitsOf(block.standardResolutions), block.standardResolutions,
                     StandardResolutionCaptions);
}

void ShowLists(const EdidDisplayIdSectionExtensionBlock& block, Outline outline) {
    outline.ShowList(DisplayIdSection::GetListLimits(DisplayIdSection::ExtensionBytes), block.section.dataBlocks,
                     DataBlockCaptions);
}

template <class... X>
void ShowListsOfAny(const EdidExtensionBlock& held, Outline outline) {
    const auto show = [&]<class Block>(Block block) {
        if (block.Assign(held)) ShowLists(block, outline);
    };
    (show(X()), ...);
}

void ShowExtensionBlock(const EdidExtensionBlock& block, Outline outline) {
    ShowListsOfAny<EdidCtaExtensionBlock, EdidVtbExtensionBlock, EdidDisplayIdSectionExtensionBlock>(block, outline);
}

}  // namespace

void ShowEdid(const Edid& edid, std::ostream& out) {
    Outline outline(out);
    const EdidLimits limits = edid.GetAllLimits();
    ShowProperties(EdidProperties(edid.properties), outline);
    ShowEstablished(edid, outline);
    outline.ShowList(limits.descriptors, edid.descriptors, DescriptorCaptions);
    outline.ShowList(limits.standardResolutions, edid.standardResolutions, StandardResolutionCaptions);
    outline.ShowList(limits.extensionBlocks, edid.extensionBlocks, ExtensionBlockCaptions, &ShowExtensionBlock);
}

namespace {

int RunShow(const Arguments& arguments, const Console& console) {
    ShowEdid(ImportFile(arguments.Words()[0], console), console.out);
    return Success;
}

int RunConvert(const Arguments& arguments, const Console& console) {
    const std::string& out = arguments.Words()[1];
    const FileFormat format = ChooseFormat(arguments, out);
    const Edid edid = ImportFile(arguments.Words()[0], console);
    ExportFile(Edid(static_cast<const EdidFields&>(edid)), format, out, console);
    return Success;
}

}  // namespace

extern const Command ShowCommand, ConvertCommand;
const Command ShowCommand{"show", {FileWord}, {}, "prints what an EDID says", "monitor.bin", &RunShow};
const Command ConvertCommand{"convert",
                             {FileWord, OutWord},
                             {FormatOption},
                             "writes an EDID in another format, as an edit would leave it",
                             "monitor.txt monitor.bin",
                             &RunConvert};

}  // namespace VNT::Cli
