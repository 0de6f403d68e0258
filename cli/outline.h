#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "model/core/any.h"
#include "model/core/text.h"
#include "model/edid/captions.h"

namespace VNT::Cli {

// The text as part of one line: control characters as \x0A.
std::string OneLine(const String& text);

// Lines indented by two blanks a level. A line is one line whatever text it holds: control characters print as \x0A,
// and an empty text as "?".
class Outline {
public:
    explicit Outline(std::ostream& out, int level = 0) : out_(out), level_(level) {}
    void Line(const String& text);
    Outline Deeper() const { return Outline(out_, level_ + 1); }

    // The list's caption, then its items, each with its parts, or its empty row.
    template <class Limits, class List>
    void ShowList(const Limits& limits, const List& list, const ListCaptions& captions) {
        ShowList(limits, list, captions, [](const auto& item, Outline outline) {
            if constexpr (requires { item.GetParts(); }) outline.ShowParts(item.GetParts());
        });
    }
    // The same, with `showBelow(item, outline)` for what stands below the line of an item.
    template <class Limits, class List, class Show>
    void ShowList(const Limits& limits, const List& list, const ListCaptions& captions, const Show& showBelow) {
        Line(CaptionOf(limits, list, captions));
        Outline deeper = Deeper();
        if (list.IsEmpty()) deeper.Line(captions.emptyRow);
        for (const auto& item : list) {
            String text;
            item.GetText(text);
            deeper.Line(text);
            showBelow(item, deeper.Deeper());
        }
    }
    void ShowParts(const std::vector<ItemPart>& parts);

private:
    template <class Limits, class List>
    static String CaptionOf(const Limits& limits, const List& list, const ListCaptions& captions) {
        const bool isFull = !limits.HasRoom(list) && !captions.noRoom.empty();
        return GetListText(limits, list, CountTextFormat(), isFull ? captions.noRoom : captions.withRoom);
    }

    std::ostream& out_;
    int level_;
};

}  // namespace VNT::Cli
