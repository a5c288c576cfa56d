#include "launcher/habits.h"

#include <filesystem>
#include <system_error>

#include "base/file.h"

namespace velk {

std::string older_device_list(std::string_view output) {
    constexpr std::string_view header_end = "attached";
    std::string list;
    bool in_list = false;
    while (!output.empty()) {
        const std::size_t length = output.find('\n');
        const bool ends_in_break = length != std::string_view::npos;
        std::string_view line = output.substr(0, length);
        output.remove_prefix(line.size() + (ends_in_break ? 1 : 0));

        if (in_list) line = line.substr(0, line.find("; see ["));
        list += line;
        if (!in_list && ends_in_break && line.ends_with(header_end)) list += ' ';
        if (line.find(header_end) != std::string_view::npos) in_list = true;
        if (ends_in_break) list += '\n';
    }
    return list;
}

std::size_t start_of_device_list(std::string_view said) {
    const std::size_t header = said.find("List of devices");
    return header == std::string_view::npos ? said.size() : header;
}

std::string version_complaint(std::string_view said) {
    const std::size_t complaint = said.find("doesn't match this client");
    if (complaint == std::string_view::npos) return {};
    const std::size_t before = said.rfind('\n', complaint);
    const std::size_t start = before == std::string_view::npos ? 0 : before + 1;
    return std::string(said.substr(start, said.find('\n', complaint) - start)) + "\n";
}

bool may_not_have_met_the_phone(std::string_view list) {
    const bool is_empty = list.find('\t') == std::string_view::npos;
    return is_empty || list.find("\toffline") != std::string_view::npos;
}

bool debugging_is_on_the_bus(const std::string& folder) {
    const auto holds = [](const std::filesystem::path& file, std::string_view number) {
        const auto content = read_whole_file(file);
        return content && content->starts_with(number);
    };
    std::error_code error;
    std::filesystem::directory_iterator device(folder, error);
    for (; !error && device != std::filesystem::directory_iterator(); device.increment(error)) {
        const std::filesystem::path& place = device->path();
        if (holds(place / "bInterfaceClass", "ff") && holds(place / "bInterfaceSubClass", "42") &&
            holds(place / "bInterfaceProtocol", "01"))
            return true;
    }
    return false;
}

bool has_line_that_begins(std::string_view text, std::string_view beginning) {
    for (std::size_t found = text.find(beginning); found != std::string_view::npos;
         found = text.find(beginning, found + 1))
        if (found == 0 || text[found - 1] == '\n' || text[found - 1] == '\r') return true;
    return false;
}

bool means_a_folder(std::string_view phone_path) {
    const std::size_t last = phone_path.find_last_not_of('/');
    if (last == std::string_view::npos) return false;  // the root is there
    return !std::filesystem::path(phone_path.substr(0, last + 1)).has_extension();
}

std::string quoted_for_the_phone(std::string_view word) {
    std::string quoted = "'";
    for (const char byte : word)
        quoted += byte == '\'' ? std::string("'\\''") : std::string(1, byte);
    return quoted + "'";
}

}  // namespace velk
