// Descriptors that close themselves, and the few sockets that the phone needs.
#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace velk {

/// Owns a descriptor; -1 stands for none.
class Owned_Descriptor {
  public:
    Owned_Descriptor() = default;
    explicit Owned_Descriptor(int number) : number_(number) {}
    ~Owned_Descriptor() { reset(); }
    Owned_Descriptor(Owned_Descriptor&& other) noexcept
        : number_(std::exchange(other.number_, -1)) {}
    Owned_Descriptor& operator=(Owned_Descriptor&& other) noexcept;

    void reset();
    int number() const { return number_; }
    explicit operator bool() const { return number_ >= 0; }

  private:
    int number_ = -1;
};

// All of them give an empty descriptor on failure, with errno set. They are close-on-exec.

/// Listens on 127.0.0.1.
Owned_Descriptor listen_tcp(int port);
/// Listens on a free odd port, the only ones that can be announced to an adb server; its number is
/// put into `port`.
Owned_Descriptor listen_odd_tcp(int& port);
Owned_Descriptor connect_tcp(int port);
/// A waiting connection, non-blocking and without delay for small packets.
Owned_Descriptor accept_connection(int listener);

/// A socket file that nobody listens on any more is replaced.
Owned_Descriptor listen_unix(const std::string& path);
Owned_Descriptor connect_unix(const std::string& path);

/// Writes all of it to a blocking descriptor.
bool write_all(int descriptor, std::string_view bytes);

}  // namespace velk
