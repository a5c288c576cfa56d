// One child process: started, listened to while it runs, reaped. No shell is involved.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velk {

/// What is run, and which of the child's standard streams are not simply our own.
struct Child_Command {
    std::vector<std::string> words;  // the program's full path, then one argument each
    bool shares_input = false;       // reads our standard input; finds an empty one otherwise
    bool captures_output = true;
    bool captures_errors = false;  // together with the output they come in the order of writing
};

/// Takes the captured bytes, piece by piece as they come, on the thread that runs the child.
using Child_Listener = std::function<void(std::string_view)>;

// As a shell counts them: what becomes of a program that cannot be run, and of one that a signal
// ended.
inline constexpr int status_of_a_missing_program = 127;
inline constexpr int status_of_the_first_signal = 128;

/// Runs a child, blocking the calling thread until it has ended, however long that takes. Closing
/// the window ends the wait (see Interruptor), and the child ends when its caller dies. Gives the
/// exit status; the two numbers above tell of other ends, and the reason why a program cannot be
/// run goes to standard error.
///
/// All that the child itself wrote is captured, of any size. A server that it leaves behind and
/// that keeps the stream open does not hold the caller up.
int run_child(const Child_Command& command, const Child_Listener& listener);

}  // namespace velk
