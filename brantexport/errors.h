// The list of errors: an entry for each value or section that could not be read.
#pragma once

#include <string>
#include <vector>

#include "brantexport/writer.h"

class Errors {
  public:
    struct Error {
        const char* section;
        std::string message;
    };

    // Sets the section of the errors that are added from now on.
    void Begin(const char* section) { section_ = section; }
    // Adds an error. Returns a null value, which is exported instead of the value that could not be read.
    Value Add(std::string message) {
        list_.push_back({section_, std::move(message)});
        return {};
    }
    const std::vector<Error>& List() const { return list_; }

  private:
    const char* section_ = "";
    std::vector<Error> list_;
};
