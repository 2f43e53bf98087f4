// File descriptors, for code on both sides of the platform abstraction layer.
#pragma once

#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <string_view>
#include <utility>

// An open file or directory, which is closed at the end of the scope. It is negative if opening failed.
class Descriptor {
  public:
    explicit Descriptor(int fd = -1) : fd_(fd) {}
    ~Descriptor() {
        if (fd_ >= 0) close(fd_);
    }
    Descriptor(Descriptor&& other) noexcept : fd_(other.Release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(fd_, other.fd_);
        return *this;
    }

    explicit operator bool() const { return fd_ >= 0; }
    int Get() const { return fd_; }
    int Release() {
        return std::exchange(fd_, -1);
    }  // returns the descriptor without closing it; the caller must close it

  private:
    int fd_;
};

// Writes `rest`, and removes from it what has been written. Returns false with errno on failure; EAGAIN means
// that a non-blocking descriptor takes no more bytes now.
inline bool WriteRest(int fd, std::string_view& rest) {
    while (!rest.empty()) {
        const ssize_t count = write(fd, rest.data(), rest.size());
        if (count >= 0) {
            rest.remove_prefix(static_cast<size_t>(count));
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}
