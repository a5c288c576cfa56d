// Changes of the phone that the agent makes in the same way on both of its wires.
#pragma once

#include <string>
#include <string_view>

#include "demo_phone/phone_storage.h"
#include "demo_phone/phone_store.h"

namespace velk {

/// Enters the message as sent now. False when the number is empty, the text is too long or the
/// phone has no room for it.
bool send_message(Phone_Store& store, const std::string& tel, const std::string& text);

/// Deletes a file and its entry in the catalogue; false when there is no such entry.
bool delete_file(Phone_Store& store, Phone_Storage& storage, Media_Kind kind,
                 const std::string& path);

}  // namespace velk
