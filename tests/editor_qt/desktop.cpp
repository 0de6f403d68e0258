#include "tests/editor_qt/desktop.h"

#include <QApplication>
#include <QPixmap>
#include <gtest/gtest.h>
#include <utility>

#include "ui/qt/platform.h"
#include "ui/session.h"

namespace Testing {

namespace {

class Desktop : public testing::Environment {
public:
    void SetUp() override {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        session = std::make_unique<UI::Session>();
    }
    void TearDown() override { session.reset(); }

private:
    std::unique_ptr<UI::Session> session;
};

const auto* const environment = testing::AddGlobalTestEnvironment(new Desktop);

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
