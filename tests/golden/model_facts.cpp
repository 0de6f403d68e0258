#include "tests/golden/facts.h"

namespace VNT::Testing {

const Facts& GetFacts() {
    static const Facts facts{"tests/golden",
                             {{"code_page.txt", &PrintCodePage},
                              {"preset_timings.txt", &PrintPresetTimings},
                              {"video_formats.txt", &PrintVideoFormats},
                              {"established_resolutions.txt", &PrintEstablishedResolutions},
                              {"calculated_timings.txt", &PrintCalculatedTimings},
                              {"vocabularies.txt", &PrintVocabularies},
                              {"kinds.txt", &PrintKinds},
                              {"fields.txt", &PrintFields}}};
    return facts;
}

}  // namespace VNT::Testing
