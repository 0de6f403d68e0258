// The base of all controls: a child window whose messages reach its tables of handlers first.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ui/handlers.h"
#include "ui/resources.h"
#include "ui/style.h"
#include "ui/types.h"

namespace UI {

class Window;

// The standard class a control stands on.
enum class ControlKind { Button, ComboBox, Edit, ListBox, Static };

class Control {
public:
    // Every control is created visible, enabled, at zero size and last in the Tab order of its window.
    // Throws "CreateWindowExW failed.".
    Control(Window& window, ControlKind kind, const std::wstring& text, unsigned style);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    virtual ~Control();
    virtual Handle GetHandle() const;
    virtual Window& GetWindow() const;
    virtual int GetX() const;
    virtual int GetY() const;
    virtual int GetWidth() const;
    virtual int GetHeight() const;
    virtual int GetRight() const;
    virtual int GetBottom() const;
    // Pixels in the window's client coordinates. False on failure, and only then are the stored values unchanged.
    virtual bool SetPosition(int x, int y);
    virtual bool SetSize(int width, int height);
    virtual bool SetRect(int x, int y, int width, int height);
    // Of a control that scrolls with others: the part of the window's client area in which it shows; null for all.
    virtual void SetView(const std::optional<Rect>& newView);
    const std::optional<Rect>& GetView() const { return view; }
    // Puts this control behind the other in the Tab order.
    virtual bool PlaceAfter(Control& other);
    // The text last set or typed; never asks the system.
    virtual const std::wstring& GetText() const;
    // False, and the text as it was, when the system refuses. A text that stands already is not set again: forms set
    // all their texts after each key.
    virtual bool SetText(const std::wstring& text);
    virtual void Redraw();
    virtual bool IsEnabled() const;
    // A control that has the focus hands it to the window before it is disabled.
    virtual void SetEnabled(bool enabled);
    virtual bool HasFocus() const;
    // Whether focus marks are visible: they appear with the first use of the keyboard.
    virtual bool ShowsFocus() const;
    virtual void SetFocus();
    // Of the control and its window: false for all controls of a hidden window.
    virtual bool IsVisible() const;
    virtual void SetVisible(bool visible);
    // No drawing from here to `EndUpdate`, which redraws.
    virtual void BeginUpdate();
    virtual void EndUpdate();
    virtual void AddMessageHandler(int message, MessageHandler handler);
    virtual void AddResultHandler(int message, ResultHandler handler);
    virtual void AddNotificationHandler(int code, NotificationHandler handler);
    // True, with `result` set, when a result handler ended the message.
    virtual bool Dispatch(int message, WParam wParam, LParam lParam, MessageResult& result);
    // True when there was a handler of `code`.
    virtual bool DispatchNotification(int code);
    // What the control's standard class does with the message.
    virtual MessageResult CallPrevious(int message, WParam wParam, LParam lParam);

    // As when Tab comes here: a text is selected, so that typing replaces it.
    virtual void TakeFocusByKeyboard();
    // The size that shows `text` whole, in this control's font and with its paddings.
    virtual Size Measure(std::wstring_view text) const;
    // Why it is as it is: a line for the pointer that rests on it and for a screen reader; empty for none. Changes no
    // layout and raises no box.
    void SetHint(const std::wstring& newHint);
    const std::wstring& GetHint() const { return hint; }
    // What a screen reader calls it: the name that it was given, else its own text, else that of the label or caption
    // that it stands behind.
    std::wstring GetName() const;
    void SetName(const std::wstring& newName);
    const std::wstring& GetGivenName() const { return name; }

    // Takes this control's part of the table.
    virtual void ApplyStyle(const StyleTable& table);

    ControlKind GetKind() const { return kind; }
    unsigned GetStyleFlags() const { return style; }
    const Font& GetFont() const { return font; }
    // Whether Tab stops here.
    void SetTabStop(bool stop);
    bool IsTabStop() const;

protected:
    // What shows of the control's own window where it stands now.
    void ClipToView();
    // Text that the control got by other ways than `SetText`.
    void StoreText(std::wstring newText) { text = std::move(newText); }
    void StorePosition(int newX, int newY);
    void StoreSize(int newWidth, int newHeight);
    // The font, and the standard parts in the window's theme; redraws.
    void ApplyLook(const Font& newFont);
    // The font alone; redraws.
    void ChangeFont(const Font& newFont);

private:
    LiveResource live{Resource::Control};
    Handle handle = nullptr;
    Window& window;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    std::wstring text;
    std::wstring name;
    std::wstring hint;
    std::optional<Rect> view;
    unsigned style;
    HandlerTable<MessageHandler> MessageHandlers;
    HandlerTable<ResultHandler> ResultHandlers;
    HandlerTable<NotificationHandler> NotificationHandlers;
    Procedure previous = nullptr;
    ControlKind kind;
    Font font;
};

}  // namespace UI
