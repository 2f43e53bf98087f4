// The command history: a ring of slots. The slot for the next command is always empty, so the ring contains
// one command fewer than it has slots. The history isn't saved when the program ends.
#pragma once

// Allocates a zeroed buffer for each slot of History and sets history_index to 0. Returns false if memory
// runs out.
bool AllocateHistory();

// Frees the buffers and sets the slots to null.
void FreeHistory();

// Stores a line of at most 255 characters as the newest command. Removes the oldest one if the ring is full.
void StoreInHistory(const char* line);

// Returns whether the line is equal to the newest command.
bool RepeatsNewest(const char* line);

// To start browsing, set `position` to history_index, the empty slot.

// Moves `position` to the next older command. Returns false if there is none.
bool BrowseOlder(int& position);

// Moves `position` to the next newer command, or from the newest to the empty slot. Returns false if it is at
// the empty slot.
bool BrowseNewer(int& position);
