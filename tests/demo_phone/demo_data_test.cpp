#include <gtest/gtest.h>

#include <set>

#include "demo_phone/agent_reply.h"
#include "demo_phone/demo_files.h"
#include "test_phone.h"

namespace velk {
namespace {

/// Ids are 16 bits on the wire, and a delete names only the low bytes of two of them.
void expect_messages_can_be_told_apart(const Phone_Store& store) {
    std::set<int> ids;
    std::set<int> pairs;
    for (const Phone_Message& message : store.messages()) {
        EXPECT_GT(message.id, 0);
        EXPECT_LT(message.id, 65536);
        EXPECT_LT(message.thread, 65536);
        ids.insert(message.id);
        pairs.insert(message.id % 256 * 256 + message.thread % 256);
    }
    EXPECT_EQ(ids.size(), store.messages().size());
    EXPECT_EQ(pairs.size(), store.messages().size());
}

TEST(Demo_Data, a_phone_has_enough_of_everything) {
    Test_Phone test;
    Phone_Store& store = test.phone.store;
    fill_people(store, {});
    ASSERT_TRUE(fill_library(store, *test.storage, {}));
    EXPECT_EQ(store.contacts().size(), 240U);
    EXPECT_EQ(store.messages().size(), 1500U);
    EXPECT_EQ(store.count(Media_Kind::music), 60U);
    EXPECT_EQ(store.count(Media_Kind::photo), 40U);
    EXPECT_EQ(store.count(Media_Kind::video), 8U);
    EXPECT_EQ(store.count(Media_Kind::book), 12U);
    EXPECT_EQ(store.apps().size(), 30U);
    expect_messages_can_be_told_apart(store);
    EXPECT_LT(contact_list(store.contacts()).size(), 40960U) << "one read of the computer";
}

TEST(Demo_Data, lists_give_the_sizes_of_the_files_behind_them) {
    Test_Phone test;
    ASSERT_TRUE(fill_library(test.phone.store, *test.storage, {}));
    for (const Media_Kind kind :
         {Media_Kind::music, Media_Kind::video, Media_Kind::photo, Media_Kind::book})
        for (const Phone_Media& media : test.phone.store.media(kind)) {
            EXPECT_GT(media.size, 0U) << media.path;
            EXPECT_EQ(media.size, test.storage->facts(media.path).size) << media.path;
        }
}

TEST(Demo_Data, a_scaled_store_keeps_every_entry) {
    Test_Phone test;
    const Demo_Amounts amounts{1000, 20000, 300, 500, 210, 210, 400, false};
    fill_people(test.phone.store, amounts);
    ASSERT_TRUE(fill_library(test.phone.store, *test.storage, amounts));
    EXPECT_EQ(test.phone.store.messages().size(), amounts.messages);
    EXPECT_EQ(test.phone.store.count(Media_Kind::music), amounts.music);
    EXPECT_EQ(test.phone.store.count(Media_Kind::photo), amounts.photos);
    EXPECT_EQ(test.phone.store.count(Media_Kind::video), amounts.videos);
    EXPECT_EQ(test.phone.store.count(Media_Kind::book), amounts.books);
    EXPECT_EQ(test.phone.store.apps().size(), amounts.apps);
    expect_messages_can_be_told_apart(test.phone.store);
}

TEST(Demo_Data, long_names_fill_most_of_one_read) {
    Test_Phone test;
    Demo_Amounts amounts;
    amounts.long_names = true;
    fill_people(test.phone.store, amounts);
    const std::size_t size = contact_list(test.phone.store.contacts()).size();
    EXPECT_GT(size, 25000U);
    EXPECT_LE(size, 40960U);
}

TEST(Demo_Data, texts_are_utf_8_and_fields_of_the_wire_can_hold_them) {
    Test_Phone test;
    fill_people(test.phone.store, {});
    const auto is_utf8 = [](const std::string& text) {
        int following = 0;
        for (const char character : text) {
            const auto byte = static_cast<unsigned char>(character);
            if ((byte & 0xC0) == 0x80) {
                if (--following < 0) return false;
            } else {
                if (following != 0) return false;
                following = byte < 0x80 ? 0 : byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : 3;
            }
        }
        return following == 0;
    };
    for (const Phone_Contact& contact : test.phone.store.contacts()) {
        EXPECT_TRUE(is_utf8(contact.name)) << contact.name;
        EXPECT_EQ(contact.name.find_first_of("*|"), std::string::npos) << contact.name;
    }
    for (const Phone_Message& message : test.phone.store.messages())
        EXPECT_TRUE(is_utf8(message.text)) << message.text;
}

}  // namespace
}  // namespace velk
