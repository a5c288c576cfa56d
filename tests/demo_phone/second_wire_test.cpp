#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "demo_phone/kept_outlet.h"
#include "demo_phone/phone_services.h"
#include "demo_phone/second_wire_link.h"

namespace velk {
namespace {

using namespace std::string_literals;
using testing::HasSubstr;

/// JSON with single quotes, which are easier to read here.
std::string json(std::string text) {
    std::replace(text.begin(), text.end(), '\'', '"');
    return text;
}

/// A phone whose first record of each kind has the id 3000000001.
struct Second_Wire : testing::Test {
    Kept_Outlet talk(const std::string& request) {
        Second_Wire_Link link(phone);
        Kept_Outlet reply;
        link.received(json(request.substr(0, 9)), reply);
        link.received(json(request.substr(9)) + "\n", reply);
        while (!reply.finished && !reply.all.empty()) link.drained(reply);
        return reply;
    }

    std::unique_ptr<Phone_Storage> storage = Phone_Storage::open("");
    Phone_Log log;
    Demo_Phone phone{{.first_id = 3000000000}, *storage, log};
};

TEST_F(Second_Wire, every_request_gets_its_answer) {
    phone.store.add_media({Media_Kind::photo, 0, "/sdcard/photo/a.png", "", "", 0, 7, false});
    storage->write("/sdcard/photo/b|*.png", "1");
    const std::string contacts = "'kind':'contacts','items':", messages = "'kind':'messages',";
    const struct {
        std::string request, reply;
    } cases[] = {
        {"no object at all", "{'error':'bad-request'"},
        {"{'op':'hello','x':'\xFF'}", "{'error':'bad-request'"},
        {std::string(100000, '['), "{'error':'bad-request'"},
        {"{'op':'hello'}" + std::string(g_longest_line, ' '), "{'error':'too-long'"},
        {"{'op':{'op':'hello'}}", "{'error':'bad-request'"},
        {"{'op':'delete'," + contacts + "7}", "{'error':'bad-request'"},
        {"{'op':'fly'}", "{'error':'unknown-operation'"},
        {"{'op':'list','kind':'stars'}", "{'error':'unknown-kind'"},
        {"{'op':'list','kind':'files'}", "{'error':'not-possible'"},
        {"{'op':'delete'," + messages + "'all':true}", "{'error':'not-possible'"},
        {"{'op':'add'," + contacts + "[{'name':'a\\u0000\\n*','number':'5'},3,{'name':[[[7]]]}]}",
         "{'item':0,'done':true,'id':'3000000001'}\n{'item':1,'done':false,'code':'bad-request'"},
        {"{'op':'list','kind':'contacts'}",
         "{'id':'3000000001','name':'a\\u0000\\n*','number':'5'}\n{'end':1}\n"},
        {"{'op':'change'," + contacts + "[{'id':3000000001}]}", "'code':'bad-request'"},
        {"{'op':'delete','kind':'contacts','all':true}", "{'item':0,'done':true,'count':1}"},
        {"{'op':'send'," + messages + "'items':[{'number':'5','text':'Hi'}]}", "'done':true"},
        {"{'op':'send'," + messages + "'items':[{'number':'5','text':'" + std::string(5001, 'x') +
             "'}]}",
         "'code':'not-sent'"},
        {"{'op':'delete'," + messages + "'items':[{'id':'3000000001','thread':'1'}]}", "'gone'"},
        {"{'op':'delete'," + messages + "'items':[{'id':'3000000001','thread':'3000000001'}]}",
         "'done':true"},
        {"{'op':'add','kind':'files','items':[{'path':'/home/b|*.png'}]}", "'done':true"},
        {"{'op':'add','kind':'files','items':[{'path':'/../x'}]}", "'code':'failed'"},
        {"{'op':'list','kind':'photos'}", "{'id':'3000000002','path':'/sdcard/photo/b|*.png',"},
        {"{'op':'delete','kind':'photos','items':[{'id':'1','path':'/sdcard/photo/a.png'},"
         "{'id':'3000000001','path':'/sdcard/photo/a.png'}]}",
         "'code':'gone','message':'There is no such record any more.'}\n{'item':1,'done':true}"},
        {"{'op':'count','kind':'photos'}", "{'kind':'photos','count':1}"},
    };
    for (const auto& [request, reply] : cases)
        EXPECT_THAT(talk(request).all, HasSubstr(json(reply))) << request.substr(0, 200);
}

TEST_F(Second_Wire, a_long_list_comes_whole_in_parts_and_breaks_off_when_told) {
    phone.settings.largest_packet = 4096;
    for (int i = 0; i < 1000; ++i) phone.store.add_contact("bad \xC3 byte", std::to_string(i));
    const Kept_Outlet reply = talk("{'op':'list','kind':'contacts'}");
    EXPECT_EQ(std::count(reply.all.begin(), reply.all.end(), '\n'), 1001);
    EXPECT_TRUE(reply.all.ends_with(json("'number':'999'}\n{'end':1000}\n")));
    EXPECT_THAT(reply.pieces, testing::Each(testing::Le(5000U)));
    ASSERT_TRUE(play(phone.behaviour, "cut:10000"));
    EXPECT_EQ(talk("{'op':'list','kind':'contacts'}").all, reply.all.substr(0, 10000));
}

TEST_F(Second_Wire, a_refusal_is_explained_here_and_is_silence_on_the_first_wire) {
    phone.store.add_contact("Ann", "5");
    phone.settings.refuse_writes = true;
    const std::string sentence = "'message':'The phone does not let Velk change contacts.'";
    EXPECT_THAT(talk("{'op':'hello'}").all, HasSubstr(json("'write':false," + sentence)));
    for (const std::string what : {"'all':true", "'items':[{'id':'3000000001'}]"})
        EXPECT_THAT(talk("{'op':'delete','kind':'contacts'," + what + "}").all,
                    HasSubstr(json("'code':'permission'," + sentence)));
    EXPECT_EQ(answer_request(phone, "x\0\0\0\0\0"s).bytes, "");
    EXPECT_EQ(phone.store.contacts().size(), 1U);
}

TEST_F(Second_Wire, the_first_wire_deletes_no_message_whose_bytes_fit_another_too) {
    phone.store = Phone_Store({70000, false});  // 70001 and 70257 share the low byte 0x71
    for (int i = 0; i < 300; ++i) phone.store.add_message({0, 0, "5", "Hi", "d", 1, true});
    EXPECT_EQ(answer_request(phone, "N\0\x08\0\0\0\x71\0\0\0\x71\2\0\0"s).bytes, "");
    EXPECT_EQ(phone.store.messages().size(), 300U);
    EXPECT_NE(answer_request(phone, "N\0\x08\0\0\0\xD4\0\0\0\x71\2\0\0"s).bytes, "");
    EXPECT_EQ(phone.store.messages().find(70100), nullptr);
}

TEST_F(Second_Wire, is_there_while_the_agent_listens_and_speaks_it) {
    const auto is_open = [&](auto name) { return open_phone_service(phone, name) != nullptr; };
    EXPECT_FALSE(is_open("tcp:12176"));
    phone.agent.install();
    phone.agent.start();
    phone.agent.wake();
    EXPECT_TRUE(is_open("tcp:12176") && is_open("localabstract:velk.phone.android.wire1"));
    phone.settings.second_wire = false;
    EXPECT_FALSE(is_open("tcp:12176") || is_open("localabstract:velk.phone.android.wire2"));
}

}  // namespace
}  // namespace velk
