#include "model/cta/data_block_kinds.h"

namespace VNT {

namespace {

constexpr auto Rows = CtaDataBlockKindList.MakeTable<AnyCtaDataBlock>();

}  // namespace

std::span<const TKind<AnyCtaDataBlock>> CtaDataBlockKinds::All() { return Rows; }

std::unique_ptr<AnyCtaDataBlock> CtaDataBlockKinds::Read(ByteRange range) {
    return ReadSizedKind<decltype(CtaDataBlockKindList)::Other>(All(), range);
}

}  // namespace VNT
