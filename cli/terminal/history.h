// The commands entered so far: a ring of slots, of which the one that the next command goes into is empty, so
// that it holds one command fewer than it has slots. Nothing is kept between runs.
#pragma once

// Gives each slot of History a buffer filled with zeros and sets history_index to 0. Returns false if there
// is not enough memory.
bool AllocateHistory();

// Frees the buffers, if there are any.
void FreeHistory();

// Adds a line as the newest command; the oldest goes once the ring is full. At most 255 characters are kept.
void StoreInHistory(const char* line);

// Whether the line is the newest command, to the letter.
bool RepeatsNewest(const char* line);

// A browse position is a slot and begins at history_index, the empty one.
// Moves to the next older command. False, without moving, when there is none.
bool BrowseOlder(int& position);
// Moves to the next newer command, or past the newest to the empty slot. False when it is there already.
bool BrowseNewer(int& position);
