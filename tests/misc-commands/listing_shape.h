// What SHOW HLOG prints, made short.
#pragma once

#include <string>
#include <utility>

// An output as one line: an entry by its number, ? for the prompt, / for a newline, S for the refusal for
// want of room, ! for any other, E for the empty log; what is none of these as it stands.
inline std::string Shape(std::string output) {
    const std::pair<std::string, std::string> kTokens[] = {
        {"\nPress q to quit, c to continue without pagination\n"
         "or any other key to see the next screen.: ",
         "?"},
        {"\nERROR: Event log buffer is too small.", "S"},
        {"\nERROR: Invalid error code returned.", "!"},
        {"The HLOG Log is empty.", "E"},
        {"\n", "/"},
    };
    const std::string event = "\nEvent: ";
    std::string shape;
    while (!output.empty()) {
        if (output.compare(0, event.size(), event) == 0) {
            shape += output.substr(event.size(), output.find(' ', event.size()) - event.size()) + " ";
            output.erase(0, output.find(".\n") + 2);
            continue;
        }
        size_t taken = 0;
        for (const auto& [text, token] : kTokens) {
            if (taken != 0 || output.compare(0, text.size(), text) != 0) continue;
            shape += token;
            taken = text.size();
        }
        if (taken == 0) return shape + output;
        output.erase(0, taken);
    }
    return shape;
}
