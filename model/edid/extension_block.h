#pragma once

#include <span>

#include "model/core/checksum.h"
#include "model/core/item.h"
#include "model/core/kinds.h"
#include "model/core/list.h"

namespace VNT {

struct EdidExtensionBlockTypeId {
    enum Enum : int {
        Cta = 0x02,
        Vtb = 0x10,
        DisplayIdSection = 0x70,
        Default = 0x100,
        Other = 0x200,
        None = 0x300,
    };
};

// The family of the 128-byte blocks behind the base block.
class AnyEdidExtensionBlock : public TAnyFramed<AnyEdidExtensionBlock> {
public:
    static constexpr int FrameSize = 128;
    static constexpr int NoType = EdidExtensionBlockTypeId::None;
    // None below 128 bytes; Default if all 128 are zero, whatever tag that would be; else the first byte.
    static int PeekType(ByteRange range);
    // The count that the block's extension override states, and its setter; Undefined and no effect on any other block.
    virtual int GetOverrideCount() const { return Undefined; }
    virtual void SetOverrideCount(int) {}
};

// The checksum of a block of 128 bytes.
inline int ComputeChecksum(ByteRange range) { return ComputeChecksum(range, AnyEdidExtensionBlock::FrameSize - 1); }

// A block with a checksum at its end: kept as read, right or wrong, until the block is built from edited fields.
// `AllFields` has the member `int checksum`.
template <class X, EdidExtensionBlockTypeId::Enum id, class Fields, class AllFields>
class TEdidExtensionBlock
    : public TFramedItem<X, AnyEdidExtensionBlock, EdidExtensionBlockTypeId::Enum, id, Fields, AllFields> {
public:
    // The right checksum for the bytes as they stand; Undefined if they can't be written.
    int GetComputedChecksum() const {
        Bytes scratch(AnyEdidExtensionBlock::FrameSize, 0);
        return this->Write(scratch) ? ComputeChecksum(scratch) : Undefined;
    }
    bool IsValid() const override {
        const Validity own = ValidityOf(static_cast<const X&>(*this), AnyEdidExtensionBlock::FrameSize);
        return own.proper && this->checksum == GetComputedChecksum();
    }
    void UpdateChecksum() {
        this->checksum = Undefined;
        this->checksum = GetComputedChecksum();
    }
    void Normalize() { UpdateChecksum(); }
    void NormalizeRead() {}
};

struct EdidDefaultExtensionBlockFields {
    bool operator==(const EdidDefaultExtensionBlockFields&) const = default;
};

// A block of zeros: what stands in for blocks that the data lacks.
class EdidDefaultExtensionBlock
    : public TFramedItem<EdidDefaultExtensionBlock, AnyEdidExtensionBlock, EdidExtensionBlockTypeId::Enum,
                         EdidExtensionBlockTypeId::Default, EdidDefaultExtensionBlockFields> {
public:
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"Default"};

    template <class IO>
    static void Map(IO& io, auto&) {
        for (int i = 0; i < FrameSize; ++i) io.Constant(8, 0);
    }
};

struct EdidOtherExtensionBlockFields {
    int tag = 0;
    Bytes data = Bytes(126, 0);
    bool operator==(const EdidOtherExtensionBlockFields&) const = default;
};

struct EdidOtherExtensionBlockAllFields : EdidOtherExtensionBlockFields {
    int checksum = Undefined;
    bool operator==(const EdidOtherExtensionBlockAllFields&) const = default;
};

// A block of a tag that no class is read for. It has no form.
class EdidOtherExtensionBlock
    : public TEdidExtensionBlock<EdidOtherExtensionBlock, EdidExtensionBlockTypeId::Other,
                                 EdidOtherExtensionBlockFields, EdidOtherExtensionBlockAllFields> {
public:
    EdidOtherExtensionBlock() = default;
    explicit EdidOtherExtensionBlock(const EdidOtherExtensionBlockFields& fields) { SetFields(fields); }
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"Other ({tag})"};

    static bool Accepts(int peekedType) {
        return peekedType != EdidExtensionBlockTypeId::Default && peekedType != EdidExtensionBlockTypeId::None;
    }
    void FillTexts(TextTable& table) const { table.Set(U"{tag}", tag); }

    template <class IO>
    static void Map(IO& io, auto& item) {
        io.Kept("tag", 8, item.tag);
        io.Data("data", 126, item.data, Exactly(126));
        MapChecksum(io, item.checksum);
    }
};

struct EdidExtensionBlockKinds {
    static std::span<const TKind<AnyEdidExtensionBlock>> All();
    static std::unique_ptr<AnyEdidExtensionBlock> Read(ByteRange range);
};

class EdidExtensionBlock : public TFramedContainer<AnyEdidExtensionBlock, EdidExtensionBlockKinds> {
public:
    using TFramedContainer::TFramedContainer;
    int GetOverrideCount() const override { return item_ != nullptr ? item_->GetOverrideCount() : Undefined; }
    void SetOverrideCount(int count) override {
        if (item_ != nullptr) item_->SetOverrideCount(count);
    }
};

class EdidExtensionBlockList : public TSlotList<EdidExtensionBlock, AnyEdidExtensionBlock::FrameSize> {
public:
    // Every whole block of the range; none is dropped. Always true.
    bool Read(ByteRange range) {
        Clear();
        ReadMore(range);
        return true;
    }
    // The same behind those that the list has.
    void ReadMore(ByteRange range);
    // The override count that the first block states, Undefined if it states none.
    int GetOverrideCount() const { return IsEmpty() ? Undefined : At(0).GetOverrideCount(); }
    // Puts the count of blocks into the first block's override; false if it has none, or no room for the count.
    bool UpdateOverrideCount();
    // Appends default blocks until the list holds `count`.
    void FillUp(int count);
};

}  // namespace VNT
