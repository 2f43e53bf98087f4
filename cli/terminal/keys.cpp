#include "cli/terminal/keys.h"

#include <algorithm>
#include <string_view>

#include "cli/terminal/terminal.h"

namespace {

struct Sequence {
    char bytes[4];  // the bytes after ESC and '['; no sequence is the prefix of another
    Key key;
};

// The table also contains keys that have no function here, so that their bytes aren't inserted as text.
// clang-format off
constexpr Sequence kSequences[] = {
    {"A",   kUp},     {"B",   kDown},   {"C",   kRight},  {"D",   kLeft},
    {"1~",  kHome},   {"2~",  kInsert}, {"3~",  kDelete},
    {"4~",  kEnd},    {"5~",  kPageUp}, {"6~",  kPageDown},
    {"11~", kF1},     {"12~", kF2},     {"13~", kF3},     {"14~", kF4},
    {"15~", kF5},     {"17~", kF6},     {"18~", kF7},     {"19~", kF8},
    {"20~", kF9},     {"21~", kF10},    {"23~", kF11},    {"24~", kF12},
};
// clang-format on

constexpr size_t LongestSequence() {
    size_t longest = 0;
    for (const Sequence& sequence : kSequences)
        longest = std::max(longest, std::string_view(sequence.bytes).size());
    return longest;
}

// State for detecting double keys: if TAB or ESC is pressed twice in a row, the second key is kDoubleTab or
// kDoubleEscape.
int LastKey = 0;           // the last TAB or ESC; 0 if there is none
int MultiKeySequence = 0;  // 1: LastKey was the previous key; 2: the key after it is being read; 0: neither

void BeginKey() {
    if (MultiKeySequence == 2) LastKey = 0;
    MultiKeySequence = MultiKeySequence == 1 ? 2 : 0;
}

// Returns `twice` if `key` is the second of a pair, else `key`.
int Doubled(Key key, Key twice) {
    if (MultiKeySequence == 2 && LastKey == key) return twice;
    LastKey = key;
    MultiKeySequence = 1;
    return key;
}

int UnknownSequence() {
    RingBell();
    return kUnknownKey;
}

// Reads the rest of a sequence after ESC and '[' and returns its key. Reads only as long as the bytes are the
// prefix of a sequence. A missing byte reads as -1, which no sequence contains.
int ReadSequence() {
    char bytes[LongestSequence()];
    for (size_t length = 1; length <= sizeof bytes; ++length) {
        bytes[length - 1] = ReadChar(0);
        const std::string_view read(bytes, length);
        bool is_prefix = false;
        for (const Sequence& sequence : kSequences) {
            const std::string_view whole = sequence.bytes;
            if (whole == read) return sequence.key;
            is_prefix = is_prefix || whole.substr(0, length) == read;
        }
        if (!is_prefix) break;
    }
    return UnknownSequence();
}

int ReadAfterEscape() {
    const auto byte = static_cast<signed char>(ReadChar(0));
    if (byte == kEscape || byte == -1) return Doubled(kEscape, kDoubleEscape);
    return byte == '[' ? ReadSequence() : UnknownSequence();
}

}  // namespace

int GetChar(int Clear_MultiKey) {
    if (Clear_MultiKey != 0) {
        LastKey = 0;
        MultiKeySequence = 0;
        return kNoKey;
    }
    BeginKey();
    char read = 0;
    const ReadResult result = ReadByte(1, read);
    if (result == ReadResult::Ended) return kEndOfInput;
    if (result == ReadResult::Continued) return kContinued;
    const auto byte = static_cast<signed char>(read);
    if (byte < 0) return kUnknownKey;
    if (byte == kTab) return Doubled(kTab, kDoubleTab);
    return byte == kEscape ? ReadAfterEscape() : byte;
}
