// Fuzzes the line editor with a stream of keys, which it reads from standard input.
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

// These keys follow the input, because the end of standard input would end the process. They complete the
// last line; the first ones may still belong to an escape sequence.
constexpr char kEnters[] = "\r\r\r\r\r";

// Redirects standard input to a file that contains `keys`.
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
    GetChar(1);  // so that the first key isn't the second TAB or ESC of a pair
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
