// How many of many message lists come in whole, every field compared with what the demo phone
// holds. Prints the count and the time; the agent must answer on its port (bench/message_lists.sh
// brings one there, through the real adb).
//
//   message_lists TRIES MESSAGES
#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "agent/sock_apk.h"
#include "count_whole.h"
#include "demo_phone/demo_data.h"

namespace {

using Messages = std::vector<velk::sock_apk::SMS_RECORD>;

bool is_same(const velk::sock_apk::SMS_RECORD& sms, const velk::Phone_Message& held) {
    return sms.TEL == held.tel && sms.TEXT == held.text && sms.DATE == held.date &&
           sms.TYPE == std::to_string(held.type) && sms.ID == std::to_string(held.id) &&
           sms.threadID == std::to_string(held.thread) && sms.read == (held.read ? "1" : "0");
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 3) {
        std::fputs("usage: message_lists TRIES MESSAGES\n", stderr);
        return 2;
    }
    velk::Demo_Amounts amounts;
    amounts.messages = static_cast<std::size_t>(std::atoi(arguments[2]));
    velk::Phone_Store store;
    velk::fill_people(store, amounts);

    count_whole("lists", std::atoi(arguments[1]), [&store] {
        Messages messages;
        velk::sock_apk().send_command_get_sms("47", messages);
        return std::equal(messages.begin(), messages.end(), store.messages().begin(),
                          store.messages().end(), is_same);
    });
    return 0;
}
