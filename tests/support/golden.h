// Golden files contain expected outputs. They are in the test's folder. tools/golden shows how the output of
// the last test run differs from them, and can store the new output.
#pragma once

#include <string>

// Returns the contents of a golden file. `path` is relative to tests/.
std::string GoldenText(const std::string& path);

// Expects that `text` equals the golden file. If they differ, prints the difference and writes the new text
// to BUILD/bin/golden.new/PATH, for tools/golden. If they are equal, deletes a new text that an earlier run
// has written.
void ExpectGolden(const std::string& path, const std::string& text);

// Runs, on each model, the commands in the first line of FOLDER/models/MODEL.txt. Expects that the output of
// the commands, followed by their data-table requests in order, equals the rest of that file. The files were
// reviewed line by line against the models' definitions; review each difference in the same way.
void ExpectGoldenModels(const std::string& folder);
