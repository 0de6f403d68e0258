// A form with an item to try it on, whatever the item's class is.
#pragma once

#include <cctype>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "ui/window.h"

namespace VNT::Testing {

class FormCase {
public:
    virtual ~FormCase() = default;

    // Opens the form on the item; its modal result.
    virtual int Edit() = 0;
    // The item is a new one again; whether it is equal to a new one.
    virtual void Renew() = 0;
    virtual bool IsNew() const = 0;
    virtual bool IsSound() const = 0;
    // For an empty holder, which a chooser fills.
    virtual bool IsEmpty() const = 0;
    // The item's bytes are read as an item that has the same bytes and says the same of itself.
    virtual void ExpectToComeBack() const = 0;

    std::string name;
};

using FormCases = std::vector<std::shared_ptr<FormCase>>;

// What a test of a case is called.
struct NameOfCase {
    template <class Info>
    std::string operator()(const Info& info) const {
        std::string name;
        for (const char c : info.param->name) {
            if (std::isalnum(static_cast<unsigned char>(c)) != 0) name += c;
        }
        return name + std::to_string(info.index);
    }
};

// All forms, and all choosers.
FormCases AllForms();
FormCases AllChoosers();
// The kinds that their family's table of forms says nothing of, by family and title.
std::set<std::string> KindsWithoutForm();

}  // namespace VNT::Testing
