#include "demo_phone/phone_services.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "demo_phone/agent_link.h"
#include "demo_phone/bytes.h"
#include "demo_phone/phone_packages.h"
#include "demo_phone/phone_shell.h"
#include "demo_phone/second_wire_link.h"
#include "demo_phone/sync_service.h"

namespace velk {

namespace {

/// Runs one command line when the stream opens.
class Shell_Service : public Phone_Service {
  public:
    Shell_Service(Demo_Phone& phone, std::string_view line, bool framed)
        : phone_(phone), line_(line), framed_(framed) {}

    void opened(Phone_Outlet& outlet) override {
        const Shell_Result result = run_shell(phone_, line_);
        if (framed_) {
            constexpr char standard_output = 1;
            constexpr char exit_status = 3;
            if (!result.output.empty()) outlet.send(frame(standard_output, result.output));
            outlet.send(frame(exit_status, std::string(1, static_cast<char>(result.status))));
        } else {
            outlet.send(result.output);
        }
        outlet.finish();
    }
    void received(std::string_view, Phone_Outlet&) override {}

  private:
    static std::string frame(char kind, std::string_view bytes) {
        std::string out(1, kind);
        append_little(out, bytes.size());
        return out.append(bytes);
    }

    Demo_Phone& phone_;
    std::string line_;
    bool framed_;
};

/// Takes a package of a known size from the stream and installs it.
class Install_Service : public Phone_Service {
  public:
    Install_Service(Demo_Phone& phone, std::uint64_t size)
        : phone_(phone),
          missing_(size),
          name_("Package of " + std::to_string(size) + " bytes"),  // its own name stays behind
          file_(phone.storage.real_path(landing_place).value_or(""),
                std::ios::binary | std::ios::trunc) {}

    void received(std::string_view bytes, Phone_Outlet& outlet) override {
        if (missing_ == 0) return;
        const std::string_view wanted = bytes.substr(
            0, static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), missing_)));
        file_.write(wanted.data(), static_cast<std::streamsize>(wanted.size()));
        missing_ -= wanted.size();
        if (missing_ > 0) return;
        file_.close();
        outlet.send(install_package(phone_, landing_place, name_));
        phone_.storage.remove(landing_place);
        outlet.finish();
    }

  private:
    static constexpr const char* landing_place = "/data/local/tmp/streamed.apk";

    Demo_Phone& phone_;
    std::uint64_t missing_;
    std::string name_;
    std::ofstream file_;
};

/// What follows `start` in `name`, when it begins so.
std::optional<std::string_view> behind(std::string_view name, std::string_view start) {
    if (!name.starts_with(start)) return std::nullopt;
    return name.substr(start.size());
}

template <typename Number>
std::optional<Number> number(std::string_view text) {
    Number value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

/// The agent, by one of the services that lead to it.
std::unique_ptr<Phone_Service> open_wire(Demo_Phone& phone, std::string_view name) {
    const auto leads_to = [name](const auto& services) {
        return std::find(std::begin(services), std::end(services), name) != std::end(services);
    };
    if (!phone.agent.listening()) return nullptr;
    if (phone.settings.first_wire && leads_to(g_first_wire_services))
        return std::make_unique<Agent_Link>(phone);
    if (phone.settings.second_wire && leads_to(g_second_wire_services))
        return std::make_unique<Second_Wire_Link>(phone);
    return nullptr;
}

/// The size of a package that "cmd package install ... -S size" will stream in.
std::optional<std::uint64_t> streamed_size(std::string_view line) {
    const std::vector<std::string> words = shell_words(line);
    if (words.size() < 3 || words[0] != "cmd" || words[2] != "install") return std::nullopt;
    for (std::size_t i = 3; i + 1 < words.size(); ++i)
        if (words[i] == "-S") return number<std::uint64_t>(words[i + 1]);
    return std::nullopt;
}

}  // namespace

std::unique_ptr<Phone_Service> open_phone_service(Demo_Phone& phone, std::string_view name) {
    if (name == "sync:") return std::make_unique<Sync_Service>(phone);
    if (const auto line = behind(name, "shell:"))
        return std::make_unique<Shell_Service>(phone, *line, false);
    if (const auto options = behind(name, "shell,"); options && phone.settings.later_services)
        return std::make_unique<Shell_Service>(
            phone, options->substr(std::min(options->find(':'), options->size() - 1) + 1), true);
    if (const auto line = behind(name, "exec:")) {
        if (const auto size = streamed_size(*line); size && *size > 0)
            return std::make_unique<Install_Service>(phone, *size);
        return std::make_unique<Shell_Service>(phone, *line, false);
    }
    return open_wire(phone, name);
}

}  // namespace velk
