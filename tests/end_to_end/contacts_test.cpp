#include <algorithm>

#include "end_to_end/demo_session.h"

namespace velk {
namespace {

class Address_Book : public On_The_Demo_Phone {
  protected:
    void SetUp() override {
        On_The_Demo_Phone::SetUp();
        connect({"--packet", "4096"});
        load_contacts();
    }
    Contacts_TableSource& contacts() { return *g_contacts_tablesource; }

    /// What the phone holds now, as name and number, sorted.
    std::vector<std::string> on_the_phone() {
        contacts().OnBT_Contacts_Refresh();
        desktop.finish_work();
        std::vector<std::string> all;
        for (const Contacts_TableSource_Column& row : rows())
            all.push_back(row.col_name + " | " + row.col_phone_number);
        std::sort(all.begin(), all.end());
        return all;
    }
    template <class Dialog_Type>
    void use_dialog(const std::string& name, const std::string& number) {
        desktop.use_dialog([=](Dialog& dialog) {
            dynamic_cast<Dialog_Type&>(dialog).m_Edit_Name.type(name);
            dynamic_cast<Dialog_Type&>(dialog).m_Edit_PhoneNumber.type(number);
            dialog.OnBT_OK();
        });
    }
    void select_contact(const std::string& name) {
        for (int row = 0; row < rows().count(); ++row)
            if (rows()[static_cast<std::size_t>(row)].col_name == name)
                return contacts().m_table.select({row}, row);
        ADD_FAILURE() << "no contact " << name;
    }
};

TEST_F(Address_Book, changes_as_the_person_says) {
    const std::vector<std::string> before = on_the_phone();
    use_dialog<Contacts_Add>("Zoë Quill", "+1|2");
    contacts().OnBT_AddContacts();
    desktop.finish_work();
    EXPECT_EQ(rows().size(), before.size() + 1);
    select_contact("Zoë Quill");
    use_dialog<Contacts_Edit>("Zoë", "77");
    contacts().OnBT_ModifyContacts();
    desktop.finish_work();
    EXPECT_THAT(on_the_phone(), testing::Contains("Zoë | 77"));
    select_contact("Zoë");
    desktop.answer_alert(yes);
    contacts().OnBT_DeleteContacts();
    desktop.finish_work();
    EXPECT_EQ(on_the_phone(), before);
    desktop.answer_alert(yes);
    contacts().OnBT_Contacts_DelAll();
    desktop.finish_work();
    EXPECT_THAT(on_the_phone(), testing::IsEmpty());
}

}  // namespace
}  // namespace velk
