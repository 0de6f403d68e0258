#include "model/timing/video_code.h"

#include <algorithm>

namespace VNT {

using Kind = CtaVideoReferenceKindEnum;

const CtaVideoReferenceRange* CtaVideoReference::GetRange() const {
    const auto* found = std::find_if(std::begin(Ranges), std::end(Ranges), [this](const CtaVideoReferenceRange& range) {
        return Id >= range.first && Id < range.first + range.count;
    });
    return found != std::end(Ranges) ? found : nullptr;
}

Kind::Enum CtaVideoReference::GetKind() const {
    if (GetVideoFormat().present) return Kind::Format;
    const CtaVideoReferenceRange* range = GetRange();
    return range != nullptr ? range->kind : Kind::Other;
}

std::vector<Decimal> CtaVideoReference::GetRates() const {
    if (GetKind() == Kind::FormatDescriptor)
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

}  // namespace VNT
