// The EDIDs that tests run over: the project's own samples, and the corpus beside the project.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "model/core/bytes.h"
#include "samples/displays.h"

namespace VNT::Testing {

struct NamedEdid {
    std::string name;
    Bytes bytes;
};

inline std::vector<NamedEdid> Samples() {
    std::vector<NamedEdid> edids;
    for (const ::Samples::Display& display : ::Samples::MakeDisplays()) {
        edids.push_back({display.instanceId, Bytes(display.edid)});
        if (!display.edidOverride.empty())
            edids.push_back({display.instanceId + " override", Bytes(display.edidOverride)});
    }
    return edids;
}

// By name; empty where there is no corpus beside the project, whose folder is `source`.
inline std::vector<NamedEdid> Corpus(const std::string& source) {
    namespace fs = std::filesystem;
    const std::string folder = source + "/../shared/corpus";
    std::vector<NamedEdid> edids;
    if (!fs::is_directory(folder)) return edids;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file() || entry.path().extension() == ".md") continue;
        std::ifstream file(entry.path(), std::ios::binary);
        edids.push_back({fs::relative(entry.path(), folder).generic_string(),
                         Bytes(std::vector<std::uint8_t>(std::istreambuf_iterator<char>(file), {}))});
    }
    std::sort(edids.begin(), edids.end(), [](const NamedEdid& a, const NamedEdid& b) { return a.name < b.name; });
    return edids;
}

// What a test that is to hold for any EDID runs over, by name: the samples, and the corpus where there is one.
inline std::vector<std::string> EdidSets(const std::string& source) {
    std::vector<std::string> sets{"Samples"};
    if (!Corpus(source).empty()) sets.push_back("Corpus");
    return sets;
}
inline std::vector<NamedEdid> EdidsOf(const std::string& set, const std::string& source) {
    return set == "Corpus" ? Corpus(source) : Samples();
}

}  // namespace VNT::Testing
