#include "demo_phone/phone_store.h"

#include <algorithm>
#include <utility>

namespace velk {

namespace {

std::size_t low_byte(std::int64_t number) {
    return static_cast<std::size_t>(number) & 0xFF;
}

int last_number(const Phone_Numbering& numbering) {
    return numbering.for_first_wire ? 65535 : 1000000;
}

}  // namespace

std::optional<int> Number_Pool::take(const std::function<bool(int)>& is_acceptable) {
    for (int i = 0; i < last_number_; ++i) {
        const int number = (latest_ + i) % last_number_ + 1;
        if (taken_[static_cast<std::size_t>(number)] || (is_acceptable && !is_acceptable(number)))
            continue;
        taken_[static_cast<std::size_t>(number)] = true;
        return latest_ = number;
    }
    return std::nullopt;
}

Phone_Store::Phone_Store(Phone_Numbering numbering)
    : numbering_(numbering),
      contact_ids_(last_number(numbering)),
      message_ids_(last_number(numbering)),
      media_ids_(last_number(numbering)) {}

std::int64_t Phone_Store::whole_id(std::uint32_t low_bits) const {
    // All ids are close above the first one, so the distance to it fits into 32 bits.
    const auto first = static_cast<std::uint32_t>(numbering_.first_id);
    return numbering_.first_id + static_cast<std::uint32_t>(low_bits - first);
}

std::optional<std::int64_t> Phone_Store::add_contact(const std::string& name,
                                                     const std::string& tel) {
    const auto number = contact_ids_.take();
    if (!number) return std::nullopt;
    const std::int64_t id = numbering_.first_id + *number;
    contacts_.add({id, name, tel});
    return id;
}

bool Phone_Store::modify_contact(std::int64_t id, const std::string& name, const std::string& tel) {
    Phone_Contact* contact = contacts_.find(id);
    if (!contact) return false;
    contact->name = name;
    contact->tel = tel;
    return true;
}

bool Phone_Store::delete_contact(std::int64_t id) {
    if (!contacts_.erase(id)) return false;
    contact_ids_.give_back(number_of(id));
    return true;
}

void Phone_Store::delete_all_contacts() {
    for (const Phone_Contact& contact : contacts_) contact_ids_.give_back(number_of(contact.id));
    contacts_.clear();
}

std::int64_t Phone_Store::thread_of(const std::string& tel) {
    const auto known = static_cast<std::int64_t>(threads_.size());
    const std::int64_t next = numbering_.first_id + known % last_number(numbering_) + 1;
    return threads_.emplace(tel, next).first->second;
}

std::vector<bool>::reference Phone_Store::pair(std::int64_t id, std::int64_t thread) {
    return taken_pairs_[low_byte(id) * 256 + low_byte(thread)];
}

bool Phone_Store::add_message(Phone_Message message) {
    message.thread = thread_of(message.tel);
    if (numbering_.for_first_wire && full(message.thread)) return false;
    const auto number = message_ids_.take([&](int candidate) {
        return !numbering_.for_first_wire || !pair(numbering_.first_id + candidate, message.thread);
    });
    if (!number) return false;
    message.id = numbering_.first_id + *number;
    pair(message.id, message.thread) = true;
    messages_.add(std::move(message));
    return true;
}

bool Phone_Store::full(std::int64_t thread) {
    for (int id = 0; id < 256; ++id)
        if (!pair(id, thread)) return false;
    return true;
}

void Phone_Store::forget(const Phone_Message& message) {
    pair(message.id, message.thread) = false;
    message_ids_.give_back(number_of(message.id));
}

bool Phone_Store::delete_message(std::int64_t id) {
    const Phone_Message* message = messages_.find(id);
    if (!message) return false;
    forget(*message);
    return messages_.erase(id);
}

std::size_t Phone_Store::delete_message_by_bytes(int id_low_byte, int thread_low_byte) {
    std::size_t fitting = 0;
    std::int64_t found = 0;
    for (const Phone_Message& message : messages_) {
        if (low_byte(message.id) != low_byte(id_low_byte) ||
            low_byte(message.thread) != low_byte(thread_low_byte))
            continue;
        ++fitting;
        found = message.id;
    }
    if (fitting == 1) delete_message(found);
    return fitting;
}

void Phone_Store::delete_all_messages() {
    for (const Phone_Message& message : messages_) forget(message);
    messages_.clear();
}

std::vector<Phone_Media> Phone_Store::media(Media_Kind kind) const {
    std::vector<Phone_Media> found;
    for (const auto& [path, media] : media_)
        if (media.kind == kind) found.push_back(media);
    return found;
}

const Phone_Media* Phone_Store::next_media(Media_Kind kind, std::string_view path) const {
    for (auto entry = media_.upper_bound(path); entry != media_.end(); ++entry)
        if (entry->second.kind == kind) return &entry->second;
    return nullptr;
}

std::size_t Phone_Store::count(Media_Kind kind) const {
    return static_cast<std::size_t>(
        std::count_if(media_.begin(), media_.end(),
                      [kind](const auto& entry) { return entry.second.kind == kind; }));
}

bool Phone_Store::add_media(Phone_Media media) {
    if (const Phone_Media* known = find_media(media.path)) {
        media.id = known->id;
    } else {
        const auto number = media_ids_.take();
        if (!number) return false;
        media.id = numbering_.first_id + *number;
    }
    std::string path = media.path;
    media_.insert_or_assign(std::move(path), std::move(media));
    return true;
}

const Phone_Media* Phone_Store::find_media(std::string_view path) const {
    const auto found = media_.find(path);
    return found == media_.end() ? nullptr : &found->second;
}

bool Phone_Store::delete_media(Media_Kind kind, std::string_view path) {
    const auto found = media_.find(path);
    if (found == media_.end() || found->second.kind != kind) return false;
    media_ids_.give_back(number_of(found->second.id));
    media_.erase(found);
    return true;
}

void Phone_Store::install(Phone_App app) {
    uninstall(app.package);
    apps_.push_back(std::move(app));
}

bool Phone_Store::uninstall(std::string_view package) {
    return std::erase_if(apps_, [&](const Phone_App& app) { return app.package == package; }) != 0;
}

}  // namespace velk
