#include "shell/look.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "window_test.h"

namespace velk {
namespace {

struct Desktop_Colours {
    const char* name;
    QColor window, base, text;
};

// The last two are unkind: middle grey, and texts that hardly differ from their ground.
const Desktop_Colours desktops[] = {
    {"light", "#f3f4f6", "#ffffff", "#1c1f24"},  {"grey", "#efefef", "#ffffff", "#000000"},
    {"dark", "#24272c", "#1b1e22", "#e6e8ea"},   {"black", "#000000", "#000000", "#ffffff"},
    {"middle", "#808080", "#909090", "#202020"}, {"pale", "#f0f0f0", "#ffffff", "#c0c0c0"},
};

TEST(Look, keeps_every_text_readable_whatever_the_desktops_colours) {
    for (const Desktop_Colours& colours : desktops) {
        QPalette palette(colours.window);
        palette.setColor(QPalette::Base, colours.base);
        palette.setColor(QPalette::WindowText, colours.text);
        const Look look = Look::of(palette);
        const struct {
            const char* what;
            QColor text, ground;
        } pairs[] = {
            {"muted on window", look.muted, look.window},
            {"muted on card", look.muted, look.card},
            {"muted on stripe", look.muted, look.stripe},
            {"accent text on card", look.accent_text, look.card},
            {"text on accent under the mouse", look.on_accent, look.accent_hover},
            {"own caption on toolbar", look.toolbar_text, look.toolbar},
            {"white caption under the mouse", Qt::white, look.toolbar_hover},
            {"text on a pressed button", look.text, look.pressed},
        };
        for (const auto& [what, text, ground] : pairs)
            EXPECT_GE(contrast(text, ground), 4.5) << what << " in " << colours.name;
    }
}

}  // namespace
}  // namespace velk
