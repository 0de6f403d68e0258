// The form behind every detailed resolution. Each input runs the calculator once and refreshes all boxes.
#pragma once

#include "editor/item_window.h"
#include "model/timing/displayid_detailed_resolution.h"
#include "model/timing/edid_detailed_resolution.h"

// Keeps the frame close when the scan changes: the vertical porches of 1080 lines go over into each other, others are
// halved or doubled. `fields.interlaced` says what the scan is now; the vertical blanking and total follow.
void ConvertInterlace(VNT::DetailedResolutionFields& fields);

template <class X>
class AnyDetailedResolutionWindow : public TItemWindow<X> {
public:
    using Fields = typename TItemWindow<X>::Fields;

protected:
    AnyDetailedResolutionWindow(UI::Window* parent, const std::wstring& className, const std::wstring& title);

    // A group of the "Other fields", which the form opens without.
    TGroup<Fields> OtherGroup(const std::wstring& caption) {
        auto group = this->Group(caption);
        group.VisibleIf([this] { return showsOther; });
        others = this->GetGroups().back().get();
        return group;
    }
    bool AllowsUnsound() const override { return true; }
    // The box of the bytes behind the timing stays open as long as there is room for any, or too many of them.
    Forms::FieldState GetFieldState(std::string_view field) const override {
        Forms::FieldState state = TItemWindow<X>::GetFieldState(field);
        if constexpr (requires { this->fields.extraBytes; }) {
            if (field == "extraBytes")
                state.IsAvailable = this->GetBytes() > X::MinSize || !this->fields.extraBytes.IsEmpty();
        }
        return state;
    }

private:
    void AddTop();
    void AddParameters();
    void AddFrequencies();
    // The focus of the button that opened them goes to the one that closes them again.
    void ShowOther(bool show);
    // What is wrong among the other fields is seen.
    void Update() override;
    bool IsOnClipboard() const { return VNT::DetailedResolutionClipboard().Equals(Resolution()); }
    const VNT::AnyResolution& Resolution() const { return this->item; }

    bool showsOther = false;
    const Forms::Group* others = nullptr;
    UI::Controls::Button* less = nullptr;
};

class EdidDetailedResolutionWindow : public AnyDetailedResolutionWindow<VNT::EdidDetailedResolution> {
public:
    explicit EdidDetailedResolutionWindow(UI::Window* parent);
};

class DisplayId1DetailedResolutionWindow : public AnyDetailedResolutionWindow<VNT::DisplayId1DetailedResolution> {
public:
    explicit DisplayId1DetailedResolutionWindow(UI::Window* parent);
};

class DisplayId2DetailedResolutionWindow : public AnyDetailedResolutionWindow<VNT::DisplayId2DetailedResolution> {
public:
    explicit DisplayId2DetailedResolutionWindow(UI::Window* parent);
};

class DisplayId2DetailedResolutionWindowR2 : public AnyDetailedResolutionWindow<VNT::DisplayId2DetailedResolutionR2> {
public:
    explicit DisplayId2DetailedResolutionWindowR2(UI::Window* parent);
};
