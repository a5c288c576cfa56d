// How many of many contact lists come in whole. Prints the count and the time; the agent must
// answer on its port (bench/contact_lists.sh brings one there, through the real adb).
//
//   contact_lists TRIES CONTACTS
#include <cstdlib>
#include <vector>

#include "agent/sock_apk.h"
#include "count_whole.h"

int main(int count, char** arguments) {
    if (count != 3) {
        std::fputs("usage: contact_lists TRIES CONTACTS\n", stderr);
        return 2;
    }
    const auto expected = static_cast<std::size_t>(std::atoi(arguments[2]));
    count_whole("lists", std::atoi(arguments[1]), [expected] {
        std::vector<velk::sock_apk::CONTACT> contacts;
        velk::sock_apk().send_command_get_contatcts_array("14", contacts);
        return contacts.size() == expected;
    });
    return 0;
}
