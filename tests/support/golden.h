// Texts that the tests keep in files beside them, and compare with what the programs print.
#pragma once

#include <string>

// A file of the tests, by its path below tests/.
std::string GoldenText(const std::string& path);

// Expects a text to be what such a file holds. If it isn't, shows the difference, the stored side first, and
// leaves the new text in a file from which it can be read and copied.
void ExpectGolden(const std::string& path, const std::string& text);

// Expects of every model what FOLDER/models/MODEL.txt holds: the commands of one run in its first line, then
// what they print and which data tables they ask the driver for, in order. The files were read line by line
// against the models' facts; after a change, so is the difference.
void ExpectGoldenModels(const std::string& folder);
