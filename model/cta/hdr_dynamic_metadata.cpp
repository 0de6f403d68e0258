#include "model/cta/hdr_dynamic_metadata.h"

namespace VNT {

namespace {

using Any = AnyCtaHdrDynamicMetadata;

// In the order of the "Add Type" form.
constexpr TKind<Any> Rows[] = {
    Kind<CtaType1HdrDynamicMetadata, Any>("Type 1", 4),         Kind<CtaType2HdrDynamicMetadata, Any>("Type 2", 4),
    Kind<CtaType3HdrDynamicMetadata, Any>("Type 3", 3),         Kind<CtaType4HdrDynamicMetadata, Any>("Type 4", 4),
    Kind<CtaType0x100HdrDynamicMetadata, Any>("Type 0x100", 4),
};

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
    return ReadSizedKind<CtaOtherHdrDynamicMetadata>(All(), range);
}

}  // namespace VNT
