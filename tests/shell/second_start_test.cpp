#include "shell/second_start.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>
#include <QFile>
#include <QTemporaryDir>

#include <thread>

#include "window_test.h"

namespace velk {
namespace {

using Answer = Only_One::Answer;

TEST(Second_Start, brings_the_first_to_the_front_and_takes_its_place_once_it_has_gone) {
    test_application();
    const QTemporaryDir folder;
    const QTemporaryDir of_another_person;
    auto first = std::make_unique<Only_One>(folder.path());
    ASSERT_EQ(first->ask({}), Answer::is_first);
    EXPECT_EQ(Only_One(of_another_person.path()).ask({}), Answer::is_first);
    std::vector<Wish> wishes;
    auto ear = std::make_unique<Front_Service>(folder.path(),
                                               [&](const Wish& wish) { wishes.push_back(wish); });
    // In a thread, as it stands for another process.
    Answer answer{};
    std::thread second([&] { answer = Only_One(folder.path()).ask({true, "token-7"}); });
    EXPECT_TRUE(wait_until([&] { return !wishes.empty(); }));
    second.join();
    EXPECT_EQ(answer, Answer::first_has_come);
    ASSERT_EQ(wishes.size(), 1U);
    EXPECT_TRUE(wishes[0].connect);
    EXPECT_EQ(wishes[0].token, "token-7");
    // It is on its way out: it hears nobody any more, but still has the lock.
    ear.reset();
    std::thread third([&] { answer = Only_One(folder.path()).ask({}); });
    first.reset();
    third.join();
    EXPECT_EQ(answer, Answer::is_first);
}

TEST(Second_Start, is_the_first_one_after_a_crash) {
    test_application();
    const QTemporaryDir folder;
    const pid_t crashes = fork();
    if (crashes == 0) {
        auto* const left = new Only_One(folder.path());
        left->ask({});
        _exit(0);
    }
    waitpid(crashes, nullptr, 0);
    ASSERT_TRUE(QFile::exists(folder.filePath("velk.lock")));
    QFile(folder.filePath("velk.socket")).open(QIODevice::WriteOnly);
    Only_One next(folder.path());
    EXPECT_EQ(next.ask({}), Answer::is_first);
    int came = 0;
    const Front_Service ear(folder.path(), [&](const Wish&) { ++came; });
    std::thread second([&] { Only_One(folder.path()).ask({}); });
    EXPECT_TRUE(wait_until([&] { return came == 1; }));
    second.join();
}

}  // namespace
}  // namespace velk
