#include "brantexport/sections.h"

#include "brantexport/events.h"
#include "brantexport/health.h"
#include "brantexport/inventory.h"
#include "brantexport/settings.h"

const std::vector<Section>& Sections() {
    static const std::vector<Section> sections = {
        {"system", ExportSystem},
        {"processors", ExportProcessors},
        {"memory", ExportMemory},
        {"nics", ExportNics},
        {"fans", ExportFans},
        {"temperatures", ExportTemperatures},
        {"power_supplies", ExportPowerSupplies},
        {"uid", ExportUid},
        {"asr", ExportAsr},
        {"settings", ExportSettings},
        {"versions", ExportVersions},
        {"events", ExportEvents},
    };
    return sections;
}
