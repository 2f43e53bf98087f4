// Golden files: outputs that the tests expect, in files beside the tests. tools/golden shows how the last
// test run differs from them, and stores the new outputs.
#pragma once

#include <string>

// Returns the contents of a golden file. path: below tests/.
std::string GoldenText(const std::string& path);

// Expects `text` to equal the golden file. On a difference, shows it and writes the new text to
// BUILD/bin/golden.new/PATH for tools/golden; on a match, deletes a new text that an earlier run wrote.
void ExpectGolden(const std::string& path, const std::string& text);

// Runs on each model the commands in the first line of FOLDER/models/MODEL.txt, and expects the rest of that
// golden file: what the commands print, then their requests for data tables, in order. The files were
// compared line by line with the models' facts; compare the differences in the same way after a change.
void ExpectGoldenModels(const std::string& folder);
