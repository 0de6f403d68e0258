// Each kind of each family as JSON and back, at every length it can have.
#include <random>

#include "json/item_json.h"
#include "model/core/field_teller.h"
#include "model/cta/audio_format.h"
#include "model/cta/data_block.h"
#include "model/displayid/data_block.h"
#include "model/edid/descriptor.h"
#include "model/edid/extension_block.h"
#include "tests/support/items.h"

namespace VNT::Testing {
namespace {

using Resize = std::function<void(Bytes& bytes, int size)>;  // makes an item of the bytes that says this length itself

template <class Holder>
void RoundTrip(const Bytes& bytes) {
    Holder item;
    if (!item.Read(bytes)) return;
    const ItemRef ref(&item, Detail::ItemTypeOf<Holder>);
    if (ref.GetBytes().IsEmpty()) return;  // one that can't be written is in no list
    const Json::Node node = Json::NodeOfItem(ref);
    std::string problem;
    const auto parsed = Json::Parse(Json::PrintShort(node), problem);
    ASSERT_TRUE(parsed) << problem;
    const ItemRef built = ref.MakeNew();
    Json::Building building;
    Json::BuildItem(*parsed, built, "", building);
    EXPECT_EQ(building.error, "") << Json::PrintShort(node);
    EXPECT_EQ(ToHex(built.GetBytes()), ToHex(ref.GetBytes())) << Json::PrintShort(node);
}

// The bytes of a new item of each kind, filled behind their head with zeros, ones and dice, cut and drawn out to each
// of the sizes.
template <class Holder>
int RoundTripKinds(const std::vector<int>& sizes, const Resize& resize) {
    std::mt19937 random(20260214);
    int count = 0;
    Holder holder;
    const ItemRef family(&holder, Detail::ItemTypeOf<Holder>);
    for (std::size_t kind = 0; kind < family.GetKinds().size(); ++kind) {
        const ItemRef item = family.MakeNew();
        item.MakeKind(static_cast<int>(kind));
        const Bytes made = item.GetBytes();
        for (const int size : sizes) {
            for (const int head : {1, 4}) {
                for (int fill = 0; fill < 3; ++fill) {
                    Bytes bytes = made.Slice(0, std::min(head, made.Size()));
                    while (bytes.Size() < size) {
                        const std::uint32_t byte = fill == 0 ? 0 : fill == 1 ? 255 : random() % 256;
                        bytes.Append(Bytes{static_cast<std::uint8_t>(byte)});
                    }
                    resize(bytes, size);
                    RoundTrip<Holder>(bytes);
                    ++count;
                }
            }
        }
    }
    return count;
}

std::vector<int> SizesUpTo(int least, int most, int step = 1) {
    std::vector<int> sizes;
    for (int size = least; size <= most; size += step) sizes.push_back(size);
    return sizes;
}

void Cut(Bytes& bytes, int size) { bytes.Resize(size); }

TEST(JsonOfEachKind, GivesBackItsBytes) {
    EXPECT_GT(RoundTripKinds<EdidDescriptor>({18}, Cut), 0);
    EXPECT_GT(RoundTripKinds<EdidExtensionBlock>({128}, Cut), 0);
    EXPECT_GT(RoundTripKinds<CtaAudioFormat>({3}, Cut), 0);
}

TEST(JsonOfEachCtaDataBlock, GivesBackItsBytesAtEachLength) {
    const auto resize = [](Bytes& bytes, int size) {
        bytes.Resize(size);
        bytes.At(0) = static_cast<std::uint8_t>(bytes.At(0) / 32 * 32 + size - 1);
    };
    EXPECT_GT(RoundTripKinds<CtaDataBlock>(SizesUpTo(1, 32), resize), 0);
}

TEST(JsonOfEachDisplayIdDataBlock, GivesBackItsBytesAtEachLength) {
    constexpr int frame = 3, most = 251;
    const auto resize = [](Bytes& bytes, int size) {
        bytes.Resize(size);
        bytes.At(2) = static_cast<std::uint8_t>(size - frame);
    };
    std::vector<int> sizes = SizesUpTo(frame, 24);
    for (const int size : SizesUpTo(25, most, 27)) sizes.push_back(size);
    sizes.push_back(most);
    EXPECT_GT(RoundTripKinds<DisplayIdDataBlock>(sizes, resize), 0);
}

}  // namespace
}  // namespace VNT::Testing
