#pragma once

#include "model/core/any.h"

namespace VNT {

// The type of an 18-byte slot: the tag byte of a descriptor, or one of the values no tag byte has.
struct EdidDescriptorTypeId {
    enum Enum : int {
        Empty = 0x10,
        Established3ResolutionFlags = 0xF7,
        CvtResolutionList = 0xF8,
        ColorManagement = 0xF9,
        StandardResolutionList = 0xFA,
        ColorPoint = 0xFB,
        Name = 0xFC,
        RangeLimits = 0xFD,
        Text = 0xFE,
        SerialNumber = 0xFF,
        DetailedResolution = 0x100,
        Other = 0x200,
        None = 0x300,
    };
};

// The family of the 18-byte slots of the base block and of CTA-861 extension blocks. It stands in this room because a
// detailed timing is a resolution and a descriptor at once.
class AnyEdidDescriptor : public TAnyFramed<AnyEdidDescriptor> {
public:
    static constexpr int FrameSize = 18;
    static constexpr int NoType = EdidDescriptorTypeId::None;
    // The type of the bytes: None below 18 bytes, DetailedResolution if the first two bytes aren't both zero, else the
    // tag.
    static int PeekType(ByteRange range);
    // Any 18 bytes are a descriptor, whose fields are as wide as their bits.
    bool IsValidAllAsRead() const override { return true; }
};

}  // namespace VNT
