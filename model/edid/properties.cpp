#include "model/edid/properties.h"

#include <algorithm>

#include "model/core/layout_made.h"

namespace VNT {

namespace {

constexpr LongCoding LongZeroIsUndefined{0, 1, {{0, Undefined}}};
constexpr ValueCoding YearCoding{1990, 1, {{0, Undefined}}};
const DecimalCoding AspectCoding{Decimal(99, 2), Decimal(1, 2)};
const DecimalCoding GammaCoding{Decimal(1), Decimal(1, 2), {{255, Decimal::Undefined()}}};
const DecimalLimits RatioLimits{Decimal(1), Decimal(354, 2), Decimal(1, 2)};
const DecimalLimits GammaLimits{Decimal(1), Decimal(354, 2), Decimal(1, 2), Decimal(), {Decimal::Undefined()}};

constexpr std::uint32_t ModelYearWeek = 255;
constexpr int VendorLetters = 3;
constexpr char32_t LetterBase = 64;

bool AreLetters(const String& text, char32_t from, char32_t to) {
    const auto view = text.View();
    return text.Length() == VendorLetters &&
           std::all_of(view.begin(), view.end(), [=](char32_t c) { return c >= from && c <= to; });
}

}  // namespace

template <class IO>
void EdidProperties::Map(IO& io, auto& item) {
    io.Order(BitOrder::Msb);
    io.Kept("reservedBit", 1, item.reservedBit);
    for (int i = 0; i < VendorLetters; ++i) {
        io.Through(
            5, [&] { return i < item.vendorId.Length() ? item.vendorId[i] - LetterBase : 0; },
            [&](auto raw) { item.SetVendorLetter(i, raw); });
    }
    io.Value("vendorId", item.vendorId, io.Tested([&item] { return AreLetters(item.vendorId, U'A', U'Z'); }),
             io.Tested([&item] { return AreLetters(item.vendorId, LetterBase, 95); }));
    io.Order(BitOrder::Lsb);
    io.Number("productId", 16, item.productId, Within(0, 65535));
    io.Number("serialNumber", 32, item.serialNumber, LongZeroIsUndefined,
              Within(LongLimits{1, 4294967295, 0, 0, {Undefined}}));
    io.Through(
        8, [&] { return item.GetRawWeek(); }, [&](auto raw) { item.SetRawWeek(raw); });
    if (!(item.IsVersion14() && item.modelYear)) {
        const auto limits = item.WeekLimits();
        io.Value("week", item.week, limits.proper.Contains(item.week), limits.all.Contains(item.week));
    }
    io.Number("year", 8, item.year, YearCoding, TLimitPair(ValueLimits{1991, 2245, 0, 0, {Undefined}}));
    io.Number("version", 8, item.version, Within(ValueLimits{1, 255}, ValueLimits{0, 255}));
    io.Number("revision", 8, item.revision, Within(0, 255));
    const bool is14 = item.IsVersion14();
    if (is14) io.Value("modelYear", item.modelYear, true, true);

    io.Order(BitOrder::Msb);
    io.Number("digital", 1, item.digital, OneOf(2));
    if (!item.digital) {
        io.Number("analogSignalLevel", 2, item.analogSignalLevel, OneOf<EdidAnalogSignalLevelEnum>(4));
        io.Kept("analogFlags", 5, item.analogFlags);
    } else if (is14) {
        io.Number("digitalColorDepth", 3, item.digitalColorDepth, OneOf<EdidDigitalColorDepthEnum>(8));
        io.Number("digitalInterface", 4, item.digitalInterface, OneOf<EdidDigitalInterfaceEnum>(16));
    } else {
        io.Kept("digitalFlags", 7, item.digitalFlags);
    }

    std::uint32_t firstScreenByte = item.GetRawScreen(0);
    io.Through(
        8, [&] { return firstScreenByte; }, [&](auto raw) { firstScreenByte = raw; });
    io.Through(
        8, [&] { return item.GetRawScreen(1); }, [&](auto raw) { item.SetRawScreen(firstScreenByte, raw); });
    if (is14)
        io.Value("screenFieldsPresent", item.screenFieldsPresent,
                 item.screenFieldsPresent >= 0 && item.screenFieldsPresent < 4,
                 item.screenFieldsPresent >= 0 && item.screenFieldsPresent < 4,
                 Detail::NamesOf<EdidScreenFieldsPresentEnum>);
    if (!is14 || item.screenFieldsPresent == EdidScreenFieldsPresentEnum::ScreenSize) {
        const auto check = [&](const char* name, auto& size, int other) {
            const auto limits = item.SizeLimits(other);
            io.Value(name, size, limits.proper.Contains(size), limits.all.Contains(size));
        };
        check("horizontalSize", item.horizontalSize, item.verticalSize);
        check("verticalSize", item.verticalSize, item.horizontalSize);
    } else if (item.screenFieldsPresent != EdidScreenFieldsPresentEnum::None) {
        io.Value("aspectRatio", item.aspectRatio, RatioLimits.Contains(item.aspectRatio),
                 RatioLimits.Contains(item.aspectRatio));
    }

    io.Number("gamma", 8, item.gamma, GammaCoding, Within(GammaLimits));
    io.Kept("powerFlags", 3, item.powerFlags);
    if (item.digital && is14) {
        io.Kept("digitalColorFormats", 2, item.digitalColorFormats);
    } else {
        io.Number("colorType", 2, item.colorType, OneOf<EdidColorTypeEnum>(4));
    }
    io.Kept("flags", 3, item.flags);
    const auto colors = io.Tested([&item] { return ValidityOf(item.colors, EdidColorCoordinates::FrameSize); });
    io.Part("colors", EdidColorCoordinates::FrameSize, item.colors, colors.proper, colors.all);
}

bool EdidProperties::Read(ByteRange range) {
    if (!range.Limit(FrameSize)) return false;
    TLayout<EdidProperties>::Read(*this, range);
    Normalize();
    return true;
}

bool EdidProperties::Write(ByteRange range) const {
    if (!range.Limit(FrameSize) || !IsValidAll()) return false;
    TLayout<EdidProperties>::Write(*this, range);
    return true;
}

bool EdidProperties::IsValid() const { return ValidityOf(*this, FrameSize).proper; }

bool EdidProperties::IsValidAll() const { return ValidityOf(*this, FrameSize).all; }

ItemStatus EdidProperties::GetStatus() const { return StatusOf(*this, FrameSize); }

std::vector<FieldLimits> EdidProperties::GetFieldLimits() const { return LimitsOf(*this, FrameSize); }

std::uint32_t EdidProperties::GetRawWeek() const {
    return modelYear ? ModelYearWeek : static_cast<std::uint32_t>(ZeroIsUndefined.Encode(week));
}

void EdidProperties::SetVendorLetter(int place, std::uint32_t raw) {
    if (place == 0) vendorId = String();
    vendorId.Append(LetterBase + raw);
}

void EdidProperties::SetRawWeek(std::uint32_t raw) {
    week = ZeroIsUndefined.Decode(raw);
    modelYear = raw == ModelYearWeek;
}

std::uint32_t EdidProperties::GetRawScreen(int index) const {
    using Present = EdidScreenFieldsPresentEnum;
    if (!IsVersion14() || screenFieldsPresent == Present::ScreenSize) {
        return static_cast<std::uint32_t>(ZeroIsUndefined.Encode(index == 0 ? horizontalSize : verticalSize));
    }
    const bool holdsAspect =
        screenFieldsPresent == (index == 0 ? Present::LandscapeAspectRatio : Present::PortraitAspectRatio);
    return holdsAspect ? static_cast<std::uint32_t>(AspectCoding.Encode(aspectRatio)) : 0;
}

void EdidProperties::SetRawScreen(std::uint32_t first, std::uint32_t second) {
    using Present = EdidScreenFieldsPresentEnum;
    horizontalSize = ZeroIsUndefined.Decode(first);
    verticalSize = ZeroIsUndefined.Decode(second);
    // One byte alone is an aspect ratio. The same coding serves both orientations.
    aspectRatio = AspectCoding.Decode(std::max(first, second));
    screenFieldsPresent = first != 0 && second != 0 ? Present::ScreenSize
                          : first != 0              ? Present::LandscapeAspectRatio
                          : second != 0             ? Present::PortraitAspectRatio
                                                    : Present::None;
}

TLimitPair<ValueLimits> EdidProperties::WeekLimits() const {
    return {ValueLimits{1, 54, 0, 0, {Undefined}}, ValueLimits{1, IsVersion14() ? 254 : 255, 0, 0, {Undefined}}};
}

TLimitPair<ValueLimits> EdidProperties::SizeLimits(int otherSize) const {
    const ValueLimits defined{1, 255};
    const ValueLimits orUndefined{1, 255, 0, 0, {Undefined}};
    if (IsVersion14()) return defined;
    return {otherSize == Undefined ? orUndefined : defined, orUndefined};
}

void EdidProperties::Normalize() {
    static const EdidPropertiesFields defaults;
    const bool is14 = IsVersion14();
    if (!is14) modelYear = false;
    if (modelYear) week = Undefined;

    if (digital) {
        analogSignalLevel = defaults.analogSignalLevel;
        analogFlags = defaults.analogFlags;
    }
    if (!digital || is14) digitalFlags = defaults.digitalFlags;
    if (!digital || !is14) {
        digitalColorDepth = defaults.digitalColorDepth;
        digitalInterface = defaults.digitalInterface;
    }

    using Present = EdidScreenFieldsPresentEnum;
    if (!is14) screenFieldsPresent = Present::ScreenSize;
    if (screenFieldsPresent != Present::ScreenSize) horizontalSize = verticalSize = Undefined;
    if (screenFieldsPresent == Present::ScreenSize || screenFieldsPresent == Present::None)
        aspectRatio = Decimal::Undefined();

    if (digital && is14) {
        colorType = defaults.colorType;
    } else {
        digitalColorFormats = defaults.digitalColorFormats;
    }
}

template struct TMadeItem<EdidProperties>;

}  // namespace VNT
