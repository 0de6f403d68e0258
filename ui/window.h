// A top-level window with its class, its modal loop, its theme and its DPI.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ui/handlers.h"
#include "ui/resources.h"
#include "ui/style.h"
#include "ui/types.h"

namespace UI {

class Control;

// The backend's icon object.
struct NativeIcon;

// What a scroll bar stands for: `Page` of `Height` pixels show, from `Position` on; the wheel and the bar's arrows go
// on by `Step`.
struct ScrollRange {
    int Position = 0;
    int Page = 0;
    int Height = 0;
    int Step = 1;
    int GetLast() const { return Height > Page ? Height - Page : 0; }
};

class Window {
public:
    // A caption with the close box.
    static constexpr unsigned DefaultStyle = 0xC80000;
    static constexpr unsigned DialogFrame = 1;

    // Registers the class and creates the window, hidden. `parent` may be null. A second live window of one class name
    // fails with "RegisterClassExW failed."; also throws "CreateWindowExW failed.".
    Window(Window* parent, const std::wstring& className, const std::wstring& title, unsigned style = DefaultStyle);
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    virtual ~Window();

    // Shows the window, with the focus on the first control where Tab stops and with its parent disabled, until
    // `EndRun` ends this innermost loop, then hides it. The result is the one that was given to `EndRun`, or -1 when
    // the loop failed.
    int Run();
    // The one whose loop is the innermost, or null.
    static Window* GetRunning();
    // Size of the client area in pixels; the frame comes on top.
    bool SetClientSize(int width, int height);
    // Pixels on the screen.
    bool SetPosition(int x, int y);
    // On the parent, or in the work area when there is none; all of it within the work area of the parent's monitor, or
    // its left and upper edge when it is larger.
    void Center();
    // Moves a window that stands in the work area up and to the left so far that all of it does.
    void StayInWorkArea();
    // The largest client area for which the work area has room: of a hidden window that of its parent's monitor.
    std::optional<Size> GetRoom() const;

    // For what is higher than the screen: the controls that are given `view` (`Control::SetView`) are `height` pixels
    // in all, and a scroll bar stands at its right. They are placed at `GetScrollPosition`, and moved by `Scrolled`.
    void BeginScrolling(const Rect& view, int height);
    void EndScrolling();
    bool IsScrolling() const { return view.has_value(); }
    const std::optional<Rect>& GetView() const { return view; }
    int GetScrollPosition() const { return scroll.Position; }
    int GetScrollHeight() const { return scroll.Height; }
    // As far as there is something to show.
    void ScrollTo(int position);
    // Scrolls so far that the control shows.
    void Reveal(const Control& control);

    void AddMessageHandler(int message, MessageHandler handler);
    void AddResultHandler(int message, ResultHandler handler);
    // Runs for a command that comes from no control: `IdOk` for Enter, `IdCancel` for Esc.
    void AddCommandHandler(int id, NotificationHandler handler);
    bool Dispatch(int message, WParam wParam, LParam lParam, MessageResult& result);

    Handle GetHandle() const { return handle; }
    Window* GetParent() const { return parent; }
    int GetX() const { return x; }
    int GetY() const { return y; }
    int GetWidth() const { return width; }
    int GetHeight() const { return height; }
    int GetClientWidth() const { return clientWidth; }
    int GetClientHeight() const { return clientHeight; }
    void SetMinimumSize(int newWidth, int newHeight);
    Size GetMinimumSize() const { return {minimumWidth, minimumHeight}; }
    const std::wstring& GetName() const { return className; }
    const std::wstring& GetTitle() const { return title; }
    unsigned GetStyleFlags() const { return style; }
    unsigned GetExtendedStyle() const { return extendedStyle; }
    int GetDpi() const { return dpi; }
    const StyleTable& GetStyle() const { return table; }
    bool IsVisible() const;
    bool IsEnabled() const;
    bool HasFocus() const;
    void SetFocus();
    void Redraw();
    // In Tab order.
    const std::vector<Control*>& GetControls() const { return controls; }

protected:
    // What follows a new style table: the size that the controls need now.
    virtual void LayOutAnew() {}
    // Moves the controls that have a view down by so many pixels.
    virtual void Scrolled(int) {}

private:
    friend class Control;
    friend void ApplyTheme(Window& window, const StyleTable& table);

    // The registered class, for as long as the window needs it.
    class Registration {
    public:
        explicit Registration(const std::wstring& className);
        Registration(const Registration&) = delete;
        Registration& operator=(const Registration&) = delete;
        ~Registration();

    private:
        LiveResource live{Resource::WindowClass};
        std::wstring className;
    };

    // The native window; its object is forgotten before it is destroyed.
    class Owned {
    public:
        explicit Owned(const Window& window);
        Owned(const Owned&) = delete;
        Owned& operator=(const Owned&) = delete;
        ~Owned();
        operator Handle() const { return handle; }

    private:
        LiveResource live{Resource::Window};
        Handle handle;
    };

    void AddStandardHandlers();
    // The style table of now, should it differ from the window's.
    void Restyle();
    MessageResult HandleCommand(WParam wParam, LParam lParam);
    void StorePlace();
    // As near as all of it has room in the area, or its left and upper edge when it is larger.
    void PlaceWithin(const Rect& area, int left, int top);
    void FocusFirst();

    Window* parent;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    int clientWidth = 0;
    int clientHeight = 0;
    int minimumWidth = 0;
    int minimumHeight = 0;
    std::wstring className;
    std::wstring title;
    unsigned style;
    unsigned extendedStyle = DialogFrame;
    int dpi = 0;
    std::shared_ptr<NativeIcon> icon;
    std::shared_ptr<NativeIcon> smallIcon;
    StyleTable table;
    std::optional<Rect> view;
    ScrollRange scroll;
    HandlerTable<MessageHandler> MessageHandlers;
    HandlerTable<ResultHandler> ResultHandlers;
    HandlerTable<NotificationHandler> NotificationHandlers;
    std::vector<Control*> controls;
    Registration registration;
    Owned handle;
};

// Ends the innermost modal loop with `result` as soon as the handlers that run have returned.
void EndRun(int result);

}  // namespace UI
