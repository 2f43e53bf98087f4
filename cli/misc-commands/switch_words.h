// The two ways of a setting that is on or off, in the words of the messages: "Failed to %s", and with a "d"
// behind it "Successfully %sd".
#pragma once

#include <cstring>

#include "cli/command/command.h"

struct SwitchWay {
    bool on;
    const char* verb;
};
constexpr SwitchWay kEnable = {true, "enable"};
constexpr SwitchWay kDisable = {false, "disable"};

// The way that a command's first word says, where one handler serves both.
inline const SwitchWay& WayOf(const InputLineType& line) {
    return std::strcmp(line.Words[0], "ENABLE") == 0 ? kEnable : kDisable;
}
