#include "src/utils/text_writer.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

TextWriter::TextWriter(char* buffer, size_t size) : begin_(buffer), next_(buffer), last_(buffer + size - 1) {
    *next_ = '\0';
}

void TextWriter::Letter(char letter) {
    Text({&letter, 1});
}

void TextWriter::Text(std::string_view text) {
    const size_t room = static_cast<size_t>(last_ - next_);
    const size_t length = text.copy(next_, room);
    cut_ = cut_ || length < text.size();
    next_ += length;
    *next_ = '\0';
}

void TextWriter::Format(const char* format, ...) {
    const size_t room = static_cast<size_t>(last_ - next_);
    va_list arguments;
    va_start(arguments, format);
    const int wanted = std::vsnprintf(next_, room + 1, format, arguments);
    va_end(arguments);
    if (wanted < 0) {
        *next_ = '\0';
        cut_ = true;
        return;
    }
    const size_t length = std::min(static_cast<size_t>(wanted), room);
    cut_ = cut_ || length < static_cast<size_t>(wanted);
    next_ += length;
}
