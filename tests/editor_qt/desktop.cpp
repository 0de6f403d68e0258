#include "tests/editor_qt/desktop.h"

#include <QPixmap>
#include <utility>

#include "tests/ui/qt/session_environment.h"
#include "ui/qt/platform.h"

namespace Testing {

namespace {

const auto* const environment = testing::AddGlobalTestEnvironment(new SessionEnvironment);

}  // namespace

NextStep::NextStep() {
    timer.setSingleShot(true);
    timer.callOnTimeout([this] { std::exchange(step, nullptr)(); });
}

void NextStep::Set(std::function<void()> newStep) {
    step = std::move(newStep);
    timer.start(0);
}

bool SavePicture(const UI::Window& window, const std::filesystem::path& file) {
    return window.GetHandle()->Widget->grab().save(QString::fromStdString(file.string()));
}

}  // namespace Testing
