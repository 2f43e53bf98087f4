#include "cli/misc-commands/event_class.h"

namespace {

constexpr char kNotDefined[] = "Not defined";

}  // namespace

const char* const EventClass[kEventClasses] = {
    "EVT_CLASS_EMPTY",  // 0
    "EVT_CLASS_TEST",
    "Machine Environment",
    "Main Memory",
    "Cache Memory",  // 4
    "CPU",
    "Host Bus",
    "EISA Bus",
    "PCI Bus",  // 8
    "Expansion Slot",
    "POST Messages",
    "Power Subsystem",
    "UPS",  // 12
    "ASR",
    "OS Class",
    "DIAGS",
    kNotDefined,  // 16
    "Network Adapter",
    "SCSI Subsystem",
    "Drive Array Subsystem",
    "Unrecoverable System Error",  // 20
    kNotDefined,
    kNotDefined,
    kNotDefined,
    kNotDefined,  // 24
    kNotDefined,
    kNotDefined,
    kNotDefined,
    kNotDefined,  // 28
    kNotDefined,
    kNotDefined,
    kNotDefined,
    "System Revision",  // 32
    "Maintenance Note",
    "Infrastructure Environment",
};

const char* EventClassName(uint16_t wClass) {
    return wClass < kEventClasses ? EventClass[wClass] : kNotDefined;
}
