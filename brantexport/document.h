// The exported document: its values, and the list of errors that it ends with.
#pragma once

#include <nlohmann/json.hpp>
#include <string_view>

// Members stay in the order in which they are added.
using Json = nlohmann::ordered_json;

// A text of the firmware or the driver. Its bytes may be any; those that aren't ASCII are taken for the
// characters with their numbers.
Json Text(std::string_view bytes);

// A word of the shell's displays, in lower case; null for null.
Json Word(const char* word);

// What could not be read: an entry for each, with its section and a sentence.
class Errors {
  public:
    void Begin(const char* section) { section_ = section; }
    // sentence: as the shell says it; null for none. Result: whether there is one.
    bool Add(const char* sentence);
    const Json& List() const { return list_; }

  private:
    const char* section_ = "";
    Json list_ = Json::array();
};
