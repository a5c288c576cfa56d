#include "session/device_summary.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "agent/sock_apk.h"
#include "base/text.h"
#include "base/trace.h"
#include "session/main_document.h"
#include "ui/program_wide.h"

namespace velk {

int battery_steps(const std::string& per_cent) {
    const int steps = static_cast<int>(to_int32(per_cent) * 0.1) / 2;
    return steps < 1 ? 1 : steps;
}

int storage_gauge(double total, double free) {
    const double per_cent = total / (total + free) * 100.0;
    // Also false for a quotient that is no number.
    const bool fits = std::abs(per_cent) <= std::numeric_limits<int>::max();
    return fits ? static_cast<int>(per_cent) : gauge_without_value;
}

std::string exact_bytes(const std::string& decimal) {
    const std::size_t start = std::min(decimal.find_first_not_of(" +-"), decimal.size());
    std::string digits = decimal.substr(start);
    digits.resize(std::min(digits.find_first_not_of("0123456789"), digits.size()));
    if (digits.empty()) return "";
    for (std::size_t at = digits.size(); at > 3;) digits.insert(at -= 3, ",");
    const bool negative = start > 0 && decimal[start - 1] == '-';
    return (negative ? "-" : "") + digits + " bytes";
}

/// Asks the phone for one value at a time, on a worker.
class Summary_Reader {
  public:
    explicit Summary_Reader(Busy_Note& note) : note_(note) {}

    std::string battery(const char* code) {
        note_.say("Waiting for the phone: battery");
        return client_.get_battery_from_apk(code);
    }

    /// `what` is said beside the status line while the phone has not answered.
    std::string value(const char* code, const char* what) {
        note_.say(std::string("Waiting for the phone: ") + what);
        return until_nul(client_.send_command_to_apk_for_get_something(code));
    }

  private:
    sock_apk client_;
    Busy_Note& note_;
};

namespace {

/// A count, and the title that it gives its section's button.
struct Section_Count {
    const char* code;
    const char* what;
    Trace_Format<std::string> traced;
    Button Window_Outlets::*button;
    const char* title;
    int& counted;
};

constexpr std::array section_counts = {
    Section_Count{"68", "photos", "Photo Count:[%s]", &Window_Outlets::m_BT_Photo, "Photos(%s)",
                  g_int_count_photos},
    Section_Count{"70", "music", "Music Count:[%s]", &Window_Outlets::m_BT_Music, "Music(%s)",
                  g_int_count_music},
    Section_Count{"72", "videos", "Video Count:[%s]", &Window_Outlets::m_BT_Video, "Videos(%s)",
                  g_int_count_videos},
    Section_Count{"74", "books", "Book Count=[%s]\n", &Window_Outlets::m_BT_Book, "Books(%s)",
                  g_int_count_books},
};

}  // namespace

void MainDocument::get_mobile_basic_information(Busy_Note& note) {
    Summary_Reader phone(note);
    show_battery(phone.battery("38"));
    read_storage(phone);

    const std::string version = phone.value("75", "Android version");
    trace("Version:[%s]", version.c_str());
    show(m_LB_AndroidVersion, version);
    const std::string name = phone.value("77", "phone name");
    trace("Mobile Name:[%s]", name.c_str());
    show(m_LB_MobileNameBig, name);
    show(m_LB_MobileName, name);

    read_counts(phone);
    trace("APK Version=[%s]\n", phone.value("114", "agent version").c_str());
    trace("\n--------END-------\n");
    displayViewController(DEFINE_VIEW_Start);
}

void MainDocument::show_battery(const std::string& per_cent) {
    on_window([this, per_cent] {
        m_LB_Battery.set_text(per_cent + "%");
        m_Progress_Battery.set_value(battery_steps(per_cent));
    });
}

std::int32_t MainDocument::show_size(const std::string& reported, Label& label) {
    const std::int32_t size = to_int32(reported);
    on_window([&label, size, reported] {
        label.set_text(sock_apk::format_size(size));
        label.set_tool_tip(exact_bytes(reported));
    });
    return size;
}

void MainDocument::read_storage(Summary_Reader& phone) {
    const auto read = [&](const char* code, Trace_Format<std::string> traced, Label& label) {
        const std::string reported = phone.value(code, "storage sizes");
        trace(traced, reported);
        return show_size(reported, label);
    };
    const double phone_total = read("81", "Total SD Size:[%s]\n", m_LB_Size_PhoneTotal);
    trace("Format :%s\n", plain(sock_apk::format_size(static_cast<std::int32_t>(phone_total))));
    const double phone_free =
        read("85", "Total Mobile Available Size:[%s]\n", m_LB_Size_PhoneTotalFree);
    const double storage_total = read("79", "Total Mobile Size:[%s]\n", m_LB_Size_StorageTotal);
    const double storage_free =
        read("83", "Total Mobile Available Size:[%s]\n", m_LB_Size_StorageTotalFree);
    on_window([=, this] {
        m_LevelIndicator_Size_Phone.set_value(storage_gauge(phone_total, phone_free));
        m_LevelIndicator_Size_Storage.set_value(storage_gauge(storage_total, storage_free));
        m_LB_USBConnect.set_text("Connected via USB");
    });
}

void MainDocument::read_counts(Summary_Reader& phone) {
    const std::string contacts = phone.value("65", "number of contacts");
    on_window([this, contacts] {
        g_phone_was_changed = 0;
        g_int_count_contacts = to_int32(contacts);
        m_BT_Contacts.set_title("Contacts(" + contacts + ")");
    });
    const std::string messages = phone.value("66", "number of messages");
    on_window([this, messages] {
        g_int_count_sms = to_int32(messages);
        m_BT_SMS.set_title(format("SMS(%d)", g_int_count_sms));
    });
    const std::string apps = phone.value("67", "number of applications");
    trace("App Count:[%s]", apps.c_str());
    on_window([this, apps] {
        g_int_count_apps = to_int32(apps);
        m_BT_Apps.set_title("Apps(" + apps + ")");
    });
    set_BT_Caption_White();
    for (const Section_Count& count : section_counts) {
        const std::string number = phone.value(count.code, count.what);
        trace(count.traced, number);
        on_window([this, &count, number] {
            count.counted = to_int32(number);
            (this->*count.button).set_title(format(count.title, number.c_str()));
        });
    }
}

}  // namespace velk
