// The rules themselves, each on a line that breaks it and on lines that only look like it.

#include "tests/lint/rules.h"

#include <gtest/gtest.h>

namespace Lint {

namespace {

using Rule = void (*)(const SourceFile&, Findings&);

bool Breaks(Rule rule, const std::string& path, std::string_view text) {
    Findings findings;
    rule(SourceFile(path, text), findings);
    return !findings.empty();
}

}  // namespace

TEST(OnlyCode, BlanksCommentsAndTheInsidesOfLiterals) {
    EXPECT_EQ(OnlyCode("a // b\nc"), "a     \nc");
    EXPECT_EQ(OnlyCode("a /* b\nc */ d"), "a     \n     d");
    EXPECT_EQ(OnlyCode(R"(f("a\"b", 'c'))"), "f(      ,    )");
    EXPECT_EQ(OnlyCode("1'000 'x'"), "1'000    ");
    EXPECT_EQ(OnlyCode("R\"x(a\"b)x\" c"), "           c");
    EXPECT_EQ(OnlyCode("\"open\nnext"), "     \nnext");
}

TEST(LintRules, ShiftsAreFoundOutsideTheCore) {
    EXPECT_TRUE(Breaks(FindShifts, "model/edid/a.cpp", "x = y << 3;"));
    EXPECT_TRUE(Breaks(FindShifts, "model/edid/a.cpp", "x = y\n    >> 3;"));
    EXPECT_TRUE(Breaks(FindShifts, "store/a.cpp", "x <<= 1;"));
    EXPECT_TRUE(Breaks(FindShifts, "editor/a.cpp", "x >>= 1;"));
    EXPECT_TRUE(Breaks(FindShifts, "cli/a.cpp", "out << (1 << 3);"));
    EXPECT_TRUE(Breaks(FindShifts, "cli/a.cpp", "x = y >> 3;"));
    EXPECT_FALSE(Breaks(FindShifts, "model/core/a.cpp", "x = y << 3;"));
    EXPECT_FALSE(Breaks(FindShifts, "model/edid/a.cpp", "std::vector<std::vector<int>> x;"));
    EXPECT_FALSE(Breaks(FindShifts, "model/edid/a.cpp", "// y << 3"));
    EXPECT_FALSE(Breaks(FindShifts, "cli/a.cpp", "out << \"1 << 3\" << x;"));
    EXPECT_FALSE(Breaks(FindShifts, "tests/a.cpp", "x = y << 3;"));
}

TEST(LintRules, MasksAreFoundOutsideTheCore) {
    EXPECT_TRUE(Breaks(FindMasks, "model/edid/a.cpp", "x = y & 0x7F;"));
    EXPECT_TRUE(Breaks(FindMasks, "model/edid/a.cpp", "x = 0x80u | y;"));
    EXPECT_TRUE(Breaks(FindMasks, "store/a.cpp", "x &= ~1;"));
    EXPECT_TRUE(Breaks(FindMasks, "ui/a.cpp", "x ^= 3;"));
    EXPECT_FALSE(Breaks(FindMasks, "model/core/a.cpp", "x = y & 0x7F;"));
    EXPECT_FALSE(Breaks(FindMasks, "model/edid/a.cpp", "if (x && 1 < y) f(&x, int& z);"));
    EXPECT_FALSE(Breaks(FindMasks, "ui/win32/a.cpp", "style = Child | Visible;"));
    EXPECT_FALSE(Breaks(FindMasks, "model/edid/a.cpp", "x = y || 0 == z;"));
}

TEST(LintRules, PlatformHeadersStayInTheirRooms) {
    EXPECT_TRUE(Breaks(FindForeignHeaders, "editor/a.cpp", "#include <windows.h>"));
    EXPECT_TRUE(Breaks(FindForeignHeaders, "ui/control.h", "#  include <commctrl.h>"));
    EXPECT_TRUE(Breaks(FindForeignHeaders, "model/edid/a.cpp", "#include <sys/stat.h>"));
    EXPECT_TRUE(Breaks(FindForeignHeaders, "model/edid/a.cpp", "#include <gtest/gtest.h>"));
    EXPECT_FALSE(Breaks(FindForeignHeaders, "ui/win32/a.cpp", "#include <windows.h>"));
    EXPECT_TRUE(Breaks(FindForeignHeaders, "ui/control.h", "#include <QWidget>"));
    EXPECT_TRUE(Breaks(FindForeignHeaders, "app/main.cpp", "#include <QApplication>"));
    EXPECT_FALSE(Breaks(FindForeignHeaders, "ui/qt/a.cpp", "#include <QWidget>"));
    EXPECT_FALSE(Breaks(FindForeignHeaders, "tests/core/a.cpp", "#include <gtest/gtest.h>"));
    EXPECT_FALSE(Breaks(FindForeignHeaders, "model/edid/a.cpp", "#include <vector>"));
    EXPECT_FALSE(Breaks(FindForeignHeaders, "model/core/bytes.cpp", "#include <sanitizer/asan_interface.h>"));
    EXPECT_TRUE(Breaks(FindForeignHeaders, "model/edid/a.cpp", "#include <sanitizer/asan_interface.h>"));
    EXPECT_FALSE(Breaks(FindForeignHeaders, "cli/parser.cpp", "#include <CLI/App.hpp>"));
    EXPECT_TRUE(Breaks(FindForeignHeaders, "cli/command.cpp", "#include <CLI/App.hpp>"));
}

TEST(LintRules, ArrowsPointDown) {
    EXPECT_TRUE(Breaks(FindUpwardIncludes, "model/core/a.h", "#include \"model/edid/edid.h\""));
    EXPECT_TRUE(Breaks(FindUpwardIncludes, "model/cta/a.h", "#include \"model/displayid/section.h\""));
    EXPECT_TRUE(Breaks(FindUpwardIncludes, "model/edid/a.h", "#include \"store/display.h\""));
    EXPECT_TRUE(Breaks(FindUpwardIncludes, "store/a.h", "#include \"ui/window.h\""));
    EXPECT_TRUE(Breaks(FindUpwardIncludes, "ui/a.h", "#include \"model/core/bytes.h\""));
    EXPECT_TRUE(Breaks(FindUpwardIncludes, "cli/a.h", "#include \"editor/any_window.h\""));
    EXPECT_TRUE(Breaks(FindUpwardIncludes, "samples/displays.cpp", "#include \"model/core/bytes.h\""));
    EXPECT_TRUE(Breaks(FindUpwardIncludes, "model/edid/a.h", "#include \"edid.h\""));
    EXPECT_FALSE(Breaks(FindUpwardIncludes, "samples/drivers/a.cpp", "#include \"store/amd_api.h\""));
    EXPECT_FALSE(Breaks(FindUpwardIncludes, "model/edid/a.h", "#include \"model/displayid/section.h\""));
    EXPECT_FALSE(Breaks(FindUpwardIncludes, "model/timing/a.h", "#include \"model/core/bytes.h\""));
    EXPECT_FALSE(Breaks(FindUpwardIncludes, "editor/a.h", "#include \"ui/window.h\""));
    EXPECT_FALSE(Breaks(FindUpwardIncludes, "tests/editor/a.cpp", "#include \"editor/any_window.h\""));
}

TEST(LintRules, BackendsAreIncludedByThemselvesByTestsAndWhereProgramsStart) {
    EXPECT_TRUE(Breaks(FindUpwardIncludes, "editor/form.cpp", "#include \"ui/win32/window.h\""));
    EXPECT_TRUE(Breaks(FindUpwardIncludes, "ui/control.cpp", "#include \"ui/win32/window.h\""));
    EXPECT_TRUE(Breaks(FindUpwardIncludes, "editor/form.cpp", "#include \"ui/qt/platform.h\""));
    EXPECT_TRUE(Breaks(FindUpwardIncludes, "app/saving.cpp", "#include \"ui/qt/platform.h\""));
    EXPECT_TRUE(Breaks(FindUpwardIncludes, "cli/list.cpp", "#include \"app/arguments.h\""));
    EXPECT_TRUE(Breaks(FindUpwardIncludes, "store/save.cpp", "#include \"store/windows/registry_key.h\""));
    EXPECT_TRUE(Breaks(FindUpwardIncludes, "cli/list.cpp", "#include \"store/windows/registry_key.h\""));
    EXPECT_FALSE(Breaks(FindUpwardIncludes, "cli/main.cpp", "#include \"store/windows/windows_platform.h\""));
    EXPECT_FALSE(Breaks(FindUpwardIncludes, "ui/win32/a.cpp", "#include \"ui/win32/window.h\""));
    EXPECT_FALSE(Breaks(FindUpwardIncludes, "tests/store/a.cpp", "#include \"store/memory/memory_platform.h\""));
}

TEST(LintRules, TimingHasNoFloatingPoint) {
    EXPECT_TRUE(Breaks(FindFloatingPoint, "model/timing/a.cpp", "const double x = 1;"));
    EXPECT_TRUE(Breaks(FindFloatingPoint, "model/timing/a.cpp", "f(static_cast<float>(x));"));
    EXPECT_TRUE(Breaks(FindFloatingPoint, "model/timing/a.cpp", "f(rate.ToDouble());"));
    EXPECT_TRUE(Breaks(FindFloatingPoint, "model/timing/a.cpp", "const auto x = 2 * 0.5;"));
    EXPECT_FALSE(Breaks(FindFloatingPoint, "model/timing/a.cpp", "int doubled = 1;  // double, 0.5"));
    EXPECT_FALSE(Breaks(FindFloatingPoint, "model/timing/a.cpp", "f(\"0.5\", Decimal(5, 1), x2.front);"));
    EXPECT_FALSE(Breaks(FindFloatingPoint, "model/cta/a.cpp", "const double x = 1;"));
}

TEST(LintRules, TheModelHasNeitherExceptionsNorStreams) {
    EXPECT_TRUE(Breaks(FindFailuresInModel, "model/edid/a.cpp", "throw L\"x\";"));
    EXPECT_TRUE(Breaks(FindFailuresInModel, "model/edid/a.cpp", "#include <fstream>"));
    EXPECT_FALSE(Breaks(FindFailuresInModel, "model/edid/a.cpp", "bool retry = entry;"));
    EXPECT_FALSE(Breaks(FindFailuresInModel, "store/a.cpp", "throw L\"x\";"));
}

TEST(LintRules, FilesEndBeforeEightHundredLinesTablesAside) {
    std::string lines;
    for (int i = 0; i < 800; ++i) lines += "x\n";
    EXPECT_FALSE(Breaks(FindLongFiles, "model/edid/a.cpp", lines));
    EXPECT_TRUE(Breaks(FindLongFiles, "model/edid/a.cpp", lines + "x\n"));
    EXPECT_FALSE(Breaks(FindLongFiles, "model/timing/preset_timings_table.cpp", lines + "x\n"));
}

TEST(LintRules, NothingIsLeftToDo) {
    EXPECT_TRUE(Breaks(FindUnfinishedWork, "ui/a.cpp",
                       "// TO"
                       "DO: more"));
    EXPECT_TRUE(Breaks(FindUnfinishedWork, "ui/a.cpp",
                       "/* FIX"
                       "ME */"));
    EXPECT_FALSE(Breaks(FindUnfinishedWork, "ui/a.cpp", "// what to do"));
}

TEST(LintRules, HeadersAreGuarded) {
    EXPECT_TRUE(Breaks(FindUnguardedHeaders, "ui/a.h", "int x;\n"));
    EXPECT_FALSE(Breaks(FindUnguardedHeaders, "ui/a.h", "#pragma once\nint x;\n"));
    EXPECT_FALSE(Breaks(FindUnguardedHeaders, "ui/a.cpp", "int x;\n"));
}

}  // namespace Lint
