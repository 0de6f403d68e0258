#pragma once

#include <functional>
#include <string>
#include <vector>

#include "store/windows/windows_platform.h"
#include "tests/store_windows/prefix.h"

namespace VNT {

// Puts stand-ins of the drivers into the prefix that the test runs in, and takes them out again at its end.
class StandInTest : public PrefixTest {
protected:
    void SetUp() override;
    void TearDown() override;

    // Puts the stand-in that stands beside the test program into the system folder, as `name`, driven by `text`.
    void Install(const std::wstring& standIn, const std::wstring& name, const std::string& text);
    // The provider takes the place of the system's own.
    void InstallWmi(const std::string& text);
    void UnregisterWmi();

    // What the stand-in of that name reported when it was unloaded: empty if it was never loaded, or still is.
    static std::string Report(const std::wstring& name);

    std::vector<std::wstring> errors_;
    WindowsPlatform platform_{[this](const wchar_t* text) { errors_.emplace_back(text); }};

private:
    void SetLocator(const std::wstring& path);

    std::vector<std::wstring> files_;
    std::wstring locator_;  // the library of the system's own
};

}  // namespace VNT
