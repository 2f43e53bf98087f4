#include "mkmachine/events_hardware.h"

namespace {

// The server itself (number 0) and an external chassis. The texts of these events don't depend on the chassis
// type, so the types here are unusual ones.
constexpr EVT_CHASSIS kServerAndAnother[] = {{kChassisBladeEnclosure, 0, 0}, {kChassisInternalStorage, 2, 0}};

}  // namespace

void AddHardwareEvents(SampleEvents& events) {
    AddRecord(events, kCaution, 4, 1, EVT_CACHE_ACCEL_PARITY_ERROR{2});
    AddRecord(events, kCaution, 5, 1, EVT_CPU_CORRECTABLE{1, 0, 9});
    AddRecord(events, kCritical, 5, 2, EVT_CPU_UNCORRECTABLE{3, 2, 9});
    AddRecord(events, kCritical, 6, 1, EVT_HOST_BUS_UNCORRECTABLE{0});
    AddRecord(events, kCritical, 6, 1, EVT_HOST_BUS_UNCORRECTABLE{1});
    AddRecord(events, kCritical, 6, 2, EVT_INTERMODULE_BUS_UNCORRECTABLE{0x1F});
    for (uint16_t code = 1; code <= 4; ++code) AddRecord(events, kCritical, 7, code, EVT_EISA_BUS{6});
    for (const EVT_CHASSIS& chassis : kServerAndAnother)
        AddRecord(events, kCritical, 8, 1, EVT_PCI_BUS{chassis, 3, 4, 5, 6});
    for (uint16_t code = 1; code <= 9; ++code) {
        for (const EVT_CHASSIS& chassis : kServerAndAnother) {
            AddRecord(events, code < 5 ? kNotice : kCaution, 9, code, EVT_EXPANSION_SLOT{chassis, 7});
        }
    }
}
