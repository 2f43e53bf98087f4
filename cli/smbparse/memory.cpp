// The memory modules, and what is known of all the memory together.
#include <algorithm>
#include <climits>

#include "cli/smbparse/inventory_table.h"
#include "cli/smbparse/smbparse.h"
#include "src/utils/word_table.h"

namespace {

constexpr int kNotInTable = 1;  // the number of a form factor or a technology that has no row

struct FormFactor {
    uint8_t code;  // in the firmware's records
    int number;    // in the inventory
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

// The first row whose bit is set counts.
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

bool NextArray(unsigned char** record) {
    return SmbGetRecordOfType(kMemoryArray, record) == TRUE;
}

bool NextDevice(unsigned char** record) {
    return SmbGetRecordOfType(kMemoryDevice, record) == TRUE;
}

bool IsSystemMemory(const void* array) {
    return SmbRead(array, memory_array::kUse) == memory_array::kSystemMemory;
}

bool IsSystemMemoryArray(uint16_t handle) {
    for (unsigned char* array = nullptr; NextArray(&array);) {
        if (SmbRead(array, kRecordHandle) == handle && IsSystemMemory(array)) return true;
    }
    return false;
}

int SizeKiB(const void* device) {
    const uint16_t size = SmbRead(device, memory_device::kSize);
    return (size & memory_device::kInKiB) != 0 ? size & ~memory_device::kInKiB : size * 1024;
}

// Where the maker's own record says that a memory device is. plSlot: the memory board, 0 for the system
// board. Result: FALSE, with both left alone, when there is no such record.
BOOL SmbFindMemoryLocation(unsigned short wType17Handle, int* plSlot, int* plSocket) {
    for (unsigned char* record = nullptr; SmbGetRecordOfType(kZetDimmLocation, &record) == TRUE;) {
        if (SmbRead(record, zet_dimm::kType17Handle) != wType17Handle) continue;
        const uint8_t slot = SmbRead(record, zet_dimm::kSlot);
        *plSlot = slot != kOnSystemBoard ? slot : 0;
        *plSocket = SmbRead(record, zet_dimm::kSocket);
        return TRUE;
    }
    return FALSE;
}

// Where a device is: what the maker's record says, else what its locator says, else as it was.
void LocateModule(void* device, int* board, int* module) {
    if (SmbFindMemoryLocation(SmbRead(device, kRecordHandle), board, module) == TRUE) return;
    const char* locator = SmbText(device, memory_device::kLocator);
    ParseNumFromString(locator, "SLOT", board);
    ParseNumFromString(locator, "DIMM", module);
}

// array, device: the records' places among those of their types, from 0.
void RecordModule(void* record, int array, int device) {
    ZET_MemModule* module = AppendRecord(gMemoryMod);
    if (module == nullptr) {
        if (SizeKiB(record) != 0) ++memory_modules_left_out;
        return;
    }
    module->memBoardIndex = array;
    module->memModuleIndex = device + 1;
    LocateModule(record, &module->memBoardIndex, &module->memModuleIndex);
    module->memModuleSize = SizeKiB(record);
    module->memModuleType = NumberOfFormFactor(SmbRead(record, memory_device::kFormFactor));
    module->memModuleTechnology = NumberOfTypeDetail(SmbRead(record, memory_device::kTypeDetail));
    module->memModuleFrequency = SmbRead(record, memory_device::kSpeed);
}

}  // namespace

BOOL SmbParseMemRecords() {
    int a = 0;
    for (unsigned char* array = nullptr; NextArray(&array); ++a) {
        if (!IsSystemMemory(array)) continue;
        int d = 0;
        for (unsigned char* device = nullptr; NextDevice(&device); ++d) {
            if (SmbRead(device, memory_device::kArray) == SmbRead(array, kRecordHandle)) {
                RecordModule(device, a, d);
            }
        }
    }
    return a != 0 ? TRUE : FALSE;
}

BOOL SmbGetTotalMemory(unsigned int* pSize) {
    unsigned char* any_array = nullptr;
    if (!NextArray(&any_array)) return FALSE;
    *pSize = 0;
    for (unsigned char* device = nullptr; NextDevice(&device);) {
        if (!IsSystemMemoryArray(SmbRead(device, memory_device::kArray))) continue;
        *pSize += std::min(static_cast<unsigned int>(SizeKiB(device)), UINT_MAX - *pSize);
    }
    return TRUE;
}

BOOL SmbChkForECCSupported() {
    for (unsigned char* array = nullptr; NextArray(&array);) {
        if (!IsSystemMemory(array)) continue;
        if (SmbRead(array, memory_array::kErrorCorrection) > memory_array::kNoCorrection) return TRUE;
    }
    return FALSE;
}
