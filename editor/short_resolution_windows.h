// The forms of the resolutions of two and three bytes.
#pragma once

#include "editor/item_window.h"
#include "model/timing/cvt_resolution.h"
#include "model/timing/standard_resolution.h"

// Width, height and aspect ratio: any two of them give the third. What was given last stays.
template <class X>
class TShortResolutionWindow : public TItemWindow<X> {
public:
    using Fields = typename TItemWindow<X>::Fields;

protected:
    TShortResolutionWindow(UI::Window* parent, const std::wstring& className, const std::wstring& title)
        : TItemWindow<X>(parent, className, title) {
        auto group = this->Group(L"Resolution").Aligned();
        group.Row(L"Width:").Number(Field<&Fields::width>, L"00000", L"pixels").OnChange([this] { Give(Width); });
        group.Row(L"Height:").Number(Field<&Fields::height>, L"00000", L"lines").OnChange([this] { Give(Height); });
        group.Row(L"Aspect ratio:").Combo(Field<&Fields::aspectRatio>, X::RatioTexts).OnChange([this] { Give(Ratio); });
    }
    bool CanConfirm() const override { return !this->item.IsNoResolution(); }
    // What has the bytes of an unused slot is none of its fields' fault, but that of all together.
    Forms::FieldState GetFieldState(std::string_view field) const override {
        Forms::FieldState state = TItemWindow<X>::GetFieldState(field);
        if (field == "aspectRatio" && this->item.IsNoResolution() && !this->item.IsEmpty()) state.IsValid = false;
        return state;
    }

private:
    enum Side { Width, Height, Ratio };

    // A ratio that was chosen stays with the side that was typed last, else both sides stay once they were typed.
    void Give(Side side) {
        using Present = VNT::EdidShortResolutionFieldsPresentEnum;
        isGiven[side] = true;
        if (side != Ratio) lastSide = side;
        this->fields.fieldsPresent = static_cast<decltype(this->fields.fieldsPresent)>(
            isGiven[Width] && isGiven[Height] && !isGiven[Ratio] ? Present::WidthAndHeight
            : lastSide == Height                                 ? Present::HeightAndAspectRatio
                                                                 : Present::WidthAndAspectRatio);
    }

    bool isGiven[3]{};
    Side lastSide = X::FieldsInBytes == VNT::EdidShortResolutionFieldsPresentEnum::WidthAndAspectRatio ? Width : Height;
};

class EdidStandardResolutionWindow : public TShortResolutionWindow<VNT::EdidStandardResolution> {
public:
    explicit EdidStandardResolutionWindow(UI::Window* parent);
};

class EdidCvtResolutionWindow : public TShortResolutionWindow<VNT::EdidCvtResolution> {
public:
    explicit EdidCvtResolutionWindow(UI::Window* parent);
};

int EditEdidStandardResolution(UI::Window* parent, VNT::EdidStandardResolution& resolution, int bytes);
int EditEdidCvtResolution(UI::Window* parent, VNT::EdidCvtResolution& resolution, int bytes);
