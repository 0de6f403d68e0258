#include "model/displayid/data_block_kinds.h"

namespace VNT {

namespace {

constexpr auto Rows = DisplayIdDataBlockKindList.MakeTable<AnyDisplayIdDataBlock>();

}  // namespace

std::span<const TKind<AnyDisplayIdDataBlock>> DisplayIdDataBlockKinds::All() { return Rows; }

std::unique_ptr<AnyDisplayIdDataBlock> DisplayIdDataBlockKinds::Read(ByteRange range) {
    return ReadSizedKind<decltype(DisplayIdDataBlockKindList)::Other>(All(), range);
}

}  // namespace VNT
