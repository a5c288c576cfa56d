#include "managers/save_page.h"

#include <filesystem>
#include <system_error>

#include "base/text.h"
#include "base/trace.h"
#include "export/html_tools.h"

namespace velk {

namespace {

bool would_replace_a_file(const std::string& path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

bool person_lets_replace(Desktop& desktop, const std::string& path) {
    const std::string name = std::filesystem::path(path).filename().string();
    return desktop.run_alert(yes_or_no(
               format("There is a file \"%s\" already. Replace it?", name.c_str()))) == yes;
}

}  // namespace

std::string choose_save_path(Desktop& desktop, const std::string& title,
                             const std::string& extension) {
    for (;;) {
        std::string path = desktop.run_file_panel({.kind = File_Panel::Kind::save, .title = title});
        if (path.empty()) return "";
        path.append(".").append(extension);
        if (!would_replace_a_file(path) || person_lets_replace(desktop, path)) return path;
        if (desktop.closing()) return "";
    }
}

std::string save_text(const Desktop& desktop, const std::string& path, const std::string& text,
                      Readers readers) {
    const std::string reason = desktop.closing() ? "The window was closed."
                                                 : write_whole_file(path, as_utf8(text), readers);
    trace("save :%d", reason.empty());
    return reason;
}

std::string save_page(const Desktop& desktop, const std::string& path, const std::string& title,
                      const std::string& data) {
    const std::string page = HTML_Tools().get_html(title, data);
    log_line("%s", page.c_str());
    return save_text(desktop, path, page);
}

}  // namespace velk
