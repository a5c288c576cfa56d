// Changes of the phone on the second wire, one item in each request.
#pragma once

#include <string>

namespace velk {

/// What became of one item.
struct Edit_Result {
    bool done = false;
    std::string id;      // that the phone gave an added contact
    std::string reason;  // why it was not done; a short sentence for a person
};

// Workers; each blocks until the phone has answered.

Edit_Result add_contact(const std::string& name, const std::string& number);
Edit_Result change_contact(const std::string& id, const std::string& name,
                           const std::string& number);
Edit_Result delete_contact(const std::string& id);
Edit_Result delete_all_contacts();

Edit_Result delete_message(const std::string& id, const std::string& thread);
/// Done when the phone has sent it.
Edit_Result send_message(const std::string& number, const std::string& text);

/// `path` is where the file came from; the phone finds it by its name.
Edit_Result add_file(const std::string& path);
/// `kind` is "music", "videos", "photos" or "books"; a book has no id.
Edit_Result delete_file(const char* kind, const std::string& id, const std::string& path);

}  // namespace velk
