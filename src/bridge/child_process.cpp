#include "bridge/child_process.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>

#include "base/descriptor.h"
#include "base/interruptor.h"

namespace velk {

namespace {

using namespace std::chrono_literals;

/// As much as a pipe holds, so that one read empties it.
constexpr std::size_t size_of_a_pipe = 65536;

/// How long the stream of a child that has ended is still listened to when somebody else keeps it
/// open: long enough for the last words of a filter behind the child, too short to be noticed.
constexpr auto patience_after_the_end = 100ms;

/// For the forked copy; perror() may need a lock that another thread held.
void tell_that_it_cannot_be_run(std::string_view program) {
    for (const std::string_view text : {program, std::string_view(": cannot be run here\n")})
        if (::write(STDERR_FILENO, text.data(), text.size()) < 0) return;
}

/// Turns the forked copy into the child. Other threads are gone here and may have held any lock,
/// so there is nothing but system calls.
[[noreturn]] void become(const Child_Command& command, char* const* arguments, int pipe,
                         int nothing, pid_t parent) {
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (::getppid() != parent) ::_exit(status_of_a_missing_program);
    // A key like Ctrl-C ends the whole group in the terminal. The caller says when a child ends,
    // and must not take one that was cut off for one that has done its work. A child that reads
    // from the terminal has to stay.
    if (!command.shares_input) {
        ::setpgid(0, 0);
        ::signal(SIGTTOU, SIG_IGN);  // it may write to the terminal all the same
    }

    // A copy above the standard streams, so that none of them is in the way of another.
    const int captured = ::fcntl(pipe, F_DUPFD, 3);
    if (!command.shares_input) ::dup2(nothing, STDIN_FILENO);
    if (command.captures_output) ::dup2(captured, STDOUT_FILENO);
    if (command.captures_errors) ::dup2(captured, STDERR_FILENO);
    // The tool's server would keep for days whatever else it inherits.
    ::close_range(3, ~0U, CLOSE_RANGE_CLOEXEC);

    // From here on a signal is the child's own: none may run a handler of the program it was.
    for (const int signal : {SIGPIPE, SIGTERM, SIGHUP, SIGINT}) ::signal(signal, SIG_DFL);
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    ::execv(arguments[0], arguments);
    tell_that_it_cannot_be_run(arguments[0]);
    ::_exit(status_of_a_missing_program);
}

pid_t start(const Child_Command& command, int pipe) {
    std::vector<std::string> words = command.words;
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);

    // Not opened in the copy: a library that stands before the system's open() may need a lock.
    const Descriptor nothing(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    sigset_t all;
    sigset_t before;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before);
    const pid_t parent = ::getpid();
    const pid_t child = ::fork();
    if (child == 0) become(command, arguments.data(), pipe, nothing.number(), parent);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return child;
}

/// Hands on what one read gives; false at the stream's end.
bool hand_on(int stream, const Child_Listener& listener) {
    std::array<char, size_of_a_pipe> piece;
    const ssize_t count = ::read(stream, piece.data(), piece.size());
    if (count < 0) return errno == EINTR;
    if (count > 0) listener({piece.data(), static_cast<std::size_t>(count)});
    return count > 0;
}

/// Listens until the stream ends, or the child has ended and left it to somebody else. `ended`
/// becomes readable when the child ends.
void listen(int stream, int ended, const Child_Listener& listener) {
    std::array<pollfd, 2> events{{{stream, POLLIN, 0}, {ended, POLLIN, 0}}};
    do {
        if (::poll(events.data(), events.size(), -1) < 0) continue;
        if (events[0].revents != 0 && !hand_on(stream, listener)) return;
    } while (events[1].revents == 0);

    // What the child wrote last is in the pipe by now: the first read here has it all.
    const auto end = std::chrono::steady_clock::now() + patience_after_the_end;
    for (auto left = patience_after_the_end; left > 0ms;
         left =
             std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now())) {
        const int ready = ::poll(events.data(), 1, static_cast<int>(left.count()));
        if (ready > 0 && !hand_on(stream, listener)) return;
    }
}

/// Becomes readable when the child ends. Without one (an old system) a stream that somebody else
/// keeps open is listened to until it ends.
int descriptor_of(pid_t child) {
    return static_cast<int>(::syscall(SYS_pidfd_open, child, 0));
}

int status_after(int wait_status) {
    if (WIFEXITED(wait_status)) return WEXITSTATUS(wait_status);
    return status_of_the_first_signal + WTERMSIG(wait_status);
}

int cannot_run(const std::string& program) {
    std::perror(program.c_str());
    return status_of_a_missing_program;
}

}  // namespace

int run_child(const Child_Command& command, const Child_Listener& listener) {
    if (Interruptor::current().cancelled()) return status_of_the_first_signal + SIGTERM;
    const std::string& program = command.words.front();
    std::array<int, 2> ends{};
    if (::access(program.c_str(), X_OK) != 0 || ::pipe2(ends.data(), O_CLOEXEC) != 0)
        return cannot_run(program);
    const Descriptor stream(ends[0]);
    Descriptor childs_end(ends[1]);
    const pid_t child = start(command, childs_end.number());
    childs_end.close();
    if (child < 0) return cannot_run(program);

    {
        const Interruptor::Child registered(child);
        const Descriptor ended(descriptor_of(child));
        listen(stream.number(), ended.number(), listener);
        siginfo_t unused;
        while (::waitid(P_PID, static_cast<id_t>(child), &unused, WEXITED | WNOWAIT) < 0 &&
               errno == EINTR) {
        }
    }
    // Reaped last: until here nobody else can have got the child's number.
    int wait_status = 0;
    while (::waitpid(child, &wait_status, 0) < 0 && errno == EINTR) {
    }
    return status_after(wait_status);
}

}  // namespace velk
