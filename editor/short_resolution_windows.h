// The forms of the resolutions of two and three bytes.
#pragma once

#include "editor/item_window.h"
#include "model/timing/cvt_resolution.h"
#include "model/timing/standard_resolution.h"

// Width, height and aspect ratio: two of them are given, the third follows. What is typed stays.
template <class X>
class TShortResolutionWindow : public TItemWindow<X> {
public:
    using Fields = typename TItemWindow<X>::Fields;

protected:
    TShortResolutionWindow(UI::Window* parent, const std::wstring& className, const std::wstring& title)
        : TItemWindow<X>(parent, className, title) {
        using Present = decltype(Fields::fieldsPresent);
        const auto give = [this](auto present) {
            return [this, present] { this->fields.fieldsPresent = static_cast<Present>(present); };
        };
        auto group = this->Group(L"Resolution").Aligned();
        group.Row(L"Width:").Number(Field<&Fields::width>, L"00000", L"pixels").OnChange(give(WidthAndRatio));
        group.Row(L"Height:").Number(Field<&Fields::height>, L"00000", L"lines").OnChange(give(HeightAndRatio));
        // With a ratio that is chosen the height follows, unless it was the one that was typed.
        group.Row(L"Aspect ratio:").Combo(Field<&Fields::aspectRatio>, X::RatioTexts).OnChange([this, give] {
            if (this->fields.fieldsPresent != static_cast<Present>(HeightAndRatio)) give(WidthAndRatio)();
        });
    }

private:
    static constexpr int WidthAndRatio = 1;
    static constexpr int HeightAndRatio = 2;
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
