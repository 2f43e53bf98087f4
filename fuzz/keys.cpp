// A key stream through the line editor, read from descriptor 0 like a person's.
#include <sys/mman.h>
#include <unistd.h>

#include <cstring>

#include "cli/brantcli/command_table.h"
#include "cli/parse/command_tree.h"
#include "cli/parse/editor.h"
#include "cli/terminal/history.h"
#include "cli/terminal/keys.h"
#include "fuzz/target.h"

namespace {

// The end of the input would end the process. Enters behind it let every line that was begun be finished: the
// first ones may be taken for the rest of an escape sequence.
constexpr char kEnters[] = "\r\r\r\r\r";

// Becomes descriptor 0, at its beginning.
void TypeOnKeyboard(const std::string& keys) {
    static const int memory = memfd_create("keys", MFD_CLOEXEC);
    Require(ftruncate(memory, 0) == 0);
    Require(pwrite(memory, keys.data(), keys.size(), 0) == static_cast<ssize_t>(keys.size()));
    Require(dup2(memory, STDIN_FILENO) == STDIN_FILENO && lseek(STDIN_FILENO, 0, SEEK_SET) == 0);
}

void StartShell() {
    FreeHistory();
    Require(AllocateHistory());
    if (Cmds == nullptr) CreateCommands();
    GetChar(1);  // no TAB or ESC is half of a pair
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    StartShell();
    TypeOnKeyboard(Input(data, size) + kEnters);
    while (lseek(STDIN_FILENO, 0, SEEK_CUR) < static_cast<off_t>(size)) {
        GetCmd(&CurrentCommandLine);
        Require(std::memchr(CurrentCommandLine.CmdLine, '\0', kLineSize) != nullptr);
        Require(CurrentCommandLine.NumWords >= 0 && CurrentCommandLine.NumWords <= kMaxWords);
    }
    return 0;
}
