// The processors and their caches.
#include "cli/smbparse/inventory_table.h"
#include "cli/smbparse/smbparse.h"
#include "src/utils/text_writer.h"
#include "src/utils/word_table.h"

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

// By the low three bits of a processor record's status: unknown, enabled, disabled by the user, disabled
// after an error in POST, idle, and three that mean nothing. A processor of unknown state counts as failed.
constexpr CpuStatus kStatusOfState[8] = {kCpuFailed, kCpuOk,      kCpuDisabled, kCpuDisabled,
                                         kCpuOk,     kCpuUnknown, kCpuUnknown,  kCpuUnknown};

const char* FindProcName(uint8_t family) {
    return TextOfCode(SmbProcTable, family, "Other");
}

bool IsPopulatedCpu(const void* record) {
    return SmbRead(record, processor::kType) == processor::kCentral &&
           (SmbRead(record, processor::kStatus) & processor::kPopulated) != 0;
}

uint16_t InstalledSize(const void* cache_record) {
    return SmbRead(cache_record, cache::kInstalledSize) & static_cast<uint16_t>(~cache::kIn64KiB);
}

// The maker's own record for a processor; null when there is none.
const void* FindZetProcRec(uint16_t wType4Handle) {
    for (unsigned char* record = nullptr; SmbGetRecordOfType(kZetProcInfo, &record) == TRUE;) {
        if (SmbRead(record, zet_processor::kType4Handle) == wType4Handle) return record;
    }
    return nullptr;
}

// By the place in gCpu_tbl, unless a designation like "Proc 2" says otherwise. The designation doesn't count
// where the maker's own record describes the processor.
unsigned int SocketNumber(void* record, int place) {
    int number = place + 1;
    if (FindZetProcRec(SmbRead(record, kRecordHandle)) == nullptr) {
        ParseNumFromString(SmbText(record, processor::kSocket), "Proc", &number);
    }
    return static_cast<unsigned int>(number);
}

void FillCpu(void* record, ZET_CPU* cpu, int place) {
    cpu->cpuUnitIndex = place;
    TextWriter(cpu->cpuName, sizeof cpu->cpuName).Text(FindProcName(SmbRead(record, processor::kFamily)));
    cpu->cpuSpeed = SmbRead(record, processor::kCurrentSpeed);
    cpu->cpuStep = SmbRead(record, processor::kId) & 0xF;
    cpu->cpuStatus = kStatusOfState[SmbRead(record, processor::kStatus) & 7];
    cpu->cpuExtFrequency = SmbRead(record, processor::kExternalClock);
    cpu->cpuSocketNumber = SocketNumber(record, place);
    if (SmbFormattedArea(record).size > processor::kThreadCount.offset) {
        cpu->cpucorecount = SmbRead(record, processor::kCoreCount);
        cpu->threadcount = static_cast<int8_t>(SmbRead(record, processor::kThreadCount));
    }
}

// Fills *entry from a cache record. cpu: its processor's cpuUnitIndex.
void ParseCache(const void* record, ZET_CACHE* entry, int cpu) {
    const bool in_64KiB = (SmbRead(record, cache::kInstalledSize) & cache::kIn64KiB) != 0;
    entry->cacheUnitIndex = cpu;
    entry->cacheLevelIndex = static_cast<uint8_t>((SmbRead(record, cache::kConfiguration) & 7) + 1);
    entry->cacheSize = InstalledSize(record) * (in_64KiB ? 64 : 1);
}

// handle: as a processor's record has it. The first record that it names is a cache, or there is none.
void RecordCache(uint16_t handle, int cpu) {
    void* record = nullptr;
    if (handle == kNoHandle || SmbGetRecordByHandle(handle, &record) != TRUE) return;
    if (SmbRead(record, kRecordType) != kCacheInformation || InstalledSize(record) == 0) return;
    ZET_CACHE* added = AppendRecord(gCache_tbl);
    if (added != nullptr) ParseCache(record, added, cpu);
}

unsigned short CountProcessors() {
    unsigned short count = 0;
    for (unsigned char* record = nullptr; SmbGetRecordOfType(kProcessorInformation, &record) == TRUE;)
        ++count;
    return count;
}

}  // namespace

BOOL SmbParseProcRecords() {
    const unsigned short count = CountProcessors();
    int cpu = 0;
    for (unsigned short copy = count; copy-- > 0;) {
        void* record = nullptr;
        if (SmbGetRecordByType(kProcessorInformation, copy, &record) != TRUE) continue;
        if (!IsPopulatedCpu(record)) continue;
        ZET_CPU* added = AppendRecord(gCpu_tbl);
        if (added == nullptr) {
            ++processors_left_out;
            continue;
        }

        FillCpu(record, added, cpu);
        RecordCache(SmbRead(record, processor::kL2Cache), cpu);
        RecordCache(SmbRead(record, processor::kL3Cache), cpu);
        ++cpu;
    }
    return count != 0 ? TRUE : FALSE;
}
