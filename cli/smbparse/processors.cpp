#include "cli/smbparse/processors.h"

#include "cli/smbios_old/tables.h"
#include "cli/smbparse/smbparse.h"
#include "src/utils/text.h"

using smbios::Cache;
using smbios::Processor;

namespace {

constexpr CodeText SmbProcTable[] = {
    {0x01, "Other"},
    {0x02, "Unknown"},
    {0x03, "8086"},
    {0x04, "80286"},
    {0x05, "80386"},
    {0x06, "80486"},
    {0x07, "8087"},
    {0x08, "80287"},
    {0x09, "80387"},
    {0x0A, "80487"},
    {0x0B, "Pentium"},
    {0x0C, "Pentium Pro"},
    {0x0D, "Pentium II"},
    {0x10, "Pentium II Xeon"},
    {0x0E, "Pentium MMX"},
    {0x11, "Pentium III"},
    {0xB0, "Pentium III Xeon"},
    {0xB1, "Pentium III SpeedStep"},
    {0x0F, "Celeron"},
    {0x12, "M1"},
    {0x19, "K5"},
    {0x30, "Alpha"},
    {0x82, "Itanium"},
    {0xB2, "Pentium 4"},
    {0xB3, "Intel Xeon"},
    {0x84, "AMD Opteron"},
    {0xB5, "Intel Xeon MP"},
};

// Indexed by the low three bits of a processor record's status: unknown, enabled, disabled by the user,
// disabled after an error in POST, idle, and three undefined values. An unknown status is shown as failed.
constexpr CpuStatus kStatusOfState[8] = {kCpuFailed, kCpuOk,      kCpuDisabled, kCpuDisabled,
                                         kCpuOk,     kCpuUnknown, kCpuUnknown,  kCpuUnknown};

const char* FindProcName(uint8_t family) {
    return TextOfCode(SmbProcTable, family, "Other");
}

bool IsPopulatedCpu(const SmbRecord<Processor>& record) {
    return record.Read(Processor::kKind) == Processor::kCentral &&
           (record.Read(Processor::kStatus) & Processor::kPopulated) != 0;
}

// Returns the OEM record of a processor, or a null record.
PZTSMBIOS_ZET_PROC_INFO FindZetProcRec(unsigned short wType4Handle) {
    for (const auto record : SmbRecords<ZTSMBIOS_ZET_PROC_INFO>()) {
        if (record.Read(smbios::kType4Handle) == wType4Handle) return record;
    }
    return {};
}

// Returns the socket number to print: the number in a designation like "Proc 2", or `index` + 1 if there is
// none. Ignores the designation if the processor has an OEM record.
unsigned int SocketNumber(const SmbRecord<Processor>& record, int index) {
    int number = index + 1;
    if (!FindZetProcRec(record.Handle())) {
        ParseNumFromString(record.Text(Processor::kSocket), "Proc", &number);
    }
    return static_cast<unsigned int>(number);
}

// Fills *cpu, entry `index` of gCpu_tbl.
void FillCpu(const SmbRecord<Processor>& record, ZET_CPU* cpu, int index) {
    cpu->cpuUnitIndex = index;
    TextWriter(cpu->cpuName, sizeof cpu->cpuName).Text(FindProcName(record.Read(Processor::kFamily)));
    cpu->cpuSpeed = record.Read(Processor::kCurrentSpeed);
    cpu->cpuStep = record.Read(Processor::kId) & 0xF;
    cpu->cpuStatus = kStatusOfState[record.Read(Processor::kStatus) & 7];
    cpu->cpuExtFrequency = record.Read(Processor::kExternalClock);
    cpu->cpuSocketNumber = SocketNumber(record, index);
    if (record.Has(Processor::kThreadCount)) {
        cpu->cpucorecount = record.Read(Processor::kCoreCount);
        cpu->threadcount = static_cast<int8_t>(record.Read(Processor::kThreadCount));
    }
}

// Returns the size of a cache in the record's unit: 1 KiB or 64 KiB.
uint16_t InstalledSize(const SmbRecord<Cache>& record) {
    return record.Read(Cache::kInstalledSize) & static_cast<uint16_t>(~Cache::kIn64KiB);
}

// Fills *entry from a cache record. `cpu`: cpuUnitIndex of its processor.
void ParseCache(const SmbRecord<Cache>& record, ZET_CACHE* entry, int cpu) {
    const bool in_64KiB = (record.Read(Cache::kInstalledSize) & Cache::kIn64KiB) != 0;
    entry->cacheUnitIndex = cpu;
    entry->cacheLevelIndex = static_cast<uint8_t>((record.Read(Cache::kConfiguration) & 7) + 1);
    entry->cacheSize = InstalledSize(record) * (in_64KiB ? 64 : 1);
}

// Appends the cache with a handle to gCache_tbl, unless its size is 0. Ignores the handle if the first record
// with it isn't a cache.
void RecordCache(uint16_t handle, int cpu) {
    const auto record = SmbWithHandle<Cache>(handle);
    if (!record || InstalledSize(record) == 0) return;
    ZET_CACHE* added = AppendRecord(gCache_tbl);
    if (added != nullptr) ParseCache(record, added, cpu);
}

unsigned short CountProcessors() {
    unsigned short count = 0;
    for ([[maybe_unused]] const auto record : SmbRecords<Processor>()) ++count;
    return count;
}

}  // namespace

BOOL SmbParseProcRecords() {
    if (IsSMBIOSAvailable() != TRUE) return FALSE;
    const unsigned short count = CountProcessors();
    int cpu = 0;
    for (unsigned short copy = count; copy-- > 0;) {
        void* found = nullptr;
        SmbGetRecordByType(Processor::kType, copy, &found);
        const SmbRecord<Processor> record(found);
        if (!IsPopulatedCpu(record)) continue;
        ZET_CPU* added = AppendRecord(gCpu_tbl);
        if (added == nullptr) {
            ++processors_left_out;
            continue;
        }

        FillCpu(record, added, cpu);
        RecordCache(record.Read(Processor::kL2Cache), cpu);
        RecordCache(record.Read(Processor::kL3Cache), cpu);
        ++cpu;
    }
    return count != 0 ? TRUE : FALSE;
}
