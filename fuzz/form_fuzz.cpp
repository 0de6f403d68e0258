// A form by itself, of whichever kind: whatever the input does to it, by keys, clicks and texts, nothing crashes, what
// is put back is as it was, a closed OK says why, and only OK changes the item.

#include <functional>
#include <vector>

#include "editor/all_forms.h"
#include "fuzz/fuzz.h"
#include "fuzz/input_dice.h"

namespace {

// Opens a form on a new item.
using Open = std::function<void()>;

std::vector<Open> GetForms() {
    std::vector<Open> forms;
    Forms::ForEachForm([&forms](const auto& sample) {
        forms.push_back([sample] {
            auto item = sample.item;
            const int result = sample.edit(nullptr, item, sample.bytes);
            Require(result == UI::IdOk || item == sample.item, "a form that was not confirmed leaves its item");
        });
    });
    return forms;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::vector<Open> forms = GetForms();
    InputDice dice(data, size);
    try {
        const int choice = dice.Roll(static_cast<int>(forms.size()));
        Testing::Monkey(dice, 0, {}).WorkOn(forms[static_cast<std::size_t>(choice)]);
    } catch (const std::exception& finding) {
        Require(false, finding.what());
    }
    return 0;
}
