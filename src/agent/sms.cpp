// The phone's messages: list, delete, send.
#include "agent/bytes.h"
#include "agent/carried_list.h"
#include "agent/edit_request.h"
#include "agent/record_places.h"
#include "agent/second_wire_edits.h"
#include "agent/second_wire_lists.h"
#include "agent/sock_apk.h"
#include "agent/wire_choice.h"
#include "base/text.h"
#include "base/trace.h"

namespace velk {

namespace {

constexpr std::size_t largest_chunk = 4096;
constexpr std::size_t packet_header = 7;
constexpr std::size_t code_bytes = 4;    // of a packet's header: they tell it from a record
constexpr std::size_t record_rest = 24;  // what a record has beside its three texts

constexpr char code_send = '2';
constexpr char code_delete = 'N';
// Which phones a delete is for.
constexpr int variant_usual = 2;
constexpr int variant_no_s4 = 1;
constexpr int variant_version_2 = 20;

/// The header of a packet, which is told by its list's code, "/".
bool is_packet_header(std::string_view bytes) {
    return bytes.starts_with(std::string_view("\0/\0\0", code_bytes));
}

struct Lengths {
    explicit Lengths(std::string_view record)
        : tel(length_at(record, 0)),
          text(length_at(record, tel + 4)),
          date(length_at(record, tel + text + 8)) {}
    std::size_t record() const { return tel + text + date + record_rest; }

    std::size_t tel, text, date;
};

/// A record may be cut anywhere and is carried over whole. A header may be cut nowhere: cut inside,
/// its rest is taken for a record, and behind it the list seems to be over.
Stretch record_or_header(std::string_view bytes) {
    if (bytes.size() < code_bytes || is_packet_header(bytes)) return {packet_header, 1};
    return {Lengths(bytes).record(), never_losing};
}

bool ends_list(const std::string& left) {
    if (left.size() < packet_header || !is_packet_header(left)) return false;
    trace("recv is 47 value and to break!\n");
    return true;
}

}  // namespace

std::string sock_apk::send_command_get_sms(const char* code, std::vector<SMS_RECORD>& messages) {
    if (second_wire_in_use()) {
        refusal_ = list_on_second_wire(messages);
        return {};
    }
    refusal_.clear();
    Record_Places places(largest_chunk, packet_header, record_or_header);
    const auto parse = [&messages](const std::string& bytes, int start) {
        return get_sms_data_to_stru_array(bytes, static_cast<int>(bytes.size()), 1, messages, start,
                                          0);
    };
    return fetch_list(code, places, parse, ends_list, messages);
}

std::string sock_apk::get_sms_data_to_stru_array(const std::string& data, int length, int /*first*/,
                                                 std::vector<SMS_RECORD>& messages, int start,
                                                 int /*second_offset*/) {
    const std::string_view bytes = bytes_at(data, 0, static_cast<std::size_t>(length));
    for (auto place = static_cast<std::size_t>(start); place < bytes.size();) {
        const std::string_view rest = bytes.substr(place);
        if (rest.size() < code_bytes) return std::string(rest);
        if (is_packet_header(rest)) {
            if (rest.size() == packet_header) return std::string(rest);
            place += packet_header;
            continue;
        }
        const Lengths texts(rest);
        if (texts.record() > rest.size()) return std::string(rest);
        messages.push_back(one_sms(std::string(rest.substr(0, texts.record())),
                                   static_cast<int>(texts.tel), static_cast<int>(texts.text),
                                   static_cast<int>(texts.date), static_cast<int>(texts.record())));
        place += texts.record();
    }
    return {};
}

sock_apk::SMS_RECORD sock_apk::one_sms(const std::string& record, int L1, int L2, int L3,
                                       int length) {
    const std::string_view bytes = bytes_at(record, 0, static_cast<std::size_t>(length));
    std::size_t place = 0;
    const auto next = [&](int count) {
        const std::string_view field = bytes_at(bytes, place, static_cast<std::size_t>(count));
        place += static_cast<std::size_t>(count);
        return field;
    };
    const auto text = [&](int count) { return next(4), std::string(next(count)); };
    const auto number = [](int value) { return format("%d", value); };
    SMS_RECORD sms;
    sms.TEL = text(L1);
    sms.TEXT = text(L2);
    sms.DATE = text(L3);
    sms.TYPE = number(for_java_char2_to_int(next(2)));
    sms.ID = number(for_java_char4_to_int(next(4)));
    sms.threadID = number(for_java_char4_to_int(next(4)));
    sms.read = number(for_java_char2_to_int(next(2)));
    trace("TEL='%s',TEXT='%s',DATE='%s',TYPE=%s,ID=%s,threadID=%s,read=%s\n", sms.TEL.c_str(),
          sms.TEXT.c_str(), sms.DATE.c_str(), sms.TYPE.c_str(), sms.ID.c_str(),
          sms.threadID.c_str(), sms.read.c_str());
    return sms;
}

std::string sock_apk::get_del_sms_command(const char* ID, const char* threadID, int variant) {
    const std::string values = for_int_to_java_char4(ID) + for_int_to_java_char4(threadID);
    return code_delete + std::string(1, '\0') + static_cast<char>(values.size()) + values +
           static_cast<char>(variant) + std::string(2, '\0');
}

bool sock_apk::del_one_sms(const char* ID, const char* threadID) {
    if (second_wire_in_use()) return true;
    return is_answered(get_del_sms_command(ID, threadID, variant_usual));
}

bool sock_apk::del_one_sms_for_NoS4(const char* ID, const char* threadID) {
    if (second_wire_in_use()) return true;
    return is_answered(get_del_sms_command(ID, threadID, variant_no_s4));
}

bool sock_apk::del_one_sms_for_ver2(const char* ID, const char* threadID) {
    if (second_wire_in_use()) return is_done(delete_message(ID, threadID));
    return is_answered(get_del_sms_command(ID, threadID, variant_version_2));
}

std::string sock_apk::get_send_sms_command(const char* text, const char* number) {
    trace("len_tel_sms:%s\ntel number:%s\n", text, number);
    return edit_request(code_send, std::string(number) + "*|" + text);
}

std::string sock_apk::send_sms(const char* text, const char* number) {
    refusal_.clear();
    if (second_wire_in_use()) return is_done(send_message(number, text)) ? "1" : "";
    const std::string reply = send_command(get_send_sms_command(text, number));
    trace("execute_rs len=%d\n", static_cast<int>(reply.size()));
    return reply;
}

}  // namespace velk
