// The facts that the program knows, as texts: one for each file of this folder. They are written down here once more so
// that a row of a table, a text or a caption can't change unseen.
#pragma once

#include <string>

namespace VNT::Testing {

struct FactFile {
    const char* name;
    std::string (*print)();
};

std::string PrintPresetTimings();
std::string PrintVideoFormats();
std::string PrintEstablishedResolutions();
std::string PrintCalculatedTimings();
std::string PrintVocabularies();
std::string PrintKinds();
std::string PrintChoosers();
std::string PrintForms();

inline constexpr FactFile FactFiles[] = {
    {"preset_timings.txt", &PrintPresetTimings},
    {"video_formats.txt", &PrintVideoFormats},
    {"established_resolutions.txt", &PrintEstablishedResolutions},
    {"calculated_timings.txt", &PrintCalculatedTimings},
    {"vocabularies.txt", &PrintVocabularies},
    {"kinds.txt", &PrintKinds},
    {"choosers.txt", &PrintChoosers},
    {"forms.txt", &PrintForms},
};

}  // namespace VNT::Testing
