// Numbers out of firmware texts such as "Proc 2".
#include <strings.h>

#include <cstring>

#include "cli/smbparse/smbparse.h"
#include "src/utils/numbers.h"
#include "src/utils/text_writer.h"

namespace {

constexpr char kBlanks[] = " \t";

// Compares as strcmp does, ASCII letters in either case being equal.
int strcmpi(const char* a, const char* b) {
    return strcasecmp(a, b);
}

}  // namespace

BOOL ParseNumFromString(const char* pStr, const char* pToken, int* piValue) {
    char words[256];
    TextWriter(words, sizeof words).Text(pStr);

    char* rest = nullptr;
    const char* word = strtok_r(words, kBlanks, &rest);
    while (word != nullptr && strcmpi(word, pToken) != 0) word = strtok_r(nullptr, kBlanks, &rest);
    const char* number = word != nullptr ? strtok_r(nullptr, kBlanks, &rest) : nullptr;
    if (number == nullptr) return FALSE;

    number += std::strcspn(number, "0123456789");
    if (*number == '\0') return FALSE;
    *piValue = DecimalNumber(number);
    return TRUE;
}
