#include "editor/cta_video_windows.h"

#include <deque>

using namespace VNT;

namespace Forms {

namespace {

// Rows whose texts are made up when they are needed first.
class MadeRows {
public:
    MadeRows() = default;
    explicit MadeRows(const VideoFormatTable& formats) {
        for (int code = 0; code < static_cast<int>(formats.rows.size()); ++code) {
            const VideoFormat& row = formats.At(code);
            if (!row.present) continue;
            TextTable table;
            FillVideoFormatTexts(table, code, formats, {row.rates.begin(), row.rates.end()}, CtaVideoReference::Format);
            Add(code, Replace(CtaVideoReference::Format.format, table).ToUtf8());
        }
    }

    void Add(int value, std::string text) {
        texts.push_back(std::move(text));
        rows.push_back({value, texts.back().c_str()});
    }
    std::span<const ValueText<int>> Get() const { return rows; }

private:
    std::deque<std::string> texts;  // which stay where they are
    std::vector<ValueText<int>> rows;
};

const CtaVideoReferenceRange* FindRange(int kind) {
    for (const CtaVideoReferenceRange& range : CtaVideoReference::Ranges) {
        if (range.kind == kind) return &range;
    }
    return nullptr;
}

}  // namespace

std::span<const ValueText<int>> GetVideoFormatRows() {
    static const MadeRows rows(VideoFormatTable::CtaCodes);
    return rows.Get();
}

std::span<const ValueText<int>> GetHdmiFormatRows() {
    static const MadeRows rows(VideoFormatTable::HdmiCodes);
    return rows.Get();
}

std::span<const ValueText<int>> GetFormatIdRows() {
    static const MadeRows rows(VideoFormatTable::CtaFormatIds);
    return rows.Get();
}

std::span<const ValueText<int>> VideoReferenceChoice::GetRows() {
    static const MadeRows rows = [] {
        MadeRows made(VideoFormatTable::CtaCodes);
        for (const CtaVideoReferenceRange& range : CtaVideoReference::Ranges)
            made.Add(FirstKind + range.kind, range.name);
        made.Add(Other, "Other");
        return made;
    }();
    return rows.Get();
}

std::span<const ValueText<int>> VideoReferenceChoice::GetRateRows() {
    static const MadeRows rows = [] {
        MadeRows made;
        int number = 0;
        for (const int rate : CtaVideoReference::DescriptorRates) made.Add(++number, std::to_string(rate) + " Hz");
        return made;
    }();
    return rows.Get();
}

int VideoReferenceChoice::GetId() const {
    if (kind < FirstKind) return kind;
    const CtaVideoReferenceRange* range = FindRange(kind - FirstKind);
    if (range == nullptr || number == Undefined) return number;
    return number >= 1 && number <= range->count ? range->first + number - 1 : BadNumber;
}

void VideoReferenceChoice::Follow(int id) {
    if (GetId() == id) return;
    const CtaVideoReference reference(id);
    const CtaVideoReferenceKindEnum::Enum named = reference.GetKind();
    kind = named == CtaVideoReferenceKindEnum::Format ? id : FirstKind + named;
    const CtaVideoReferenceRange* range = reference.GetRange();
    number = range != nullptr ? id - range->first + 1 : id;
}

}  // namespace Forms

CtaVideoReferenceWindow::CtaVideoReferenceWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaVideoReferenceWindow", L"Video Reference") {
    choice.AddTo(Group(L"Resolution"), fields.Id, "Id");
}

void CtaVideoReferenceWindow::Update() {
    choice.Follow(fields.Id);
    TItemWindow::Update();
}

CtaVideoFormatResolutionWindow::CtaVideoFormatResolutionWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaVideoFormatResolutionWindow", L"Video Format Resolution") {
    using Flag = CtaVideoFormatResolutionFlagEnum;
    Group(L"Resolution").Row(L"Format:").ComboOther(Field<&Fields::rid>, Forms::GetFormatIdRows(), L"00");
    Group(L"Refresh rates").Checks(Field<&Fields::flags>, Flag::RateTexts);
    Group(L"Multiples of").Checks(Field<&Fields::flags>, Flag::BaseTexts);
    Group(L"Factors").Checks(Field<&Fields::flags>, Flag::FactorTexts);
}

CtaVideoFormatResolutionListDataBlockWindow::CtaVideoFormatResolutionListDataBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaVideoFormatResolutionListDataBlockWindow", L"Video Format Resolutions") {
    Group(L"Flags").Checks(Field<&Fields::Flags>, CtaVideoFormatResolutionListDataBlockFlagEnum::Texts);
    Group(L"").List(
        Field<&Fields::List>, VideoFormatResolutionCaptions, [this] { return item.GetListLimits(GetBytes()); },
        &Forms::EditItem<CtaVideoFormatResolutionWindow>);
}

CtaNativeVideoResolutionDataBlockWindow::CtaNativeVideoResolutionDataBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaNativeVideoResolutionDataBlockWindow", L"Native Video Resolution") {
    choice.AddTo(Group(L"Resolution"), fields.Reference.Id, "Reference");
    auto size = Group(L"Image size");
    size.Number(Field<&Fields::ImageWidth>, L"0000.0").Label(L"x");
    size.Number(Field<&Fields::ImageHeight>, L"0000.0", L"mm");
}

void CtaNativeVideoResolutionDataBlockWindow::Update() {
    choice.Follow(fields.Reference.Id);
    TItemWindow::Update();
}

CtaVideoCapabilityDataBlockWindow::CtaVideoCapabilityDataBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaVideoCapabilityDataBlockWindow", L"Video Capability") {
    using Overscan = CtaVideoCapabilityDataBlockOverscanEnum;
    Group(L"Video resolutions (CE)").Combo(Field<&Fields::CeOverscan>, Overscan::Texts);
    Group(L"PC resolutions (IT)").Combo(Field<&Fields::ItOverscan>, Overscan::Texts);
    Group(L"Preferred resolution (PT)")
        .Combo(Field<&Fields::PtOverscan>, CtaVideoCapabilityDataBlockPtOverscanEnum::Texts);
    Group(L"Quantization").Checks(Field<&Fields::RangeFlags>, CtaVideoCapabilityDataBlockRangeFlagEnum::Texts);
}
