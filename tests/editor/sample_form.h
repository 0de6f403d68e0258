// An item with a field of every kind and its form, with a row of every kind.
#pragma once

#include "editor/item_window.h"
#include "model/core/layout_made.h"
#include "model/core/list.h"

namespace Sample {

using namespace VNT;

struct KindEnum {
    enum Enum : int { Plain, Fancy, Odd };
    static constexpr ValueText<Enum> Texts[] = {{Plain, "Plain"}, {Fancy, "Fancy"}, {Odd, "Odd"}};
};
struct FlagEnum {
    enum Enum : int { First, Second, Third };
    static constexpr ValueText<Enum> Texts[] = {{First, "First"}, {Second, "Second"}, {Third, "Third"}};
};
struct BitEnum {
    enum Enum : int {};
    static constexpr const char* Texts[] = {"Bit 0", "Bit 1", "Bit 2"};
};

struct EntryFields {
    int number = 1;
    bool operator==(const EntryFields&) const = default;
};

// A number from 1 to 9: what the sample's list holds.
class Entry : public EntryFields {
public:
    using FieldsType = EntryFields;
    Entry() = default;
    explicit Entry(const EntryFields& fields) : EntryFields(fields) {}

    bool IsValid() const { return ValidityOf(*this, 1).proper; }
    bool IsValidAll() const { return ValidityOf(*this, 1).all; }
    ItemStatus GetStatus() const { return StatusOf(*this, 1); }
    void GetText(String& out) const { out = NumberText(number, 10, 0, false); }
    bool operator==(const Entry&) const = default;

    template <class IO>
    static void Map(IO& io, auto& item) {
        io.Number("number", 8, item.number, Within(1, 9));
    }
};
using EntryList = TSlotList<Entry, 1>;

struct ItemFields {
    int count = 7;             // 0 to 100, or empty
    std::int64_t serial = 5;   // 32 bits
    unsigned units = 3;        // 0 to 10
    int code = 0xAB;           // 0 to 0xFFFF
    int address = 0x1234;      // 16 bits
    Decimal rate{60};          // 0 to 1000
    Decimal actual{59940, 3};  // twice the rate: follows
    String name = U"ABC";      // 1 to 5 characters
    Bytes data{1, 2};          // at most 4
    bool isLinked = false;
    int linked = 10;  // follows `count` where `isLinked`
    KindEnum::Enum kind = KindEnum::Plain;
    int other = 2;  // a kind or any number to 50
    int index = 3;  // 3 to 5
    KindEnum::Enum radio = KindEnum::Fancy;
    int rateType = 0;
    TFlagsMsb<FlagEnum, 3> flags;
    TBitsMsb<BitEnum, 24> bits;
    TBits<0xFFFF> map;
    EntryList entries;
    bool operator==(const ItemFields&) const = default;
};

class Item : public ItemFields {
public:
    using FieldsType = ItemFields;
    static constexpr int Size = 64;

    Item() = default;
    explicit Item(const ItemFields& fields) : ItemFields(fields) {
        actual = rate * 2;
        if (isLinked) linked = count;
        if (!flags.Test(FlagEnum::First)) code = 0xAB;
    }
    bool IsValid() const { return ValidityOf(*this, Size).proper; }
    bool IsValidAll() const { return ValidityOf(*this, Size).all; }
    ItemStatus GetStatus() const { return StatusOf(*this, Size); }
    std::vector<FieldLimits> GetFieldLimits() const { return LimitsOf(*this, Size); }
    bool operator==(const Item&) const = default;

    template <class IO>
    static void Map(IO& io, auto& item) {
        io.Number("count", 8, item.count, TLimitPair(ValueLimits{0, 100, 0, 0, {Undefined}}));
        io.Number("serial", 32, item.serial, LongCoding{0, 1},
                  TLimitPair(LongLimits{0, 0xFFFFFFFF, 0, 0, {Undefined}}));
        io.Check("units", item.units <= 10, item.units <= 10);
        if (item.flags.Test(FlagEnum::First)) io.Number("code", 16, item.code, Within(0, 0xFFFF));
        io.Number("address", 16, item.address, Within(0, 0xFFFF));
        io.Number("rate", 32, item.rate, DecimalCoding{Decimal(0), Decimal(1, 3)},
                  Within(DecimalLimits{Decimal(0), Decimal(1000)}));
        io.Check("actual", true, true);
        io.Check("name", !item.name.IsEmpty() && item.name.Length() <= 5, true);
        io.Check("data", item.data.Size() <= 4, true);
        io.Kept("isLinked", 1, item.isLinked);
        io.Number("linked", 7, item.linked,
                  Within(ValueLimits{0, 100, 0, 0, {Undefined}}, ValueLimits{0, 127, 0, 0, {Undefined}}));
        io.Number("kind", 8, item.kind, OneOf(2));
        io.Number("other", 8, item.other, Within(0, 50));
        io.Number("index", 8, item.index, Within(3, 5));
        io.Number("radio", 8, item.radio, OneOf(3));
        if (!item.isLinked) io.Number("rateType", 8, item.rateType, Within(0, 1));
        io.Kept("flags", 3, item.flags);
        io.Check("bits", true, true);
        io.Check("map", true, true);
        io.Check("entries", item.entries.GetCount() <= 3, true);
    }
};

class EntryWindow : public TItemWindow<Entry> {
public:
    explicit EntryWindow(UI::Window* parent) : TItemWindow(parent, L"EntryWindow", L"Entry") {
        Group(L"Number").Number(Field<&Fields::number>, L"000");
    }
};

inline int EditEntry(UI::Window* parent, Entry& entry, int bytes) { return EntryWindow(parent).Run(entry, bytes); }

inline constexpr ListCaptions EntryCaptions{U"Entries ({countlefttext})", U"Entries (no space left)", U"No entries"};

class ItemForm : public TItemWindow<Item> {
public:
    explicit ItemForm(UI::Window* parent = nullptr) : TItemWindow(parent, L"ItemForm", L"Item") {
        Group(L"Numbers")
            .Row(L"Count:")
            .Number(Field<&Fields::count>, L"000", L"pcs")
            .OnChange([this] { ++countChanges; })
            .Row(L"Serial:")
            .Number(Field<&Fields::serial>, L"0000000000")
            .Row(L"Units:")
            .Number(Field<&Fields::units>, L"00")
            .Row(L"Code:")
            .Hex(Field<&Fields::code>, L"AAAA")
            .Row(L"Address:")
            .Dotted(Field<&Fields::address>, L"00.00.00.00")
            .Row(L"Linked:")
            .Number(Field<&Fields::linked>, L"000")
            .OnChange([this] { fields.isLinked = false; })
            .Check(Field<&Fields::isLinked>, L"Follow");
        Group(L"Rates")
            .Aligned()
            .RadioRow(Field<&Fields::rateType>, 0, L"Rate:")
            .Number(Field<&Fields::rate>, L"0000.000", L"Hz")
            .Actual(Field<&Fields::actual>, L"0000.000", {3, 8, false}, L"Hz")
            .RadioRow(Field<&Fields::rateType>, 1, L"Again:")
            .Number(Field<&Fields::rate>, L"0000.00", DecimalFormat{2}, L"Hz");
        Group(L"Name").SizedText(Field<&Fields::name>, [] { return 5; });
        Group(L"Hex data").SizedHex(Field<&Fields::data>, [] { return 4; });
        Group(L"Kind")
            .Row(L"Kind:")
            .Combo(Field<&Fields::kind>, KindEnum::Texts)
            .Row(L"Other:")
            .ComboOther(Field<&Fields::other>, KindEnum::Texts, L"000")
            .Row(L"Shown:")
            .VisibleIf([this] { return fields.kind == KindEnum::Fancy; })
            .Text(Field<&Fields::name>, L"WWW");
        auto radios = Group(L"Radio");
        for (const auto& row : KindEnum::Texts)
            radios.Radio(Field<&Fields::radio>, row.value, String(row.text).ToWide());
        Group(L"Flags").Checks(Field<&Fields::flags>, FlagEnum::Texts);
        Group(L"Bits").Row(L"Bits:").Checks(Field<&Fields::bits>, BitEnum::Texts);
        Group(L"Map").Flag(Field<&Fields::map>, 70000, L"Bit 70000").Flag(Field<&Fields::map>, 9, L"Bit 9");
        Group(L"Extra")
            .VisibleIf([this] { return fields.flags.Test(FlagEnum::Third); })
            .Label(L"Press:")
            .Button(L"Press...", [this] { ++presses; })
            .EnabledIf([this] { return fields.count == 1; });
        Group(L"Entries")
            .List(
                Field<&Fields::entries>, EntryCaptions,
                [] {
                    return SlotListLimits{3, 1};
                },
                EditEntry);
    }

    int countChanges = 0;
    int presses = 0;
};

}  // namespace Sample
