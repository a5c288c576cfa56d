// The client in front of the real agent's own classes, which android/demo_agent.sh runs on this
// computer with 5,000 contacts and 50,000 messages. android/end_to_end.sh starts both.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "agent/sock_apk.h"
#include "agent/wire_choice.h"

namespace velk {
namespace {

using testing::HasSubstr;

class Jvm_Agent : public testing::Test {
  protected:
    void SetUp() override {
        choose_wire();
        ASSERT_TRUE(second_wire_in_use());
        ASSERT_EQ(missing_rights(agent_hello()), "");
    }
    std::vector<sock_apk::CONTACT> contacts() {
        std::vector<sock_apk::CONTACT> all;
        phone.send_command_get_contatcts_array("14", all);
        EXPECT_EQ(phone.refusal(), "");
        return all;
    }
    std::vector<sock_apk::SMS_RECORD> messages() {
        std::vector<sock_apk::SMS_RECORD> all;
        phone.send_command_get_sms("47", all);
        EXPECT_EQ(phone.refusal(), "");
        return all;
    }
    template <class Record>
    static std::set<std::string> ids(const std::vector<Record>& records, std::string Record::*id) {
        std::set<std::string> all;
        for (const Record& record : records) all.insert(record.*id);
        return all;
    }
    template <class Record>
    static long count_of(const std::vector<Record>& records, std::string Record::*member,
                         std::string_view part) {
        return std::count_if(records.begin(), records.end(), [&](const Record& record) {
            return (record.*member).find(part) != std::string::npos;
        });
    }

    sock_apk phone;
};

TEST_F(Jvm_Agent, lists_everything_whole) {
    const auto people = contacts();
    EXPECT_EQ(ids(people, &sock_apk::CONTACT::ID).size(), 5000U);
    for (const char* const part :
         {"star*name", "pipe|name", "line\nbreak\r\ttab", "nul\xEF\xBF\xBDname", "\xD7\xA9",
          "\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x9A\x80"})
        EXPECT_GT(count_of(people, &sock_apk::CONTACT::name, part), 50) << part;
    EXPECT_EQ(count_of(people, &sock_apk::CONTACT::tel, "*|"), 1000);
    const auto texts = messages();
    EXPECT_EQ(ids(texts, &sock_apk::SMS_RECORD::ID).size(), 50000U);
    EXPECT_GT(count_of(texts, &sock_apk::SMS_RECORD::ID, "50000"), 5000);
    EXPECT_TRUE(std::is_sorted(texts.begin(), texts.end(), [](const auto& one, const auto& other) {
        return one.DATE > other.DATE;
    }));
    use_first_wire();
    EXPECT_EQ(messages().size(), 50000U);
}

TEST_F(Jvm_Agent, adds_changes_and_deletes_what_is_named) {
    const std::size_t before = contacts().size();
    const std::string id =
        sock_apk::get_contact_id(phone.add_one_contact("a*b|c];\n\xF0\x9F\x98\x80", "+1*|2"));
    ASSERT_NE(id, "") << phone.refusal();
    EXPECT_TRUE(phone.modify_one_contact("changed *|", "+3|*", id.c_str())) << phone.refusal();
    const auto people = contacts();
    EXPECT_EQ(people.size(), before + 1);
    const auto changed = std::find_if(people.begin(), people.end(),
                                      [&](const auto& contact) { return contact.ID == id; });
    ASSERT_NE(changed, people.end());
    EXPECT_EQ(changed->name + changed->tel, "changed *|+3|*");
    EXPECT_TRUE(phone.del_one_contact(id.c_str())) << phone.refusal();
    EXPECT_FALSE(phone.del_one_contact(id.c_str()));
    EXPECT_THAT(phone.refusal(), HasSubstr("no such contact"));
    EXPECT_EQ(contacts().size(), before);

    auto texts = messages();
    const auto meant = texts[texts.size() / 2];
    EXPECT_TRUE(phone.del_one_sms_for_ver2(meant.ID.c_str(), meant.threadID.c_str()));
    EXPECT_FALSE(phone.del_one_sms_for_ver2(meant.ID.c_str(), meant.threadID.c_str()));
    EXPECT_THAT(phone.refusal(), HasSubstr("no such message"));
    auto expected = ids(texts, &sock_apk::SMS_RECORD::ID);
    expected.erase(meant.ID);
    EXPECT_EQ(ids(messages(), &sock_apk::SMS_RECORD::ID), expected);
    EXPECT_NE(phone.send_sms("Hello\n\"you\"", "555"), "") << phone.refusal();
    EXPECT_EQ(phone.send_sms("", "555"), "");
    EXPECT_NE(phone.refusal(), "");
}

TEST_F(Jvm_Agent, deletes_a_file_by_its_id_and_path_alone) {
    std::vector<sock_apk::PHOTO_RECORD> photos;
    phone.send_command_get_photo("118", photos);
    ASSERT_EQ(photos.size(), 50U) << phone.refusal();
    EXPECT_EQ(ids(photos, &sock_apk::PHOTO_RECORD::id).size(), 50U);
    const auto &meant = photos[3], &other = photos[4];
    const int code = phone.getCommand_DelPhotoFile();
    const auto deletes = [&](const auto& id_of, const auto& path_of) {
        return phone.del_one_for_music_image_video(code, id_of.id.c_str(),
                                                   path_of.file_path.c_str());
    };
    EXPECT_FALSE(deletes(meant, other));
    EXPECT_NE(phone.refusal(), "");
    EXPECT_TRUE(deletes(meant, meant)) << phone.refusal();
    EXPECT_FALSE(deletes(meant, meant));
    std::vector<sock_apk::PHOTO_RECORD> left;
    phone.send_command_get_photo("118", left);
    EXPECT_EQ(left.size(), 49U);
    std::vector<sock_apk::BOOK_RECORD> books;
    phone.send_command_get_book("119", books);
    ASSERT_EQ(books.size(), 50U) << phone.refusal();
    EXPECT_TRUE(phone.del_one_for_book(57, books[7].file_path.c_str())) << phone.refusal();
    EXPECT_FALSE(phone.del_one_for_book(57, books[7].file_path.c_str()));
    EXPECT_THAT(phone.refusal(), HasSubstr("no such file"));
}

TEST_F(Jvm_Agent, serves_the_edits_of_the_first_wire_too) {
    use_first_wire();
    const std::string id = sock_apk::get_contact_id(phone.add_one_contact("Zoe", "7"));
    EXPECT_TRUE(phone.modify_one_contact("Zoey", "8", id.c_str()));
    choose_wire();
    const auto people = contacts();
    EXPECT_EQ(count_of(people, &sock_apk::CONTACT::name, "Zoey"), 1);
    use_first_wire();
    EXPECT_TRUE(phone.del_one_contact(id.c_str()));
    EXPECT_FALSE(phone.del_one_contact(id.c_str()));
    choose_wire();
    EXPECT_TRUE(phone.do_command(phone.getCommand_DelAllContacts())) << phone.refusal();
    EXPECT_TRUE(contacts().empty());
}

}  // namespace
}  // namespace velk
