// The exported document: its values, and the list of errors that it ends with.
#pragma once

#include <nlohmann/json.hpp>
#include <string_view>

// Keeps members in the order in which they are added.
using Json = nlohmann::ordered_json;

// Converts a string of the firmware or the driver, which may contain any bytes. A byte above 127 becomes the
// character with that number.
Json Text(std::string_view bytes);

// Converts a name that the shell prints to lower case. Returns null for null.
Json Word(const char* word);

// The list of everything that could not be read.
class Errors {
  public:
    // Sets the section of the errors that are added from now on.
    void Begin(const char* section) { section_ = section; }
    // Adds an error. Returns null, the value of whatever could not be read.
    Json Add(const char* message);
    const Json& List() const { return list_; }

  private:
    const char* section_ = "";
    Json list_ = Json::array();
};
