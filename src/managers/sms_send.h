// The composer: one message to one or many.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "agent/sock_apk.h"
#include "managers/sms_contacts.h"
#include "ui/dialog.h"

namespace velk {

class Desktop;
class Main_Window;

/// Recipients stand in their field as entries that end in ";": "Anna(1234);9999;". Made when first
/// needed and living as long as the main window. User-interface thread, but for the body of its
/// worker.
class SMS_Send : public Dialog {
  public:
    explicit SMS_Send(Main_Window& window);

    Text_Field m_ET_Send_Contects_telname{"m_ET_Send_Contects_telname"};  // the recipients
    Text_Field m_ET_SMS_Content{"m_ET_SMS_Content"};                      // the message
    Label m_LB_Tips{"m_LB_Tips"};  // length of the message, what is missing, what was sent
    Label m_LB_Quiet{"m_LB_Quiet_SMS_Send"};    // to whom the message could not be sent
    std::vector<sock_apk::CONTACT> m_contacts;  // the recipients: name and number

    /// Lets the person pick contacts, which take the place of all recipients.
    void OnBT_Contacts();
    /// Checks and sends. The dialog may be closed meanwhile: the rest is sent all the same.
    void OnBT_Send();
    void OnChanged_ET_SMS_Content();

    /// Adds the numbers typed into the recipients' text to m_contacts.
    void refresh_contacts(const std::string& recipients);
    /// True when the number of one of m_contacts occurs in the entry.
    bool is_existed_in_choose_contacts(const std::string& entry) const;

    void showWindow();
    void closeModalWindow() { close(); }

  private:
    struct Job {
        std::string message;
        std::string recipients;  // the text of the field
        std::vector<sock_apk::CONTACT> contacts;
        std::string phone;  // the serial number of the one that was meant
    };

    bool may_be_sent();
    void take_picked();
    /// Worker.
    void send(const Job& job);
    /// True when the agent answered.
    bool send_one(sock_apk& agent, const std::string& message, const sock_apk::CONTACT& contact);
    Desktop& desktop();

    Main_Window& window_;
    std::string phone_;  // the serial number of the one in use when the dialog was opened
    std::unique_ptr<SMS_Contacts> picker_;
};

}  // namespace velk
