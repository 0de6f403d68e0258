#pragma once

#include "model/core/item.h"
#include "model/timing/timing_calculator.h"
#include "model/timing/timing_math.h"
#include "model/timing/timing_status.h"

namespace VNT {

// What the detailed kinds have in common. X gives
//
//     template <class IO> static void Map(IO& io, auto& item);  // its bytes, the record's counts among them
//     static constexpr DetailedResolutionTextFormat Format{...};
//     DetailedResolutionLimits GetLimits() const, GetAllLimits() const;
//
// a constructor from its Fields, which calls `Settle`, and where it is particular `FillTexts(table)` behind the one
// here. `maxSize` is the most bytes that the kind takes. Branches are the typed bases: one for each family it is of.
template <class X, class Fields, int maxSize, class... Branches>
class TDetailedResolution : public Branches..., public Fields {
public:
    using FieldsType = Fields;

    TDetailedResolution() = default;
    explicit TDetailedResolution(const Fields& fields) : Fields(fields) {}

    const DetailedResolutionFields& GetFields() const override { return *this; }
    DetailedResolutionFields& GetAllFields() override { return *this; }
    void GetText(String& out, const String& format) const override { DescribeItem(Self(), X::Format, format, out); }
    void GetText(String& out) const override { DescribeItem(Self(), X::Format, out); }
    void GetSummary(ResolutionSummary& out) const override {
        out = ResolutionSummary();
        if (IsValidAll()) out = {this->hactive, this->vactive, this->interlaced, {this->actualvrate}};
    }
    bool IsValid() const override { return ValidityOf(Self(), maxSize).proper; }
    bool IsValidAll() const override { return ValidityOf(Self(), maxSize).all; }

    // Of the family of descriptors.
    virtual void TellFields(int available, FieldSink& sink) { TLayout<X>::Tell(Self(), available, sink); }
    virtual void Renew() { Self().Settle(); }

    ItemStatus GetStatus() const { return StatusOf(Self(), maxSize); }
    std::vector<FieldLimits> GetFieldLimits() const { return LimitsOf(Self(), maxSize); }
    bool EqualFields(const X& other) const {
        return static_cast<const Fields&>(*this) == static_cast<const Fields&>(other);
    }

    // Takes over what was copied: all of an item of this kind; of another kind the timing record alone, whatever the
    // bytes here make of it. False from an empty holder.
    bool Paste(const DetailedResolution& copied) {
        if (copied.IsEmpty()) return false;
        if (!Self().Assign(copied)) static_cast<DetailedResolutionFields&>(*this) = copied.GetFields();
        Self().Settle();
        return true;
    }

    void FillTexts(TextTable& table) const { FillTimingTexts(table, *this, X::Format); }
    bool HasContent() const { return true; }

protected:
    X& Self() { return static_cast<X&>(*this); }
    const X& Self() const { return static_cast<const X&>(*this); }

    // The item as its entered fields make it.
    void Settle() { Calculate(*this, Self().GetLimits()); }
    // The part of `Map` that no byte holds.
    template <class IO>
    static void MapBeyondBytes(IO& io, const Fields& fields, const DetailedResolutionLimits& proper,
                               const DetailedResolutionLimits& all) {
        const auto statuses = io.Tested([&] { return StatusBeyondBytes(fields, proper, all); });
        for (const FieldStatus& s : statuses) io.Check(s.name, s.proper, s.all);
    }
};

}  // namespace VNT
