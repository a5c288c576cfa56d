#include "demo_phone/phone_control.h"

#include <sys/socket.h>

#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstring>

#include "demo_phone/phone_sockets.h"

namespace velk {

namespace {

const std::string ok = "ok\n";

std::string control_play(Demo_Phone& phone, Phone_Cable& cable, std::string_view words) {
    const auto before = phone.behaviour.handshake;
    if (words.empty()) return describe_behaviour(phone.behaviour) + "\n" + ok;
    if (!play(phone.behaviour, words)) return "error: unknown behaviour\n";
    // The computer asks for permission only when a connection begins.
    if (phone.behaviour.handshake != before && cable.plugged()) {
        cable.unplug();
        if (!cable.plug()) return "error: the port is taken\n";
    }
    return ok;
}

std::string control_battery(Demo_Phone& phone, std::string_view text) {
    int level = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), level);
    if (error != std::errc() || end != text.data() + text.size() || level < 0 || level > 100)
        return "error: a level is a number from 0 to 100\n";
    phone.battery = level;
    return ok;
}

std::string status(const Demo_Phone& phone, const Phone_Cable& cable) {
    const Phone_Store& store = phone.store;
    std::string text = "port " + std::to_string(cable.port()) + "\n";
    text += std::string("cable ") + (cable.plugged() ? "plugged" : "unplugged") + "\n";
    text += "play " + describe_behaviour(phone.behaviour) + "\n";
    text += "agent " + std::string(phone.agent.describe()) + "\n";
    text += "battery " + std::to_string(phone.battery) + "\n";
    text += "contacts " + std::to_string(store.contacts().size()) + "\n";
    text += "messages " + std::to_string(store.messages().size()) + "\n";
    text += "music " + std::to_string(store.count(Media_Kind::music)) + "\n";
    text += "photos " + std::to_string(store.count(Media_Kind::photo)) + "\n";
    text += "videos " + std::to_string(store.count(Media_Kind::video)) + "\n";
    text += "books " + std::to_string(store.count(Media_Kind::book)) + "\n";
    text += "apps " + std::to_string(store.apps().size()) + "\n";
    return text + ok;
}

std::string plug(Phone_Cable& cable) {
    return cable.plugged() || cable.plug() ? ok : "error: the port is taken\n";
}

}  // namespace

std::string control(Demo_Phone& phone, Phone_Cable& cable, std::string_view line) {
    const std::size_t blank = line.find(' ');
    const std::string_view command = line.substr(0, blank);
    const std::string_view rest =
        blank == std::string_view::npos ? std::string_view() : line.substr(blank + 1);
    phone.log.line("control", line);
    if (command == "play") return control_play(phone, cable, rest);
    if (command == "battery") return control_battery(phone, rest);
    if (command == "status") return status(phone, cable);
    if (command == "log") return phone.log.recent() + ok;
    if (command == "plug") return plug(cable);
    if (command == "help") return std::string(control_help()) + ok;
    if (command == "unplug")
        cable.unplug();
    else if (command == "quit")
        cable.quit();
    else
        return "error: unknown command; try help\n";
    return ok;
}

std::string_view control_help() {
    return "  plug            put the cable in: be found by the computer again\n"
           "  unplug          pull the cable\n"
           "  play [WORDS]    change the behaviour, or print it\n"
           "  battery LEVEL   0 to 100\n"
           "  status          print the port, the cable, the agent and the counts\n"
           "  log             print the latest lines of the log\n"
           "  quit            end the phone\n"
           "  help            print this list\n";
}

std::optional<std::string> ask_phone(const std::string& path, const std::string& line) {
    const Owned_Descriptor phone = connect_unix(path);
    if (!phone || !write_all(phone.number(), line + "\n")) return std::nullopt;
    shutdown(phone.number(), SHUT_WR);
    std::string answer;
    char bytes[4096];
    for (ssize_t count; (count = recv(phone.number(), bytes, sizeof bytes, 0)) > 0;)
        answer.append(bytes, static_cast<std::size_t>(count));
    return answer;
}

bool is_good(std::string_view answer) {
    return answer == ok || answer.ends_with("\n" + ok);
}

int tell_phone(const std::string& path, const std::string& line) {
    const auto answer = ask_phone(path, line);
    if (!answer) {
        std::fprintf(stderr, "demo_phone: %s: %s\n", path.c_str(), std::strerror(errno));
        return 1;
    }
    const bool good = is_good(*answer);
    std::fputs(answer->c_str(), good ? stdout : stderr);
    return good ? 0 : 1;
}

}  // namespace velk
