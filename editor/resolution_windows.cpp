#include "editor/resolution_windows.h"

#include "model/timing/timing_math.h"

using namespace VNT;

namespace {

using Timing = DetailedResolutionTimingEnum;
using Parameter = DetailedResolutionParameterTypeEnum;
using Frequency = DetailedResolutionFrequencyTypeEnum;
using QftSource = DetailedResolutionQftSourceEnum;

constexpr ValueText<bool> Polarities[] = {{false, "  \u2013"}, {true, "  +"}};
constexpr const wchar_t* CountPattern = L"000000";
constexpr const wchar_t* RatePattern = L"000000.000";
constexpr const wchar_t* ActualRefreshRatePattern = L"00000000.000";
constexpr DecimalFormat RefreshRateFormat{3, 12, false};
constexpr DecimalFormat ScanRateFormat{3, 9, false};

struct Porches {
    int front, sync, back;
    bool operator==(const Porches&) const = default;
};

constexpr Porches Progressive1080{4, 5, 36};
constexpr Porches Interlaced1080{4, 10, 31};

// What is no count (empty, no number) stays what it is.
bool IsCount(int value) { return value >= -MaxTimingTotal && value <= MaxTimingTotal; }
int Halved(int value) { return IsCount(value) ? value / 2 : value; }
int Doubled(int value, int added) { return IsCount(value) ? value * 2 + added : value; }

// A text that is none is another form's: what it stood for is empty here.
template <class Fields>
Fields Readable(Fields fields) {
    for (int* count : {&fields.hactive, &fields.hfront, &fields.hsync, &fields.hback, &fields.hblank, &fields.htotal,
                       &fields.vactive, &fields.vfront, &fields.vsync, &fields.vback, &fields.vblank, &fields.vtotal}) {
        if (*count == Forms::BadNumber) *count = Undefined;
    }
    for (Decimal* rate : {&fields.vrate, &fields.hrate, &fields.pixelclock}) {
        if (*rate == Forms::BadDecimal) *rate = Decimal::Undefined();
    }
    return fields;
}

}  // namespace

void ConvertInterlace(DetailedResolutionFields& fields) {
    const Porches now{fields.vfront, fields.vsync, fields.vback};
    const bool is1080 = fields.vactive == 1080 && now == (fields.interlaced ? Progressive1080 : Interlaced1080);
    Porches next = fields.interlaced ? Porches{Doubled(now.front, 0), Doubled(now.sync, 0), Doubled(now.back, 1)}
                                     : Porches{Halved(now.front), Halved(now.sync), Halved(now.back)};
    if (is1080) next = fields.interlaced ? Interlaced1080 : Progressive1080;
    fields.vfront = next.front;
    fields.vsync = next.sync;
    fields.vback = next.back;
    fields.vblank = BlankFromBack(next.front, next.sync, next.back);
    fields.vtotal = TotalFromBlank(fields.vactive, fields.vblank);
}

template <class X>
AnyDetailedResolutionWindow<X>::AnyDetailedResolutionWindow(UI::Window* parent, const std::wstring& className,
                                                            const std::wstring& title)
    : TItemWindow<X>(parent, className, title) {
    AddTop();
    AddParameters();
    AddFrequencies();
}

template <class X>
void AnyDetailedResolutionWindow<X>::AddTop() {
    auto group = this->Group(L"");
    group.Row(L"Timing:").Combo(Field<&Fields::timing>, Timing::Texts);
    group.Button(L"Copy", [this] {
        DetailedResolutionClipboard().Assign(Resolution());
        this->Update();
    });
    group.EnabledIf([this] { return !IsOnClipboard(); });
    group.Button(L"Paste", [this] {
        X pasted = this->item;
        if (pasted.Paste(DetailedResolutionClipboard())) this->fields = Readable(pasted);
        this->Update();
    });
    group.EnabledIf([this] { return !DetailedResolutionClipboard().IsEmpty() && !IsOnClipboard(); });
    group.Button(L"\u25BC", [this] { ShowOther(true); }).VisibleIf([this] { return !showsOther; });
    less = &group.AddButton(L"\u25B2", [this] { ShowOther(false); });
    group.VisibleIf([this] { return showsOther; });
}

template <class X>
void AnyDetailedResolutionWindow<X>::ShowOther(bool show) {
    showsOther = show;
    this->Update();
    if (showsOther) less->SetFocus();
}

template <class X>
void AnyDetailedResolutionWindow<X>::Update() {
    TItemWindow<X>::Update();
    if (showsOther || !others || !AnyWindow::HasFault(*others)) return;
    showsOther = true;
    TItemWindow<X>::Update();
}

template <class X>
void AnyDetailedResolutionWindow<X>::AddParameters() {
    auto group = this->Group(L"Parameters").Aligned();
    group.Row(L" ").Heading(L"Horizontal").Heading(L"Vertical");
    const auto pair = [&group](auto horizontal, auto vertical, AnyWindow::Callback onChange = {}) {
        group.Number(horizontal, CountPattern, L"pixels").OnChange(onChange);
        group.Number(vertical, CountPattern, L"lines").OnChange(onChange);
    };
    // The count that is typed is the one that is kept.
    const auto keep = [this](Parameter::Enum type) { return [this, type] { this->fields.parameterType = type; }; };
    group.Row(L"Active:");
    pair(Field<&Fields::hactive>, Field<&Fields::vactive>);
    group.Row(L"Front porch:");
    pair(Field<&Fields::hfront>, Field<&Fields::vfront>);
    group.Row(L"Sync width:");
    pair(Field<&Fields::hsync>, Field<&Fields::vsync>);
    group.RadioRow(Field<&Fields::parameterType>, Parameter::BackPorch, L"Back porch:");
    pair(Field<&Fields::hback>, Field<&Fields::vback>, keep(Parameter::BackPorch));
    group.RadioRow(Field<&Fields::parameterType>, Parameter::Blanking, L"Blanking:");
    pair(Field<&Fields::hblank>, Field<&Fields::vblank>, keep(Parameter::Blanking));
    group.RadioRow(Field<&Fields::parameterType>, Parameter::Total, L"Total:");
    pair(Field<&Fields::htotal>, Field<&Fields::vtotal>, keep(Parameter::Total));
    group.Row(L"Sync polarity:").Combo(Field<&Fields::hpolarity>, Polarities).Span();
    group.Combo(Field<&Fields::vpolarity>, Polarities).Span();
}

template <class X>
void AnyDetailedResolutionWindow<X>::AddFrequencies() {
    auto group = this->Group(L"Frequency").Aligned();
    // The rate that is typed is the one that is kept; in the QFT calculator it may be the one that sets the speed.
    const auto keep = [this](Frequency::Enum type, QftSource::Enum source) {
        return [this, type, source] {
            if (this->fields.timing != Timing::Qft) {
                this->fields.frequencyType = type;
            } else if (source != QftSource::None) {
                this->fields.qftSource = source;
            }
        };
    };
    const DecimalFormat clockFormat{X::Format.pixelClockNumber.decimals, 9, false};
    group.RadioRow(Field<&Fields::frequencyType>, Frequency::RefreshRate, L"Refresh rate:");
    group.Number(Field<&Fields::vrate>, RatePattern, RefreshRateFormat, L"Hz")
        .OnChange(keep(Frequency::RefreshRate, QftSource::None));
    group.Actual(Field<&Fields::actualvrate>, ActualRefreshRatePattern, RefreshRateFormat, L"Hz");
    group.RadioRow(Field<&Fields::frequencyType>, Frequency::ScanRate, L"Scan rate:");
    group.Number(Field<&Fields::hrate>, RatePattern, ScanRateFormat, L"kHz")
        .OnChange(keep(Frequency::ScanRate, QftSource::ScanRate));
    group.Actual(Field<&Fields::actualhrate>, RatePattern, ScanRateFormat, L"kHz");
    group.RadioRow(Field<&Fields::frequencyType>, Frequency::PixelClock, L"Pixel clock:");
    group.Number(Field<&Fields::pixelclock>, RatePattern, clockFormat, L"MHz")
        .OnChange(keep(Frequency::PixelClock, QftSource::PixelClock));
    group.Actual(Field<&Fields::actualpixelclock>, RatePattern, clockFormat, L"MHz");
    group.Row(L" ").Check(Field<&Fields::interlaced>, L"Interlaced").OnChange([this] {
        ConvertInterlace(this->fields);
    });
}

EdidDetailedResolutionWindow::EdidDetailedResolutionWindow(UI::Window* parent)
    : AnyDetailedResolutionWindow(parent, L"EdidDetailedResolutionWindow", L"Detailed Resolution") {
    auto sync = Group(L"");
    // The QFT calculator makes digital separate sync of any.
    sync.Row(L"Sync type:").Combo(Field<&Fields::syncType>, EdidDetailedResolutionSyncTypeEnum::Texts);
    sync.EnabledIf([this] { return fields.timing != Timing::Qft; });
    sync.LabelOf(Field<&Fields::syncOn>, L"Sync on:");
    sync.Combo(Field<&Fields::syncOn>, EdidDetailedResolutionSyncOnEnum::Texts);
    sync.Check(Field<&Fields::serrations>, L"Serrations");
    auto other = OtherGroup(L"Other fields").Aligned();
    other.Row(L"Image size:").Number(Field<&Fields::imageWidth>, L"0000", L"mm");
    other.Number(Field<&Fields::imageHeight>, L"0000", L"mm");
    other.Row(L"Border:").Number(Field<&Fields::hborder>, L"0000", L"pixels");
    other.Number(Field<&Fields::vborder>, L"0000", L"lines");
    other.Row(L"3D support:").Combo(Field<&Fields::stereo>, EdidDetailedResolutionStereoEnum::Texts);
}

namespace {

template <class Fields>
void AddDisplayIdFields(TGroup<Fields> group) {
    group.Aligned();
    group.Row(L"Aspect ratio:").Combo(Field<&Fields::aspectRatio>, DisplayIdDetailedResolutionAspectRatioEnum::Texts);
    group.Row(L"3D support:").Combo(Field<&Fields::stereo>, DisplayIdDetailedResolutionStereoEnum::Texts);
    if constexpr (requires(Fields fields) { fields.extraBytes; }) {
        group.Row(L"Extra bytes:").HexBytes(Field<&Fields::extraBytes>, L"00 00 00 00 00 00 00");
    }
}

}  // namespace

DisplayId1DetailedResolutionWindow::DisplayId1DetailedResolutionWindow(UI::Window* parent)
    : AnyDetailedResolutionWindow(parent, L"DisplayId1DetailedResolutionWindow", L"Detailed Resolution") {
    Group(L"").Check(Field<&Fields::preferred>, L"Preferred");
    AddDisplayIdFields(OtherGroup(L"Other fields"));
}

DisplayId2DetailedResolutionWindow::DisplayId2DetailedResolutionWindow(UI::Window* parent)
    : AnyDetailedResolutionWindow(parent, L"DisplayId2DetailedResolutionWindow", L"Detailed Resolution") {
    Group(L"").Check(Field<&Fields::preferred>, L"Preferred");
    AddDisplayIdFields(OtherGroup(L"Other fields"));
}

DisplayId2DetailedResolutionWindowR2::DisplayId2DetailedResolutionWindowR2(UI::Window* parent)
    : AnyDetailedResolutionWindow(parent, L"DisplayId2DetailedResolutionWindowR2", L"Detailed Resolution r2") {
    Group(L"").Check(Field<&Fields::preferred>, L"4:2:0");
    AddDisplayIdFields(OtherGroup(L"Other fields"));
}
