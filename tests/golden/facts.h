// The facts that the program knows, as texts: one for each file of this folder, those of the forms in the one beneath
// it. They are written down here once more so that a row of a table, a text or a caption can't change unseen.
#pragma once

#include <string>
#include <vector>

namespace VNT::Testing {

struct FactFile {
    const char* name;
    std::string (*print)();
};

struct Facts {
    const char* folder;  // in the project
    std::vector<FactFile> files;
};

// Those of this program.
const Facts& GetFacts();

std::string PrintCodePage();
std::string PrintPresetTimings();
std::string PrintVideoFormats();
std::string PrintEstablishedResolutions();
std::string PrintCalculatedTimings();
std::string PrintVocabularies();
std::string PrintKinds();
std::string PrintFields();

}  // namespace VNT::Testing
