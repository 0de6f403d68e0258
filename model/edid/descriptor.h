#pragma once

#include <span>

#include "model/core/item.h"
#include "model/core/kinds.h"
#include "model/core/list.h"
#include "model/timing/edid_descriptor.h"

namespace VNT {

// The bytes 2 and 4 that every descriptor but a detailed timing has in its frame, kept as read.
struct EdidDescriptorFrame {
    int reserved1 = 0;
    int reserved2 = 0;
    bool operator==(const EdidDescriptorFrame&) const = default;
};

// The 18-byte frame: two zero bytes, reserved1, the tag, reserved2. The payload's layout follows it.
template <class IO>
void MapDescriptorFrame(IO& io, int tag, auto& item) {
    io.Constant(16, 0);
    io.Kept("reserved1", 8, item.reserved1);
    io.Constant(8, static_cast<std::uint32_t>(tag));
    io.Kept("reserved2", 8, item.reserved2);
}

template <class X, EdidDescriptorTypeId::Enum id, class Fields, class AllFields>
using TEdidDescriptor = TFramedItem<X, AnyEdidDescriptor, EdidDescriptorTypeId::Enum, id, Fields, AllFields>;

struct EdidEmptyDescriptorAllFields : EdidDescriptorFrame {
    Bytes payload = Bytes(13, 0);
    bool operator==(const EdidEmptyDescriptorAllFields&) const = default;
};

// Tag 0x10, the dummy descriptor. The default one, all zero, is what unused slots of the base block hold.
class EdidEmptyDescriptor : public TEdidDescriptor<EdidEmptyDescriptor, EdidDescriptorTypeId::Empty,
                                                   EdidEmptyDescriptorAllFields, EdidEmptyDescriptorAllFields> {
public:
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"Empty"};

    template <class IO>
    static void Map(IO& io, auto& item) {
        MapDescriptorFrame(io, TypeValue, item);
        io.Data("payload", 13, item.payload, Exactly(13));
    }
};

struct EdidOtherDescriptorAllFields {
    int byte2 = 0;
    int tag = 0;
    int byte4 = 0;
    Bytes payload = Bytes(13, 0);
    bool operator==(const EdidOtherDescriptorAllFields&) const = default;
};

// A descriptor of a tag that no class is read for. It has no form: it is kept or deleted.
class EdidOtherDescriptor : public TEdidDescriptor<EdidOtherDescriptor, EdidDescriptorTypeId::Other,
                                                   EdidOtherDescriptorAllFields, EdidOtherDescriptorAllFields> {
public:
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"Other ({tag})"};

    static bool Accepts(int peekedType) {
        return peekedType != EdidDescriptorTypeId::DetailedResolution && peekedType != EdidDescriptorTypeId::None;
    }
    void FillTexts(TextTable& table) const { table.Set(U"{tag}", tag); }

    template <class IO>
    static void Map(IO& io, auto& item) {
        io.Constant(16, 0);
        io.Kept("byte2", 8, item.byte2);
        io.Kept("tag", 8, item.tag);
        io.Kept("byte4", 8, item.byte4);
        io.Data("payload", 13, item.payload, Exactly(13));
    }
};

// The table of kinds: what the holder reads and what the "Add Descriptor" form offers.
struct EdidDescriptorKinds {
    static std::span<const TKind<AnyEdidDescriptor>> All();
    static std::unique_ptr<AnyEdidDescriptor> Read(ByteRange range);
};

using EdidDescriptor = TFramedContainer<AnyEdidDescriptor, EdidDescriptorKinds>;

class EdidDescriptorList : public TSlotList<EdidDescriptor, AnyEdidDescriptor::FrameSize> {
public:
    // As the slot list's, then an empty descriptor in each whole slot that is left.
    bool Write(ByteRange range) const;
};

}  // namespace VNT
