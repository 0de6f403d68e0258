#pragma once

#include "model/displayid/data_block.h"

namespace VNT {

struct DisplayId1TextDataBlockFields : DisplayIdDataBlockFields {
    String text;  // one byte a character
    bool operator==(const DisplayId1TextDataBlockFields&) const = default;
};

// The blocks whose whole payload is a text (DisplayID 1.3, 4.10 and 4.11), so that nothing stands behind it.
template <class X, DisplayIdDataBlockTypeId::Enum id>
class TDisplayId1TextDataBlock : public TDisplayIdDataBlock<X, id, DisplayId1TextDataBlockFields> {
    using Base = TDisplayIdDataBlock<X, id, DisplayId1TextDataBlockFields>;

public:
    static constexpr SizedShape Shape{0};
    static constexpr bool KeepsExtra = false;

    bool HasRest() const { return HasContent(); }
    bool HasContent() const { return !this->text.IsEmpty(); }
    void FillTexts(TextTable& table) const { table.Set(U"{text}", this->text); }
    TLimitPair<CountLimits> GetExtraLimits(int) const { return CountLimits{0, 0}; }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.Rest("text", block.text, TLimitPair(CountLimits{0, Base::GetExtraRoom(io.Available())}));
    }

protected:
    static constexpr TextFormat GetFormatOf(std::u32string_view type) {
        return {U"{type}: {description}", U"{type} is empty", U"{text}", type};
    }
};

class DisplayId1SerialNumberDataBlock
    : public TDisplayId1TextDataBlock<DisplayId1SerialNumberDataBlock, DisplayIdDataBlockTypeId::SerialNumber1> {
public:
    static constexpr TextFormat Format = GetFormatOf(U"Serial number");
    DisplayId1SerialNumberDataBlock() = default;
    explicit DisplayId1SerialNumberDataBlock(const DisplayId1TextDataBlockFields& fields) { SetFields(fields); }
};

class DisplayId1TextDataBlock
    : public TDisplayId1TextDataBlock<DisplayId1TextDataBlock, DisplayIdDataBlockTypeId::Text1> {
public:
    static constexpr TextFormat Format = GetFormatOf(U"Text");
    DisplayId1TextDataBlock() = default;
    explicit DisplayId1TextDataBlock(const DisplayId1TextDataBlockFields& fields) { SetFields(fields); }
};

}  // namespace VNT
