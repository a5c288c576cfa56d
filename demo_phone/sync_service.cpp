#include "demo_phone/sync_service.h"

#include "demo_phone/bytes.h"

namespace velk {

namespace {

constexpr std::size_t header_length = 8;
constexpr std::size_t largest_data = 65536;  // of one DATA block
constexpr std::size_t longest_path = 4096;

std::string block(std::string_view letters, std::string_view data) {
    std::string out(letters);
    append_little(out, data.size());
    return out.append(data);
}

std::string facts_block(std::string_view letters, const Phone_File& file) {
    std::string out(letters);
    append_little(out, file.mode);
    append_little(out, file.size);
    append_little(out, file.time);
    return out;
}

/// The later form: error, device, inode, mode, links, user, group, size and three times.
std::string long_facts_block(std::string_view letters, const Phone_File& file) {
    constexpr std::uint32_t no_such_file = 2;
    std::string out(letters);
    append_little(out, file.mode == 0 ? no_such_file : 0);
    append_little(out, 0, 8);
    append_little(out, 0, 8);
    append_little(out, file.mode);
    append_little(out, file.mode == 0 ? 0 : 1);
    append_little(out, 0);
    append_little(out, 0);
    append_little(out, file.size, 8);
    for (int i = 0; i < 3; ++i) append_little(out, file.time, 8);
    return out;
}

}  // namespace

void Sync_Service::received(std::string_view bytes, Phone_Outlet& outlet) {
    buffer_ += bytes;
    while (step_ != Step::sending) {
        const bool more = step_ == Step::request ? take_request(outlet) : take_data(outlet);
        if (!more) return;
    }
}

bool Sync_Service::take_request(Phone_Outlet& outlet) {
    if (buffer_.size() < header_length) return false;
    const std::size_t length = little_at(buffer_, 4);
    if (length > longest_path) {
        refuse("path too long", outlet);
        outlet.finish();
        return false;
    }
    if (buffer_.size() < header_length + length) return false;
    const std::string letters = buffer_.substr(0, 4);
    const std::string path = buffer_.substr(header_length, length);
    buffer_.erase(0, header_length + length);
    phone_.log.line("sync", letters + " " + path);
    answer(letters, path, outlet);
    return true;
}

void Sync_Service::answer(std::string_view letters, const std::string& path, Phone_Outlet& outlet) {
    if (letters == "STAT") {
        outlet.send(facts_block(letters, phone_.storage.facts(path)));
    } else if (letters == "STA2" || letters == "LST2") {
        outlet.send(long_facts_block(letters, phone_.storage.facts(path)));
    } else if (letters == "LIST") {
        list(path, outlet);
    } else if (letters == "SEND") {
        start_receiving(path, outlet);
    } else if (letters == "RECV") {
        start_sending(path, outlet);
    } else {
        if (letters != "QUIT") refuse("unknown command", outlet);
        outlet.finish();
    }
}

void Sync_Service::list(const std::string& path, Phone_Outlet& outlet) {
    std::string out;
    for (const Phone_File& file : phone_.storage.list(path)) {
        out += facts_block("DENT", file);
        append_little(out, file.name.size());
        out += file.name;
    }
    outlet.send(out + facts_block("DONE", {}) + std::string(4, '\0'));
}

void Sync_Service::refuse(std::string_view reason, Phone_Outlet& outlet) {
    outlet.send(block("FAIL", reason));
}

void Sync_Service::start_receiving(const std::string& target, Phone_Outlet& outlet) {
    // "path,mode": the mode is the phone's own business, and links are never made.
    target_ = plain_phone_path(target.substr(0, target.rfind(',')));
    step_ = Step::refusing;
    if (phone_.behaviour.storage_full) return refuse("No space left on device", outlet);
    const auto path = phone_.storage.real_path(target_);
    if (!path || !phone_.storage.make_folders(target_.substr(0, target_.rfind('/'))))
        return refuse("couldn't create file: Permission denied", outlet);
    if (phone_.storage.facts(target_).is_folder())
        return refuse("couldn't create file: Is a directory", outlet);
    incoming_.open(*path, std::ios::binary | std::ios::trunc);
    if (!incoming_) return refuse("couldn't create file: Permission denied", outlet);
    step_ = Step::receiving;
}

bool Sync_Service::take_data(Phone_Outlet& outlet) {
    if (buffer_.size() < header_length) return false;
    const std::string_view letters = std::string_view(buffer_).substr(0, 4);
    const std::uint32_t number = little_at(buffer_, 4);
    if (letters == "DONE") {
        buffer_.erase(0, header_length);
        end_receiving(number, outlet);
        return true;
    }
    if (letters != "DATA" || number > largest_data) {
        refuse("broken data", outlet);
        outlet.finish();
        return false;
    }
    if (buffer_.size() < header_length + number) return false;
    if (step_ == Step::receiving) incoming_.write(buffer_.data() + header_length, number);
    buffer_.erase(0, header_length + number);
    return true;
}

void Sync_Service::end_receiving(std::uint32_t time, Phone_Outlet& outlet) {
    const bool receiving = step_ == Step::receiving;
    step_ = Step::request;
    if (!receiving) return;  // refused before, and said so
    incoming_.close();
    const bool failed = incoming_.fail();
    incoming_.clear();
    if (failed) return refuse("write failed", outlet);
    phone_.storage.set_time(target_, time);
    outlet.send(block("OKAY", ""));
}

void Sync_Service::start_sending(const std::string& path, Phone_Outlet& outlet) {
    const Phone_File file = phone_.storage.facts(path);
    if (file.is_folder()) return refuse("read failed: Is a directory", outlet);
    const auto real = phone_.storage.real_path(path);
    if (!real || !file.is_file()) return refuse("No such file or directory", outlet);
    outgoing_.open(*real, std::ios::binary);
    if (!outgoing_) return refuse("Permission denied", outlet);
    step_ = Step::sending;
}

void Sync_Service::drained(Phone_Outlet& outlet) {
    if (step_ != Step::sending) return;
    std::string data(largest_data, '\0');
    outgoing_.read(data.data(), static_cast<std::streamsize>(data.size()));
    data.resize(static_cast<std::size_t>(outgoing_.gcount()));
    const bool last = data.size() < largest_data;
    std::string out = data.empty() ? "" : block("DATA", data);
    // The end travels with the last data: alone it would wait for the computer's delayed answer.
    outlet.send(last ? out + block("DONE", "") : out);
    if (!last) return;
    outgoing_.close();
    outgoing_.clear();
    step_ = Step::request;
    received("", outlet);
}

}  // namespace velk
