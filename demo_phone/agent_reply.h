// Replies of the agent on the first wire, as bytes. Of each id they carry the low 32 bits.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "demo_phone/agent_request.h"
#include "demo_phone/phone_store.h"

namespace velk {

/// A value as text: header, its length in four bytes, the value from byte 10 on. Values are short:
/// the reader takes the length from its last byte alone, as a signed number.
std::string value_reply(Agent_Code code, std::string_view value);

/// The level is the last byte.
std::string battery_reply(int level);

/// The number of the new contact, behind the header.
std::string contact_id_reply(std::int64_t id);

/// What an edit that was done is answered with; any byte would do.
std::string done_reply(Agent_Code code);

/// One reply with all records behind its header.
std::string contact_list(const Phone_Store::Contacts& contacts);
std::string app_list(const std::vector<Phone_App>& apps);
std::string media_list(Media_Kind kind, const std::vector<Phone_Media>& media);

/// Packets of at most `per_packet` messages with a header each, then a bare header as the end.
std::string message_list(const Phone_Store::Messages& messages, std::size_t per_packet);

}  // namespace velk
