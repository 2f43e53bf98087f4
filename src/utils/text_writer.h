// Builds a text in its caller's buffer: never past it, always terminated; once full, what came first stays.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

class TextWriter {
  public:
    // size: bytes of the buffer, the terminator included; 1 or more. The text starts empty.
    TextWriter(char* buffer, size_t size);
    TextWriter(const TextWriter&) = delete;
    TextWriter& operator=(const TextWriter&) = delete;

    void Letter(char letter);
    void Text(std::string_view text);
    // Each with zeros in front up to so many digits, at most 10.
    void Number(uint32_t value, int digits = 1);  // decimal
    void Hex(uint32_t value, int digits);         // hexadecimal, upper case

    bool Empty() const { return next_ == begin_; }
    bool Cut() const { return cut_; }  // whether anything was dropped
    size_t Length() const { return static_cast<size_t>(next_ - begin_); }

  private:
    void Digits(uint32_t value, uint32_t base, int least);

    char* begin_;
    char* next_;  // the terminator's place
    char* last_;  // the buffer's last byte
    bool cut_ = false;
};
