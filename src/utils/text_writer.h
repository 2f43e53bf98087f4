// Builds a text in its caller's buffer: never past it, always terminated; once full, what came first stays.
#pragma once

#include <cstddef>
#include <string_view>

class TextWriter {
  public:
    // size: bytes of the buffer, the terminator included; 1 or more. The text starts empty.
    TextWriter(char* buffer, size_t size);
    TextWriter(const TextWriter&) = delete;
    TextWriter& operator=(const TextWriter&) = delete;

    void Letter(char letter);
    void Text(std::string_view text);
    // As printf prints it, straight into the room that is left.
    __attribute__((format(printf, 2, 3))) void Format(const char* format, ...);

    bool Empty() const { return next_ == begin_; }
    bool Cut() const { return cut_; }  // whether anything was dropped
    size_t Length() const { return static_cast<size_t>(next_ - begin_); }

  private:
    char* begin_;
    char* next_;  // the terminator's place
    char* last_;  // the buffer's last byte
    bool cut_ = false;
};
