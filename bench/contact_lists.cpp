// How many of many contact lists come in whole. Prints the count and the time; the agent must
// answer on its port (bench/contact_lists.sh brings one there, through the real adb).
//
//   contact_lists TRIES CONTACTS
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "agent/sock_apk.h"

int main(int count, char** arguments) {
    if (count != 3) {
        std::fputs("usage: contact_lists TRIES CONTACTS\n", stderr);
        return 2;
    }
    const int tries = std::atoi(arguments[1]);
    const auto expected = static_cast<std::size_t>(std::atoi(arguments[2]));
    int whole = 0;
    const auto begun = std::chrono::steady_clock::now();
    for (int i = 0; i < tries; ++i) {
        std::vector<velk::sock_apk::CONTACT> contacts;
        velk::sock_apk().send_command_get_contatcts_array("14", contacts);
        whole += contacts.size() == expected;
    }
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - begun;
    std::fprintf(stderr, "%d of %d lists whole, %.1f ms a list\n", whole, tries,
                 took.count() / tries);
    return 0;
}
