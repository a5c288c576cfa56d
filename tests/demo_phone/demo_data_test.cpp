#include <gtest/gtest.h>

#include <set>

#include "demo_phone/agent_reply.h"
#include "test_phone.h"

namespace velk {
namespace {

TEST(Demo_Data, every_entry_of_a_small_and_a_large_phone_can_be_told_apart) {
    for (const Demo_Amounts& amounts :
         {Demo_Amounts{.long_names = true}, Demo_Amounts{1000, 20000, 300, 500, 210, 210, 400}}) {
        Test_Phone test;
        const Phone_Store& store = test.phone.store;
        fill_people(test.phone.store, amounts);
        ASSERT_TRUE(fill_library(test.phone.store, *test.storage, amounts));
        EXPECT_EQ(store.contacts().size(), amounts.contacts);
        EXPECT_EQ(store.messages().size(), amounts.messages);
        EXPECT_EQ(store.count(Media_Kind::music), amounts.music);
        EXPECT_EQ(store.count(Media_Kind::photo), amounts.photos);
        EXPECT_EQ(store.count(Media_Kind::video), amounts.videos);
        EXPECT_EQ(store.count(Media_Kind::book), amounts.books);
        EXPECT_EQ(store.apps().size(), amounts.apps);
        // Ids are 16 bits on the wire, and a delete names only the low bytes of two of them.
        std::set<int> pairs;
        for (const Phone_Message& message : store.messages()) {
            EXPECT_LT(std::max(message.id, message.thread), 65536);
            pairs.insert(message.id % 256 * 256 + message.thread % 256);
        }
        EXPECT_EQ(pairs.size(), store.messages().size());
        if (amounts.long_names) {
            EXPECT_LE(contact_list(store.contacts()).size(), 40960U) << "more than one read";
        }
    }
}

}  // namespace
}  // namespace velk
