// A phone without sockets, and a reader of its replies that was written apart from their writer.
#pragma once

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "demo_phone/agent_link.h"
#include "demo_phone/demo_data.h"
#include "demo_phone/demo_phone.h"

namespace velk {

/// A byte string from a literal that holds zeros.
template <std::size_t size>
std::string raw(const char (&literal)[size]) {
    return std::string(literal, size - 1);
}

struct Test_Phone {
    std::unique_ptr<Phone_Storage> storage = Phone_Storage::open("");
    Phone_Log log;
    Demo_Phone phone{{}, *storage, log};

    std::string ask(std::string_view request) { return answer_request(phone, request).bytes; }
    std::string ask(int code) { return ask(std::string(1, static_cast<char>(code))); }
};

/// Reads fields one after the other; a reply that is shorter than it says fails the test.
struct Field_Reader {
    std::string bytes;
    std::size_t position = 0;

    std::string take(std::size_t count) {
        if (position + count > bytes.size()) throw std::out_of_range("reply ends early");
        position += count;
        return bytes.substr(position - count, count);
    }
    unsigned number(std::size_t width) {
        unsigned value = 0;
        for (const char byte : take(width)) value = value * 256 + static_cast<unsigned char>(byte);
        return value;
    }
    std::string text() { return take(number(4)); }
    bool at_end() const { return position == bytes.size(); }
};

/// The records of a list by a form: 't' a text, '4' and '2' numbers of so many bytes.
inline std::vector<std::vector<std::string>> read_records(Field_Reader& reader, std::size_t end,
                                                          std::string_view form) {
    std::vector<std::vector<std::string>> records;
    while (reader.position < end) {
        auto& record = records.emplace_back();
        for (const char kind : form)
            record.push_back(kind == 't' ? reader.text()
                                         : std::to_string(reader.number(kind == '4' ? 4 : 2)));
    }
    return records;
}

/// A list in one reply, whose header must give its length.
inline std::vector<std::vector<std::string>> read_list(const std::string& reply,
                                                       std::string_view form) {
    Field_Reader reader{reply};
    reader.take(2);
    if (reader.number(4) + 6 != reply.size()) throw std::out_of_range("wrong length in the header");
    reader.take(1);
    return read_records(reader, reply.size(), form);
}

/// The packets of a message list with the number of records in each; the last must be bare.
inline std::vector<std::vector<std::string>> read_messages(const std::string& reply,
                                                           std::vector<std::size_t>& packets) {
    std::vector<std::vector<std::string>> all;
    Field_Reader reader{reply};
    for (;;) {
        if (reader.take(4) != raw("\0/\0\0")) throw std::out_of_range("no packet header");
        const std::size_t end = reader.position + 2 + reader.number(2);
        reader.take(1);
        const auto records = read_records(reader, end, "ttt2442");
        if (records.empty() && reader.at_end()) return all;
        packets.push_back(records.size());
        all.insert(all.end(), records.begin(), records.end());
    }
}

}  // namespace velk
