#include "cli/smbparse/smbparse.h"

#include <string_view>

#include "src/utils/text.h"

BOOL ParseNumFromString(const char* pStr, const char* pToken, int* piValue) {
    constexpr char kSeparators[] = " \t";
    char words[256];
    TextWriter(words, sizeof words).Text(pStr);

    std::string_view rest = words;
    std::string_view word = TakeWord(rest, kSeparators);
    while (!word.empty() && strcmpi(word, pToken) != 0) word = TakeWord(rest, kSeparators);
    word = TakeWord(rest, kSeparators);
    const size_t number = word.find_first_of("0123456789");
    if (number == word.npos) return FALSE;
    *piValue = DecimalNumber(word.data() + number);
    return TRUE;
}
