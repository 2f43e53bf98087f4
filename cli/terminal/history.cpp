#include "cli/terminal/history.h"

#include <cstdlib>
#include <cstring>

#include "cli/command/state.h"
#include "src/utils/text.h"

namespace {

int SlotBefore(int slot) {
    return slot == 0 ? kHistorySlots - 1 : slot - 1;
}

int SlotAfter(int slot) {
    return slot == kHistorySlots - 1 ? 0 : slot + 1;
}

}  // namespace

bool AllocateHistory() {
    history_index = 0;
    auto* buffer = static_cast<char*>(std::malloc(kHistorySlots * kHistorySlotSize));
    if (buffer == nullptr) return false;
    for (char*& slot : History) {
        slot = static_cast<char*>(std::memset(buffer, 0, kHistorySlotSize));
        buffer += kHistorySlotSize;
    }
    return true;
}

void FreeHistory() {
    std::free(History[0]);
    std::memset(History, 0, sizeof History);
}

void StoreInHistory(const char* line) {
    TextWriter(History[history_index], kHistorySlotSize).Text(line);
    history_index = SlotAfter(history_index);
    std::memset(History[history_index], 0, kHistorySlotSize);
}

bool RepeatsNewest(const char* line) {
    return std::strcmp(line, History[SlotBefore(history_index)]) == 0;
}

bool BrowseOlder(int& position) {
    const int older = SlotBefore(position);
    if (position == SlotAfter(history_index) || History[older][0] == '\0') return false;
    position = older;
    return true;
}

bool BrowseNewer(int& position) {
    if (position == history_index) return false;
    position = SlotAfter(position);
    return true;
}
