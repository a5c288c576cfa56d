#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "test_phone.h"

namespace velk {
namespace {

using testing::ElementsAre;
using testing::FieldsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A length as the computer writes it: seven bits, whatever is behind.
std::string low(std::size_t length) {
    return static_cast<char>(length & 0x7F) + raw("\0\0\0");
}

std::string framed(char code, const std::string& payload, std::size_t first_length) {
    return code + raw("\0") + low(payload.size() + 4) + low(first_length) + payload;
}
std::string framed(char code, const std::string& payload) {
    return framed(code, payload, payload.size());
}

std::string modified(std::size_t id, const std::string& name, const std::string& tel) {
    return framed('{', name + low(id) + low(tel.size()) + tel, name.size());
}

TEST(Agent_Edits, contacts_of_any_length_are_added_modified_and_deleted) {
    Test_Phone test;
    const auto& contacts = test.phone.store.contacts();
    int id = 0;
    for (const std::string& name : {std::string("Bob"), std::string(200, 'n')}) {
        const std::string tel(name.size() - 1, '7');
        const std::string number = std::to_string(++id);
        EXPECT_EQ(test.ask(framed('5', name + "*" + tel + "*|")).substr(7),
                  raw("\0\0\0\1") + number);
        EXPECT_THAT(contacts, ElementsAre(FieldsAre(id, name, tel)));
        EXPECT_NE(test.ask(modified(static_cast<std::size_t>(id), tel, name)), "");
        EXPECT_THAT(contacts, ElementsAre(FieldsAre(id, tel, name)));
        EXPECT_NE(test.ask(framed('z', number + "|")), "");
        EXPECT_THAT(contacts, IsEmpty());
    }
    for (int i = 0; i < 3; ++i) test.ask(framed('5', "A*1*|"));
    EXPECT_NE(test.ask(raw("x\0\0\0\0\0")), "");
    EXPECT_THAT(contacts, IsEmpty());
}

TEST(Agent_Edits, an_edit_of_nothing_is_not_answered) {
    Test_Phone test;
    for (const std::string& request :
         {framed('z', "9|"), framed('z', "x|"), modified(1, "Al", "9"), framed('P', "/a*1*|"),
          framed('9', "/a|"), framed('l', "/a|"), framed('l', "|")})
        EXPECT_EQ(test.ask(request), "") << request;
}

TEST(Agent_Edits, a_delete_hits_one_message_and_its_repetitions_none) {
    Test_Phone test;
    const auto& messages = test.phone.store.messages();
    // More than one id has the same low byte.
    for (const char* tel : {"1", "2"})
        for (int i = 0; i < 300; ++i) test.phone.store.add_message({0, 0, tel, "x", "d", 1, true});
    EXPECT_THAT(messages, SizeIs(512)) << "256 can be told apart in each thread";
    for (const char variant : {'\2', '\1', '\x14'})
        EXPECT_NE(test.ask(raw("N\0\x08\0\0\0\x2C\0\0\0\2") + variant + raw("\0\0")), "");
    EXPECT_THAT(messages, SizeIs(511));
    EXPECT_NE(test.ask(framed('2', "2*|hi")), "");
    EXPECT_EQ(messages.front().text, "hi");
    EXPECT_EQ(messages.front().thread, messages[1].thread) << "in its conversation";
    EXPECT_NE(test.ask(raw("\x16\0\0\0\0\0")), "");
    EXPECT_THAT(messages, IsEmpty());
}

TEST(Agent_Edits, files_come_by_the_name_they_had_on_the_computer_and_go_by_their_path) {
    const struct {
        std::string added;
        std::string path;
        char code;
        std::string end;
    } files[] = {{"/me/a*b.wav", "/sdcard/music/a*b.wav", 'P', "*1*|"},
                 {"/me/a.avi", "/sdcard/movies/a.avi", 'R', "*1*|"},
                 {"/me/album/", "/sdcard/photo/album/a.png", 'T', "*1*|"},
                 {"/me/notes", "/sdcard/book/notes", '9', "|"}};
    Test_Phone test;
    for (const auto& [added, path, code, end] : files) {
        test.storage->write(path, "12345");
        EXPECT_NE(test.ask(framed('l', added + "|")), "");
        ASSERT_TRUE(test.phone.store.find_media(path)) << path;
        EXPECT_EQ(test.phone.store.find_media(path)->size, 5U);
        EXPECT_NE(test.ask(framed(code, path + end)), "");
        EXPECT_FALSE(test.phone.store.find_media(path));
        EXPECT_EQ(test.storage->facts(path).mode, 0U);
    }
}

TEST(Agent_Edits, a_request_is_whole_only_at_its_last_byte) {
    for (const std::string& request :
         {framed('5', "Bob*12*|"), framed('5', std::string(200, 'n') + "*1*|"),
          raw("N\0\x08\0\0\0\x2C\0\0\0\2\2\0\0"), framed('2', "123*|hi"), raw("x\0\0\0\0\0")}) {
        for (std::size_t i = 0; i < request.size(); ++i)
            EXPECT_EQ(state_of_request(request.substr(0, i)), Request_State::needs_more) << i;
        EXPECT_EQ(state_of_request(request), Request_State::complete);
    }
    EXPECT_EQ(state_of_request("\x05"), Request_State::unknown);
}

}  // namespace
}  // namespace velk
