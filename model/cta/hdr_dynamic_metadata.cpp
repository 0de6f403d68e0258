#include "model/cta/hdr_dynamic_metadata.h"

#include "model/core/layout_made.h"

namespace VNT {

namespace {

using Any = AnyCtaHdrDynamicMetadata;

constexpr auto Rows = CtaHdrDynamicMetadataKindList.MakeTable<Any>();

}  // namespace

SizedPeek Any::Peek(ByteRange range) {
    if (range.Size() == 0) return {NoType, NoType};
    const int size = static_cast<int>(range.ReadLsb(8)) + 1;
    if (size < GetPrefixSize(NoType) || size > range.Size()) return {NoType, NoType};
    const int type = static_cast<int>(range.ReadLsb(16));
    return {type, type, size};
}

std::span<const TKind<Any>> CtaHdrDynamicMetadataKinds::All() { return Rows; }

std::unique_ptr<Any> CtaHdrDynamicMetadataKinds::Read(ByteRange range) {
    return ReadSizedKind<decltype(CtaHdrDynamicMetadataKindList)::Other>(All(), range);
}

template struct TMadeKinds<decltype(CtaHdrDynamicMetadataKindList), 0, 1>;

}  // namespace VNT
