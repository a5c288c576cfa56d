#include "demo_phone/phone_shell.h"

#include <algorithm>

#include "demo_phone/phone_packages.h"

namespace velk {

namespace {

using Words = std::vector<std::string>;

bool has_option(const Words& words, char letter) {
    return std::any_of(words.begin() + 1, words.end(), [letter](const std::string& word) {
        return word.size() > 1 && word[0] == '-' && word.find(letter, 1) != std::string::npos;
    });
}

/// The words that are no options.
Words operands(const Words& words) {
    Words found;
    for (auto word = words.begin() + 1; word != words.end(); ++word)
        if (!word->starts_with('-')) found.push_back(*word);
    return found;
}

Shell_Result mkdir(Demo_Phone& phone, const Words& words) {
    Shell_Result result;
    for (const std::string& path : operands(words)) {
        const bool there = phone.storage.facts(path).mode != 0;
        if (there && !has_option(words, 'p')) {
            result = {result.output + "mkdir: '" + path + "': File exists\n", 1};
        } else if (!phone.storage.make_folders(path)) {
            result = {result.output + "mkdir: '" + path + "': Not a directory\n", 1};
        }
    }
    return result;
}

Shell_Result rm(Demo_Phone& phone, const Words& words) {
    Shell_Result result;
    for (const std::string& path : operands(words)) {
        const bool whole_folder = has_option(words, 'r') || has_option(words, 'R');
        const Phone_File file = phone.storage.facts(path);
        if (file.is_folder() && !whole_folder)
            result = {result.output + "rm: " + path + ": is a directory\n", 1};
        else if (!phone.storage.remove(path, whole_folder) && !has_option(words, 'f'))
            result = {result.output + "rm: " + path + ": No such file or directory\n", 1};
    }
    return result;
}

Shell_Result ls(Demo_Phone& phone, const Words& words) {
    Words paths = operands(words);
    if (paths.empty()) paths.emplace_back("/");
    Shell_Result result;
    for (const std::string& path : paths) {
        const Phone_File file = phone.storage.facts(path);
        if (file.mode == 0)
            result = {result.output + "ls: " + path + ": No such file or directory\n", 1};
        if (file.is_file()) result.output += path + "\n";
        for (const Phone_File& inside : phone.storage.list(path))
            result.output += inside.name + "\n";
    }
    return result;
}

Shell_Result echo(Demo_Phone&, const Words& words) {
    std::string text;
    for (auto word = words.begin() + 1; word != words.end(); ++word)
        text += (text.empty() ? "" : " ") + *word;
    return {text + "\n", 0};
}

Shell_Result getprop(Demo_Phone& phone, const Words& words) {
    const std::pair<std::string, std::string> properties[] = {
        {"ro.product.model", phone.settings.model},
        {"ro.build.version.release", "4.4.2"},
        {"ro.build.version.sdk", "19"},
    };
    std::string text;
    for (const auto& [name, value] : properties) {
        if (words.size() > 1 && words[1] == name) return {value + "\n", 0};
        text.append("[").append(name).append("]: [").append(value).append("]\n");
    }
    return {words.size() > 1 ? "\n" : text, 0};
}

/// The abstract sockets on which the phone listens, as the system's list has them.
std::string local_sockets(const Demo_Phone& phone) {
    std::string list = "Num       RefCount Protocol Flags    Type St Inode Path\n";
    if (!phone.agent.listening()) return list;
    constexpr std::string_view abstract = "localabstract:";
    const auto add = [&](const auto& services) {
        for (const std::string_view service : services)
            if (service.starts_with(abstract))
                list.append("0000000000000000: 00000002 00000000 00010000 0001 01 20304 @")
                    .append(service.substr(abstract.size()))
                    .append("\n");
    };
    if (phone.settings.first_wire) add(g_first_wire_services);
    if (phone.settings.second_wire) add(g_second_wire_services);
    return list;
}

Shell_Result cat(Demo_Phone& phone, const Words& words) {
    Shell_Result result;
    for (const std::string& path : operands(words)) {
        if (path == "/proc/net/unix")
            result.output += local_sockets(phone);
        else
            result = {result.output + "cat: " + path + ": No such file or directory\n", 1};
    }
    return result;
}

/// "appops set package operation mode". The agent here may do everything; who asked for what is
/// in the log.
Shell_Result appops(Demo_Phone& phone, const Words& words) {
    if (words.size() != 5 || words[1] != "set") return {"usage: appops set PACKAGE OP MODE\n", 1};
    phone.log.line("appops", words[2] + " " + words[3] + " " + words[4]);
    return {};
}

/// "dumpsys deviceidle whitelist +package"
Shell_Result dumpsys(Demo_Phone&, const Words& words) {
    if (words.size() < 2 || words[1] != "deviceidle")
        return {"Can't find service: " + (words.size() < 2 ? "" : words[1]) + "\n", 1};
    if (words.size() != 4 || words[2] != "whitelist" || !words[3].starts_with('+')) return {};
    return {"Added: " + words[3].substr(1) + "\n", 0};
}

struct Command {
    std::string_view name;
    Shell_Result (*run)(Demo_Phone&, const Words&);
};

constexpr Command commands[] = {
    {"pm", run_pm}, {"am", run_am}, {"mkdir", mkdir},     {"rm", rm},         {"ls", ls},
    {"cat", cat},   {"echo", echo}, {"getprop", getprop}, {"appops", appops}, {"dumpsys", dumpsys},
};

}  // namespace

std::vector<std::string> shell_words(std::string_view line) {
    Words words;
    std::string word;
    bool in_word = false;
    char quote = '\0';
    const auto end_word = [&] {
        if (in_word && word[0] != '<' && word[0] != '>') words.push_back(word);
        word.clear();
        in_word = false;
    };
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char character = line[i];
        if (quote == '\0' && (character == ' ' || character == '\t' || character == '\n')) {
            end_word();
            continue;
        }
        in_word = true;
        if (quote == '\0' && (character == '\'' || character == '"'))
            quote = character;
        else if (quote != '\0' && character == quote)
            quote = '\0';
        else if (character == '\\' && quote != '\'' && i + 1 < line.size())
            word += line[++i];
        else
            word += character;
    }
    end_word();
    return words;
}

Shell_Result run_shell(Demo_Phone& phone, std::string_view line) {
    Words words = shell_words(line);
    // Later phones keep their package manager behind one more word.
    if (words.size() > 1 && words[0] == "cmd" && words[1] == "package") {
        words.erase(words.begin());
        words[0] = "pm";
    }
    if (words.empty()) return {};
    for (const Command& command : commands)
        if (command.name == words[0]) return command.run(phone, words);
    return {"/system/bin/sh: " + words[0] + ": not found\n", 127};
}

}  // namespace velk
