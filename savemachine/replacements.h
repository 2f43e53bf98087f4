// Replacements for private values, for the option --redact.
//
// A replacement has the form and the length of its value, so the commands work as before. Within a copy,
// equal values have equal replacements, so that it still shows which records belong together. Replacements
// are random, so nobody can compute the value from them.
#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "savemachine/random_numbers.h"

// A part of the bytes of a file. May extend beyond their end.
struct Part {
    size_t offset;
    size_t size;
};

constexpr size_t kMacSize = 6;
constexpr size_t kUuidSize = 16;

class Replacements {
  public:
    // Replaces the strings in `part`. They are separated by NULs; a string with commas is a list of values,
    // such as the serial numbers of several modules. Letters are replaced by letters of the same case, digits
    // by digits, and bytes that aren't ASCII by '?'. White space and punctuation remain.
    void ReplaceTexts(std::string& bytes, Part part);

    // Replace the value at `offset`, unless it is unset (only 0 bytes or only 0xFF bytes) or extends beyond
    // the end. The new MAC address is marked as locally administered, so no device has it.
    void ReplaceMac(std::string& bytes, size_t offset);
    void ReplaceUuid(std::string& bytes, size_t offset);

  private:
    enum class Kind { Text, Mac, Uuid };

    std::string Invent(Kind kind, const std::string& value);
    std::string InventText(const std::string& value);
    std::string InventMac(const std::string& value);
    std::string InventUuid(const std::string& value);
    const std::string& ReplacementOf(Kind kind, const std::string& value);
    void ReplaceNumber(std::string& bytes, Part part, Kind kind);
    char Random(unsigned count) { return static_cast<char>(random_.Next() % count); }

    RandomNumbers random_;
    std::map<std::pair<Kind, std::string>, std::string> replacements_;  // from a value to its replacement
    std::set<std::string> used_;                                        // all replacements
};
