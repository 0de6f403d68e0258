// The timing calculator over any fields, modes and kinds, and the readers over any bytes: nothing overflows, and every
// promise of a timing holds.

#include "fuzz/fuzz.h"
#include "tests/timing/promises.h"

namespace {

using namespace VNT;
using Testing::BrokenPromise;

// Mostly counts as timings have them, else any.
int CountFrom(ByteRange& input) {
    const std::uint32_t width = input.ReadLsb(2);
    if (width == 0) return static_cast<int>(input.ReadLsb(32));
    return static_cast<int>(input.ReadLsb(width == 1 ? 8 : width == 2 ? 12 : 17));
}

Decimal RateFrom(ByteRange& input) {
    const std::uint32_t width = input.ReadLsb(2);
    if (width == 0) {
        const auto high = static_cast<std::uint64_t>(input.ReadLsb(32));
        return Decimal::FromMillionths(static_cast<std::int64_t>(high * 4294967296u + input.ReadLsb(32)));
    }
    if (width == 1) return Decimal(input.ReadLsb(9));
    return Decimal(input.ReadLsb(24), width == 2 ? 3 : 6);
}

DetailedResolutionFields FieldsFrom(ByteRange& input) {
    DetailedResolutionFields f;
    f.timing = static_cast<DetailedResolutionTimingEnum::Enum>(input.ReadLsb(4));
    f.parameterType = static_cast<DetailedResolutionParameterTypeEnum::Enum>(input.ReadLsb(2));
    f.frequencyType = static_cast<DetailedResolutionFrequencyTypeEnum::Enum>(input.ReadLsb(2));
    f.qftSource = static_cast<DetailedResolutionQftSourceEnum::Enum>(input.ReadLsb(2));
    f.interlaced = input.ReadLsb(1) != 0;
    f.hpolarity = input.ReadLsb(1) != 0;
    f.vpolarity = input.ReadLsb(1) != 0;
    f.hactive = CountFrom(input);
    f.vactive = CountFrom(input);
    for (Decimal* rate : {&f.vrate, &f.hrate, &f.pixelclock}) *rate = RateFrom(input);
    for (int* count :
         {&f.hfront, &f.hsync, &f.hback, &f.hblank, &f.htotal, &f.vfront, &f.vsync, &f.vback, &f.vblank, &f.vtotal}) {
        *count = CountFrom(input);
    }
    return f;
}

void CheckText(const AnyResolution& item) {
    for (const char32_t* format : {U"{description}", U"{modeline}"}) {
        String text;
        item.GetText(text, format);
        Require(text.IsEmpty() == !item.IsValidAll(), "what can be written has a text");
        Require(!text.Contains(U"{") && !text.Contains(U"}"), "no placeholder stays in a text");
    }
}

template <class X>
void CheckKind(const DetailedResolutionFields& fields, int size, int extraBytes) {
    typename X::FieldsType entered;
    static_cast<DetailedResolutionFields&>(entered) = fields;
    if constexpr (requires { entered.extraBytes; }) entered.extraBytes = Bytes(extraBytes, 0x5A);
    const char* broken = BrokenPromise<X>(entered, size);
    Require(broken == nullptr, broken);
    CheckText(X(entered));
}

void CheckReaders(const Bytes& bytes) {
    Bytes written(AnyEdidDescriptor::FrameSize, 0);
    EdidDetailedResolution item;
    if (!item.Read(bytes)) return;
    Require(item.Write(written) && written == bytes.Slice(0, AnyEdidDescriptor::FrameSize), "bytes survive");
    CheckText(item);
    Bytes longer(DisplayId2DetailedResolution::MaxSize, 0);
    DisplayId2DetailedResolution second;
    if (!second.Read(bytes, longer.Size())) return;
    Require(!second.IsValidAll() || (second.Write(longer) && longer == bytes.Slice(0, longer.Size())), "bytes survive");
    CheckText(second);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Bytes bytes(std::vector<std::uint8_t>(data, data + size));
    ByteRange input = bytes;
    const DetailedResolutionFields fields = FieldsFrom(input);
    const auto extraBytes = static_cast<int>(input.ReadLsb(3));
    CheckKind<EdidDetailedResolution>(fields, AnyEdidDescriptor::FrameSize, 0);
    CheckKind<DisplayId1DetailedResolution>(fields, DisplayId1DetailedResolution::MaxSize, 0);
    CheckKind<DisplayId2DetailedResolution>(fields, DisplayId2DetailedResolution::MinSize + extraBytes, extraBytes);
    CheckKind<DisplayId2DetailedResolutionR2>(fields, DisplayId2DetailedResolutionR2::MaxSize, extraBytes);
    CheckReaders(bytes);
    return 0;
}
