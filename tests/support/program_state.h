// Resets and saves the program's state, which cli/command/state.h lists. Tests and fuzz targets need this,
// because they start the program's code more than once in a process.
#pragma once

#include <string>

// Frees the memory of the state and sets every variable to its value before start-up. Doesn't close the
// devices.
void ResetState();

// Resets the state at the beginning and at the end of a scope.
struct FreshState {
    FreshState() { ResetState(); }
    ~FreshState() { ResetState(); }
    FreshState(const FreshState&) = delete;
    FreshState& operator=(const FreshState&) = delete;
};

// Returns the values of the variables that start-up fills, so that ReturnToState() can restore them. Doesn't
// copy the memory that they point to; only ResetState() frees it.
std::string StateNow();
void ReturnToState(const std::string& state);
