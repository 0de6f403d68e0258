#include <random>

#include "model/cta/data_block.h"
#include "model/cta/vendor_specific.h"
#include "model/displayid/cta_data_block_list.h"
#include "model/displayid/vendor_specific.h"
#include "model/edid/cta_extension_block.h"
#include "model/edid/displayid_extension_block.h"
#include "model/edid/text_descriptor.h"
#include "tests/edid/support.h"

// Random edits within the bytes and slots that the blocks say are left.
namespace VNT::Testing {
namespace {

class RandomEditor {
public:
    explicit RandomEditor(unsigned seed) : random_(seed) {}

    int Below(int count) { return count < 1 ? 0 : static_cast<int>(random_() % static_cast<unsigned>(count)); }

    // A block that takes at most `bytes`, as long as that is at all possible.
    template <class X>
    X VendorBlock(int bytes) {
        typename X::FieldsType fields;
        fields.Extra = Bytes(Below(X::GetExtraRoom(std::min(bytes, X::MaxSize)) + 1), 0x5A);
        return X(fields);
    }

    // One step on a list of items with sizes of their own: add, edit or delete, if it fits.
    template <class List, class Limits, class Make>
    void Step(List& list, const Limits& limits, const Make& make) {
        const int index = Below(list.GetCount());
        const int choice = Below(5);
        if (choice == 0) {
            list.Remove(index);
        } else if (choice == 1 && !list.IsEmpty()) {
            const int budget = limits.BytesLeft(list) + list.At(index).GetSize();
            const auto item = make(budget);
            if (item.IsValid(budget)) list.Set(index, item);
        } else if (limits.HasRoom(list)) {
            const auto item = make(limits.BytesLeft(list));
            const bool fits = item.IsValid(limits.BytesLeft(list));
            EXPECT_TRUE(!fits || list.Add(item));
        }
    }

    EdidCtaExtensionBlockFields EditCta(EdidCtaExtensionBlockFields fields) {
        for (int step = 0; step < 40; ++step) {
            const EdidCtaExtensionBlock block(fields);
            if (Below(4) == 0) {
                if (block.GetDescriptorLimits().HasRoom(fields.descriptors))
                    fields.descriptors.Add(EdidDescriptor(EdidNameDescriptor().Clone()));
                else
                    fields.descriptors.Remove(Below(fields.descriptors.GetCount()));
            } else {
                Step(fields.dataBlocks, block.GetDataBlockLimits(), [this](int bytes) { return AnyDataBlock(bytes); });
            }
        }
        return fields;
    }
    DisplayIdSectionFields EditSection(DisplayIdSectionFields fields) {
        constexpr int room = DisplayIdSection::ExtensionBytes;
        for (int step = 0; step < 20; ++step) {
            Step(fields.dataBlocks, DisplayIdSection::GetListLimits(room), [this](int bytes) {
                if (Below(2) == 0)
                    return DisplayIdDataBlock(VendorBlock<DisplayId1VendorSpecificDataBlock>(bytes).Clone());
                DisplayIdCtaDataBlockListDataBlock carrier;
                for (int inner = 0; inner < 6; ++inner)
                    Step(carrier.dataBlocks, carrier.GetListLimits(bytes), [this](int b) { return AnyDataBlock(b); });
                return DisplayIdDataBlock(DisplayIdCtaDataBlockListDataBlock(
                                              static_cast<const DisplayIdCtaDataBlockListDataBlockFields&>(carrier))
                                              .Clone());
            });
        }
        return fields;
    }

private:
    CtaDataBlock AnyDataBlock(int bytes) {
        const auto kinds = CtaDataBlockKinds::All();
        const auto& kind = kinds[static_cast<std::size_t>(Below(static_cast<int>(kinds.size())))];
        return Below(2) == 0 ? CtaDataBlock(kind.make())
                             : CtaDataBlock(VendorBlock<CtaVendorSpecificDataBlock>(bytes).Clone());
    }
    std::mt19937 random_;
};

TEST(ExtensionBudget, NoSequenceOfEditsMakesAnEdidThatIsRefusedOrReadDifferently) {
    RandomEditor editor(20260109);
    EdidFields fields = ReadAs<Edid>(BaseBlock());
    EdidCtaExtensionBlockFields cta;
    DisplayIdSectionFields section;
    for (int round = 0; round < 400; ++round) {
        cta = editor.EditCta(cta);
        section = editor.EditSection(section);
        const EdidCtaExtensionBlock ctaBlock(cta);
        EdidDisplayIdSectionExtensionBlockFields displayId;
        displayId.section = DisplayIdSection(section);
        const EdidDisplayIdSectionExtensionBlock displayIdBlock(displayId);
        ASSERT_TRUE(ctaBlock.IsValid());
        ASSERT_TRUE(displayIdBlock.IsValid());
        fields.extensionBlocks.Clear();
        ASSERT_TRUE(fields.extensionBlocks.Add(EdidExtensionBlock(ctaBlock.Clone())));
        ASSERT_TRUE(fields.extensionBlocks.Add(EdidExtensionBlock(displayIdBlock.Clone())));
        const Edid edid(fields);
        const Bytes bytes = edid.GetBytes();
        ASSERT_EQ(bytes.Size(), 384);
        const Edid again = ReadAs<Edid>(bytes);
        ASSERT_EQ(again, edid);
        ASSERT_EQ(again.GetBytes(), bytes);
    }
}

}  // namespace
}  // namespace VNT::Testing
