#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

#include "tests/golden/facts.h"
#include "tests/support/difference.h"

namespace VNT::Testing {
namespace {

// The arrays of texts in the headers of the model, as "Structure::Array".
std::set<std::string> NamesOfVocabularies() {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(VANTELLE_SOURCE_DIR "/model")) {
        if (entry.path().extension() != ".h") continue;
        std::ifstream file(entry.path());
        std::string scope;
        for (std::string line; std::getline(file, line);) {
            for (const std::string opening : {"struct ", "class "}) {
                if (line.starts_with(opening))
                    scope = line.substr(opening.size(), line.find_first_of(" ;", opening.size()) - opening.size());
            }
            if (line.starts_with("}")) scope.clear();
            std::size_t at = line.find("constexpr ValueText<");
            if (at == std::string::npos) at = line.find("constexpr const char* ");
            const std::size_t end = line.find("[", at);
            if (at == std::string::npos || end == std::string::npos) continue;
            const std::size_t begin = line.find_last_of(" ", end) + 1;
            names.insert((scope.empty() ? "" : scope + "::") + line.substr(begin, end - begin));
        }
    }
    return names;
}

TEST(Vocabularies, LeaveNoArrayOfTextsOfTheModelOut) {
    std::set<std::string> printed;
    std::istringstream text(PrintVocabularies());
    for (std::string line; std::getline(text, line);) {
        if (!line.empty() && line[0] != ' ') printed.insert(line);
    }
    EXPECT_TRUE(HaveNoDifference(NamesOfVocabularies(), printed));
}

}  // namespace
}  // namespace VNT::Testing
