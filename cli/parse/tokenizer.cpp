// Parse() tokenizes a copy of the line in place: it overwrites each separator and quote with a NUL.
//
// A quote at the start of a word opens quotes: the word is the text up to the closing quote, or up to the end
// of the line if there is none. Two quotes in a row at the start of a word are an empty word, which counts as
// unquoted.
//
// A quote inside a word ends the word's text and toggles quoting, so that in an unquoted word it opens
// quotes. The rest of the word, up to the next separator outside quotes, is discarded; each further quote in
// it toggles quoting. The character right after an opening quote never closes the quotes.
//
// The 25th word extends to the end of the line.
#include "cli/parse/tokenizer.h"

#include <cctype>
#include <cstring>

#include "src/utils/text.h"

namespace {

// Returns whether a byte is a separator: a space, a control character other than TAB and NUL, or a byte of
// 0x80 or above, which is negative as a signed char.
bool IsSeparator(char byte) {
    return static_cast<signed char>(byte) <= 0x20 && byte != '\t' && byte != '\0';
}

// Overwrites the separators at `byte` with NULs. Returns the address of the first byte that isn't one.
char* EraseSeparators(char* byte) {
    for (; IsSeparator(*byte); ++byte) *byte = '\0';
    return byte;
}

// Stores the start of a word: `byte`, or the byte after it if `byte` is a quote. Returns the address at which
// the search for the end of the word starts.
char* BeginWord(InputLineType& line, char* byte) {
    bool quoted = *byte == '"';
    if (quoted) *byte++ = '\0';
    if (*byte == '"') {  // two quotes in a row
        *byte = '\0';
        quoted = false;
    }
    line.Words[line.NumWords] = byte;
    line.Quote[line.NumWords] = quoted ? 1 : 0;
    ++line.NumWords;
    return quoted ? byte : byte + 1;
}

// Ends a word at its first quote and skips the rest, which is discarded. Returns the address of the separator
// or NUL after the word.
char* EndWord(char* byte, bool in_quotes) {
    for (; *byte != '\0' && (in_quotes || !IsSeparator(*byte)); ++byte) {
        if (*byte != '"') continue;
        *byte = '\0';
        in_quotes = !in_quotes;
        if (in_quotes && byte[1] != '\0') ++byte;
    }
    return byte;
}

void Split(InputLineType& line) {
    char* byte = EraseSeparators(line.ParseLine);
    while (*byte != '\0') {
        byte = BeginWord(line, byte);
        if (line.NumWords == kMaxWords) return;
        byte = EraseSeparators(EndWord(byte, line.Quote[line.NumWords - 1] != 0));
    }
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
    Split(*InputLine);

    for (int i = 0; i < InputLine->NumWords; ++i) {
        TextWriter(InputLine->OrigCaseWords[i], kLineSize).Text(InputLine->Words[i]);
        if (InputLine->Quote[i] == 0) MakeUpper(InputLine->Words[i]);
    }
}
