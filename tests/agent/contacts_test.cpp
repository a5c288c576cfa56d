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

TEST(Contacts, AChunkCountsOnlyWhenItsLengthIsItsOwn) {
    const std::string records = record("7", "Ann", "55");  // 18 bytes
    const std::string header = "\0\x0e\0\0\0"s;
    EXPECT_EQ(parsed(header + '\x13' + '\0' + records).size(), 1U);
    EXPECT_TRUE(parsed(header + '\x14' + '\0' + records).empty());
    EXPECT_TRUE(parsed(header + '\x12' + '\0' + records).empty());
    EXPECT_TRUE(parsed("").empty());
}

TEST(Contacts, TextsEndWhereTheirReadersStop) {
    const struct {
        const char* what;
        std::string records;
        std::vector<std::string> expected;
    } cases[] = {
        {"bar behind the number", record("7", "Ann", "555|"), {"7|Ann|555"}},
        {"no bar", record("7", "Ann", "555"), {"7|Ann|555"}},
        {"only a bar", record("7", "Ann", "|"), {"7|Ann|"}},
        {"no number", record("7", "Ann", ""), {"7|Ann|"}},
        {"nothing at all", record("", "", ""), {"||"}},
        {"UTF-8", record("12", "Zoë 李", "+4917|"), {"12|Zoë 李|+4917"}},
        {"two", record("1", "A", "2|") + record("3", "B", "4|"), {"1|A|2", "3|B|4"}},
        {"a text of 256 bytes",
         record("1", std::string(256, 'n'), "2"),
         {"1|" + std::string(256, 'n') + "|2"}},
    };
    for (const auto& each : cases)
        EXPECT_EQ(parsed(chunk_of(each.records)), each.expected) << each.what;
}

TEST(Contacts, IdAndNameCarryTheBytesBehindThem) {
    const CONTACT contact = sock_apk::one_contact(record("7", "Ann", "555|"), 1, 3, 4, 20);
    EXPECT_EQ(contact.ID, "7\0\0\0"s);
    EXPECT_EQ(contact.name, "Ann\0\0\0\x04"s + "555|");
    EXPECT_EQ(contact.tel, "555");
}

TEST(Contacts, AChunkCutAnywhereGivesTheContactsInFrontOfTheCutWhole) {
    std::string records;
    std::vector<std::string> whole;
    std::vector<std::size_t> ends;
    for (int i = 0; i < 4; ++i) {
        const std::string id = std::to_string(i), name(static_cast<std::size_t>(3 * i), 'n');
        records += record(id, name, "0123|");
        whole.push_back(id + "|" + name + "|0123");
        ends.push_back(records.size());
    }
    for (std::size_t cut = 0; cut < records.size(); ++cut) {
        const std::vector<std::string> contacts = parsed(chunk_of(records.substr(0, cut)));
        for (std::size_t i = 0; i < ends.size() && ends[i] <= cut; ++i) {
            ASSERT_GT(contacts.size(), i);
            EXPECT_EQ(contacts[i], whole[i]) << "cut at " << cut;
        }
        EXPECT_LE(contacts.size(), whole.size());
    }
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

/// The pieces one behind the other.
std::string joined(std::initializer_list<std::string_view> pieces) {
    std::string all;
    for (const std::string_view piece : pieces) all.append(piece);
    return all;
}

TEST(Contacts, EditRequestsHaveTheAgentsLayout) {
    EXPECT_EQ(sock_apk::get_add_contact_command("Bob", "12"),
              joined({"\x35\0\x0C\0\0\0\x08\0\0\0"sv, "Bob*12*|"}));
    EXPECT_EQ(sock_apk::get_del_contact_command("42"),
              joined({"\x7A\0\x07\0\0\0\x03\0\0\0"sv, "42|"}));
    EXPECT_EQ(sock_apk::get_modify_contact_command("Al", "9", "300"),
              joined({"\x7B\0\x0F\0\0\0\x02\0\0\0"sv, "Al", "\x2C\1\0\0"sv, "\1\0\0\0"sv, "9"}));
}

TEST(Contacts, LengthsOfLongTextsWrapAndTheTextStillGoesOut) {
    const std::string name(130, 'n');
    EXPECT_EQ(sock_apk::get_modify_contact_command(name.c_str(), "9", "1"),
              joined({"\x7B\0\x0F\0\0\0\x02\0\0\0"sv, name, "\1\0\0\0"sv, "\1\0\0\0"sv, "9"}));
    EXPECT_EQ(sock_apk::get_add_contact_command(name.c_str(), "9"),
              joined({"\x35\0\x0A\0\0\0\x06\0\0\0"sv, name, "*9*|"}));
}

TEST(Contacts, TheNewIdIsReadAndTraced) {
    const struct {
        std::string reply;
        const char *id, *trace;
    } cases[] = {
        {std::string(7, 'h') + number(3) + "104", "104", "Add '104' successfully!"},
        {std::string(7, 'h') + number(9) + "104", "104", "Add '104' successfully!"},
        {std::string(7, 'h') + number(0), "", "Add failed!"},
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
