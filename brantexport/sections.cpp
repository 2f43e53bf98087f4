#include "brantexport/sections.h"

#include "brantexport/events.h"
#include "brantexport/health.h"
#include "brantexport/inventory.h"
#include "brantexport/settings.h"

std::vector<Section> Sections() {
    return {
        {"system", WriteSystem},
        {"processors", WriteProcessors},
        {"memory", WriteMemory},
        {"nics", WriteNics},
        {"port_map", WritePortMap},
        {"fans", WriteFans},
        {"temperatures", WriteTemperatures},
        {"power_supplies", WritePowerSupplies},
        {"uid", WriteUid},
        {"asr", WriteAsr},
        {"settings", WriteSettings},
        {"versions", WriteVersions},
        {"events", WriteEvents},
    };
}
