#include "demo_phone/phone_store.h"

#include <algorithm>
#include <utility>

namespace velk {

namespace {

std::size_t low_byte(int number) {
    return static_cast<std::size_t>(number) & 0xFF;
}

}  // namespace

std::optional<int> Number_Pool::take(const std::function<bool(int)>& pleases) {
    for (int i = 0; i < last_number; ++i) {
        const int number = (latest_ + i) % last_number + 1;
        if (taken_[static_cast<std::size_t>(number)] || (pleases && !pleases(number))) continue;
        taken_[static_cast<std::size_t>(number)] = true;
        return latest_ = number;
    }
    return std::nullopt;
}

std::optional<int> Phone_Store::add_contact(const std::string& name, const std::string& tel) {
    const auto id = contact_ids_.take();
    if (id) contacts_.push_back({*id, name, tel});
    return id;
}

bool Phone_Store::modify_contact(int id, const std::string& name, const std::string& tel) {
    for (Phone_Contact& contact : contacts_) {
        if (contact.id != id) continue;
        contact.name = name;
        contact.tel = tel;
        return true;
    }
    return false;
}

bool Phone_Store::delete_contact(int id) {
    const auto gone =
        std::erase_if(contacts_, [id](const Phone_Contact& contact) { return contact.id == id; });
    if (gone) contact_ids_.give_back(id);
    return gone != 0;
}

void Phone_Store::delete_all_contacts() {
    for (const Phone_Contact& contact : contacts_) contact_ids_.give_back(contact.id);
    contacts_.clear();
}

int Phone_Store::thread_of(const std::string& tel) {
    const int next = static_cast<int>(threads_.size()) % Number_Pool::last_number + 1;
    return threads_.emplace(tel, next).first->second;
}

std::vector<bool>::reference Phone_Store::pair(int id, int thread) {
    return taken_pairs_[low_byte(id) * 256 + low_byte(thread)];
}

bool Phone_Store::add_message(Phone_Message message) {
    message.thread = thread_of(message.tel);
    if (full(message.thread)) return false;
    const auto id = message_ids_.take([&](int number) { return !pair(number, message.thread); });
    if (!id) return false;
    message.id = *id;
    pair(message.id, message.thread) = true;
    messages_.push_front(std::move(message));
    return true;
}

bool Phone_Store::full(int thread) {
    for (int id = 0; id < 256; ++id)
        if (!pair(id, thread)) return false;
    return true;
}

void Phone_Store::forget(const Phone_Message& message) {
    pair(message.id, message.thread) = false;
    message_ids_.give_back(message.id);
}

bool Phone_Store::delete_message(int id_low_byte, int thread_low_byte) {
    const auto found = std::find_if(messages_.begin(), messages_.end(), [&](const auto& message) {
        return low_byte(message.id) == low_byte(id_low_byte) &&
               low_byte(message.thread) == low_byte(thread_low_byte);
    });
    if (found == messages_.end()) return false;
    forget(*found);
    messages_.erase(found);
    return true;
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

std::size_t Phone_Store::count(Media_Kind kind) const {
    return static_cast<std::size_t>(
        std::count_if(media_.begin(), media_.end(),
                      [kind](const auto& entry) { return entry.second.kind == kind; }));
}

bool Phone_Store::add_media(Phone_Media media) {
    const auto known = media_.find(media.path);
    const std::optional<int> id = known != media_.end() ? known->second.id : media_ids_.take();
    if (!id) return false;
    media.id = *id;
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
    media_ids_.give_back(found->second.id);
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
