// What the phone knows: contacts, messages, media, books and applications. It changes as a phone's
// does.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "demo_phone/record_list.h"

namespace velk {

struct Phone_Contact {
    std::int64_t id = 0;
    std::string name;
    std::string tel;
};

/// Bytes of a message's text that the phone takes.
inline constexpr std::size_t g_longest_message = 5000;

struct Phone_Message {
    std::int64_t id = 0;
    std::int64_t thread = 0;
    std::string tel;
    std::string text;
    std::string date;  // local time, as the agent shows it
    int type = 1;      // 1 received, 2 sent
    bool read = true;
};

enum class Media_Kind { music, video, photo, book };

struct Phone_Media {
    Media_Kind kind = Media_Kind::music;
    std::int64_t id = 0;
    std::string path;
    std::string artist;
    std::string album;
    int duration = 0;  // milliseconds
    std::uint64_t size = 0;
    bool ring = false;
};

struct Phone_App {
    std::string name;
    std::string package;
    std::string version;
    std::string installed;  // a day
    std::uint64_t size = 0;
};

/// How the phone numbers what it holds.
struct Phone_Numbering {
    std::int64_t first_id = 0;  // is added to every number that the phone gives
    /// The first wire carries 16 bits of a number, and of a message's id and thread a byte each.
    /// For it there are 65,535 numbers of a kind, and no two messages share both bytes.
    bool for_first_wire = true;
};

/// Hands out the numbers from 1 to `last_number`, each to one holder at a time.
class Number_Pool {
  public:
    explicit Number_Pool(int last_number)
        : last_number_(last_number), taken_(static_cast<std::size_t>(last_number) + 1) {}

    /// The next free number, in a circle, that is acceptable to the caller.
    std::optional<int> take(const std::function<bool(int)>& is_acceptable = {});
    void give_back(int number) { taken_[static_cast<std::size_t>(number)] = false; }

  private:
    int last_number_;
    std::vector<bool> taken_;
    int latest_ = 0;
};

class Phone_Store {
  public:
    using Contacts = Record_List<Phone_Contact, List_Order::oldest_first>;
    using Messages = Record_List<Phone_Message, List_Order::newest_first>;

    explicit Phone_Store(Phone_Numbering numbering = {});

    const Contacts& contacts() const { return contacts_; }
    const Messages& messages() const { return messages_; }
    const std::vector<Phone_App>& apps() const { return apps_; }
    /// By path.
    std::vector<Phone_Media> media(Media_Kind kind) const;
    /// The first of the kind whose path comes behind `path`; null at the end.
    const Phone_Media* next_media(Media_Kind kind, std::string_view path) const;
    std::size_t count(Media_Kind kind) const;

    /// The id whose low 32 bits these are.
    std::int64_t whole_id(std::uint32_t low_bits) const;

    /// The id of the new contact; nothing when there are no numbers left.
    std::optional<std::int64_t> add_contact(const std::string& name, const std::string& tel);
    bool modify_contact(std::int64_t id, const std::string& name, const std::string& tel);
    bool delete_contact(std::int64_t id);
    void delete_all_contacts();

    /// Puts a message on top of the list, into the conversation with its number; its own id and
    /// thread are chosen here. False when there are no numbers left.
    bool add_message(Phone_Message message);
    bool delete_message(std::int64_t id);
    /// Deletes the one message whose id and thread end in these bytes. Gives the number of messages
    /// that they fit: where it is more than one, all of them stay.
    std::size_t delete_message_by_bytes(int id_low_byte, int thread_low_byte);
    void delete_all_messages();

    /// Enters a file, or updates the entry of the same path; its id is chosen here.
    bool add_media(Phone_Media media);
    const Phone_Media* find_media(std::string_view path) const;
    bool delete_media(Media_Kind kind, std::string_view path);

    /// An application of the same package is replaced.
    void install(Phone_App app);
    bool uninstall(std::string_view package);

  private:
    std::int64_t thread_of(const std::string& tel);
    std::vector<bool>::reference pair(std::int64_t id, std::int64_t thread);
    bool full(std::int64_t thread);
    void forget(const Phone_Message& message);
    int number_of(std::int64_t id) const { return static_cast<int>(id - numbering_.first_id); }

    Phone_Numbering numbering_;
    Contacts contacts_;
    Messages messages_;
    std::map<std::string, Phone_Media, std::less<>> media_;  // by path
    std::vector<Phone_App> apps_;
    std::map<std::string, std::int64_t> threads_;  // by the other party's number
    std::vector<bool> taken_pairs_ = std::vector<bool>(std::size_t{256} * 256);
    Number_Pool contact_ids_;
    Number_Pool message_ids_;
    Number_Pool media_ids_;
};

}  // namespace velk
