#include "cli/smbparse/memory_inventory.h"

#include <algorithm>
#include <climits>

#include "cli/smbios_old/tables.h"
#include "cli/smbparse/smbparse.h"
#include "src/utils/text.h"

using smbios::MemoryArray;
using smbios::MemoryDevice;

namespace {

constexpr int kNotInTable = 1;  // number for a form factor or technology that isn't in the tables below

struct FormFactor {
    uint8_t code;  // code in the SMBIOS record
    int number;    // number in the inventory
};

constexpr FormFactor SmbMemFormFactorTable[] = {
    {3, 5},    // SIMM
    {8, 7},    // proprietary card
    {9, 8},    // DIMM
    {12, 10},  // RIMM
    {13, 9},   // SODIMM
    {14, 11},  // SRIMM
};

struct TypeDetail {
    uint16_t mask;
    int number;
};

// If several bits are set, the first entry whose bit is set applies.
constexpr TypeDetail SmbMemTypeDetailTable[] = {
    {0x0008, 2},  // fast-paged
    {0x0080, 5},  // synchronous
    {0x0200, 3},  // EDO
};

int NumberOfFormFactor(uint8_t form_factor) {
    const FormFactor* const row = FindCode(SmbMemFormFactorTable, form_factor);
    return row != nullptr ? row->number : kNotInTable;
}

int NumberOfTypeDetail(uint16_t detail) {
    for (const TypeDetail& row : SmbMemTypeDetailTable) {
        if ((detail & row.mask) != 0) return row.number;
    }
    return kNotInTable;
}

bool IsSystemMemory(const SmbRecord<MemoryArray>& array) {
    return array.Read(MemoryArray::kUse) == MemoryArray::kSystemMemory;
}

bool IsInSystemMemory(const SmbRecord<MemoryDevice>& device) {
    for (const auto array : SmbRecords<MemoryArray>()) {
        if (array.Handle() == device.Read(MemoryDevice::kArray) && IsSystemMemory(array)) return true;
    }
    return false;
}

int SizeKiB(const SmbRecord<MemoryDevice>& device) {
    const uint16_t size = device.Read(MemoryDevice::kSize);
    return (size & MemoryDevice::kInKiB) != 0 ? size & ~MemoryDevice::kInKiB : size * 1024;
}

// Reads the location of a memory device from its OEM record: the memory board (0 for the system board) and
// the socket on it. Returns FALSE and leaves both unchanged if there is no such record.
BOOL SmbFindMemoryLocation(unsigned short wType17Handle, int* plSlot, int* plSocket) {
    for (const auto location : SmbRecords<ZTSMBIOS_ZET_DIMM_LOCATION_INFO>()) {
        if (location.Read(smbios::kType17Handle) != wType17Handle) continue;
        const uint8_t slot = location.Read(smbios::kPhysicalSlot);
        *plSlot = slot != kOnSystemBoard ? slot : 0;
        *plSocket = location.Read(smbios::kPhysicalSocket);
        return TRUE;
    }
    return FALSE;
}

// Reads the location of a device from its OEM record, or from its locator string if there is no such record.
// A number that the locator doesn't contain leaves its variable unchanged.
void LocateModule(const SmbRecord<MemoryDevice>& device, int* board, int* module) {
    if (SmbFindMemoryLocation(device.Handle(), board, module) == TRUE) return;
    const char* locator = device.Text(MemoryDevice::kLocator);
    ParseNumFromString(locator, "SLOT", board);
    ParseNumFromString(locator, "DIMM", module);
}

// Appends a device to gMemoryMod. `a` is the index of its array among the memory arrays, and `d` that of the
// device among the memory devices; both count from 0.
void RecordModule(const SmbRecord<MemoryDevice>& device, int a, int d) {
    ZET_MemModule* module = AppendRecord(gMemoryMod);
    if (module == nullptr) {
        if (SizeKiB(device) != 0) ++memory_modules_left_out;
        return;
    }
    module->memBoardIndex = a;
    module->memModuleIndex = d + 1;
    LocateModule(device, &module->memBoardIndex, &module->memModuleIndex);
    module->memModuleSize = SizeKiB(device);
    module->memModuleType = NumberOfFormFactor(device.Read(MemoryDevice::kFormFactor));
    module->memModuleTechnology = NumberOfTypeDetail(device.Read(MemoryDevice::kTypeDetail));
    module->memModuleFrequency = device.Read(MemoryDevice::kSpeed);
}

void RecordModulesOf(const SmbRecord<MemoryArray>& array, int a) {
    int d = 0;
    for (const auto device : SmbRecords<MemoryDevice>()) {
        if (device.Read(MemoryDevice::kArray) == array.Handle()) RecordModule(device, a, d);
        ++d;
    }
}

}  // namespace

BOOL SmbParseMemRecords() {
    if (IsSMBIOSAvailable() != TRUE) return FALSE;
    int a = 0;
    for (const auto array : SmbRecords<MemoryArray>()) {
        if (IsSystemMemory(array)) RecordModulesOf(array, a);
        ++a;
    }
    return a != 0 ? TRUE : FALSE;
}

BOOL SmbGetTotalMemory(unsigned int* pSize) {
    if (IsSMBIOSAvailable() != TRUE || !SmbFirst<MemoryArray>()) return FALSE;
    *pSize = 0;
    for (const auto device : SmbRecords<MemoryDevice>()) {
        if (!IsInSystemMemory(device)) continue;
        *pSize += std::min(static_cast<unsigned int>(SizeKiB(device)), UINT_MAX - *pSize);
    }
    return TRUE;
}

BOOL SmbChkForECCSupported() {
    if (IsSMBIOSAvailable() != TRUE) return FALSE;
    for (const auto array : SmbRecords<MemoryArray>()) {
        if (IsSystemMemory(array) && array.Read(MemoryArray::kErrorCorrection) > MemoryArray::kNone)
            return TRUE;
    }
    return FALSE;
}
