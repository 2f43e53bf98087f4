// Finding the tables and copying them.
#include "cli/smbios_old/smbios.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "include/smbios_records.h"
#include "src/utils/map_physical.h"

namespace {

constexpr unsigned int kEntryPointAlignment = 16;
constexpr unsigned int kNewestRefused = 0x200;  // version 2.0

// The sum of wCount bytes, modulo 256.
unsigned char SmbChecksum(const unsigned char* pAddr, unsigned short wCount) {
    unsigned sum = 0;
    for (unsigned i = 0; i < wCount; ++i) sum += pAddr[i];
    return static_cast<unsigned char>(sum);
}

// Whether the bytes begin with an entry point that is right and lies wholly within them.
bool BeginsEntryPoint(Bytes bytes) {
    SMBIOSEntryPoint entry;
    if (bytes.size < sizeof entry) return false;
    if (std::memcmp(bytes.data, kEntryPointAnchor, sizeof entry.sAnchorString) != 0) return false;
    std::memcpy(&entry, bytes.data, sizeof entry);
    if (entry.byEPSLength > bytes.size || SmbChecksum(bytes.data, entry.byEPSLength) != 0) return false;
    return entry.byMajorVer * 256U + entry.byMinorVer > kNewestRefused;
}

// Fills EPS with the first entry point of the BIOS area; false when there is none.
bool FindEntryPoint(Bytes area) {
    const unsigned char* const end = area.data + area.size;
    for (const unsigned char* next = area.data; next != end; ++next) {
        next = static_cast<const unsigned char*>(
            std::memchr(next, kEntryPointAnchor[0], static_cast<size_t>(end - next)));
        if (next == nullptr) return false;
        if ((next - area.data) % kEntryPointAlignment != 0) continue;
        if (!BeginsEntryPoint({next, static_cast<size_t>(end - next)})) continue;
        std::memcpy(&EPS, next, sizeof EPS);
        return true;
    }
    return false;
}

// Maps physical memory; says on standard error when it can't.
unsigned char* MapPhysMem(unsigned int offset, unsigned int size) {
    void* const mapping = zetMapPhys32UnCache(offset, size);
    if (mapping == nullptr) std::fprintf(stderr, "smbios: ReadPhysMem: mmap FAILED\n");
    return static_cast<unsigned char*>(mapping);
}

// Looks for the entry point where it is: the area is large, and most of it is never read.
bool ReadEntryPoint() {
    unsigned char* const area = MapPhysMem(kBiosArea, kBiosAreaSize);
    if (area == nullptr) {
        std::printf("ReadPhysMem failed\n");
        return false;
    }
    const bool found = FindEntryPoint({area, kBiosAreaSize});
    zetUnMapPhys32UnCache(area, kBiosAreaSize);
    return found;
}

}  // namespace

BOOL InitSMBIOS() {
    if (!ReadEntryPoint() || EPS.wSTLength == 0) return FALSE;

    // One byte more than the tables have: it stays 0, and ends a last string that is cut short.
    pSMBTables = static_cast<unsigned char*>(std::calloc(1, EPS.wSTLength + size_t{1}));
    smb_record_sizes = static_cast<uint16_t*>(std::malloc((EPS.wSTLength + size_t{1}) * sizeof(uint16_t)));
    if (pSMBTables == nullptr || smb_record_sizes == nullptr ||
        ReadPhysMem(EPS.dwSTAddr, EPS.wSTLength, pSMBTables) != TRUE) {
        DeinitSMBIOS();
        return FALSE;
    }
    SmbMeasureRecords();
    fSMBiosInited = TRUE;
    return TRUE;
}

void DeinitSMBIOS() {
    fSMBiosInited = FALSE;
    std::free(pSMBTables);
    std::free(smb_record_sizes);
    pSMBTables = nullptr;
    smb_record_sizes = nullptr;
}

BOOL IsSMBIOSAvailable() {
    return fSMBiosInited;
}

BOOL ReadPhysMem(unsigned int offset, unsigned int size, unsigned char* buffer) {
    unsigned char* const mapping = MapPhysMem(offset, size);
    if (mapping == nullptr) return FALSE;
    std::memcpy(buffer, mapping, size);
    zetUnMapPhys32UnCache(mapping, size);
    return TRUE;
}
