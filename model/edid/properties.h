#pragma once

#include "model/core/flags.h"
#include "model/core/layout.h"
#include "model/edid/color_coordinates.h"

namespace VNT {

inline constexpr ValueText<bool> EdidSignalTypeTexts[] = {{false, "Analog"}, {true, "Digital"}};

struct EdidAnalogSignalLevelEnum {
    enum Enum : int { Level0700_0300, Level0714_0286, Level1000_0400, Level0700_0000 };
    static constexpr ValueText<Enum> Texts[] = {{Level0700_0300, "0.700 : 0.300 : 1.000 Vpp"},
                                                {Level0714_0286, "0.714 : 0.286 : 1.000 Vpp"},
                                                {Level1000_0400, "1.000 : 0.400 : 1.400 Vpp"},
                                                {Level0700_0000, "0.700 : 0.000 : 0.700 Vpp"}};
};

struct EdidAnalogFlagEnum {
    enum Enum : int { BlankToBlackSetup, SeparateSync, CompositeSync, SyncOnGreen, Serrations };
    static constexpr ValueText<Enum> Texts[] = {{BlankToBlackSetup, "Blank-to-black setup"},
                                                {SeparateSync, "Separate sync"},
                                                {CompositeSync, "Composite sync"},
                                                {SyncOnGreen, "Sync on green"},
                                                {Serrations, "Serrations"}};
};

struct EdidDigitalFlagEnum {
    enum Enum : int { DfpCompatible };
    static constexpr ValueText<Enum> Texts[] = {{DfpCompatible, "DFP compatible"}};
};

struct EdidDigitalInterfaceEnum {
    enum Enum : int { None, Dvi, Hdmi, HdmiB, Mddi, DisplayPort };
    static constexpr ValueText<Enum> Texts[] = {{None, "Undefined"}, {Dvi, "DVI"},   {Hdmi, "HDMI"},
                                                {HdmiB, "HDMI-b"},   {Mddi, "MDDI"}, {DisplayPort, "DisplayPort"}};
};

struct EdidDigitalColorDepthEnum {
    enum Enum : int { None, Bits18, Bits24, Bits30, Bits36, Bits42, Bits48 };
    static constexpr ValueText<Enum> Texts[] = {{None, "Undefined"},         {Bits18, "18-bit (6 bpc)"},
                                                {Bits24, "24-bit (8 bpc)"},  {Bits30, "30-bit (10 bpc)"},
                                                {Bits36, "36-bit (12 bpc)"}, {Bits42, "42-bit (14 bpc)"},
                                                {Bits48, "48-bit (16 bpc)"}};
};

// What the bytes 21 and 22 hold in version 1.4.
struct EdidScreenFieldsPresentEnum {
    enum Enum : int { ScreenSize, LandscapeAspectRatio, PortraitAspectRatio, None };
    static constexpr ValueText<Enum> Texts[] = {{ScreenSize, "Screen size"},
                                                {LandscapeAspectRatio, "Landscape aspect ratio"},
                                                {PortraitAspectRatio, "Portrait aspect ratio"},
                                                {None, "Undefined"}};
};

struct EdidPowerFlagEnum {
    enum Enum : int { Standby, Suspend, ActiveOff };
    static constexpr ValueText<Enum> Texts[] = {{Standby, "Standby"}, {Suspend, "Suspend"}, {ActiveOff, "Active off"}};
};

struct EdidColorTypeEnum {
    enum Enum : int { Monochrome, Rgb, NonRgb, None };
    static constexpr ValueText<Enum> Texts[] = {
        {Monochrome, "Monochrome"}, {Rgb, "RGB color"}, {NonRgb, "Non-RGB color"}, {None, "Undefined"}};
};

struct EdidDigitalColorFormatFlagEnum {
    enum Enum : int { YCbCr422, YCbCr444 };
    static constexpr ValueText<Enum> Texts[] = {{YCbCr422, "YCbCr 4:2:2"}, {YCbCr444, "YCbCr 4:4:4"}};
};

// The last flag is "Default GTF" before version 1.4 and "Continuous frequency" in it.
struct EdidFlagEnum {
    enum Enum : int { Srgb, PreferredTiming, ContinuousFrequency };
    static constexpr ValueText<Enum> Texts[] = {
        {Srgb, "sRGB"}, {PreferredTiming, "Preferred timing"}, {ContinuousFrequency, "Default GTF"}};
    static constexpr ValueText<Enum> Texts14[] = {
        {Srgb, "sRGB"}, {PreferredTiming, "Preferred timing"}, {ContinuousFrequency, "Continuous frequency"}};
};

struct EdidPropertiesFields {
    int reservedBit = 0;
    String vendorId = U"PNP";
    int productId = 2559;
    std::int64_t serialNumber = Undefined;
    int week = Undefined;
    int year = Undefined;
    bool modelYear = false;
    int version = 1;
    int revision = 3;
    bool digital = true;
    EdidAnalogSignalLevelEnum::Enum analogSignalLevel = EdidAnalogSignalLevelEnum::Level0700_0000;
    TFlagsMsb<EdidAnalogFlagEnum, 5> analogFlags{EdidAnalogFlagEnum::SeparateSync};
    TFlagsLsb<EdidDigitalFlagEnum, 7> digitalFlags;
    EdidDigitalColorDepthEnum::Enum digitalColorDepth = EdidDigitalColorDepthEnum::None;
    EdidDigitalInterfaceEnum::Enum digitalInterface = EdidDigitalInterfaceEnum::None;
    EdidScreenFieldsPresentEnum::Enum screenFieldsPresent = EdidScreenFieldsPresentEnum::None;
    int horizontalSize = Undefined;  // cm
    int verticalSize = Undefined;    // cm
    Decimal aspectRatio = Decimal::Undefined();
    Decimal gamma{2200, 3};
    TFlagsMsb<EdidPowerFlagEnum, 3> powerFlags{EdidPowerFlagEnum::ActiveOff};
    EdidColorTypeEnum::Enum colorType = EdidColorTypeEnum::Rgb;
    TFlagsMsb<EdidDigitalColorFormatFlagEnum, 2> digitalColorFormats;
    TFlagsMsb<EdidFlagEnum, 3> flags{EdidFlagEnum::PreferredTiming};
    EdidColorCoordinates colors;

    // Version 1.4 alone has the newer layout; 1.5 and 2.0 are read as the older one.
    bool IsVersion14() const { return version == 1 && revision == 4; }
    bool operator==(const EdidPropertiesFields&) const = default;
};

// Bytes 8 to 34 of the base block.
class EdidProperties : public EdidPropertiesFields {
public:
    using FieldsType = EdidPropertiesFields;
    static constexpr int FrameSize = 27;

    EdidProperties() { Normalize(); }
    explicit EdidProperties(const EdidPropertiesFields& fields) : EdidPropertiesFields(fields) { Normalize(); }

    bool Read(ByteRange range);         // false below 27 bytes
    bool Write(ByteRange range) const;  // false below 27 bytes or if not IsValidAll
    bool IsValid() const;
    bool IsValidAll() const;
    // A field that doesn't apply now is not listed, and is within its limits whatever it holds.
    ItemStatus GetStatus() const;
    bool GetPresent(std::string_view field) const { return GetStatus().IsPresent(field); }
    std::vector<FieldLimits> GetFieldLimits() const;
    // Clears what the version and signal type at hand can't carry.
    void Normalize();
    bool operator==(const EdidProperties&) const = default;

    template <class IO>
    static void Map(IO& io, auto& item);

private:
    // The bytes 16, and 21 and 22, whose meaning hangs on other fields.
    void SetVendorLetter(int place, std::uint32_t raw);  // in the order of the letters
    std::uint32_t GetRawWeek() const;
    void SetRawWeek(std::uint32_t raw);
    std::uint32_t GetRawScreen(int index) const;
    void SetRawScreen(std::uint32_t first, std::uint32_t second);
    TLimitPair<ValueLimits> WeekLimits() const;
    TLimitPair<ValueLimits> SizeLimits(int otherSize) const;
};

}  // namespace VNT
