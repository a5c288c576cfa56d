#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <random>

#include "agent/sock_apk.h"
#include "agent/wire_choice.h"
#include "support/agent_double.h"

namespace velk {
namespace {

using testing::StartsWith;

constexpr int json = '{';  // with which every request begins

const std::string hello =
    "{\"wire\":2,\"agent\":\"1.0\",\"android\":\"14\",\"api\":34}\n"
    "{\"kind\":\"contacts\",\"read\":true,\"write\":true}\n"
    "{\"kind\":\"messages\",\"read\":true,\"write\":false,\"message\":\"It is\\u202E off.\"}\n"
    "{\"kind\":\"messages\",\"read\":true,\"write\":true}\n"
    "{\"kind\":\"books\",\"read\":false}\n{\"kind\":\"weather\",\"read\":false}\n"
    "{\"end\":6}\n";

class Second_Wire : public testing::Test {
  protected:
    ~Second_Wire() override { use_first_wire(); }

    bool choose_after(Agent_Double::Reply reply) {
        agent.reply_once_to(json, std::move(reply));
        choose_wire();
        return second_wire_in_use();
    }
    std::vector<sock_apk::CONTACT> contacts_of(Agent_Double::Reply reply) {
        agent.reply_once_to(json, std::move(reply));
        std::vector<sock_apk::CONTACT> contacts;
        phone.send_command_get_contatcts_array("14", contacts);
        return contacts;
    }

    Agent_Double agent{12301};
    sock_apk phone;
};

TEST_F(Second_Wire, IsChosenByAWholeHelloAlone) {
    EXPECT_TRUE(choose_after(hello));
    EXPECT_EQ(
        missing_rights(agent_hello()),
        "Velk may not do everything with messages, books: It is  off. Open Velk on the phone, "
        "allow there what is missing, then press Refresh.");
    EXPECT_TRUE(choose_after(Agent_Double::in_pieces(hello, 1)));
    agent.reply_once_to(json, "");  // it is still starting
    EXPECT_TRUE(choose_after(hello));
    const std::string others[] = {"",
                                  "\n",
                                  "\1\2\3\n",
                                  "{\"end\":0}\n",
                                  "[1,2]\n{\"end\":1}\n",
                                  "{\"wire\":1}\n{\"end\":1}\n",
                                  "{\"error\":\"unknown-operation\"}\n",
                                  "{\"wire\":2}\n{\"end\":5}\n",
                                  hello.substr(0, hello.size() - 1),
                                  std::string(20, '\0')};
    for (const std::string& other : others) EXPECT_FALSE(choose_after(other)) << other;
    EXPECT_EQ(missing_rights(agent_hello()), "");
}

TEST_F(Second_Wire, IsNotWaitedForLongerThanASecond) {
    Agent_Double::Reply endless(hello.substr(0, 60));
    endless.end = Agent_Double::Reply::End::stay_silent;
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_FALSE(choose_after(endless));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
}

TEST_F(Second_Wire, CarriesIdsTextsAndSizesWhole) {
    ASSERT_TRUE(choose_after(hello));
    const std::string list =
        R"({"id":"9223372036854775807","name":"star*na|me];'\n\u0000\u05d0 \ud83d\ude00","number":"+1*2|"})"
        "\n{\"id\":\"2\",\"name\":\"\xFF\",\"more\":{\"end\":1}}\n{\"end\":2}\n";
    for (const std::size_t length : {std::size_t{1}, list.size()}) {
        const auto contacts = contacts_of(Agent_Double::in_pieces(list, length));
        ASSERT_EQ(contacts.size(), 2U) << phone.refusal();
        EXPECT_EQ(contacts[0].ID, "9223372036854775807");
        EXPECT_EQ(contacts[0].name, "star*na|me];'\n\xEF\xBF\xBD\xD7\x90 \xF0\x9F\x98\x80");
        EXPECT_EQ(contacts[0].tel, "+1*2|");
        EXPECT_EQ(contacts[1].name, "\xEF\xBF\xBD");
        EXPECT_EQ(phone.refusal(), "");
    }
    agent.reply_once_to(json,
                        "{\"id\":\"70000\",\"path\":\"/a\",\"size\":5368709121,"
                        "\"duration\":3723000}\n{\"end\":1}\n");
    std::vector<sock_apk::VIDEO_RECORD> found;
    phone.send_command_get_video("117", found);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].id + " " + found[0].size + " " + found[0].timer, "70000 5.00 GB 01:02:03");
}

TEST_F(Second_Wire, SaysWhyAListCameShort) {
    ASSERT_TRUE(choose_after(hello));
    const std::string one = "{\"id\":\"1\",\"name\":\"Ann\"}\n", broken = "{\"id\":\"1\"\n";
    const struct {
        std::string reply;
        std::size_t came;
        const char* reason;
    } cases[] = {
        {one + "{\"error\":\"permission\",\"message\":\"Not\\nallowed.\"}\n", 1, "Not allowed."},
        {"{\"error\":\"new-code\"}\n", 0, "The phone refused: new-code"},
        {one + one, 2, "The connection to the phone broke off"},
        {one + one.substr(0, 9), 1, "The connection to the phone broke off"},
        {"", 0, "The agent on the phone does not answer"},
        {one + broken + "{\"end\":2}\n", 1, "The phone sent 2 records, of which 1"},
        {"{\"end\":-1}\n", 0, "The phone's answer is damaged."},
        {"{\"end\":\"0\"}\n", 0, "The phone's answer is damaged."},
        {"{\"end\":18446744073709551615}\n", 0, "The phone's answer is damaged."},
        {std::string(9 << 20, 'x') + "\n{\"end\":0}\n", 0, "The phone's answer is damaged."},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(contacts_of(each.reply).size(), each.came) << each.reason;
        EXPECT_THAT(phone.refusal(), StartsWith(each.reason));
    }
}

TEST_F(Second_Wire, TakesNoDamagedListForAWholeOne) {
    ASSERT_TRUE(choose_after(hello));
    std::string list;
    for (int i = 0; i < 20; ++i)
        list += "{\"id\":\"" + std::to_string(i) + "\",\"name\":\"n\\u05d0\",\"number\":\"1\"}\n";
    list += "{\"end\":20}\n";
    std::size_t lines = 0;
    for (std::size_t end = 0; (end = list.find('\n', end) + 1) != list.size(); ++lines) {
        EXPECT_EQ(contacts_of(list.substr(0, end)).size(), lines + 1);
        EXPECT_THAT(phone.refusal(), StartsWith("The connection to the phone broke off"));
    }
    EXPECT_EQ(lines, 20U);
    std::mt19937 random(7);
    for (int round = 0; round < 1000; ++round) {
        std::string damaged = list;
        for (int i = round % 4; i >= 0; --i)
            damaged[random() % damaged.size()] = static_cast<char>(random());
        if (round % 5 == 0) damaged.resize(random() % damaged.size());
        if (round % 7 == 0) damaged.erase(random() % damaged.size(), random() % 90);
        const std::size_t came = contacts_of(damaged).size();
        EXPECT_TRUE(came == 20 || !phone.refusal().empty()) << damaged;
    }
}

TEST_F(Second_Wire, ChangesWhatIsNamedAndTellsWhyNot) {
    ASSERT_TRUE(choose_after(hello));
    const std::string id = "4294967297";
    const std::pair<std::function<bool()>, std::string> edits[] = {
        {[&] { return sock_apk::get_contact_id(phone.add_one_contact("a*\"b", "1|")) == id; },
         R"({"items":[{"name":"a*\"b","number":"1|"}],"kind":"contacts","op":"add"})"},
        {[&] { return phone.modify_one_contact("\xFF", "2", id.c_str()); },
         "{\"items\":[{\"id\":\"4294967297\",\"name\":\"\xEF\xBF\xBD\",\"number\":\"2\"}],"
         "\"kind\":\"contacts\",\"op\":\"change\"}"},
        {[&] { return phone.del_one_contact(id.c_str()); },
         R"({"items":[{"id":"4294967297"}],"kind":"contacts","op":"delete"})"},
        {[&] { return phone.do_command(120); }, R"({"all":true,"kind":"contacts","op":"delete"})"},
        {[&] { return phone.del_one_sms_for_ver2("300", "5"); },
         R"({"items":[{"id":"300","thread":"5"}],"kind":"messages","op":"delete"})"},
        {[&] { return !phone.send_sms("hi", "12").empty(); },
         R"({"items":[{"number":"12","text":"hi"}],"kind":"messages","op":"send"})"},
        {[&] { return phone.add_one_for_music_image_video_book(108, "/x"); },
         R"({"items":[{"path":"/x"}],"kind":"files","op":"add"})"},
        {[&] { return phone.del_one_for_music_image_video(84, "7", "/p"); },
         R"({"items":[{"id":"7","path":"/p"}],"kind":"photos","op":"delete"})"},
        {[&] { return phone.del_one_for_book(57, "/b"); },
         R"({"items":[{"path":"/b"}],"kind":"books","op":"delete"})"},
    };
    for (const auto& [edit, request] : edits) {
        agent.reply_once_to(
            json,
            "{\"item\":0,\"done\":true,\"id\":\"4294967297\",\"message\":\"x\"}\n{\"end\":1}\n");
        EXPECT_TRUE(edit()) << request;
        EXPECT_EQ(agent.requests().back(), request + "\n");
        EXPECT_EQ(phone.refusal(), "");
        agent.reply_once_to(json,
                            "{\"item\":0,\"done\":false,\"message\":\"Gone.\"}\n{\"end\":1}\n");
        EXPECT_FALSE(edit()) << request;
        EXPECT_EQ(phone.refusal(), "Gone.");
        agent.reply_once_to(json, "{\"end\":0}\n");
        EXPECT_FALSE(edit()) << request;
        EXPECT_THAT(phone.refusal(), StartsWith("The phone did not confirm"));
    }
    const std::size_t asked = agent.requests().size();
    EXPECT_FALSE(phone.add_one_for_music_image_video_book(108, "/a/\xFF.mp3"));
    EXPECT_THAT(phone.refusal(), StartsWith("The file's name is not UTF-8"));
    EXPECT_TRUE(phone.del_one_sms("300", "5") && phone.del_one_sms_for_NoS4("300", "5"));
    EXPECT_EQ(agent.requests().size(), asked);  // the third one deletes
}

}  // namespace
}  // namespace velk
