#include "model/timing/video_format_resolution.h"

#include <algorithm>

#include "model/core/layout_made.h"

namespace VNT {

namespace {

using Flag = CtaVideoFormatResolutionFlagEnum;
using Flags = CtaVideoFormatResolutionFlags;

// The least flags that need another byte.
constexpr std::uint32_t SecondByte = 4;
constexpr std::uint32_t ThirdByte = 0x400;
constexpr std::uint32_t FourthByte = 0x40000;

struct Rate {
    int hertz;
    Flag::Enum base;
    Flag::Enum factor;
};

constexpr Rate Rates[] = {
    {24, Flag::Rate24, Flag::Rate24},    {25, Flag::Base50, Flag::Factor1},   {30, Flag::Base60, Flag::Factor1},
    {48, Flag::Rate48, Flag::Rate48},    {50, Flag::Base50, Flag::Factor2},   {60, Flag::Base60, Flag::Factor2},
    {100, Flag::Base50, Flag::Factor4},  {120, Flag::Base60, Flag::Factor4},  {144, Flag::Rate144, Flag::Rate144},
    {200, Flag::Base50, Flag::Factor8},  {240, Flag::Base60, Flag::Factor8},  {300, Flag::Base50, Flag::Factor12},
    {360, Flag::Base60, Flag::Factor12}, {400, Flag::Base50, Flag::Factor16}, {480, Flag::Base60, Flag::Factor16},
};

// With what a descriptor of one byte leaves unsaid.
constexpr Flags WithDefaults(Flags flags) {
    return Flags(flags.GetBits() + CtaVideoFormatResolutionFields::DefaultFlags.GetBits());
}

// Without the flags of the first byte.
constexpr std::uint32_t BehindFirstByte(Flags flags) { return flags.GetBits() / SecondByte; }

}  // namespace

CtaVideoFormatResolution::CtaVideoFormatResolution(const CtaVideoFormatResolutionFields& fields) {
    static_cast<CtaVideoFormatResolutionFields&>(*this) = fields;
    size = GetSize();
}

bool CtaVideoFormatResolution::Read(ByteRange range) {
    if (range.Size() < 1 || range.Size() > FrameSize) return false;
    size = range.Size();
    TLayout<CtaVideoFormatResolution>::Read(*this, range);
    if (size == 1) flags = WithDefaults(flags);
    return true;
}

bool CtaVideoFormatResolution::Write(ByteRange range) const {
    if (!range.Limit(size) || !IsValidAll()) return false;
    TLayout<CtaVideoFormatResolution>::Write(*this, range);
    return true;
}

int CtaVideoFormatResolution::GetSize() const {
    // One byte alone means the default rates beside its own.
    if (BehindFirstByte(flags) == BehindFirstByte(DefaultFlags)) return 1;
    if (flags.GetBits() >= FourthByte) return 4;
    return flags.GetBits() >= ThirdByte ? 3 : 2;
}

std::vector<Decimal> CtaVideoFormatResolution::GetRates() const {
    const Flags meant = flags == Flags() ? DefaultFlags : flags;
    std::vector<Decimal> rates;
    for (const Rate& rate : Rates) {
        if (meant.Test(rate.base) && meant.Test(rate.factor)) rates.push_back(Decimal(rate.hertz));
    }
    return rates;
}

TextFormat CtaVideoFormatResolution::GetFormat() const {
    TextFormat format = Format;
    if (!GetVideoFormat().present) format.description = U"Other ({id}){refreshratetext}";
    return format;
}

ItemStatus CtaVideoFormatResolution::GetAvailable(int available) const {
    ItemStatus status;
    for (const char* field : {"Size", "rid", "flags"}) status.Report(field, available > 0, available > 0);
    return status;
}

bool CtaVideoFormatResolutionList::Read(ByteRange range) {
    Clear();
    for (; range.Size() >= DescriptorLength; range.Drop(DescriptorLength)) {
        CtaVideoFormatResolution item;
        if (!item.Read(range.Peek(DescriptorLength))) break;
        Add(std::move(item));
    }
    return true;
}

bool CtaVideoFormatResolutionList::Write(ByteRange range) const {
    if (range.Size() < GetSize()) return false;
    for (const CtaVideoFormatResolution& item : *this) {
        item.Write(range.Peek(DescriptorLength));
        range.Drop(DescriptorLength);
    }
    return true;
}

void CtaVideoFormatResolutionList::Normalize() {
    DescriptorLength = 1;
    for (const CtaVideoFormatResolution& item : *this) DescriptorLength = std::max(DescriptorLength, item.GetSize());
    for (int i = 0; i < GetCount(); ++i) Slot(i).size = DescriptorLength;
}

int CtaVideoFormatResolutionListLimits::GetBudget(const CtaVideoFormatResolutionList& list, int index) const {
    const int count = std::max(list.GetCount(), index + 1);
    return std::clamp(bytes / count, 0, CtaVideoFormatResolution::FrameSize);
}

template struct TMadeItem<CtaVideoFormatResolution>;

}  // namespace VNT
