#include "base/file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>

#include "support/temporary_folder.h"

namespace velk {
namespace {

namespace fs = std::filesystem;

class Files : public testing::Test {
  protected:
    std::string at(const std::string& name) const { return folder_.path(name); }
    std::size_t count() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(at("")), {}));
    }

    const Temporary_Folder folder_;
};

TEST_F(Files, AFileKeepsItsModeItsLinkAndItsOtherNames) {
    EXPECT_EQ(write_whole_file(at("file"), "old and longer"), "");
    fs::permissions(at("file"), fs::perms(0640));
    fs::create_symlink("file", at("link"));
    EXPECT_EQ(write_whole_file(at("link"), std::string("new\0", 4)), "");
    EXPECT_TRUE(fs::is_symlink(at("link")));
    EXPECT_EQ(fs::status(at("file")).permissions(), fs::perms(0640));
    EXPECT_EQ(read_whole_file(at("file")), std::string("new\0", 4));

    fs::create_hard_link(at("file"), at("twin"));
    EXPECT_EQ(write_whole_file(at("file"), "in"), "");
    EXPECT_EQ(read_whole_file(at("twin")), "in");
    fs::create_symlink("to_come", at("dangling"));
    EXPECT_EQ(write_whole_file(at("dangling"), "made"), "");
    EXPECT_EQ(read_whole_file(at("to_come")), "made");
    EXPECT_EQ(count(), 5U) << "something was left beside them";
}

TEST_F(Files, AFileForItsOwnerAloneIsSoWhateverStoodThere) {
    write_whole_file(at("old"), "seen by all");
    fs::permissions(at("old"), fs::perms(0666));
    fs::create_hard_link(at("old"), at("twin"));
    fs::create_symlink("to_come", at("dangling"));
    for (const char* name : {"old", "new", "dangling"}) {
        EXPECT_EQ(write_whole_file(at(name), "own", Readers::owner), "") << name;
        EXPECT_EQ(fs::status(at(name)).permissions(), fs::perms(0600)) << name;
        EXPECT_EQ(read_whole_file(at(name)), "own") << name;
    }
    EXPECT_TRUE(fs::is_symlink(at("dangling")));
    EXPECT_EQ(read_whole_file(at("twin")), "seen by all");
    EXPECT_EQ(write_whole_file("/dev/null", "own", Readers::owner), "Invalid argument");
}

TEST_F(Files, AFullDiskDestroysNothing) {
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto old_action = std::signal(SIGXFSZ, SIG_IGN);
    write_whole_file(at("file"), "kept");
    write_whole_file(at("named"), "twice");
    fs::create_hard_link(at("named"), at("again"));
    rlimit small = before;
    small.rlim_cur = 8;
    setrlimit(RLIMIT_FSIZE, &small);
    for (const char* name : {"file", "named", "new"})
        EXPECT_EQ(write_whole_file(at(name), "longer than the disk"), "File too large") << name;
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, old_action);
    EXPECT_EQ(read_whole_file(at("file")), "kept");
    EXPECT_EQ(read_whole_file(at("again")), "twice");
    EXPECT_EQ(count(), 3U);
}

TEST_F(Files, WhatCannotBeWrittenOrReadIsSaid) {
    fs::create_symlink("loop", at("loop"));
    const std::pair<std::string, const char*> cases[] = {
        {"", "No such file or directory"},
        {at(""), "Is a directory"},
        {at("missing/file"), "No such file or directory"},
        {at("loop"), "Too many levels of symbolic links"},
        {at(std::string(300, 'n')), "File name too long"},
        {"/dev/full", "No space left on device"},
        {"/dev/null", ""},
    };
    for (const auto& [path, reason] : cases) {
        EXPECT_EQ(write_whole_file(path, "text"), reason) << path;
        EXPECT_EQ(read_whole_file(path), std::nullopt) << path;
    }
    write_whole_file(at("huge"), "");
    fs::resize_file(at("huge"), most_bytes_read + 1);
    EXPECT_EQ(read_whole_file(at("huge")), std::nullopt);
    EXPECT_EQ(count(), 2U);
}

}  // namespace
}  // namespace velk
