#include "tests/lint/rules.h"

#include <algorithm>
#include <iterator>
#include <regex>
#include <string_view>

namespace Lint {

namespace {

constexpr std::size_t MostLines = 800;

// A room and the rooms that it may include besides itself.
struct Room {
    std::string_view folder;
    std::vector<std::string_view> below;
};

// The most particular folder first. Tests, fuzzers and benchmarks may include anything.
const std::vector<Room>& Rooms() {
    static const std::vector<Room> rooms = {
        {"model/core/", {}},
        {"model/timing/", {"model/core/"}},
        {"model/cta/", {"model/core/", "model/timing/"}},
        {"model/displayid/", {"model/core/", "model/timing/", "model/cta/"}},
        {"model/", {"model/"}},
        {"json/", {"model/"}},
        {"picture/", {"model/", "json/"}},
        {"store/", {"model/"}},
        {"ui/", {}},
        {"editor/", {"model/", "store/", "ui/"}},
        {"cli/", {"model/", "json/", "picture/", "store/"}},
        {"app/", {"model/", "store/", "ui/", "editor/"}},
        {"samples/drivers/", {"store/"}},  // stand-ins speak what the store's doors to drivers speak
        {"samples/", {}},                  // bytes by hand, so that no fault of the model hides in them
    };
    return rooms;
}

// A room of one backend, and who may include it besides itself, tests and the files where programs start.
const std::vector<Room>& Backends() {
    static const std::vector<Room> backends = {
        {"ui/win32/", {}},
        {"ui/qt/", {"bench/native/"}},
        {"ui/headless/", {"fuzz/", "bench/"}},
        {"store/windows/", {}},
        {"store/memory/", {"fuzz/", "bench/"}},
        {"store/directory/", {"cli/", "bench/native/", "fuzz/"}},
        {"store/linux/", {"cli/linux_store.", "app/linux/"}},
    };
    return backends;
}

bool StartsWithAny(std::string_view path, const std::vector<std::string_view>& folders) {
    return std::any_of(folders.begin(), folders.end(), [path](std::string_view f) { return path.starts_with(f); });
}

void FindInCode(const SourceFile& file, const std::regex& pattern, std::string_view what, Findings& findings) {
    for (std::size_t i = 0; i < file.code.size(); ++i) {
        if (!std::regex_search(file.code[i], pattern)) continue;
        findings.push_back(file.path + ":" + std::to_string(i + 1) + ": " + std::string(what));
    }
}

struct Include {
    std::size_t line;
    bool isAngled;
    std::string path;
};

std::vector<Include> IncludesOf(const SourceFile& file) {
    static const std::regex pattern(R"(^\s*#\s*include\s*([<"])([^>"]*)[>"])");
    std::vector<Include> includes;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        std::smatch match;
        if (file.lines[i].find("include") == std::string::npos) continue;
        if (std::regex_search(file.lines[i], match, pattern)) includes.push_back({i + 1, match[1] == "<", match[2]});
    }
    return includes;
}

void ReportInclude(const SourceFile& file, const Include& include, std::string_view what, Findings& findings) {
    findings.push_back(file.path + ":" + std::to_string(include.line) + ": includes " + include.path + ", " +
                       std::string(what));
}

// The rooms whose numbers are Decimal, Flags or ByteRange, never bits.
bool KnowsNoBits(const SourceFile& file) {
    if (file.IsIn("model/core/")) return false;
    return StartsWithAny(file.path, {"model/", "store/", "ui/", "editor/", "cli/"});
}

}  // namespace

void FindShifts(const SourceFile& file, Findings& findings) {
    if (!KnowsNoBits(file)) return;
    static const std::regex anyShift(R"((^|\s)(<<|>>)=?(\s|$))");
    // Output to a stream is no shift: there only what can't be one counts.
    static const std::regex numberShift(R"((^|\s)(<<=|>>=?)(\s|$)|\b[0-9][0-9A-Fa-fxX]*[uUlL]* <<\s)");
    FindInCode(file, file.IsIn("cli/") ? numberShift : anyShift, "shifts bits", findings);
}

void FindMasks(const SourceFile& file, Findings& findings) {
    if (!KnowsNoBits(file)) return;
    static const std::regex mask(R"(\s[&|^]=? ~?[0-9]|\b[0-9][0-9A-Fa-fxX]*[uUlL]* [&|^]=?\s)");
    FindInCode(file, mask, "masks bits", findings);
}

void FindForeignHeaders(const SourceFile& file, Findings& findings) {
    const std::vector<std::string_view> platformRooms = {
        "ui/win32/",
        "ui/qt/",
        "store/posix/",
        "store/linux/",
        "store/windows/",
        "samples/",
        "bench/native/",
        "tests/shim/",
        "tests/ui/win32/",
        "tests/ui/qt/",
        "tests/store_windows/",
        "tests/store_linux/",
        "tests/editor_windows/",
        "tests/editor_qt/",
        "tests/monkey_qt/",
    };
    for (const Include& include : IncludesOf(file)) {
        // Qt's have no ending either, but a capital.
        const bool isStandard = include.path.find_first_of("./Q") == std::string::npos;
        if (!include.isAngled || isStandard || StartsWithAny(file.path, platformRooms)) continue;
        if (file.IsIn("tests/") && include.path.starts_with("gtest/")) continue;
        const bool isMeasured = include.path.starts_with("benchmark/") || include.path.starts_with("libdisplay-info/");
        if (file.IsIn("bench/") && isMeasured) continue;
        // The compiler's own, which it has on each platform where it looks at memory.
        const bool isOfMemory = file.path == "model/core/bytes.cpp" || file.IsIn("tests/");
        if (isOfMemory && include.path == "sanitizer/asan_interface.h") continue;
        // The one program without a window of its own: its streams carry bytes, which Windows must be told.
        if (file.path == "cli/main.cpp" && (include.path == "io.h" || include.path == "fcntl.h")) continue;
        // A library of headers that the platforms share; one file, for it takes long to compile.
        if (file.path == "cli/parser.cpp" && include.path.starts_with("CLI/")) continue;
        if (file.path == "json/parse.cpp" && include.path.starts_with("nlohmann/")) continue;
        if (file.path == "app/run_command.cpp") continue;  // starts a program that has the rights this one lacks
        ReportInclude(file, include, "a header of the platform", findings);
    }
}

void FindUpwardIncludes(const SourceFile& file, Findings& findings) {
    const auto room = std::find_if(Rooms().begin(), Rooms().end(), [&](const Room& r) { return file.IsIn(r.folder); });
    for (const Include& include : IncludesOf(file)) {
        if (include.isAngled) continue;
        if (include.path.find('/') == std::string::npos) {
            ReportInclude(file, include, "whose path doesn't start at the project's folder", findings);
        }
        if (room != Rooms().end() && !include.path.starts_with(room->folder) &&
            !StartsWithAny(include.path, room->below)) {
            ReportInclude(file, include, "which is not below it", findings);
        }
        for (const Room& backend : Backends()) {
            if (!include.path.starts_with(backend.folder) || file.IsIn(backend.folder)) continue;
            if (file.IsIn("tests/") || file.path.ends_with("/main.cpp")) continue;
            if (!StartsWithAny(file.path, backend.below)) ReportInclude(file, include, "a backend", findings);
        }
    }
}

void FindFloatingPoint(const SourceFile& file, Findings& findings) {
    static const std::regex type(R"(\b(double|float|FromDouble|ToDouble)\b|\b\d+\.\d)");
    if (file.IsIn("model/timing/")) FindInCode(file, type, "has a number in floating point", findings);
}

void FindFailuresInModel(const SourceFile& file, Findings& findings) {
    if (!file.IsIn("model/")) return;
    static const std::regex exception(R"(\b(throw|try|catch)\b)");
    FindInCode(file, exception, "deals in exceptions", findings);
    constexpr std::string_view forbidden[] = {"cstdio", "filesystem", "fstream", "iostream", "mutex", "thread"};
    for (const Include& include : IncludesOf(file)) {
        if (std::find(std::begin(forbidden), std::end(forbidden), include.path) == std::end(forbidden)) continue;
        ReportInclude(file, include, "which the model has no use for", findings);
    }
}

void FindLongFiles(const SourceFile& file, Findings& findings) {
    if (file.lines.size() <= MostLines || file.path.ends_with("_table.cpp")) return;
    findings.push_back(file.path + ": has " + std::to_string(file.lines.size()) + " lines");
}

void FindUnfinishedWork(const SourceFile& file, Findings& findings) {
    static const std::regex mark(
        "\\b(TO"
        "DO|FIX"
        "ME)\\b");
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        if (!std::regex_search(file.lines[i], mark)) continue;
        findings.push_back(file.path + ":" + std::to_string(i + 1) + ": leaves work to do");
    }
}

void FindUnguardedHeaders(const SourceFile& file, Findings& findings) {
    const bool isGuarded = std::find(file.lines.begin(), file.lines.end(), "#pragma once") != file.lines.end();
    if (file.IsHeader() && !isGuarded) findings.push_back(file.path + ": lacks #pragma once");
}

}  // namespace Lint
