// An open file, pipe or other thing of the system's that has a number.
#pragma once

#include <unistd.h>

#include <utility>

namespace velk {

/// Open as long as it lives; -1 when it could not be opened.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }
    bool is_open() const { return number_ >= 0; }
    /// Closes it, if it is open. False with a reason in errno when that fails: some file systems
    /// tell only then that they could not write.
    bool close() { return !is_open() || ::close(std::exchange(number_, -1)) == 0; }

  private:
    int number_;
};

}  // namespace velk
