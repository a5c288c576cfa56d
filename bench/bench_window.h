// The real window with nothing behind it, as both measurements of it need one.
#pragma once

#include "session/main_document.h"
#include "shell/look.h"
#include "shell/qt_desktop.h"
#include "shell/velk_window.h"

namespace velk {

/// Shown at once, in the size that people mostly have. Needs the application, which outlives it.
struct Bench_Window {
    Bench_Window() {
        window.resize(1280, 800);
        window.show();
    }

    const Look_Keeper look;
    Qt_Desktop desktop;
    MainDocument document{desktop};
    Velk_Window window{document, desktop};
};

}  // namespace velk
