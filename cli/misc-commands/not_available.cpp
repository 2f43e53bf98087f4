// The handlers that are not built yet. Each line here goes when its handler comes.
#include "cli/fan/fan.h"
#include "cli/misc-commands/misc_commands.h"
#include "cli/parse/handler.h"

namespace {

int NotAvailable() {
    return Fail("\nERROR: This command is not available yet.");
}

}  // namespace

int do_show_hlog(InputLineType*) {
    return NotAvailable();
}
int do_clear_hlog(InputLineType*) {
    return NotAvailable();
}
