#include "cli/smbparse/smbparse.h"

#include <algorithm>
#include <string_view>

#include "src/utils/text.h"

namespace {

// Removes the first word from `text` and returns it; returns "" if there is none.
std::string_view TakeWord(std::string_view& text) {
    constexpr char kSeparators[] = " \t";
    text.remove_prefix(std::min(text.find_first_not_of(kSeparators), text.size()));
    const std::string_view word = text.substr(0, text.find_first_of(kSeparators));
    text.remove_prefix(word.size());
    return word;
}

}  // namespace

BOOL ParseNumFromString(const char* pStr, const char* pToken, int* piValue) {
    char words[256];
    TextWriter(words, sizeof words).Text(pStr);

    std::string_view rest = words;
    std::string_view word = TakeWord(rest);
    while (!word.empty() && strcmpi(word, pToken) != 0) word = TakeWord(rest);
    word = TakeWord(rest);
    const size_t number = word.find_first_of("0123456789");
    if (number == word.npos) return FALSE;
    *piValue = DecimalNumber(word.data() + number);
    return TRUE;
}
