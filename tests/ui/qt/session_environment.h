// Qt's session around all tests of a program, without a screen unless one is asked for.
#pragma once

#include <QByteArray>
#include <gtest/gtest.h>
#include <memory>

#include "ui/session.h"

class SessionEnvironment : public testing::Environment {
public:
    void SetUp() override {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        session = std::make_unique<UI::Session>();
    }
    void TearDown() override { session.reset(); }

private:
    std::unique_ptr<UI::Session> session;
};
