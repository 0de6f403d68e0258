// vantelle-tour: starts the Vantelle.exe beside it, goes through a few of its windows by keyboard, and leaves a picture
// of the screen at each in `screenshots` beside the folder of the programs.
#include <cstdio>
#include <exception>
#include <fstream>
#include <sstream>

#include "tests/editor_windows/running_editor.h"

namespace {

std::string Read(const std::filesystem::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
}

// Each window looks other than the last; what was painted comes to the screen a little later.
void Show(const Testing::RunningEditor& editor, HWND window, const wchar_t* name) {
    static std::string last;
    editor.AwaitPaint(window);
    std::string picture = last;
    editor.Await("a picture other than the last", [&] {
        picture = Read(Testing::RunningEditor::TakePicture(L"screenshots", name));
        return picture != last;
    });
    last = picture;
    std::printf("%ls\n", name);
}

void Tour() {
    constexpr int plainMonitor = 4;
    Testing::RunningEditor editor;
    HWND window = editor.AwaitWindow(L"MainWindow");
    HWND choice = editor.Find(window, L"ComboBox");
    editor.Select(choice, plainMonitor);
    Show(editor, window, L"1-main-window");

    editor.TabTo(editor.Find(window, L"Button", L"Edit...", choice));
    editor.Press(VK_SPACE);
    Show(editor, editor.AwaitWindow(L"EdidPropertiesWindow"), L"2-properties");
    editor.Press(VK_ESCAPE);
    editor.AwaitWindow(L"MainWindow");

    HWND list = editor.Find(window, L"ListBox");
    editor.Select(list, 0);
    editor.TabTo(editor.Find(window, L"Button", L"Edit...", list));
    editor.Press(VK_SPACE);
    Show(editor, editor.AwaitWindow(L"EdidDetailedResolutionWindow"), L"3-detailed-resolution");
    editor.Press(VK_ESCAPE);
    editor.AwaitWindow(L"MainWindow");
    editor.Press(VK_ESCAPE);  // nothing is saved
    editor.AwaitExit();
}

}  // namespace

int main() {
    try {
        Tour();
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "vantelle-tour: %s\n", failure.what());
        return 1;
    }
}
