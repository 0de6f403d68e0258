// The records of the HDR dynamic metadata data block (CTA-861-I, 7.5.14): each has its length and type in front.
#pragma once

#include <span>

#include "model/core/flags.h"
#include "model/core/kinds.h"
#include "model/core/sized_item.h"

namespace VNT {

struct CtaHdrDynamicMetadataTypeId {
    enum Enum : int { Type1 = 1, Type2, Type3, Type4, Type0x100 = 0x100, Other = 0x10000, None = 0x20000 };
};

class AnyCtaHdrDynamicMetadata : public TAnySized<AnyCtaHdrDynamicMetadata> {
public:
    static constexpr int MaxSize = 256;  // the most that the length can say
    static constexpr int NoType = CtaHdrDynamicMetadataTypeId::None;

    // NoType if the range is empty, ends inside of the record, or if that has no room for a type.
    static SizedPeek Peek(ByteRange range);

    static constexpr int GetPrefixSize(int) { return 3; }
    template <int type, class IO>
    static void MapPrefix(IO& io, auto& record) {
        MapLength(io, record);
        io.Constant(16, type);
    }
    // The length of what follows the first byte.
    template <class IO>
    static void MapLength(IO& io, auto& record) {
        io.Through(
            8, [&record] { return record.Size - 1; }, [](std::uint32_t) {});
    }
};

struct CtaHdrDynamicMetadataFields {
    Bytes Extra;  // what stands behind the known fields
    bool operator==(const CtaHdrDynamicMetadataFields&) const = default;
};

template <class X, CtaHdrDynamicMetadataTypeId::Enum id, class Fields>
using TCtaHdrDynamicMetadata = TSizedItem<X, AnyCtaHdrDynamicMetadata, CtaHdrDynamicMetadataTypeId::Enum, id, Fields>;

struct CtaHdrDynamicMetadataKinds {
    static std::span<const TKind<AnyCtaHdrDynamicMetadata>> All();
    static std::unique_ptr<AnyCtaHdrDynamicMetadata> Read(ByteRange range);
};

using CtaHdrDynamicMetadata = TSizedContainer<AnyCtaHdrDynamicMetadata, CtaHdrDynamicMetadataKinds>;

class CtaHdrDynamicMetadataList : public TSizedList<CtaHdrDynamicMetadata> {
public:
    // Of a list that may take `bytes`.
    static TSizeListLimits<CtaHdrDynamicMetadataList> GetLimits(int bytes) {
        return {bytes, GetLeastAddSize(CtaHdrDynamicMetadataKinds::All())};
    }
};

struct CtaVersionHdrDynamicMetadataFields : CtaHdrDynamicMetadataFields {
    int Version = 0;
    int Reserved = 0;
    bool operator==(const CtaVersionHdrDynamicMetadataFields&) const = default;
};

// The types that have a version and no more.
template <class X, CtaHdrDynamicMetadataTypeId::Enum id>
class TCtaVersionHdrDynamicMetadata : public TCtaHdrDynamicMetadata<X, id, CtaVersionHdrDynamicMetadataFields> {
public:
    static constexpr SizedShape Shape{1};

    template <class IO>
    static void MapFields(IO& io, auto& record) {
        io.Number("Version", 4, record.Version, Within(0, 15));
        io.Kept("Reserved", 4, record.Reserved);
    }

protected:
    static constexpr TextFormat GetFormatOf(std::u32string_view type) { return {U"{type}", U"{type}", U"", type}; }
};

class CtaType1HdrDynamicMetadata
    : public TCtaVersionHdrDynamicMetadata<CtaType1HdrDynamicMetadata, CtaHdrDynamicMetadataTypeId::Type1> {
public:
    static constexpr TextFormat Format = GetFormatOf(U"Type 1");
    CtaType1HdrDynamicMetadata() = default;
    explicit CtaType1HdrDynamicMetadata(const CtaVersionHdrDynamicMetadataFields& fields) { SetFields(fields); }
};

class CtaType4HdrDynamicMetadata
    : public TCtaVersionHdrDynamicMetadata<CtaType4HdrDynamicMetadata, CtaHdrDynamicMetadataTypeId::Type4> {
public:
    static constexpr TextFormat Format = GetFormatOf(U"Type 4");
    CtaType4HdrDynamicMetadata() = default;
    explicit CtaType4HdrDynamicMetadata(const CtaVersionHdrDynamicMetadataFields& fields) { SetFields(fields); }
};

class CtaType0x100HdrDynamicMetadata
    : public TCtaVersionHdrDynamicMetadata<CtaType0x100HdrDynamicMetadata, CtaHdrDynamicMetadataTypeId::Type0x100> {
public:
    static constexpr TextFormat Format = GetFormatOf(U"Type 0x100");
    CtaType0x100HdrDynamicMetadata() = default;
    explicit CtaType0x100HdrDynamicMetadata(const CtaVersionHdrDynamicMetadataFields& fields) { SetFields(fields); }
};

struct CtaType2HdrDynamicMetadataFlagEnum {
    enum Enum : int { SlHdr1, SlHdr2, SlHdr3 };
    static constexpr ValueText<Enum> Texts[] = {{SlHdr1, "SL-HDR1"}, {SlHdr2, "SL-HDR2"}, {SlHdr3, "SL-HDR3"}};
};

struct CtaType2HdrDynamicMetadataFields : CtaHdrDynamicMetadataFields {
    int Version = 0;
    TFlagsLsb<CtaType2HdrDynamicMetadataFlagEnum, 4> Flags;
    bool operator==(const CtaType2HdrDynamicMetadataFields&) const = default;
};

class CtaType2HdrDynamicMetadata
    : public TCtaHdrDynamicMetadata<CtaType2HdrDynamicMetadata, CtaHdrDynamicMetadataTypeId::Type2,
                                    CtaType2HdrDynamicMetadataFields> {
public:
    static constexpr SizedShape Shape{1};
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"Type 2"};

    CtaType2HdrDynamicMetadata() = default;
    explicit CtaType2HdrDynamicMetadata(const CtaType2HdrDynamicMetadataFields& fields) { SetFields(fields); }

    template <class IO>
    static void MapFields(IO& io, auto& record) {
        io.Number("Version", 4, record.Version, Within(0, 15));
        io.Kept("Flags", 4, record.Flags);
    }
};

// It has no fields that are known, and no form.
class CtaType3HdrDynamicMetadata
    : public TCtaHdrDynamicMetadata<CtaType3HdrDynamicMetadata, CtaHdrDynamicMetadataTypeId::Type3,
                                    CtaHdrDynamicMetadataFields> {
public:
    static constexpr SizedShape Shape{0};
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"Type 3"};

    CtaType3HdrDynamicMetadata() = default;
    explicit CtaType3HdrDynamicMetadata(const CtaHdrDynamicMetadataFields& fields) { SetFields(fields); }

    template <class IO>
    static void MapFields(IO&, auto&) {}
};

struct CtaOtherHdrDynamicMetadataFields : CtaHdrDynamicMetadataFields {
    int Tag = 0;  // the type that no class is read for
    bool operator==(const CtaOtherHdrDynamicMetadataFields&) const = default;
};

class CtaOtherHdrDynamicMetadata
    : public TCtaHdrDynamicMetadata<CtaOtherHdrDynamicMetadata, CtaHdrDynamicMetadataTypeId::Other,
                                    CtaOtherHdrDynamicMetadataFields> {
public:
    static constexpr SizedShape Shape{0};
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"Other ({tag})"};

    CtaOtherHdrDynamicMetadata() = default;
    explicit CtaOtherHdrDynamicMetadata(const CtaOtherHdrDynamicMetadataFields& fields) { SetFields(fields); }

    static bool Accepts(const SizedPeek& peek) { return peek.type != AnyCtaHdrDynamicMetadata::NoType; }
    void FillTexts(TextTable& table) const { table.Set(U"{tag}", Tag); }

    template <class IO>
    static void MapPrefix(IO& io, auto& record) {
        AnyCtaHdrDynamicMetadata::MapLength(io, record);
        io.Kept("Tag", 16, record.Tag);
    }
    template <class IO>
    static void MapFields(IO&, auto&) {}
};

// In the order of the "Add Type" form.
inline constexpr TKindList CtaHdrDynamicMetadataKindList{
    TOtherKind<CtaOtherHdrDynamicMetadata>(),     KindOf<CtaType1HdrDynamicMetadata>("Type 1"),
    KindOf<CtaType2HdrDynamicMetadata>("Type 2"), KindOf<CtaType3HdrDynamicMetadata>("Type 3"),
    KindOf<CtaType4HdrDynamicMetadata>("Type 4"), KindOf<CtaType0x100HdrDynamicMetadata>("Type 0x100"),
};

}  // namespace VNT
