#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "demo_phone/media_scan.h"
#include "test_phone.h"

namespace velk {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

auto contact(int id, const std::string& name, const std::string& tel) {
    return AllOf(Field(&Phone_Contact::id, id), Field(&Phone_Contact::name, name),
                 Field(&Phone_Contact::tel, tel));
}

std::string added_contact(const std::string& name, const std::string& tel) {
    const auto low = [](std::size_t number) { return static_cast<char>(number & 0x7F); };
    return raw("5\0") + low(name.size() + tel.size() + 7) + raw("\0\0\0") +
           low(name.size() + tel.size() + 3) + raw("\0\0\0") + name + "*" + tel + "*|";
}

TEST(Agent_Edits, a_contact_is_added_modified_and_deleted) {
    Test_Phone test;
    const auto& contacts = test.phone.store.contacts();
    EXPECT_EQ(added_contact("Bob", "12"), raw("5\0\x0C\0\0\0\x08\0\0\0") + "Bob*12*|");
    EXPECT_EQ(test.ask(added_contact("Bob", "12")).substr(7), raw("\0\0\0\1") + "1");
    EXPECT_THAT(contacts, ElementsAre(contact(1, "Bob", "12")));
    EXPECT_NE(test.ask(raw("{\0\x0F\0\0\0\2\0\0\0Al\1\0\0\0\1\0\0\0") + "9"), "");
    EXPECT_THAT(contacts, ElementsAre(contact(1, "Al", "9")));
    EXPECT_NE(test.ask(raw("z\0\6\0\0\0\2\0\0\0") + "1|"), "");
    EXPECT_THAT(contacts, IsEmpty());
}

TEST(Agent_Edits, names_longer_than_their_length_byte_are_taken_whole) {
    Test_Phone test;
    const std::string name(200, 'n');
    const std::string tel(130, '7');
    const std::string request = added_contact(name, "1");
    EXPECT_EQ(state_of_request(request), Request_State::complete);
    test.ask(request);
    EXPECT_THAT(test.phone.store.contacts(), ElementsAre(contact(1, name, "1")));
    const std::string modify =
        raw("{\0\x56\0\0\0\x48\0\0\0") + name + raw("\1\0\0\0\2\0\0\0") + tel;
    EXPECT_EQ(state_of_request(modify), Request_State::complete);
    EXPECT_NE(test.ask(modify), "");
    EXPECT_THAT(test.phone.store.contacts(), ElementsAre(contact(1, name, tel)));
}

TEST(Agent_Edits, an_edit_of_nothing_is_not_answered) {
    Test_Phone test;
    for (const std::string& request :
         {raw("z\0\6\0\0\0\2\0\0\0") + "9|", raw("z\0\6\0\0\0\2\0\0\0") + "x|",
          raw("{\0\x0F\0\0\0\2\0\0\0Al\1\0\0\0\1\0\0\0") + "9",
          raw("P\0\x0C\0\0\0\x08\0\0\0") + "/a*1*|", raw("9\0\7\0\0\0\3\0\0\0") + "/a|",
          raw("l\0\7\0\0\0\3\0\0\0") + "/a|", raw("l\0\5\0\0\0\1\0\0\0") + "|"})
        EXPECT_EQ(test.ask(request), "") << request;
}

TEST(Agent_Edits, all_contacts_go_at_once_and_ids_come_back) {
    Test_Phone test;
    for (int i = 0; i < 3; ++i) test.ask(added_contact("A", "1"));
    EXPECT_NE(test.ask(raw("x\0\0\0\0\0")), "");
    EXPECT_THAT(test.phone.store.contacts(), IsEmpty());
    for (int i = 0; i < Number_Pool::last_number; ++i)
        ASSERT_TRUE(test.phone.store.add_contact("A", "1"));
    EXPECT_EQ(test.ask(added_contact("A", "1")), "") << "no id is left";
    test.phone.store.delete_contact(77);
    EXPECT_EQ(test.phone.store.add_contact("A", "1"), 77);
}

TEST(Agent_Edits, a_delete_hits_one_message_and_its_repetitions_none) {
    Test_Phone test;
    // 300 messages of one number: more than one id has the same low byte.
    for (int i = 0; i < 300; ++i) test.phone.store.add_message({0, 0, "1", "x", "d", 1, true});
    for (int i = 0; i < 300; ++i) test.phone.store.add_message({0, 0, "2", "x", "d", 1, true});
    EXPECT_THAT(test.phone.store.messages(), SizeIs(512)) << "256 can be told apart in each thread";
    for (const char variant : {'\2', '\1', '\x14'})
        EXPECT_NE(test.ask(raw("N\0\x08\0\0\0\x2C\0\0\0\2") + variant + raw("\0\0")), "");
    EXPECT_THAT(test.phone.store.messages(), SizeIs(511));
    EXPECT_NE(test.ask(raw("\x16\0\0\0\0\0")), "");
    EXPECT_THAT(test.phone.store.messages(), IsEmpty());
}

TEST(Agent_Edits, a_sent_message_stands_on_top_in_its_conversation) {
    Test_Phone test;
    test.phone.store.add_message({0, 0, "123", "old", "d", 1, true});
    EXPECT_NE(test.ask(raw("2\0\x0B\0\0\0\7\0\0\0") + "123*|hi"), "");
    const Phone_Message& sent = test.phone.store.messages().front();
    EXPECT_EQ(sent.text, "hi");
    EXPECT_EQ(sent.type, 2);
    EXPECT_EQ(sent.thread, test.phone.store.messages().back().thread);
    EXPECT_THAT(sent.date, testing::MatchesRegex("20..-..-.. ..:..:.."));
}

TEST(Agent_Edits, added_files_are_found_by_the_name_they_had_on_the_computer) {
    Test_Phone test;
    test.storage->write("/sdcard/music/x.mp3", "12345");
    test.storage->write("/sdcard/music/album/y.wav", "1");
    test.storage->write("/sdcard/book/notes", "12");
    const auto added = [](const std::string& path) {
        return raw("l\0") + static_cast<char>(path.size() + 5) + raw("\0\0\0") +
               static_cast<char>(path.size() + 1) + raw("\0\0\0") + path + "|";
    };
    EXPECT_NE(test.ask(added("/home/me/x.mp3")), "");
    EXPECT_NE(test.ask(added("/home/me/album/")), "");
    EXPECT_NE(test.ask(added("/home/me/notes")), "") << "the folder tells what it is";
    EXPECT_EQ(test.phone.store.count(Media_Kind::music), 2U);
    EXPECT_EQ(test.phone.store.count(Media_Kind::book), 1U);
    EXPECT_EQ(test.phone.store.find_media("/sdcard/music/x.mp3")->size, 5U);
    test.storage->write("/sdcard/music/x.mp3", "1234567");
    EXPECT_NE(test.ask(added("/home/me/x.mp3")), "");
    EXPECT_EQ(test.phone.store.find_media("/sdcard/music/x.mp3")->size, 7U) << "pushed once more";
    EXPECT_EQ(test.ask(added("/home/me/other.mp3")), "");
}

TEST(Agent_Edits, deleted_files_leave_the_list_and_the_storage) {
    const struct {
        char code;
        std::string path;
        std::string payload;
    } cases[] = {{'P', "/sdcard/music/a*b.wav", "/sdcard/music/a*b.wav*1*|"},
                 {'R', "/sdcard/movies/a.avi", "/sdcard/movies/a.avi*1*|"},
                 {'T', "/sdcard/photo/a.png", "/sdcard/photo/a.png*1*|"},
                 {'9', "/sdcard/book/a.txt", "/sdcard/book/a.txt|"}};
    Test_Phone test;
    for (const auto& [code, path, payload] : cases) {
        test.storage->write(path, "x");
        ASSERT_TRUE(scan_media(test.phone.store, *test.storage, "/sdcard"));
        ASSERT_TRUE(test.phone.store.find_media(path)) << path;
        const std::string request = code + raw("\0") + static_cast<char>(payload.size() + 4) +
                                    raw("\0\0\0") + static_cast<char>(payload.size()) +
                                    raw("\0\0\0") + payload;
        EXPECT_EQ(state_of_request(request), Request_State::complete);
        EXPECT_NE(test.ask(request), "");
        EXPECT_FALSE(test.phone.store.find_media(path));
        EXPECT_EQ(test.storage->facts(path).mode, 0U);
    }
}

TEST(Agent_Edits, a_request_is_whole_only_at_its_last_byte) {
    for (const std::string& request :
         {added_contact("Bob", "12"), raw("N\0\x08\0\0\0\x2C\0\0\0\2\2\0\0"),
          raw("2\0\x0B\0\0\0\7\0\0\0") + "123*|hi", raw("x\0\0\0\0\0")}) {
        for (std::size_t i = 0; i < request.size(); ++i)
            EXPECT_EQ(state_of_request(request.substr(0, i)), Request_State::needs_more) << i;
        EXPECT_EQ(state_of_request(request), Request_State::complete);
    }
    EXPECT_EQ(state_of_request("\x05"), Request_State::unknown);
}

}  // namespace
}  // namespace velk
