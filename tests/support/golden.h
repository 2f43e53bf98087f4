// Golden files: expected outputs, in files in the test's folder. tools/golden shows how the output of the
// last test run differs from them, and stores the new output.
#pragma once

#include <string>

// Returns the contents of a golden file. `path` is relative to tests/.
std::string GoldenText(const std::string& path);

// Expects `text` to equal the golden file. On a difference, shows it and writes the new text to
// BUILD/bin/golden.new/PATH for tools/golden; on a match, deletes a new text that an earlier run wrote.
void ExpectGolden(const std::string& path, const std::string& text);

// Runs, on each model, the commands in the first line of FOLDER/models/MODEL.txt. Expects the rest of that
// golden file: the output of the commands, then their data-table requests in order. The files were reviewed
// line by line against the models' definitions; review each difference in the same way.
void ExpectGoldenModels(const std::string& folder);
