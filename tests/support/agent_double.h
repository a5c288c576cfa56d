// An agent for tests: listens on a wire's fixed port in this process, and answers with the bytes
// that the test wrote.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <future>
#include <list>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace velk {

class Agent_Double {
  public:
    /// What comes back for a request.
    struct Piece {
        std::string bytes;
        std::shared_future<void> gate = {};  // waited for first, where there is one
    };
    struct Reply {
        std::vector<Piece> pieces;
        enum class End {
            close,       // as a real agent ends a reply
            reset,       // the connection breaks off
            stay_silent  // open until the client closes or the double goes
        } end = End::close;

        Reply() = default;
        Reply(std::string bytes) : pieces{{std::move(bytes)}} {}  // NOLINT: bytes are a reply
        Reply(const char* text) : Reply(std::string(text)) {}     // NOLINT
    };

    /// Listens at once; fails the test when the port is taken. Ignores SIGPIPE for the process, as
    /// the program does.
    explicit Agent_Double(std::uint16_t port = 12300);
    /// Breaks off all conversations.
    ~Agent_Double();
    Agent_Double(const Agent_Double&) = delete;
    Agent_Double& operator=(const Agent_Double&) = delete;

    // What it answers; any time, any thread. Without a word it closes after the request.

    /// To requests that begin with this byte: the number of a code, or a command's first letter.
    void reply_to(int code, Reply reply);
    /// To requests that begin with this byte, once each in this order, before the reply above.
    void reply_once_to(int code, Reply reply);
    /// From now on nobody is answered: connections stay open without a byte.
    void be_silent();

    /// Every request so far, whole, in the order they came.
    std::vector<std::string> requests();
    /// The first bytes of the requests so far, as decimal texts: "38", "81".
    std::vector<std::string> codes();
    /// Waits until that many requests have come; fails the test when they do not.
    bool wait_for_requests(std::size_t count);

    // Replies as the agent makes them.

    struct Contact {
        std::string id, name, tel;
    };
    /// The reply to a request for a value: ten bytes, then the text.
    static Reply value(const std::string& text);
    /// The reply to a request for the battery.
    static Reply battery(int percent);
    /// The reply to a request for the contacts, in one piece.
    static Reply contacts(const std::vector<Contact>& contacts);
    /// The reply to an added contact.
    static Reply added(const std::string& id);
    struct Message {
        std::string tel, text, date;
        unsigned char type = 1, id = 0, thread = 0;  // the low bytes of their fields
    };
    /// The reply to a request for the messages: a packet for each, and the bare header.
    static Reply messages(const std::vector<Message>& messages);
    /// The reply, of which nothing comes before the promise is kept.
    static Reply held_back(Reply reply, std::promise<void>& until);
    /// The bytes in pieces of this length.
    static Reply in_pieces(const std::string& bytes, std::size_t length);
    /// A number as the agent writes it: four bytes, most significant first.
    static std::string number(std::size_t value);
    /// A text as the agent writes it: the number of its bytes, and the bytes.
    static std::string field(const std::string& bytes);

  private:
    struct Conversation {
        int descriptor;
        bool ended = false;
        std::thread thread;
    };

    void accept_all();
    void converse(Conversation& conversation);
    void answer(int descriptor, const Reply& reply);
    Reply take_reply(const std::string& request);
    bool pause(std::chrono::milliseconds time);

    int listener_ = -1;
    int stop_[2] = {-1, -1};  // a pipe; its end means stop
    std::thread acceptor_;

    std::mutex mutex_;
    std::condition_variable changed_;
    bool stopping_ = false;
    bool silent_ = false;
    std::map<int, Reply> replies_;
    std::map<int, std::vector<Reply>> once_;
    std::vector<std::string> requests_;
    std::list<Conversation> conversations_;
};

}  // namespace velk
