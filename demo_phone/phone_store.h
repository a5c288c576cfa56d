// What the phone knows: contacts, messages, media, books and applications. It changes as a
// phone's does, and all numbers it gives stay below 65,536, which is all that a reply carries.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velk {

struct Phone_Contact {
    int id = 0;
    std::string name;
    std::string tel;
};

/// Bytes of a message's text that the phone takes.
inline constexpr std::size_t g_longest_message = 5000;

struct Phone_Message {
    int id = 0;
    int thread = 0;
    std::string tel;
    std::string text;
    std::string date;  // as the agent shows it
    int type = 1;      // 1 received, 2 sent
    bool read = true;
};

enum class Media_Kind { music, video, photo, book };

struct Phone_Media {
    Media_Kind kind = Media_Kind::music;
    int id = 0;
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

/// Hands out the numbers 1 to 65,535, each to one holder at a time.
class Number_Pool {
  public:
    static constexpr int last_number = 65535;

    /// The next free number, in a circle, that also pleases the caller.
    std::optional<int> take(const std::function<bool(int)>& pleases = {});
    void give_back(int number) { taken_[static_cast<std::size_t>(number)] = false; }

  private:
    std::vector<bool> taken_ = std::vector<bool>(last_number + 1);
    int latest_ = 0;
};

class Phone_Store {
  public:
    const std::vector<Phone_Contact>& contacts() const { return contacts_; }
    /// Newest first.
    const std::deque<Phone_Message>& messages() const { return messages_; }
    const std::vector<Phone_App>& apps() const { return apps_; }
    /// By path.
    std::vector<Phone_Media> media(Media_Kind kind) const;
    std::size_t count(Media_Kind kind) const;

    /// The number of the new contact; nothing when there are no numbers left.
    std::optional<int> add_contact(const std::string& name, const std::string& tel);
    bool modify_contact(int id, const std::string& name, const std::string& tel);
    bool delete_contact(int id);
    void delete_all_contacts();

    /// Puts a message on top of the list, into the conversation with its number; its own id and
    /// thread are chosen here. A delete names only the low bytes of the two, so no two messages
    /// share that pair. False when no pair is left.
    bool add_message(Phone_Message message);
    bool delete_message(int id_low_byte, int thread_low_byte);
    void delete_all_messages();

    /// Enters a file, or updates the entry of the same path; its id is chosen here.
    bool add_media(Phone_Media media);
    const Phone_Media* find_media(std::string_view path) const;
    bool delete_media(Media_Kind kind, std::string_view path);

    /// An application of the same package is replaced.
    void install(Phone_App app);
    bool uninstall(std::string_view package);

  private:
    int thread_of(const std::string& tel);
    std::vector<bool>::reference pair(int id, int thread);
    bool full(int thread);
    void forget(const Phone_Message& message);

    std::vector<Phone_Contact> contacts_;
    std::deque<Phone_Message> messages_;
    std::map<std::string, Phone_Media, std::less<>> media_;  // by path
    std::vector<Phone_App> apps_;
    std::map<std::string, int> threads_;  // by the other party's number
    std::vector<bool> taken_pairs_ = std::vector<bool>(std::size_t{256} * 256);
    Number_Pool contact_ids_;
    Number_Pool message_ids_;
    Number_Pool media_ids_;
};

}  // namespace velk
