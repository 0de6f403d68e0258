#include "model/displayid/section.h"

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
    static_cast<DisplayIdSectionAllFields&>(*this) = DisplayIdSectionAllFields();
    LayoutReader io(range);
    Map(io, *this);
    if (otherBytes.Slice(0, mostZeros).IsAll(0)) std::swap(otherBytes, padding);
    return true;
}

bool DisplayIdSection::Write(ByteRange range) const {
    if (!range.Limit(size) || !IsValidAll()) return false;
    LayoutWriter io(range);
    Map(io, *this);
    return true;
}

int DisplayIdSection::ComputeChecksum() const {
    Bytes scratch(size, 0);
    return Write(scratch) ? VNT::ComputeChecksum(scratch, size - 1) : Undefined;
}

bool DisplayIdSection::IsValid(int available) const {
    return ValidityOf(*this, available).proper && checksum == ComputeChecksum();
}

ItemStatus DisplayIdSection::GetAvailable(int available) const {
    ItemStatus reach;
    LayoutRuler io(available, &reach);
    Map(io, *this);
    return reach;
}

std::vector<ItemPart> DisplayIdSection::GetParts() const {
    PartLister io(MaxSize);
    Map(io, *this);
    return std::move(io.parts);
}

}  // namespace VNT
