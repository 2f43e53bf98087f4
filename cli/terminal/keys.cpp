#include "cli/terminal/keys.h"

#include <algorithm>
#include <string_view>

#include "cli/terminal/terminal.h"

namespace {

struct Sequence {
    char bytes[4];  // after ESC and '['; none begins another
    Key key;
};

// Keys without a function are here too, so that their bytes don't arrive as text.
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

int LastKey = 0;           // the last key that can be doubled, TAB or ESC; or 0
int MultiKeySequence = 0;  // 0 idle, 1 that key was just returned, 2 the key after it is being read

void AgeDoubling() {
    if (MultiKeySequence == 2) LastKey = 0;
    MultiKeySequence = MultiKeySequence == 1 ? 2 : 0;
}

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

// The key of what follows ESC and '['. Reads only as long as the bytes can still become a key, and never
// waits: a byte that isn't there reads as -1, which begins nothing.
int ReadSequence() {
    char bytes[LongestSequence()];
    for (size_t length = 1; length <= sizeof bytes; ++length) {
        bytes[length - 1] = ReadChar(0);
        const std::string_view read(bytes, length);
        bool begins_one = false;
        for (const Sequence& sequence : kSequences) {
            const std::string_view whole = sequence.bytes;
            if (whole == read) return sequence.key;
            begins_one = begins_one || whole.substr(0, length) == read;
        }
        if (!begins_one) break;
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
    AgeDoubling();
    const auto byte = static_cast<signed char>(ReadChar(1));
    if (InputHasEnded()) return kEndOfInput;
    if (WasContinued()) return kContinued;
    if (byte < 0) return kUnknownKey;
    if (byte == kTab) return Doubled(kTab, kDoubleTab);
    return byte == kEscape ? ReadAfterEscape() : byte;
}
