// vantelle-start-bench START FOLDER: starts as the native program does on a folder of displays, ends when its window is
// painted, and prints the milliseconds since START (nanoseconds of the system's clock) and the memory that it takes.
#include <QEvent>
#include <QTimer>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

#include "editor/main_window.h"
#include "store/directory/directory_platform.h"
#include "store/entry.h"
#include "ui/qt/platform.h"
#include "ui/session.h"

namespace {

// From the kernel's account of this process, in KiB.
long ReadMemory(const char* file, const std::string& key) {
    std::ifstream in(file);
    for (std::string word; in >> word;) {
        long size = 0;
        if (word == key && in >> size) return size;
    }
    return 0;
}

// Hears of each paint of the window; what is painted last comes before the loop is idle.
class FirstPaint : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint && !isPainted) {
            isPainted = true;
            QTimer::singleShot(0, [] { UI::EndRun(UI::IdCancel); });
        }
        return false;
    }

private:
    bool isPainted = false;
};

}  // namespace

int main(int count, char** words) {
    if (count != 3) return 2;
    std::optional<UI::Session> session;
    FirstPaint paint;
    VNT::DirectoryPlatform platform(words[2]);
    const auto edit = [&paint](VNT::DisplayList& displays) {
        MainWindow window(displays);
        window.GetHandle()->Widget->installEventFilter(&paint);
        return window.Run();
    };
    const auto fail = [](const wchar_t* text) { std::wcerr << text << L"\n"; };
    const int result = VNT::RunEntry(platform, {[&session] {
                                                    session.emplace();
                                                    return 0;
                                                },
                                                edit, fail});
    const auto now =
        std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::system_clock::now().time_since_epoch())
            .count();
    std::cout << (now - std::atoll(words[1])) / 1000000 << " ms, " << ReadMemory("/proc/self/status", "VmRSS:") / 1024
              << " MiB resident, " << ReadMemory("/proc/self/smaps_rollup", "Private_Dirty:") / 1024
              << " MiB of it its own\n";
    return result;
}
