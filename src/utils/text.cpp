#include "src/utils/text.h"

#include <iterator>

TextWriter::TextWriter(char* buffer, size_t size) : begin_(buffer), next_(buffer), last_(buffer + size - 1) {
    *next_ = '\0';
}

int strcmpi(std::string_view a, std::string_view b) {
    const auto lower = [](char letter) {
        const int byte = static_cast<unsigned char>(letter);
        return byte >= 'A' && byte <= 'Z' ? byte - 'A' + 'a' : byte;
    };
    const size_t shared = std::min(a.size(), b.size());
    for (size_t i = 0; i < shared; ++i) {
        if (lower(a[i]) != lower(b[i])) return lower(a[i]) - lower(b[i]);
    }
    return (a.size() > shared ? lower(a[shared]) : 0) - (b.size() > shared ? lower(b[shared]) : 0);
}

void TextWriter::Letter(char letter) {
    Text({&letter, 1});
}

void TextWriter::Text(std::string_view text) {
    const size_t available = static_cast<size_t>(last_ - next_);
    const size_t length = text.copy(next_, available);
    truncated_ = truncated_ || length < text.size();
    next_ += length;
    *next_ = '\0';
}

void TextWriter::Number(uint32_t value, int digits) {
    Digits(value, 10, digits);
}

void TextWriter::Hex(uint32_t value, int digits) {
    Digits(value, 16, digits);
}

void TextWriter::Digits(uint32_t value, uint32_t base, int least) {
    char digits[10];  // as many decimal digits as a uint32_t can have
    char* const end = std::end(digits);
    char* first = end;
    for (; value != 0 || end - first < least; value /= base) *--first = "0123456789ABCDEF"[value % base];
    Text({first, static_cast<size_t>(end - first)});
}
