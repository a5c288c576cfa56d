#include "managers/contacts_fixture.h"

namespace velk {
namespace {

using testing::ElementsAre;

class Contacts_Load : public Contacts_Test {};

TEST_F(Contacts_Load, tells_its_progress_row_by_row_and_then_the_count) {
    g_int_count_contacts = 240;
    load({{"7", "Ann", "555"}, {"8", "Ben", "12|34"}});
    EXPECT_THAT(
        recorder.lines(),
        ElementsAre("m_LB_Tips_Contacts: Loading ......", "m_table_Contacts reloaded: 0 rows",
                    "m_LB_Tips_Contacts: Loading ......",
                    "m_LB_Tips_Contacts: Loading '240' contacts........",
                    "m_table_Contacts: 1 rows", "m_table_Contacts scrolled",
                    "m_LB_Tips_Contacts: Loading No.1 'Ann'......", "m_table_Contacts: 2 rows",
                    "m_table_Contacts scrolled", "m_LB_Tips_Contacts: Loading No.2 'Ben'......",
                    "m_LB_Tips_Contacts: There are 2 contact(s) on your Mobile Phone.",
                    "title 0: Contacts(2)", "captions white"));
    EXPECT_THAT(column(0), ElementsAre("1", "2"));
    EXPECT_THAT(column(1), ElementsAre("7", "8"));
    EXPECT_THAT(column(2), ElementsAre("Ann", "Ben"));
    EXPECT_THAT(column(3), ElementsAre("555", "12!34"));
}

TEST_F(Contacts_Load, says_quietly_what_is_wrong_with_the_list) {
    const std::vector<Agent_Double::Contact> two = {{"7", "Ann", "555"}, {"8", "Ben", "666"}};
    g_int_count_contacts = 3;
    load(two);
    EXPECT_EQ(quiet(), "The phone counts 3, but 2 came. Refresh tries again.");
    g_phone_was_changed = 1;
    load(two);
    EXPECT_EQ(quiet(), "");
    load(std::vector<Agent_Double::Contact>(400, {"7", std::string(120, 'n'), "555"}));
    EXPECT_EQ(quiet(), "The phone's list of contacts is longer than its agent can send.");
}

}  // namespace
}  // namespace velk
