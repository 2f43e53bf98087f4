// Saves the data tables: every record that a command can request, with the size that the command requests. It
// doesn't request more: no command reads further bytes, and zeros among them could be the padding of a
// shorter record.
#include <cerrno>
#include <cstdlib>
#include <memory>

#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/misc-commands/dimm.h"
#include "cli/misc-commands/uid.h"
#include "include/health_records.h"
#include "include/memory_records.h"
#include "savemachine/parts.h"

namespace {

constexpr bool kOptional = true;

struct Table {
    DataTableType type;
    size_t size;
    // Some drivers don't have this table. A missing record is then not reported, and no further record of the
    // table is requested.
    bool is_optional = false;
};

// A family of devices: the table of its header, and the tables that contain a record for each device.
struct Family {
    const char* name;
    Table header;
    int first;  // index of the first device; -1 is sent to the driver as 255
    Table tables[3];
};
// clang-format off
constexpr Family kFamilies[] = {
    {"fans", {kFanHeaderTable, sizeof(FANHEADER)}, 0, {
        {kFanDataTable,    sizeof(FANDDATA), kOptional},
        {kFanFeatureTable, sizeof(COMMONFEATUREINFO)},
        {kFanBasicTable,   sizeof(FANBASIC)},
    }},
    {"temperatures", {kTemperatureHeaderTable, sizeof(TEMPERATUREHEADER)}, -1, {
        {kTemperatureFeatureTable, sizeof(COMMONFEATUREINFO)},
        {kTemperatureNumbersTable, sizeof(TEMPERATURENUMBERS)},
    }},
    {"power supplies", {kSupplyHeaderTable, sizeof(POWERSUPPLYHEADER)}, 0, {
        {kSupplyNumbersTable, sizeof(POWERSUPPLYNUMBERS), kOptional},
        {kSupplyFeatureTable, sizeof(COMMONFEATUREINFO)},
        {kSupplyBasicTable,   sizeof(POWERSUPPLYBASIC)},
    }},
};
// clang-format on

// The first two bytes of each header.
struct HeaderPrefix {
    uint8_t ucNumSupportedByChassis;
    uint8_t ucDataAvailable;
};

using Record = std::unique_ptr<void, decltype(&std::free)>;

// Returns the record's name in the directory `cdt` and in `faults`, such as "356.0.0".
std::string NameOf(const Table& table, int index, int index2) {
    return std::to_string(table.type) + "." + std::to_string(index & 255) + "." +
           std::to_string(index2 & 255);
}

void Store(MachineCopy& copy, const std::string& name, const void* record, size_t size) {
    copy.Write("cdt/" + name, std::string(static_cast<const char*>(record), size));
}

// Reads a record and stores it in the copy. Returns null if the request fails.
Record Save(MachineCopy& copy, const Table& table, int index, int index2 = 0) {
    const std::string name = NameOf(table, index, index2);
    errno = 0;
    Record record(
        generic_dtioctl(static_cast<short>(table.type), index, index2, static_cast<int>(table.size), cdt_fd),
        &std::free);
    if (record != nullptr) {
        Store(copy, name, record.get(), table.size);
    } else if (FailedResult() != kMissing || !table.is_optional) {
        copy.ReportFailedCall("cdt " + name, FailedResult());
    }
    return record;
}

void SaveFamily(MachineCopy& copy, const Family& family) {
    copy.ShowProgress(family.name);
    const Record record = Save(copy, family.header, 0);
    if (record == nullptr) return;
    const auto& header = *static_cast<const HeaderPrefix*>(record.get());
    if (header.ucDataAvailable == 0) return;
    for (const Table& table : family.tables) {
        if (table.size == 0) break;
        for (int index = family.first; index < header.ucNumSupportedByChassis; ++index) {
            if (Save(copy, table, index) == nullptr && table.is_optional) break;
        }
    }
}

constexpr Table kMemory = {kMemoryTable, sizeof(RESMEM_CONFIG), kOptional};
constexpr Table kCartridge = {kCartridgeTable, sizeof(CartridgePrefix), kOptional};
constexpr Table kModuleConfig = {kModuleConfigTable, sizeof(RESMEM_DIMM_CONFIG), kOptional};
constexpr Table kModuleStatus = {kModuleStatusTable, sizeof(RESMEM_DIMM_STATUS)};

// Saves the modules of the cartridges from `from` to `to` - 1. Ends at the first failed request, like the
// commands.
void SaveModules(MachineCopy& copy, int from, int to, int sockets) {
    for (int cartridge = from; cartridge < to; ++cartridge) {
        for (int module = 0; module < sockets; ++module) {
            const Record config = Save(copy, kModuleConfig, cartridge, module);
            if (config == nullptr) return;
            if (static_cast<const RESMEM_DIMM_CONFIG*>(config.get())->ulPresent == 0) continue;
            Save(copy, kModuleStatus, cartridge, module);
        }
    }
}

// Saves the memory tables. A server has its memory either on the system board or in cartridges; both are
// requested.
void SaveMemory(MachineCopy& copy) {
    copy.ShowProgress("memory modules");
    const Record memory = Save(copy, kMemory, 0);
    const MemorySockets sockets = SocketsOf(static_cast<const RESMEM_CONFIG*>(memory.get()));
    Save(copy, kCartridge, kSystemBoardCartridge);
    SaveModules(copy, kSystemBoardCartridge, kSystemBoardCartridge + 1, sockets.dimms);
    SaveModules(copy, 0, sockets.carts, sockets.dimms);
}

// Saves the indicators. The state of the light is read with a control request, which generic_dtioctl can't
// send.
void SaveIndicators(MachineCopy& copy) {
    copy.ShowProgress("indicators");
    Save(copy, {kIndicatorHeaderTable, sizeof(INDCHEADER)}, 0);

    constexpr Table kLight = {kIndicatorControlTable, sizeof(INDCBASIC)};
    INDCBASIC light{};
    errno = 0;
    if (ControlLight(kReportState, light) == 0) {
        Store(copy, NameOf(kLight, 0, 0), &light, sizeof light);
    } else {
        copy.ReportFailedCall("cdt " + NameOf(kLight, 0, 0), FailedResult());
    }
}

}  // namespace

void SaveTables(MachineCopy& copy) {
    for (const Family& family : kFamilies) SaveFamily(copy, family);
    SaveMemory(copy);
    SaveIndicators(copy);
}
