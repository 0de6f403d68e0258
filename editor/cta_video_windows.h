// The forms of the CTA-861 data blocks about video formats, and of the items that they list.
#pragma once

#include "editor/item_window.h"
#include "model/cta/native_video_resolution.h"
#include "model/cta/video_capability.h"
#include "model/cta/video_format_list.h"
#include "model/cta/video_lists.h"
#include "model/edid/captions.h"

namespace Forms {

// The formats of a table, each with its code.
std::span<const VNT::ValueText<int>> GetVideoFormatRows();
std::span<const VNT::ValueText<int>> GetHdmiFormatRows();
std::span<const VNT::ValueText<int>> GetFormatIdRows();

// The row that chooses a video reference: what it stands for, and which of these.
class VideoReferenceChoice {
public:
    // `name` is that of the reference in the form's status.
    template <class Fields>
    void AddTo(TGroup<Fields> group, int& id, std::string_view name) {
        const auto store = [this, &id] { id = GetId(); };
        const auto isOne = [this](auto... kinds) { return [this, kinds...] { return ((kind == kinds) || ...); }; };
        group.Row(L"Format:").Combo(TBoundField<int>{kind, name}, GetRows()).OnChange([this, store] {
            number = kind == Other ? VNT::Undefined : 1;
            store();
        });
        group.LabelOf(TBoundField<int>{kind, name}, L"#").VisibleIf(isOne(DetailedTiming, Type7Timing));
        group.Number(TBoundField<int>{number, name}, L"000")
            .OnChange(store)
            .VisibleIf(isOne(DetailedTiming, Type7Timing, Other));
        group.LabelOf(TBoundField<int>{kind, name}, L"#1").VisibleIf(isOne(Type8Timing));
        group.Combo(TBoundField<int>{number, name}, GetRateRows()).OnChange(store).VisibleIf(isOne(FormatDescriptor));
    }
    // Takes the choice from a reference, unless it stands for it as it is.
    void Follow(int id);

private:
    // Numbers of rows behind the codes of formats.
    static constexpr int FirstKind = 256;
    enum : int {
        DetailedTiming = FirstKind + VNT::CtaVideoReferenceKindEnum::DetailedTiming,
        Type7Timing = FirstKind + VNT::CtaVideoReferenceKindEnum::Type7Timing,
        FormatDescriptor = FirstKind + VNT::CtaVideoReferenceKindEnum::FormatDescriptor,
        Type8Timing = FirstKind + VNT::CtaVideoReferenceKindEnum::Type8Timing,
        Other = FirstKind + VNT::CtaVideoReferenceKindEnum::Other,
    };

    static std::span<const VNT::ValueText<int>> GetRows();
    static std::span<const VNT::ValueText<int>> GetRateRows();
    int GetId() const;

    int kind = 1;
    int number = 1;  // of these, from 1; of the rates, too; of `Other` the reference itself
};

}  // namespace Forms

class CtaVideoReferenceWindow : public TItemWindow<VNT::CtaVideoReference> {
public:
    explicit CtaVideoReferenceWindow(UI::Window* parent);
    void Update() override;

private:
    Forms::VideoReferenceChoice choice;
};

// A video code, and whether it is a native one.
template <class X>
class TCtaVideoResolutionWindow : public TItemWindow<X> {
public:
    using Fields = typename TItemWindow<X>::Fields;

protected:
    TCtaVideoResolutionWindow(UI::Window* parent, const std::wstring& className, const std::wstring& title)
        : TItemWindow<X>(parent, className, title) {
        this->Group(L"Resolution")
            .Row(L"Format:")
            .ComboOther(Forms::TBoundField<int>{this->fields.code.Id, "code"}, Forms::GetVideoFormatRows(), L"000");
        this->Group(L"").Check(Field<&Fields::native>, L"Native");
    }
};

class CtaVideoResolutionWindow : public TCtaVideoResolutionWindow<VNT::CtaVideoResolution> {
public:
    explicit CtaVideoResolutionWindow(UI::Window* parent)
        : TCtaVideoResolutionWindow(parent, L"CtaVideoResolutionWindow", L"Video Resolution") {}
};

class CtaYcc420VideoResolutionWindow : public TCtaVideoResolutionWindow<VNT::CtaYcc420VideoResolution> {
public:
    explicit CtaYcc420VideoResolutionWindow(UI::Window* parent)
        : TCtaVideoResolutionWindow(parent, L"CtaYcc420VideoResolutionWindow", L"4:2:0 Video Resolution") {}
};

class CtaVideoFormatResolutionWindow : public TItemWindow<VNT::CtaVideoFormatResolution> {
public:
    explicit CtaVideoFormatResolutionWindow(UI::Window* parent);
};

// A data block that is one list. ItemWindow is the form of its items.
template <class X, class ItemWindow>
class TCtaVideoListDataBlockWindow : public TItemWindow<X> {
public:
    using Fields = typename TItemWindow<X>::Fields;

protected:
    TCtaVideoListDataBlockWindow(UI::Window* parent, const std::wstring& className, const std::wstring& title,
                                 const VNT::ListCaptions& captions)
        : TItemWindow<X>(parent, className, title) {
        this->Group(L"").List(
            Field<&Fields::List>, captions, [this] { return X::GetListLimits(this->GetBytes()); },
            &Forms::EditItem<ItemWindow>);
    }
};

class CtaVideoResolutionListDataBlockWindow
    : public TCtaVideoListDataBlockWindow<VNT::CtaVideoResolutionListDataBlock, CtaVideoResolutionWindow> {
public:
    explicit CtaVideoResolutionListDataBlockWindow(UI::Window* parent)
        : TCtaVideoListDataBlockWindow(parent, L"CtaVideoResolutionListDataBlockWindow", L"Video Resolutions",
                                       VNT::VideoResolutionCaptions) {}
};

class CtaYcc420VideoResolutionListDataBlockWindow
    : public TCtaVideoListDataBlockWindow<VNT::CtaYcc420VideoResolutionListDataBlock, CtaYcc420VideoResolutionWindow> {
public:
    explicit CtaYcc420VideoResolutionListDataBlockWindow(UI::Window* parent)
        : TCtaVideoListDataBlockWindow(parent, L"CtaYcc420VideoResolutionListDataBlockWindow",
                                       L"4:2:0 Video Resolutions", VNT::Ycc420VideoResolutionCaptions) {}
};

class CtaVideoFormatPreferenceDataBlockWindow
    : public TCtaVideoListDataBlockWindow<VNT::CtaVideoFormatPreferenceDataBlock, CtaVideoReferenceWindow> {
public:
    explicit CtaVideoFormatPreferenceDataBlockWindow(UI::Window* parent)
        : TCtaVideoListDataBlockWindow(parent, L"CtaVideoFormatPreferenceDataBlockWindow", L"Video Format Preference",
                                       VNT::VideoReferenceCaptions) {}
};

class CtaVideoFormatResolutionListDataBlockWindow : public TItemWindow<VNT::CtaVideoFormatResolutionListDataBlock> {
public:
    explicit CtaVideoFormatResolutionListDataBlockWindow(UI::Window* parent);
};

class CtaNativeVideoResolutionDataBlockWindow : public TItemWindow<VNT::CtaNativeVideoResolutionDataBlock> {
public:
    explicit CtaNativeVideoResolutionDataBlockWindow(UI::Window* parent);
    void Update() override;

private:
    Forms::VideoReferenceChoice choice;
};

class CtaVideoCapabilityDataBlockWindow : public TItemWindow<VNT::CtaVideoCapabilityDataBlock> {
public:
    explicit CtaVideoCapabilityDataBlockWindow(UI::Window* parent);
};
