#include <array>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace VNT {
namespace {

// The first floating-point word or literal of a line of code, or nothing.
std::string_view FloatingPointIn(std::string_view line) {
    constexpr std::array<std::string_view, 5> words{"double", "float", "FromDouble", "ToDouble", "cmath"};
    const auto isWordPart = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; };
    const std::string_view code = line.substr(0, line.find("//"));
    for (std::size_t at = 0; at < code.size();) {
        std::size_t end = at;
        while (end < code.size() && isWordPart(code[end])) ++end;
        const std::string_view word = code.substr(at, end - at);
        const bool isNumber = !word.empty() && std::isdigit(static_cast<unsigned char>(word[0])) != 0;
        const bool hasPoint = end < code.size() && code[end] == '.';
        if (isNumber && hasPoint) return code.substr(at, end - at + 1);
        for (const std::string_view floating : words) {
            if (word == floating) return word;
        }
        at = end + 1;
    }
    return {};
}

TEST(TimingSources, TheLintFindsFloatingPoint) {
    EXPECT_EQ(FloatingPointIn("    double x = 1;"), "double");
    EXPECT_EQ(FloatingPointIn("auto x = value.ToDouble();"), "ToDouble");
    EXPECT_EQ(FloatingPointIn("auto x = y * 0.5;"), "0.");
    EXPECT_EQ(FloatingPointIn("int doubled = x2.front;  // a double, 0.5"), "");
}

// Timings are exact: what a monitor gets may not hang on a rounding of the machine's.
TEST(TimingSources, HoldNoFloatingPoint) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(VANTELLE_SOURCE_DIR "/model/timing")) {
        std::ifstream file(entry.path());
        std::string line;
        for (int number = 1; std::getline(file, line); ++number) {
            EXPECT_EQ(FloatingPointIn(line), "") << entry.path() << ":" << number << ": " << line;
        }
        ++files;
    }
    EXPECT_GT(files, 10);
}

}  // namespace
}  // namespace VNT
