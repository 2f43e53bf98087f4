#include <cctype>
#include <cstring>

#include "cli/parse/dispatcher.h"
#include "src/utils/text_writer.h"

namespace {

// Blanks and control characters but TAB, and, since a byte is signed here, everything from 0x80 up.
bool IsSeparator(char byte) {
    return static_cast<signed char>(byte) <= 0x20 && byte != '\t';
}

}  // namespace

void MakeUpper(char* String) {
    if (String == nullptr) return;
    for (; *String != '\0'; ++String) {
        *String = static_cast<char>(std::toupper(static_cast<unsigned char>(*String)));
    }
}

void Parse(InputLineType* InputLine) {
    InputLine->NumWords = 0;
    std::memcpy(InputLine->ParseLine, InputLine->CmdLine, kLineSize);
    InputLine->ParseLine[kLineSize - 1] = '\0';
    const char* end = InputLine->ParseLine + std::strlen(InputLine->ParseLine);

    bool in_quotes = false;
    bool at_word_start = true;
    char* byte = InputLine->ParseLine;
    while (*byte != '\0' && InputLine->NumWords < kMaxWords) {
        if (IsSeparator(*byte)) {
            if (!in_quotes) {
                *byte = '\0';
                at_word_start = true;
            }
            ++byte;
            continue;
        }
        if (*byte == '"') {
            in_quotes = !in_quotes;
            *byte = '\0';
            if (in_quotes) ++byte;  // the word begins behind the opening quote
        }
        if (at_word_start) {
            at_word_start = false;
            if (in_quotes && *byte == '"') {  // nothing between the quotes: an empty word
                *byte = '\0';
                in_quotes = false;
            }
            InputLine->Words[InputLine->NumWords] = byte;
            InputLine->Quote[InputLine->NumWords] = in_quotes ? 1 : 0;
            ++InputLine->NumWords;
        }
        if (byte == end) break;  // an opening quote was the line's last byte
        ++byte;
    }

    for (int i = 0; i < InputLine->NumWords; ++i) {
        TextWriter(InputLine->OrigCaseWords[i], kLineSize).Text(InputLine->Words[i]);
        if (InputLine->Quote[i] == 0) MakeUpper(InputLine->Words[i]);
    }
}
