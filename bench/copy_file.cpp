// Copies one file between this computer and the phone the way the sections do, and nothing else.
//
//   copy_file push FILE PHONE_FOLDER
//   copy_file pull PHONE_FILE FOLDER
//
// VELK_BIN is the folder of the tool; the phone is the first one that it lists.
#include <cstdlib>
#include <cstring>
#include <string>

#include "bridge/adb_command.h"
#include "bridge/device_list.h"

int main(int count, char** arguments) {
    const char* const folder = std::getenv("VELK_BIN");
    if (count != 4 || !folder) return EXIT_FAILURE;
    const std::string tool = std::string(folder) + "/adb", from = arguments[2], to = arguments[3];
    velk::ADB_Command adb;
    const std::string listed = adb.get_adb_device(tool);
    const std::string phone = velk::get_device_sn_id(listed, velk::attached_position(listed));
    const bool push = std::strcmp(arguments[1], "push") == 0;
    const std::string printed = push ? adb.Push_File_To_Android(tool, phone, from, to)
                                     : adb.Pull_File_To_Computer(tool, phone, from, to);
    return push || printed.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
