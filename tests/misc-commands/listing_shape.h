// Abbreviates the output of SHOW HLOG for the tests.
#pragma once

#include <string>
#include <utility>

// Abbreviates an output to one line. An entry becomes its number, the prompt '?', a newline '/'. The message
// about a buffer that is too small becomes 'S', that about an invalid status '!', and that about an empty log
// 'E'. The output from the first unknown text on is unchanged.
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
        size_t length = 0;
        for (const auto& [text, token] : kTokens) {
            if (length != 0 || output.compare(0, text.size(), text) != 0) continue;
            shape += token;
            length = text.size();
        }
        if (length == 0) return shape + output;
        output.erase(0, length);
    }
    return shape;
}
