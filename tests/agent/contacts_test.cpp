#include <gtest/gtest.h>

#include <random>

#include "agent/sock_apk.h"
#include "base/text.h"

namespace velk {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using CONTACT = sock_apk::CONTACT;

std::string number(std::size_t value) {
    return {'\0', '\0', static_cast<char>(value >> 8), static_cast<char>(value)};
}

std::string record(const std::string& id, const std::string& name, const std::string& tel) {
    return number(id.size()) + id + number(name.size()) + name + number(tel.size()) + tel;
}

/// A chunk that tells its own length, whatever is in it.
std::string chunk_of(const std::string& records) {
    return "\0\x0e"s + number(records.size() + 1) + "\0"s + records;
}

/// The contacts as their readers see them: "id|name|tel".
std::vector<std::string> parsed(const std::string& chunk) {
    std::vector<CONTACT> contacts;
    sock_apk::get_contacts_data_to_stru_array(chunk, static_cast<int>(chunk.size()), 1, contacts);
    std::vector<std::string> texts;
    for (const CONTACT& each : contacts)
        texts.push_back(until_nul(each.ID) + "|" + until_nul(each.name) + "|" + each.tel);
    return texts;
}

TEST(Contacts, AChunkCountsOnlyWhenItsLengthIsItsOwnAndTextsEndWhereTheirReadersStop) {
    const std::string long_name(256, 'n');
    const std::string too_short = "\0\x0e\0\0\0\x12\0"s + record("7", "Ann", "55");
    const struct {
        const char* what;
        std::string chunk;
        std::vector<std::string> expected;
    } cases[] = {
        {"a length that lies", too_short, {}},
        {"nothing", "", {}},
        {"bar behind the number", chunk_of(record("7", "Ann", "555|")), {"7|Ann|555"}},
        {"no bar", chunk_of(record("7", "Ann", "555")), {"7|Ann|555"}},
        {"only a bar", chunk_of(record("7", "Ann", "|")), {"7|Ann|"}},
        {"nothing at all", chunk_of(record("", "", "")), {"||"}},
        {"two", chunk_of(record("1", "A", "2|") + record("3", "B", "")), {"1|A|2", "3|B|"}},
        {"a text of 256 bytes", chunk_of(record("1", long_name, "2")), {"1|" + long_name + "|2"}},
    };
    for (const auto& each : cases) EXPECT_EQ(parsed(each.chunk), each.expected) << each.what;
}

TEST(Contacts, IdAndNameCarryTheBytesBehindThem) {
    const CONTACT contact = sock_apk::one_contact(record("7", "Ann", "555|"), 1, 3, 4, 20);
    EXPECT_EQ(contact.ID, "7\0\0\0"s);
    EXPECT_EQ(contact.name, "Ann\0\0\0\x04"s + "555|");
    EXPECT_EQ(contact.tel, "555");
}

TEST(Contacts, DamagedBytesAreReadWithinTheirBounds) {
    for (unsigned seed = 0; seed < 2000; ++seed) {
        std::mt19937 random(seed);
        std::string records = record("1", "Ann", "2|") + record("3", "Bob", "4|");
        for (int i = 0; i < 3; ++i)
            records[random() % records.size()] = static_cast<char>(random());
        const std::string chunk = chunk_of(records.substr(0, random() % records.size()));
        EXPECT_LE(parsed(chunk).size(), 4U);
        sock_apk::get_contact_id(chunk);
    }
    // A length that is told wrong by the caller is no way out of the bytes either.
    std::vector<CONTACT> contacts;
    sock_apk::get_contacts_data_to_stru_array(chunk_of(record("1", "A", "2")), 5000, 1, contacts);
    sock_apk::one_contact("\0\0", 60000, 60000, 60000, 180012);
}

TEST(Contacts, TheNewIdIsReadAndTraced) {
    const struct {
        std::string reply;
        const char *id, *trace;
    } cases[] = {
        {std::string(7, 'h') + number(3) + "104", "104", "Add '104' successfully!"},
        {std::string(7, 'h') + number(9) + "104", "104", "Add '104' successfully!"},
        {std::string(7, 'h') + "\0\0"s, "", "Add failed!"},
        {"", "", "Add failed!"},
    };
    for (const auto& each : cases) {
        testing::internal::CaptureStdout();
        EXPECT_EQ(sock_apk::get_contact_id(each.reply), each.id);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), each.trace);
    }
}

}  // namespace
}  // namespace velk
