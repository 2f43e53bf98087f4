#include "cli/smbios_old/tables.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "include/smbios_records.h"
#include "src/utils/map_physical.h"

namespace {

constexpr unsigned int kEntryPointAlignment = 16;
constexpr unsigned int kNewestRejected = 0x200;  // version 2.0; only later versions are accepted

// The size of one memcpy(). For a larger size, memcpy() uses `rep movsb`, and callgrind counts each byte as
// an instruction: the copy of the BIOS area alone would then cost half as much as a run of /bin/true.
constexpr unsigned int kChunkSize = 4096;

// Returns the sum of `wCount` bytes, modulo 256.
unsigned char SmbChecksum(const unsigned char* pAddr, unsigned short wCount) {
    unsigned sum = 0;
    for (unsigned i = 0; i < wCount; ++i) sum += pAddr[i];
    return static_cast<unsigned char>(sum);
}

// Returns whether `bytes` begin with a valid entry point. An entry point isn't valid if its structure, or the
// length that its checksum covers, extends beyond `bytes`.
bool IsEntryPoint(Bytes bytes) {
    SMBIOSEntryPoint entry;
    if (std::memcmp(bytes.data, kEntryPointAnchor, sizeof entry.sAnchorString) != 0) return false;
    if (bytes.size < sizeof entry) return false;
    std::memcpy(&entry, bytes.data, sizeof entry);
    if (entry.byEPSLength > bytes.size || SmbChecksum(bytes.data, entry.byEPSLength) != 0) return false;
    return entry.byMajorVer * 256U + entry.byMinorVer > kNewestRejected;
}

// Copies the first valid entry point of the BIOS area into EPS. Returns false, with EPS unchanged, if there
// is none. `area` has kBiosAreaSize bytes.
bool FindEntryPoint(const unsigned char* area) {
    const unsigned char* const end = area + kBiosAreaSize;
    const auto find_from = [=](const unsigned char* start) {
        const void* found = std::memchr(start, kEntryPointAnchor[0], static_cast<size_t>(end - start));
        return static_cast<const unsigned char*>(found);
    };
    for (const unsigned char* next = find_from(area); next != nullptr; next = find_from(next + 1)) {
        if ((next - area) % kEntryPointAlignment != 0) continue;
        if (!IsEntryPoint({next, static_cast<size_t>(end - next)})) continue;
        std::memcpy(&EPS, next, sizeof EPS);
        return true;
    }
    return false;
}

// Copies the tables that EPS describes. Returns FALSE, with nothing allocated, if they are empty or can't be
// read, or if memory runs out.
BOOL CopyTables() {
    if (EPS.wSTLength == 0) return FALSE;
    // One byte more than the tables contain. It stays 0, so that it terminates a truncated last string.
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

}  // namespace

BOOL InitSMBIOS() {
    auto* const area = static_cast<unsigned char*>(std::malloc(kBiosAreaSize));
    if (area == nullptr) return FALSE;

    BOOL copied = FALSE;
    if (ReadPhysMem(kBiosArea, kBiosAreaSize, area) != TRUE) {
        std::printf("ReadPhysMem failed\n");
    } else if (FindEntryPoint(area)) {
        copied = CopyTables();
    }
    std::free(area);
    return copied;
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
    auto* const mapping = static_cast<unsigned char*>(zetMapPhys32UnCache(offset, size));
    if (mapping == nullptr) {
        std::fprintf(stderr, "smbios: ReadPhysMem: mmap FAILED\n");
        return FALSE;
    }
    for (unsigned int copied = 0; copied < size; copied += kChunkSize) {
        std::memcpy(buffer + copied, mapping + copied, std::min(kChunkSize, size - copied));
    }
    zetUnMapPhys32UnCache(mapping, size);
    return TRUE;
}
