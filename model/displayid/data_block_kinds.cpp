#include "model/displayid/cta_data_block_list.h"
#include "model/displayid/other_data_block.h"
#include "model/displayid/vendor_specific.h"

namespace VNT {

namespace {

template <class X>
constexpr TKind<AnyDisplayIdDataBlock> Kind(const char* title, int addSize) {
    return VNT::Kind<X, AnyDisplayIdDataBlock>(title, addSize);
}

constexpr TKind<AnyDisplayIdDataBlock> Rows[] = {
    Kind<DisplayId2VendorSpecificDataBlock>("Vendor-specific", 6),
    Kind<DisplayId1VendorSpecificDataBlock>("Vendor-specific", 6),
    Kind<DisplayIdCtaDataBlockListDataBlock>("CTA-861 data blocks", 3),
};

}  // namespace

std::span<const TKind<AnyDisplayIdDataBlock>> DisplayIdDataBlockKinds::All() { return Rows; }

std::unique_ptr<AnyDisplayIdDataBlock> DisplayIdDataBlockKinds::Read(ByteRange range) {
    return ReadSizedKind<DisplayIdOtherDataBlock>(All(), range);
}

}  // namespace VNT
