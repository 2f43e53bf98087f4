// JSON as this program writes it: members in the order in which they are added, texts and words of the
// machine in its one encoding.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

using Json = nlohmann::ordered_json;

// A text of the firmware or the driver. Its bytes may be any; those that aren't ASCII are taken for the
// characters with their numbers.
Json Text(std::string_view bytes);

// A word of the shell's displays, in lower case; null for null.
Json Word(const char* word);
