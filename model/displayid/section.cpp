#include "model/displayid/section.h"

#include "model/core/layout_made.h"

namespace VNT {

DisplayIdSection::DisplayIdSection(const DisplayIdSectionFields& fields, int room) {
    static_cast<DisplayIdSectionFields&>(*this) = fields;
    const int used = FrameBytes + dataBlocks.GetSize();
    size = std::max(room, used);
    padding = Bytes(size - used, 0);
    checksum = ComputeChecksum();
}

bool DisplayIdSection::Read(ByteRange range) {
    constexpr int lengthAt = 1, mostZeros = 3;
    if (range.Size() < FrameBytes || !range.Limit(range.ByteAt(lengthAt) + FrameBytes)) return false;
    static const DisplayIdSectionAllFields defaults;
    static_cast<DisplayIdSectionAllFields&>(*this) = defaults;
    TLayout<DisplayIdSection>::Read(*this, range);
    if (otherBytes.Slice(0, mostZeros).IsAll(0)) std::swap(otherBytes, padding);
    return true;
}

bool DisplayIdSection::Write(ByteRange range) const {
    if (!range.Limit(size) || !IsValidAll()) return false;
    TLayout<DisplayIdSection>::Write(*this, range);
    return true;
}

int DisplayIdSection::ComputeChecksum() const {
    Bytes scratch(size, 0);
    return Write(scratch) ? VNT::ComputeChecksum(scratch, size - 1) : Undefined;
}

bool DisplayIdSection::IsValid(int available) const {
    return ValidityOf(*this, available).proper && checksum == ComputeChecksum();
}

ItemStatus DisplayIdSection::GetAvailable(int available) const { return ReachOf({*this, available}); }

std::vector<ItemPart> DisplayIdSection::GetParts() const { return PartsOf({*this, MaxSize}); }

template struct TMadeItem<DisplayIdSection>;

}  // namespace VNT
