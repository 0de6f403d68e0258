// vantelle-gallery [--theme light|dark|contrast] [--dpi N] [--picture FILE.png]: shows every control in every state,
// for developers of the toolkit.
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "ui/gallery/gallery_window.h"
#include "ui/message.h"
#include "ui/native.h"
#include "ui/session.h"
#include "ui/win32/picture.h"

namespace {

constexpr int LeastDpi = 48;
constexpr int GreatestDpi = 480;

struct Options {
    UI::Theme Theme = UI::Theme::Light;
    int Dpi = 96;
    const char* Picture = nullptr;
};

std::optional<UI::Theme> ReadTheme(std::string_view name) {
    if (name == "light") return UI::Theme::Light;
    if (name == "dark") return UI::Theme::Dark;
    if (name == "contrast") return UI::Theme::HighContrast;
    return std::nullopt;
}

std::optional<Options> ReadOptions(int count, char** arguments) {
    Options options;
    for (int i = 1; i + 1 < count; i += 2) {
        const std::string_view name = arguments[i];
        const char* value = arguments[i + 1];
        if (name == "--theme") {
            const auto theme = ReadTheme(value);
            if (!theme) return std::nullopt;
            options.Theme = *theme;
        } else if (name == "--dpi") {
            options.Dpi = std::atoi(value);
            if (options.Dpi < LeastDpi || options.Dpi > GreatestDpi) return std::nullopt;
        } else if (name == "--picture") {
            options.Picture = value;
        } else {
            return std::nullopt;
        }
    }
    if (count % 2 == 0) return std::nullopt;
    return options;
}

int Show(const Options& options) {
    const UI::Session session;
    GalleryWindow window(options.Dpi, options.Theme);
    if (!options.Picture) {
        window.AddCommandHandler(UI::IdCancel, [] { UI::EndRun(UI::IdCancel); });
        window.AddResultHandler(UI::Message::Close, [](UI::WParam, UI::LParam) {
            UI::EndRun(UI::IdCancel);
            return UI::MessageResult{0};
        });
        window.Run();
        return 0;
    }
    UI::Native::SetVisible(window.GetHandle(), true);
    window.Redraw();
    if (UI::SavePicture(window, options.Picture)) return 0;
    std::fprintf(stderr, "vantelle-gallery: cannot write %s\n", options.Picture);
    return 1;
}

}  // namespace

int main(int count, char** arguments) {
    const auto options = ReadOptions(count, arguments);
    if (!options) {
        std::fprintf(stderr,
                     "usage: vantelle-gallery [--theme light|dark|contrast] [--dpi %d..%d] [--picture FILE.png]\n",
                     LeastDpi, GreatestDpi);
        return 2;
    }
    try {
        return Show(*options);
    } catch (const wchar_t* text) {
        UI::ShowMessage(nullptr, text, L"Error", UI::MessageKind::Error);
        return 1;
    }
}
