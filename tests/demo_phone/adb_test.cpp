#include <gmock/gmock.h>
#include <sys/socket.h>

#include <fstream>

#include "adb_tools.h"
#include "demo_phone/demo_files.h"
#include "test_phone.h"

namespace velk {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

std::string content(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Asks the agent through a forwarded port and reads until it closes.
std::string ask(const std::string& port, const std::string& request) {
    const Owned_Descriptor agent = connect_tcp(std::stoi(port));
    if (!agent || !write_all(agent.number(), request)) return "";
    std::string reply;
    char bytes[4096];
    for (ssize_t count; (count = recv(agent.number(), bytes, sizeof bytes, 0)) > 0;)
        reply.append(bytes, static_cast<std::size_t>(count));
    return reply;
}

/// What a computer does on every connection.
class Deployment : public Adb_Test {
  protected:
    void deploy() {
        EXPECT_THAT(adb({"install", "-r", AGENT_PACKAGE}), HasSubstr("Success\n"));
        EXPECT_THAT(adb({"shell", "am", "start", "-a", "android.intent.action.Main", "-n",
                         "velk.phone.android/.PhoneConnActivity"}),
                    HasSubstr("Starting: Intent {"));
        forwarded = adb({"forward", "tcp:0", "tcp:12186"});
        EXPECT_EQ(ask(forwarded, "A"), "") << "not woken yet";
        EXPECT_THAT(adb({"shell", "am", "broadcast", "-a", "openUSBConnect"}),
                    HasSubstr("Broadcast completed: result=0"));
    }
    std::string forwarded;
};

TEST_F(Deployment, the_agent_is_reached_through_every_size_of_packet) {
    Test_Phone same;
    fill_people(same.phone.store, {});
    const std::string contacts = same.ask("\x0E");
    for (const Arguments& options : {Arguments{"--packet", "4096"}, Arguments{"--packet", "262144"},
                                     Arguments{"--later-services"}}) {
        announce_phone(options);
        ASSERT_TRUE(becomes("device"));
        EXPECT_THAT(adb({"uninstall", "velk.phone.android"}), HasSubstr("Failure ["));
        deploy();
        EXPECT_EQ(ask(forwarded, "\x0E"), contacts) << options.back();
        EXPECT_THAT(adb({"uninstall", "velk.phone.android"}), HasSubstr("Success"));
        EXPECT_EQ(ask(forwarded, "A"), "");
        EXPECT_EQ(phone->end(SIGTERM), 0);
    }
}

TEST_F(Deployment, an_application_comes_and_goes_with_its_package) {
    announce_phone();
    ASSERT_TRUE(becomes("device"));
    std::ofstream(file("Tiny Clock.apk")) << "a package";
    EXPECT_THAT(adb({"install", "-r", file("Tiny Clock.apk")}), HasSubstr("Success"));
    EXPECT_THAT(tell("status"), HasSubstr("apps 31\n"));
    EXPECT_THAT(adb({"uninstall", "Tiny.Clock"}), HasSubstr("Success"));
    EXPECT_THAT(tell("status"), HasSubstr("apps 30\n"));
    tell("play refuse-install");
    EXPECT_THAT(adb({"install", "-r", file("Tiny Clock.apk")}), HasSubstr("USER_RESTRICTED"));
    EXPECT_THAT(content(file("log")), HasSubstr("service shell:pm 'install' '-r'"));
}

TEST_F(Adb_Test, files_and_folders_are_copied_both_ways) {
    announce_phone({"--storage", file("storage")});
    ASSERT_TRUE(becomes("device"));
    const std::string big = demo_picture(500, 400, 1);  // several blocks of 64 KB
    fs::create_directories(file("album/bonus"));
    std::ofstream(file("album/ü 1.wav"), std::ios::binary) << big;
    std::ofstream(file("album/bonus/2.wav")) << "";
    adb({"push", file("album"), "/sdcard/music"});
    EXPECT_EQ(content(file("storage/sdcard/music/album/ü 1.wav")), big);
    EXPECT_TRUE(fs::exists(file("storage/sdcard/music/album/bonus/2.wav")));
    adb({"pull", "-a", "/sdcard/music/album", file("back")});
    EXPECT_EQ(content(file("back/ü 1.wav")), big);
    EXPECT_TRUE(fs::exists(file("back/bonus/2.wav")));
    EXPECT_EQ(std::chrono::floor<std::chrono::seconds>(fs::last_write_time(file("back/ü 1.wav"))),
              std::chrono::floor<std::chrono::seconds>(fs::last_write_time(file("album/ü 1.wav"))));
    EXPECT_THAT(adb({"pull", "/sdcard/nothing", file("x")}), HasSubstr("does not exist"));
    EXPECT_FALSE(fs::exists(file("x")));
    tell("play storage-full");
    EXPECT_THAT(adb({"push", file("album/ü 1.wav"), "/sdcard/book"}), HasSubstr("No space left"));
    EXPECT_FALSE(fs::exists(file("storage/sdcard/book/ü 1.wav")));
}

TEST_F(Adb_Test, the_control_socket_changes_the_phone_and_ends_it) {
    announce_phone();
    ASSERT_TRUE(becomes("device"));
    EXPECT_EQ(tell("play normal,offline"), "ok\n");
    EXPECT_TRUE(becomes("offline"));
    for (const char* wrong : {"frob", "play offlin", "play cut:x", "play split:0"})
        EXPECT_THAT(tell(wrong), HasSubstr("error")) << wrong;
    EXPECT_EQ(tell("quit"), "ok\n");
    EXPECT_EQ(phone->end(), 0);
    EXPECT_FALSE(fs::exists(file("ctl")));
}

TEST_F(Adb_Test, a_phone_of_the_network_is_connected_and_leaves_nothing_behind) {
    start_phone({});
    serial = "127.0.0.1:" + std::to_string(port);
    EXPECT_THAT(run_program({"adb", "connect", serial}), HasSubstr("connected to"));
    EXPECT_EQ(state(), "device");
    EXPECT_EQ(adb({"shell", "echo", "hello"}), "hello\n");
    EXPECT_EQ(phone->end(SIGINT), 0);
    for (const auto& entry : fs::directory_iterator(folder))
        EXPECT_THAT(entry.path().filename().string(),
                    testing::Not(testing::StartsWith("demo_phone.")));
}

}  // namespace
}  // namespace velk
