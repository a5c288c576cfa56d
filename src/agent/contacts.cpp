// The phone's contacts: list, add, modify, delete.
#include <cstring>

#include "agent/bytes.h"
#include "agent/channel.h"
#include "agent/contact_replies.h"
#include "agent/edit_request.h"
#include "agent/second_wire_edits.h"
#include "agent/second_wire_lists.h"
#include "agent/sock_apk.h"
#include "agent/wire_choice.h"
#include "base/text.h"
#include "base/trace.h"

namespace velk {

namespace {

constexpr std::size_t reply_header = 7;  // bytes in front of a reply's content

constexpr char code_add = '5';
constexpr char code_delete = 'z';
constexpr char code_modify = '{';

/// A reply to an add as the first wire brings it.
std::string add_reply_with(const std::string& id) {
    return std::string(reply_header + 3, '\0') + static_cast<char>(id.size()) + id;
}

}  // namespace

std::string sock_apk::send_command_get_contatcts_array(const char* code,
                                                       std::vector<CONTACT>& contacts,
                                                       bool* too_long) {
    if (too_long != nullptr) *too_long = false;
    if (second_wire_in_use()) {
        refusal_ = list_on_second_wire(contacts);
        return {};
    }
    refusal_.clear();
    Channel agent;
    if (!agent.connected()) return {};
    agent.send_code(code);
    Contact_Replies replies;
    Chunk_Source chunks(agent, replies);
    std::string chunk;
    for (;;) {
        const int count = chunks.next(chunk);
        trace("Receive data length '%d' :\n", count);
        trace("Return_string_lenth length '%d' :\n", static_cast<int>(chunk.size()));
        if (chunk.size() < smallest_chunk) break;
        get_contacts_data_to_stru_array(chunk, count, 1, contacts);
    }
    if (too_long != nullptr) *too_long = replies.too_long();
    return chunk;
}

std::string sock_apk::send_command_get_contatcts(const char* code) {
    std::vector<CONTACT> contacts;
    std::string rest = send_command_get_contatcts_array(code, contacts);
    for (const CONTACT& contact : contacts)
        trace("ID='%s',name='%s',tel='%s'\n", contact.ID.c_str(), contact.name.c_str(),
              contact.tel.c_str());
    return rest;
}

void sock_apk::get_contacts_data_to_stru_array(const std::string& chunk, int length,
                                               int /*first_chunk*/,
                                               std::vector<CONTACT>& contacts) {
    const std::string_view bytes = bytes_at(chunk, 0, static_cast<std::size_t>(length));
    if (!passes_as_reply(bytes)) return;
    std::size_t start = reply_header;
    while (start < bytes.size()) {
        const std::size_t behind_id = behind_text(bytes, start);
        const std::size_t behind_name = behind_text(bytes, behind_id);
        const std::size_t end = behind_text(bytes, behind_name);
        const std::string_view record = bytes_at(bytes, start, end - start);
        contacts.push_back(one_contact(std::string(record), static_cast<int>(behind_id - start - 4),
                                       static_cast<int>(behind_name - behind_id - 4),
                                       static_cast<int>(end - behind_name - 4),
                                       static_cast<int>(end - start)));
        start = end;
    }
}

sock_apk::CONTACT sock_apk::one_contact(const std::string& record, int L1, int L2, int L3,
                                        int length) {
    const std::string_view bytes = bytes_at(record, 0, static_cast<std::size_t>(length));
    const auto cut = [bytes](int at, int count) {
        return std::string(
            bytes_at(bytes, static_cast<std::size_t>(at), static_cast<std::size_t>(count)));
    };
    CONTACT contact;
    // More than the fields hold: what is used of both ends at the first NUL, with which the length
    // behind each begins.
    contact.ID = cut(4, L1 + 3);
    contact.name = cut(L1 + 8, L1 + L2 + 7);
    if (L3 == 0) return contact;
    contact.tel = cut(L1 + L2 + 12, bytes.ends_with('|') ? L3 - 1 : L3);
    return contact;
}

std::string sock_apk::get_add_contact_command(const char* name, const char* tel) {
    return edit_request(code_add, std::string(name) + "*" + tel + "*|");
}

std::string sock_apk::get_modify_contact_command(const char* name, const char* tel,
                                                 const char* ID) {
    return edit_request(code_modify, std::strlen(name),
                        name + for_java_int(ID) + one_byte_length(std::strlen(tel)) + tel);
}

std::string sock_apk::get_del_contact_command(const char* ID) {
    return edit_request(code_delete, std::string(ID) + "|");
}

std::string sock_apk::add_one_contact(const char* name, const char* tel) {
    refusal_.clear();
    if (!second_wire_in_use()) return send_command(get_add_contact_command(name, tel));
    const Edit_Result added = add_contact(name, tel);
    return is_done(added) ? add_reply_with(added.id) : "";
}

std::string sock_apk::get_contact_id(const std::string& add_reply) {
    const std::string id(bytes_at(add_reply, reply_header + 4, length_at(add_reply, reply_header)));
    if (id.empty())
        trace("Add failed!");
    else
        trace("Add '%s' successfully!", id.c_str());
    return id;
}

bool sock_apk::modify_one_contact(const char* name, const char* tel, const char* ID) {
    if (second_wire_in_use()) return is_done(change_contact(ID, name, tel));
    return is_answered(get_modify_contact_command(name, tel, ID));
}

bool sock_apk::del_one_contact(const char* ID) {
    if (second_wire_in_use()) return is_done(delete_contact(ID));
    return is_answered(get_del_contact_command(ID));
}

}  // namespace velk
