#include "shell/options.h"

#include <string_view>

#include "version.h"

namespace velk {

namespace {

constexpr int wrong_use = 2;

constexpr const char* help =
    "Usage: velk [options]\n"
    "Manages an Android phone that is connected with a USB cable.\n\n"
    "  --connect     look for the phone as soon as the window is shown\n"
    "  --tour DIR    connect, visit every section, save pictures of each in DIR\n"
    "                and the exported pages, which replace those that are there,\n"
    "                print what was found, and end\n"
    "  --help        show this and end\n"
    "  --version     show the version and end\n\n"
    "While Velk runs, starting it again brings its window to the front.\n"
    "The options of the window system (-platform and others) are taken too.\n";

Options wrong(const std::string& text) {
    Options options;
    options.wrong = Exit_Message{"velk: " + text + "; see velk --help\n", wrong_use};
    return options;
}

}  // namespace

std::optional<Exit_Message> answer_without_display(int count, const char* const* arguments) {
    for (int i = 1; i < count; ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--help" || argument == "-h") return Exit_Message{help};
        if (argument == "--version")
            return Exit_Message{std::string(g_product_name) + " " + g_version + "\n"};
    }
    return std::nullopt;
}

Options options_of(int count, const char* const* arguments) {
    Options options;
    for (int i = 1; i < count; ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--connect") {
            options.connect = true;
        } else if (argument == "--tour") {
            if (++i == count) return wrong("--tour needs a folder");
            options.tour = arguments[i];
        } else {
            return wrong("unknown option '" + std::string(argument) + "'");
        }
    }
    return options;
}

}  // namespace velk
