// The data tables: every record that a command can ask for, as long as the command asks for it. What a driver
// has beyond that can't be told from the zeros that a shorter record leaves, and no command sees it.
#include <cerrno>
#include <cstdlib>
#include <memory>

#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/misc-commands/health.h"
#include "include/health_records.h"
#include "include/memory_records.h"
#include "platform/request.h"
#include "savemachine/machine_copy.h"

namespace {

constexpr bool kNotEverywhere = true;

struct Table {
    DataTableType type;
    size_t size;
    // Not every driver has it: that it is missing is no news, and no command asks for it again.
    bool not_everywhere = false;
};

// What has a header, and then records for each device.
struct Family {
    const char* name;
    Table header;
    int first;  // the driver's first index; -1 stands for 255
    Table tables[3];
};
// clang-format off
constexpr Family kFamilies[] = {
    {"fans", {kFanHeaderTable, sizeof(FANHEADER)}, 0, {
        {kFanDataTable,    sizeof(FANDDATA), kNotEverywhere},
        {kFanFeatureTable, sizeof(COMMONFEATUREINFO)},
        {kFanBasicTable,   sizeof(FANBASIC)},
    }},
    {"temperatures", {kTemperatureHeaderTable, sizeof(TEMPERATUREHEADER)}, -1, {
        {kTemperatureFeatureTable, sizeof(COMMONFEATUREINFO)},
        {kTemperatureNumbersTable, sizeof(TEMPERATURENUMBERS)},
    }},
    {"power supplies", {kSupplyHeaderTable, sizeof(POWERSUPPLYHEADER)}, 0, {
        {kSupplyNumbersTable, sizeof(POWERSUPPLYNUMBERS), kNotEverywhere},
        {kSupplyFeatureTable, sizeof(COMMONFEATUREINFO)},
        {kSupplyBasicTable,   sizeof(POWERSUPPLYBASIC)},
    }},
};
// clang-format on

// The two bytes that begin each header.
struct HeaderBeginning {
    uint8_t ucNumSupportedByChassis;
    uint8_t ucDataAvailable;
};

using Record = std::unique_ptr<void, decltype(&std::free)>;

// "356.0.0", as the record is called in `cdt` and in `faults`.
std::string NameOf(const Table& table, int index, int index2) {
    return std::to_string(table.type) + "." + std::to_string(index & 255) + "." +
           std::to_string(index2 & 255);
}

void Store(MachineCopy& copy, const std::string& name, const void* record, size_t size) {
    copy.Write("cdt/" + name, std::string(static_cast<const char*>(record), size));
}

// Reads a record and stores it. Null when the driver refuses it.
Record Save(MachineCopy& copy, const Table& table, int index, int index2 = 0) {
    const std::string name = NameOf(table, index, index2);
    errno = 0;
    Record record(
        generic_dtioctl(static_cast<short>(table.type), index, index2, static_cast<int>(table.size), cdt_fd),
        &std::free);
    if (record != nullptr) {
        Store(copy, name, record.get(), table.size);
    } else if (FailedResult() != kMissing || !table.not_everywhere) {
        copy.Refused("cdt " + name, FailedResult());
    }
    return record;
}

void SaveFamily(MachineCopy& copy, const Family& family) {
    copy.Reading(family.name);
    const Record record = Save(copy, family.header, 0);
    if (record == nullptr) return;
    const auto& header = *static_cast<const HeaderBeginning*>(record.get());
    if (header.ucDataAvailable == 0) return;
    for (const Table& table : family.tables) {
        if (table.size == 0) break;
        for (int index = family.first; index < header.ucNumSupportedByChassis; ++index) {
            if (Save(copy, table, index) == nullptr && table.not_everywhere) break;
        }
    }
}

constexpr Table kMemory = {kMemoryTable, sizeof(RESMEM_CONFIG), kNotEverywhere};
constexpr Table kCartridge = {kCartridgeTable, sizeof(CartridgeBeginning), kNotEverywhere};
constexpr Table kModuleConfig = {kModuleConfigTable, sizeof(RESMEM_DIMM_CONFIG), kNotEverywhere};
constexpr Table kModuleStatus = {kModuleStatusTable, sizeof(RESMEM_DIMM_STATUS)};

// The modules of some cartridges, up to the first that the driver refuses, as the commands read them.
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

// A driver may have memory on the system board or in cartridges: it is asked for both.
void SaveMemory(MachineCopy& copy) {
    copy.Reading("memory modules");
    const Record memory = Save(copy, kMemory, 0);
    const MemoryCounts counts = CountsOf(static_cast<const RESMEM_CONFIG*>(memory.get()));
    Save(copy, kCartridge, kSystemBoardCartridge);
    SaveModules(copy, kSystemBoardCartridge, kSystemBoardCartridge + 1, counts.dimms);
    SaveModules(copy, 0, counts.carts, counts.dimms);
}

// The state of the light comes with a control request, which a plain read couldn't carry.
void SaveIndicators(MachineCopy& copy) {
    copy.Reading("indicators");
    Save(copy, {kIndicatorHeaderTable, sizeof(INDCHEADER)}, 0);

    constexpr Table kLight = {kIndicatorControlTable, sizeof(INDCBASIC)};
    INDCBASIC light{};
    DT_IOCTL request{};
    request.DtHdr.size = sizeof light;
    request.DtHdr.DT_Type = kLight.type;
    request.DtHdr.CRUFunction = kIndicatorControl;
    request.DtHdr.CRUSubfunction = kReportState;
    request.pData = &light;
    errno = 0;
    if (vxIoctlRequest(cdt_fd, kDataTableRequest, &request) == 0) {
        Store(copy, NameOf(kLight, 0, 0), &light, sizeof light);
    } else {
        copy.Refused("cdt " + NameOf(kLight, 0, 0), FailedResult());
    }
}

}  // namespace

void SaveTables(MachineCopy& copy) {
    for (const Family& family : kFamilies) SaveFamily(copy, family);
    SaveMemory(copy);
    SaveIndicators(copy);
}
