// Fuzzes the simulator's parsers of the files `picl`, `faults` and `cevt/hlog`.
//
// Input: the contents of these files; a NUL ends each of the first two. This target calls the parsers
// directly. It also reads `picl` and `cevt/hlog` through the platform layer, but not `faults`, which a
// process reads only once, at its first call.
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/misc-commands/event_log.h"
#include "cli/pci/kelm.h"
#include "fuzz/target.h"
#include "platform/request.h"
#include "platform/sim/event_index.h"
#include "platform/sim/faults.h"
#include "platform/sim/picl_tree.h"
#include "tests/support/test_machine.h"

namespace {

class Machine : public TestMachine {
  public:
    Machine() {
        setenv("BRANT_MACHINE", Directory().c_str(), 1);
        cevt_fd = vxOpenRequest(cevt_path, kReadWrite);
        Require(cevt_fd >= 0);  // the first call of the process: `faults` doesn't exist yet
    }
};

std::string TakeFile(std::string& input) {
    std::string text = Take(input, input.find('\0'));
    Take(input, 1);
    return text;
}

void ReadTree(const std::string& text) {
    PiclTree tree;
    tree.Read("picl", text);
    uint32_t value = 0;
    for (const PiclNode& node : tree.Nodes()) tree.FindProperty(node, "DeviceID", value);
    find_kelm();
}

void ReadFaults() {
    const Faults faults;
    for (const char* subject : {"cevt read 1", "cdt 351.0.0", "xsvc map 0x000f0000", "picl root"}) {
        int result = 0;
        faults.Find(subject, 3, &result);
    }
}

// Checks that every indexed entry lies within the file, and that the numbers ascend, so that a listing ends.
void ReadLog(const Machine& machine) {
    EventIndex index;
    const Descriptor log = OpenFile(OpenDevice("cevt"), "hlog");
    Require(index.Build(log) == 0);
    const auto size = static_cast<off_t>(machine.Read("cevt/hlog").size());
    for (uint32_t number = 0; const IndexedEvent* event = index.Find(number); number = event->number + 1) {
        Require(event->number >= number && event->offset <= size - event->length);
        if (event->number == UINT32_MAX) break;
    }
    InputLineType line{};
    line.NumWords = 2;
    do_show_hlog(&line);
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static Machine machine;
    std::string input = Input(data, size);
    const std::string picl = TakeFile(input);
    machine.Write("picl", picl);
    machine.Write("faults", TakeFile(input));
    machine.Write("cevt/hlog", input);
    ReadTree(picl);
    ReadFaults();
    ReadLog(machine);
    return 0;
}
