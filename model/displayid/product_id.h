#pragma once

#include <algorithm>

#include "model/displayid/data_block.h"
#include "model/displayid/vendor_id.h"

namespace VNT {

struct DisplayIdProductIdFields : DisplayIdDataBlockFields {
    int productId = 0;
    std::int64_t serialNumber = Undefined;
    int week = Undefined;
    bool modelYear = false;  // `year` is that of the model, and no week is told
    int year = Undefined;
    int nameLength = 0;  // what the bytes say, which may be more than there are
    String name;
    bool operator==(const DisplayIdProductIdFields&) const = default;
};

// The maker and the product (DisplayID 1.3, 4.1; 2.1, 4.1).
template <class X, DisplayIdDataBlockTypeId::Enum id, class Fields>
class TDisplayIdProductIdDataBlock : public TDisplayIdDataBlock<X, id, Fields> {
    using Base = TDisplayIdDataBlock<X, id, Fields>;

public:
    static constexpr SizedShape Shape{12};  // and the name
    static constexpr TextFormat Format{U"{type}: {description}", U"{type}: {description}",
                                       U"{vendorid}{productid}{nametext}", U"Product identification"};

    void Normalize() {
        if (this->modelYear) this->week = Undefined;
        this->nameLength = this->name.Length();
    }
    // What is longer or shorter than its name says holds something else beside its fields.
    int GetPresentLength() const {
        const int length = this->Size - Base::PrefixSize;
        if (length <= Shape.fixed) return std::max(0, length);
        return length == Shape.fixed + this->nameLength ? Shape.fixed : Shape.Longer();
    }
    void FillTexts(TextTable& table) const {
        constexpr int radix = 16, digits = 4;
        table.Set(U"{vendorid}", DescribeDisplayIdVendor(this->vendorId));
        table.Set(U"{productid}", NumberText(this->productId, radix, digits, true));
        table.Set(U"{name}", this->name);
        table.Set(U"{nametext}", this->name.IsEmpty() ? U"" : U" - {name}");
    }
    TLimitPair<CountLimits> GetExtraLimits(int room) const {
        return CountLimits{0, std::max(0, room - this->name.Length())};
    }
    // The room of the name in a block of `size` bytes.
    int GetNameRoom(int size) const { return Base::GetExtraRoom(size) - this->Extra.Size(); }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        MapDisplayIdVendor(io, block.vendorId);
        io.Number("productId", 16, block.productId, Within(0, 65535));
        io.Number("serialNumber", 32, block.serialNumber, LongCoding{0, 1, {{0, Undefined}}},
                  Within(LongLimits{1, 4294967295, 0, 0, {Undefined}}));
        io.Through(
            8, [&] { return block.GetRawWeek(); }, [&](std::uint32_t raw) { SetRawWeek(block, raw); });
        io.Value("modelYear", block.modelYear, true, true);
        if (!block.modelYear) {
            const TFew<int> blank{Undefined};
            io.Value("week", block.week, ValueLimits{1, 54, 0, 0, blank}.Contains(block.week),
                     ValueLimits{1, ModelYearWeek - 1, 0, 0, blank}.Contains(block.week));
        }
        io.Number("year", 8, block.year, ValueCoding{2000, 1, {{0, Undefined}}},
                  TLimitPair(ValueLimits{2001, 2255, 0, 0, {Undefined}}));
        io.Through(
            8, [&] { return block.nameLength; }, [&](std::uint32_t raw) { SetNameLength(block, raw); });
        const bool isWhole = block.nameLength == block.name.Length();
        io.Value("nameLength", block.nameLength, isWhole, isWhole || block.IsNameCutOff());
        const int available = io.Available();
        io.Area(block.nameLength, [&block, available](auto& area) {
            area.Rest("name", block.name, TLimitPair(CountLimits{0, block.GetNameRoom(available)}));
        });
    }

private:
    static constexpr int ModelYearWeek = 255;

    std::uint32_t GetRawWeek() const {
        return static_cast<std::uint32_t>(this->modelYear ? ModelYearWeek : this->week == Undefined ? 0 : this->week);
    }
    static void SetRawWeek(auto& block, std::uint32_t raw) {
        if constexpr (!std::is_const_v<std::remove_reference_t<decltype(block)>>) {
            block.modelYear = raw == ModelYearWeek;
            block.week = raw == 0 || block.modelYear ? Undefined : static_cast<int>(raw);
        }
    }
    static void SetNameLength(auto& block, std::uint32_t raw) {
        if constexpr (!std::is_const_v<std::remove_reference_t<decltype(block)>>) {
            block.nameLength = static_cast<int>(raw);
        }
    }
    // The bytes end before the name does.
    bool IsNameCutOff() const {
        constexpr int most = 255;
        return this->Extra.IsEmpty() && this->nameLength > this->name.Length() && this->nameLength <= most;
    }
};

struct DisplayId1ProductIdDataBlockFields : DisplayIdProductIdFields {
    String vendorId = U"PNP";
    bool operator==(const DisplayId1ProductIdDataBlockFields&) const = default;
};

class DisplayId1ProductIdDataBlock
    : public TDisplayIdProductIdDataBlock<DisplayId1ProductIdDataBlock, DisplayIdDataBlockTypeId::ProductId1,
                                          DisplayId1ProductIdDataBlockFields> {
public:
    DisplayId1ProductIdDataBlock() = default;
    explicit DisplayId1ProductIdDataBlock(const DisplayId1ProductIdDataBlockFields& fields) { SetFields(fields); }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        TDisplayIdProductIdDataBlock::MapFields(io, block);
        MapNoListEnd(io, block);
    }

private:
    // Its tag is 0, and three zero bytes are the end of a list.
    template <class IO>
    static void MapNoListEnd(IO& io, const auto& block) {
        const bool isBlock = block.Size > PrefixSize || block.revision != 0 || block.flags != 0;
        io.Check("frame", isBlock, isBlock);
    }
};

struct DisplayId2ProductIdDataBlockFields : DisplayIdProductIdFields {
    int vendorId = 0;
    bool operator==(const DisplayId2ProductIdDataBlockFields&) const = default;
};

class DisplayId2ProductIdDataBlock
    : public TDisplayIdProductIdDataBlock<DisplayId2ProductIdDataBlock, DisplayIdDataBlockTypeId::ProductId2,
                                          DisplayId2ProductIdDataBlockFields> {
public:
    DisplayId2ProductIdDataBlock() = default;
    explicit DisplayId2ProductIdDataBlock(const DisplayId2ProductIdDataBlockFields& fields) { SetFields(fields); }
};

}  // namespace VNT
