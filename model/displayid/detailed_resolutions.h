#pragma once

#include <algorithm>

#include "model/core/flags.h"
#include "model/displayid/data_block.h"
#include "model/timing/displayid_detailed_resolution.h"

namespace VNT {

// Descriptors of one size, one behind the other. The bytes of what couldn't be written back, and all behind it, are not
// the list's: its block keeps them.
template <class Item>
class TDisplayIdDetailedResolutionList : public TList<Item> {
public:
    int descriptorSize = Item::MinSize;  // bytes

    // Always true.
    bool Read(ByteRange range) {
        this->Clear();
        for (Item item; ReadItem(item, range) && this->Add(item); item = Item()) range.Drop(descriptorSize);
        return true;
    }
    // False if the range is too short for all of them.
    bool Write(ByteRange range) const {
        if (range.Size() < GetSize()) return false;
        for (const Item& item : *this) {
            item.Write(range.Peek(descriptorSize));
            range.Drop(descriptorSize);
        }
        return true;
    }
    int GetSize() const { return this->GetCount() * descriptorSize; }
    // Each descriptor has room in its bytes.
    bool Fits() const {
        return std::all_of(this->begin(), this->end(),
                           [this](const Item& item) { return SizeOf(item) <= descriptorSize; });
    }
    bool operator==(const TDisplayIdDetailedResolutionList& other) const {
        return descriptorSize == other.descriptorSize && TList<Item>::operator==(other);
    }

private:
    bool ReadItem(Item& item, ByteRange range) const {
        if constexpr (requires { item.Read(range, 0); }) {
            return item.Read(range, descriptorSize);
        } else {
            return item.Read(range);
        }
    }
    static int SizeOf(const Item& item) {
        if constexpr (requires { item.GetSize(); }) {
            return item.GetSize();
        } else {
            return Item::MaxSize;
        }
    }
};

using DisplayId1DetailedResolutionList = TDisplayIdDetailedResolutionList<DisplayId1DetailedResolution>;
using DisplayId2DetailedResolutionList = TDisplayIdDetailedResolutionList<DisplayId2DetailedResolution>;
using DisplayId2DetailedResolutionListR2 = TDisplayIdDetailedResolutionList<DisplayId2DetailedResolutionR2>;

// The blocks of detailed timings (DisplayID 1.3, 4.4.1; 2.1, 4.3). `Fields` has the list `resolutions`.
template <class X, DisplayIdDataBlockTypeId::Enum id, class Fields>
class TDisplayIdDetailedResolutionListDataBlock : public TDisplayIdDataBlock<X, id, Fields> {
    using Base = TDisplayIdDataBlock<X, id, Fields>;

public:
    using List = decltype(Fields::resolutions);
    using ListLimits = TFixedSizeListLimits<List>;
    static constexpr SizedShape Shape{0};

    void FillTexts(TextTable& table) const {
        const int count = this->resolutions.GetCount();
        table.Set(U"{count}", count);
        table.Set(U"{counttext}", ChooseByCount(count, U"0 resolutions", U"1 resolution", U"{count} resolutions"));
    }
    bool HasRest() const { return !this->resolutions.IsEmpty() || !this->Extra.IsEmpty(); }
    TLimitPair<CountLimits> GetExtraLimits(int room) const {
        return CountLimits{0, std::max(0, room - this->resolutions.GetSize())};
    }
    // Whole descriptors behind those of the list that say something, but no timing.
    bool HasRefused() const { return this->Extra.Size() >= this->resolutions.descriptorSize && !this->Extra.IsAll(0); }
    // The room of the list in a block of `size` bytes.
    ListLimits GetListLimits(int size) const {
        return {Base::GetExtraRoom(size) - this->Extra.Size(), this->resolutions.descriptorSize};
    }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.List("resolutions", block.resolutions, TLimitPair<ListLimits>(block.GetListLimits(io.Available())));
        io.Check("descriptors", block.resolutions.Fits(), block.resolutions.Fits());
        io.Check("refused", !block.HasRefused(), true);
    }

protected:
    static constexpr TextFormat GetFormatOf(std::u32string_view type) {
        return {U"{type}: {description}", U"{type}: {description}", U"{counttext}", type};
    }
};

struct DisplayId1DetailedResolutionListDataBlockFields : DisplayIdDataBlockFields {
    DisplayId1DetailedResolutionList resolutions;
    bool operator==(const DisplayId1DetailedResolutionListDataBlockFields&) const = default;
};

class DisplayId1DetailedResolutionListDataBlock
    : public TDisplayIdDetailedResolutionListDataBlock<DisplayId1DetailedResolutionListDataBlock,
                                                       DisplayIdDataBlockTypeId::DetailedResolutionList1,
                                                       DisplayId1DetailedResolutionListDataBlockFields> {
public:
    static constexpr TextFormat Format = GetFormatOf(U"Detailed resolutions");
    DisplayId1DetailedResolutionListDataBlock() = default;
    explicit DisplayId1DetailedResolutionListDataBlock(const DisplayId1DetailedResolutionListDataBlockFields& fields) {
        SetFields(fields);
    }
};

struct DisplayId2DetailedResolutionListDataBlockFlagEnum {
    enum Enum : int { DscPassThrough };
    static constexpr ValueText<Enum> Texts[] = {{DscPassThrough, "DSC pass-through"}};
};

// The two version 2 blocks, which differ by their revision and say in the frame how long a descriptor is.
template <class X, DisplayIdDataBlockTypeId::Enum id, class Fields, int firstRevision, int lastRevision>
class TDisplayId2DetailedResolutionListDataBlock : public TDisplayIdDetailedResolutionListDataBlock<X, id, Fields> {
public:
    template <class IO>
    static void MapPrefix(IO& io, auto& block) {
        constexpr ValueCoding lessTwenty{20, 1, {}};
        io.Constant(8, DisplayIdDataBlockTypeId::DetailedResolutionList2);
        io.Number("revision", 3, block.revision, Within(firstRevision, lastRevision));
        io.Number("descriptorSize", {{1, 4, 3}}, block.resolutions.descriptorSize, lessTwenty, Within(20, 27));
        io.Kept("resolutionFlags", {{1, 3, 1}, {1, 7, 1}}, block.resolutionFlags);
        AnyDisplayIdDataBlock::MapLength(io, block);
    }
};

struct DisplayId2DetailedResolutionListDataBlockFields : DisplayIdDataBlockFields {
    TFlagsLsb<DisplayId2DetailedResolutionListDataBlockFlagEnum, 2> resolutionFlags;
    DisplayId2DetailedResolutionList resolutions;
    bool operator==(const DisplayId2DetailedResolutionListDataBlockFields&) const = default;
};

class DisplayId2DetailedResolutionListDataBlock
    : public TDisplayId2DetailedResolutionListDataBlock<DisplayId2DetailedResolutionListDataBlock,
                                                        DisplayIdDataBlockTypeId::DetailedResolutionList2,
                                                        DisplayId2DetailedResolutionListDataBlockFields, 0, 1> {
public:
    static constexpr TextFormat Format = GetFormatOf(U"Detailed resolutions");
    DisplayId2DetailedResolutionListDataBlock() = default;
    explicit DisplayId2DetailedResolutionListDataBlock(const DisplayId2DetailedResolutionListDataBlockFields& fields) {
        SetFields(fields);
    }
};

struct DisplayId2DetailedResolutionListDataBlockFieldsR2 : DisplayIdDataBlockFields {
    TFlagsLsb<DisplayId2DetailedResolutionListDataBlockFlagEnum, 2> resolutionFlags;
    DisplayId2DetailedResolutionListR2 resolutions;
    DisplayId2DetailedResolutionListDataBlockFieldsR2() { revision = 2; }
    bool operator==(const DisplayId2DetailedResolutionListDataBlockFieldsR2&) const = default;
};

class DisplayId2DetailedResolutionListDataBlockR2
    : public TDisplayId2DetailedResolutionListDataBlock<DisplayId2DetailedResolutionListDataBlockR2,
                                                        DisplayIdDataBlockTypeId::DetailedResolutionList2R2,
                                                        DisplayId2DetailedResolutionListDataBlockFieldsR2, 2, 7> {
public:
    static constexpr TextFormat Format = GetFormatOf(U"Detailed resolutions r2");
    DisplayId2DetailedResolutionListDataBlockR2() = default;
    explicit DisplayId2DetailedResolutionListDataBlockR2(
        const DisplayId2DetailedResolutionListDataBlockFieldsR2& fields) {
        SetFields(fields);
    }
};

}  // namespace VNT
