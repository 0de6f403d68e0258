#include "model/timing/video_code.h"

#include <algorithm>

#include "model/core/layout_made.h"

namespace VNT {

using ReferenceKind = CtaVideoReferenceKindEnum;

const CtaVideoReferenceRange* CtaVideoReference::GetRange() const {
    const auto* found = std::find_if(std::begin(Ranges), std::end(Ranges), [this](const CtaVideoReferenceRange& range) {
        return Id >= range.first && Id < range.first + range.count;
    });
    return found != std::end(Ranges) ? found : nullptr;
}

ReferenceKind::Enum CtaVideoReference::GetKind() const {
    if (GetVideoFormat().present) return ReferenceKind::Format;
    const CtaVideoReferenceRange* range = GetRange();
    return range != nullptr ? range->kind : ReferenceKind::Other;
}

std::vector<Decimal> CtaVideoReference::GetRates() const {
    if (GetKind() == ReferenceKind::FormatDescriptor)
        return {Decimal(DescriptorRates[static_cast<std::size_t>(Id - GetRange()->first)])};
    return TVideoCode::GetRates();
}

TextFormat CtaVideoReference::GetFormat() const {
    TextFormat format = TVideoCode::GetFormat();
    if (const CtaVideoReferenceRange* range = GetRange()) format.format = format.emptyFormat = range->text;
    return format;
}

void CtaVideoReference::FillTexts(TextTable& table) const {
    TVideoCode::FillTexts(table);
    const CtaVideoReferenceRange* range = GetRange();
    table.Set(U"{number}", range != nullptr ? Id - range->first + 1 : Undefined);
}

template struct TMadeItem<CtaVideoReference>;
template struct TMadeItem<CtaVideoResolution>;
template struct TMadeItem<CtaYcc420VideoResolution>;
template struct TMadeItem<HdmiResolution>;

}  // namespace VNT
