// Handlers: the order they run in, their replacement, and what the window hands on to its controls.
#include <gtest/gtest.h>
#include <string>

#include "tests/ui/conformance/adapter.h"
#include "ui/native.h"

namespace Conformance {

using namespace UI;
using namespace UI::Controls;

TEST(Dispatch, RunsTheMessageHandlerBeforeTheResultHandler) {
    TestWindow window;
    Label label(window, L"Label");
    std::string order;
    label.AddResultHandler(Message::User, [&](WParam w, LParam l) -> MessageResult {
        order += "result ";
        return static_cast<MessageResult>(w) + l;
    });
    label.AddMessageHandler(Message::User, [&](WParam, LParam) { order += "message "; });
    EXPECT_EQ(Native::Send(label.GetHandle(), Message::User, 3, 4), 7);
    EXPECT_EQ(order, "message result ");
}

TEST(Dispatch, RunsTheWindowsHandlersInTheSameOrder) {
    TestWindow window;
    std::string order;
    window.AddResultHandler(Message::User, [&](WParam, LParam) -> MessageResult {
        order += "result ";
        return 9;
    });
    window.AddMessageHandler(Message::User, [&](WParam, LParam) { order += "message "; });
    EXPECT_EQ(Native::Send(window.GetHandle(), Message::User, 0, 0), 9);
    EXPECT_EQ(order, "message result ");
}

TEST(Dispatch, IsTrueOnlyWhenAResultHandlerEndsTheMessage) {
    TestWindow window;
    Label label(window, L"Label");
    MessageResult result = 5;
    EXPECT_FALSE(label.Dispatch(Message::User, 0, 0, result));
    label.AddMessageHandler(Message::User, [](WParam, LParam) {});
    EXPECT_FALSE(label.Dispatch(Message::User, 0, 0, result));
    EXPECT_EQ(result, 5);
    label.AddResultHandler(Message::User, [](WParam, LParam) { return MessageResult{8}; });
    EXPECT_TRUE(label.Dispatch(Message::User, 0, 0, result));
    EXPECT_EQ(result, 8);
}

TEST(Dispatch, LeavesToTheStandardClassWhatNoResultHandlerEnds) {
    TestWindow window;
    TextBox box(window);
    int heard = 0;
    box.AddMessageHandler(Message::SetText, [&](WParam, LParam) { ++heard; });
    EXPECT_TRUE(box.SetText(L"taken"));
    EXPECT_EQ(heard, 1);
    EXPECT_EQ(Native::GetText(box.GetHandle()), L"taken");
}

TEST(Dispatch, EndsAMessageBeforeTheStandardClass) {
    TestWindow window;
    TextBox box(window);
    box.SetText(L"before");
    box.AddResultHandler(Message::SetText, [](WParam, LParam) { return MessageResult{1}; });
    EXPECT_TRUE(box.SetText(L"after"));
    EXPECT_EQ(Native::GetText(box.GetHandle()), L"before");
}

TEST(Dispatch, ReplacesTheHandlerOfAKey) {
    TestWindow window;
    Button button(window, L"Button");
    std::string heard;
    for (const char* name : {"old ", "new "}) {
        button.AddMessageHandler(Message::User, [&heard, name](WParam, LParam) { heard += name; });
        button.AddResultHandler(Message::User, [&heard, name](WParam, LParam) {
            heard += name;
            return MessageResult{0};
        });
        button.AddNotificationHandler(7, [&heard, name] { heard += name; });
        window.AddCommandHandler(7, [&heard, name] { heard += name; });
    }
    Native::Send(button.GetHandle(), Message::User, 0, 0);
    button.DispatchNotification(7);
    Native::Send(window.GetHandle(), Message::Command, 7, 0);
    EXPECT_EQ(heard, "new new new new ");
}

TEST(Dispatch, LetsAHandlerReplaceItselfWhileItRuns) {
    TestWindow window;
    Button button(window, L"Button");
    std::string heard;
    const std::string name = "a name too long to be kept inside the string object itself ";
    button.AddNotificationHandler(7, [&button, &heard, name] {
        button.AddNotificationHandler(7, [&heard] { heard += "second "; });
        heard += name;
    });
    button.DispatchNotification(7);
    button.DispatchNotification(7);
    EXPECT_EQ(heard, name + "second ");
}

TEST(Dispatch, TellsWhetherANotificationHadAHandler) {
    TestWindow window;
    Button button(window, L"Button");
    EXPECT_FALSE(button.DispatchNotification(Button::Clicked));
    button.AddNotificationHandler(Button::Clicked, [] {});
    EXPECT_TRUE(button.DispatchNotification(Button::Clicked));
    EXPECT_FALSE(button.DispatchNotification(Button::Clicked + 1));
}

TEST(Dispatch, SendsNothingToAControlThatIsGone) {
    TestWindow window;
    int heard = 0;
    {
        Button button(window, L"Button");
        button.AddMessageHandler(Message::Destroy, [&](WParam, LParam) { ++heard; });
        button.AddMessageHandler(Message::User, [&](WParam, LParam) { ++heard; });
        Native::SetObject(button.GetHandle(), static_cast<Control*>(nullptr));
        EXPECT_EQ(Native::Send(button.GetHandle(), Message::User, 0, 0), 0);
    }
    EXPECT_EQ(heard, 0);
}

TEST(Dispatch, SendsNothingToAWindowThatIsGone) {
    int heard = 0;
    {
        TestWindow window;
        window.AddMessageHandler(Message::Destroy, [&](WParam, LParam) { ++heard; });
    }
    EXPECT_EQ(heard, 0);
}

TEST(Reflection, HandsColorMessagesToTheControlTheyName) {
    for (int message : {Message::ColorEdit, Message::ColorListBox, Message::ColorButton, Message::ColorStatic}) {
        TestWindow window;
        Label named(window, L"named");
        Label other(window, L"other");
        other.AddResultHandler(message, [](WParam, LParam) { return MessageResult{1}; });
        named.AddResultHandler(message, [&](WParam w, LParam l) {
            EXPECT_EQ(w, 77u);
            EXPECT_EQ(l, reinterpret_cast<LParam>(named.GetHandle()));
            return MessageResult{1000 + message};
        });
        const auto lParam = reinterpret_cast<LParam>(named.GetHandle());
        EXPECT_EQ(Native::Send(window.GetHandle(), message, 77, lParam), 1000 + message);
    }
}

TEST(Reflection, HandsTheDrawingOfAnItemToItsControl) {
    TestWindow window;
    Button button(window, L"Button");
    Label label(window, L"Label");
    button.SetRect(10, 10, 80, 23);
    label.SetRect(10, 50, 80, 23);
    RunWith(window, {[&] {
                int buttons = 0;
                int labels = 0;
                button.AddMessageHandler(Message::DrawItem, [&](WParam, LParam) { ++buttons; });
                label.AddMessageHandler(Message::DrawItem, [&](WParam, LParam) { ++labels; });
                button.Redraw();
                EXPECT_EQ(buttons, 1);
                EXPECT_EQ(labels, 0);
                EndRun(IdOk);
            }});
}

TEST(Reflection, HandsANotificationToTheControlsTable) {
    TestWindow window;
    ListBox list(window);
    int heard = 0;
    list.AddNotificationHandler(ListBox::DoubleClicked, [&] { ++heard; });
    const auto lParam = reinterpret_cast<LParam>(list.GetHandle());
    EXPECT_EQ(Native::Send(window.GetHandle(), Message::Command, 2 * 0x10000, lParam), 0);
    EXPECT_EQ(heard, 1);
    Native::Send(window.GetHandle(), Message::Command, 1 * 0x10000, lParam);
    EXPECT_EQ(heard, 1);
}

TEST(Reflection, GivesTheWindowACommandOnlyWhenNoControlSentIt) {
    TestWindow window;
    Button button(window, L"Button");
    std::string heard;
    window.AddCommandHandler(IdOk, [&] { heard += "command "; });
    button.AddNotificationHandler(Button::Clicked, [&] { heard += "click "; });
    Native::Send(window.GetHandle(), Message::Command, IdOk, reinterpret_cast<LParam>(button.GetHandle()));
    EXPECT_EQ(heard, "click ");
    Native::Send(window.GetHandle(), Message::Command, IdOk, 0);
    EXPECT_EQ(heard, "click command ");
}

TEST(Reflection, ReadsTheCommandFromTheLowWordAlone) {
    TestWindow window;
    int heard = 0;
    window.AddCommandHandler(IdCancel, [&] { ++heard; });
    Native::Send(window.GetHandle(), Message::Command, 1 * 0x10000 + IdCancel, 0);
    EXPECT_EQ(heard, 1);
    EXPECT_EQ(Native::Send(window.GetHandle(), Message::Command, 55, 0), 0);
    EXPECT_EQ(heard, 1);
}

}  // namespace Conformance
