// Saves the parts of the server that don't come from the driver: physical memory, as far as the programs read
// it, and the PICL tree.
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <numeric>
#include <stdexcept>
#include <vector>

#include "cli/pci/kelm.h"
#include "cli/smbios_old/tables.h"
#include "include/smbios_records.h"
#include "platform/picl.h"
#include "savemachine/parts.h"
#include "src/utils/map_physical.h"

namespace {

constexpr char kMemoryFile[] = "xsvc";
constexpr size_t kEntryPointAlignment = 16;
constexpr uint64_t kLargestPage = 0x10000;  // maximum page size of the systems that may read the copy

uint64_t PageOf(uint64_t address) {
    return address & ~(kLargestPage - 1);
}

// Appends zeros up to the end of the last page, because only whole pages of the file can be mapped.
std::string FilledToPage(std::string bytes, uint64_t address) {
    bytes.resize(static_cast<size_t>(PageOf(address + bytes.size() + kLargestPage - 1) - address));
    return bytes;
}

// Makes the SMBIOS tables unreadable on the copy, but not the BIOS area. If they start at the beginning of
// the area, they are unreadable because they extend beyond its end. The file ends there, too, so the copy
// needs no fault.
void MakeTablesUnreadable(MachineCopy& copy) {
    const unsigned long page = EPS.dwSTAddr & -static_cast<unsigned long>(__brantcli_pgsz);
    char what[32];
    std::snprintf(what, sizeof what, "xsvc map 0x%08lx", page);
    copy.ReportFailedCall(what, page == kBiosArea ? kMissing : -EIO);
}

// Sets the checksum of an entry point. The checksum may cover bytes after the structure, which are 0 in a
// redacted copy.
void SetChecksum(SMBIOSEntryPoint& entry) {
    const auto* const bytes = reinterpret_cast<const uint8_t*>(&entry);
    const size_t covered = std::min<size_t>(entry.byEPSLength, sizeof entry);
    const unsigned sum = std::accumulate(bytes, bytes + covered, 0U);
    entry.byEPSChecksum = static_cast<uint8_t>(entry.byEPSChecksum - sum);
}

// Adds the parts of the BIOS area that programs read: the manufacturer's signature, the entry point, and the
// redacted `tables`, which may be in the area. The rest becomes 0, because the firmware's code and data may
// contain private values.
void AddRedactedArea(std::vector<Extent>& memory, const std::string& area, const std::string& tables) {
    memory.push_back({kBiosArea, std::string(area.size(), '\0')});
    memory.push_back({static_cast<off_t>(EPS.dwSTAddr), tables});
    memory.push_back({kBiosArea + kRomSignatureOffset, kRomSignature});
    SMBIOSEntryPoint entry = EPS;
    const auto find = [&](size_t from) {
        return area.find(reinterpret_cast<const char*>(&entry), from, sizeof entry);
    };
    size_t offset = find(0);
    while (offset != area.npos && offset % kEntryPointAlignment != 0) offset = find(offset + 1);
    if (offset == area.npos) return;
    SetChecksum(entry);
    memory.push_back({kBiosArea + static_cast<off_t>(offset),
                      std::string(reinterpret_cast<const char*>(&entry), sizeof entry)});
}

// Formats a line of the file `picl`.
std::string Node(size_t level, const std::string& text) {
    return std::string(2 * level, ' ') + text + '\n';
}

}  // namespace

void SaveFirmware(MachineCopy& copy) {
    copy.ShowProgress("physical memory");
    std::vector<Extent> memory;
    std::string tables;
    if (IsSMBIOSAvailable() == TRUE) {
        tables.assign(reinterpret_cast<const char*>(pSMBTables), EPS.wSTLength);
        if (copy.GetRedaction() != nullptr) copy.GetRedaction()->RedactTables(tables);
        memory.push_back({static_cast<off_t>(EPS.dwSTAddr), FilledToPage(tables, EPS.dwSTAddr)});
    } else if (EPS.wSTLength != 0) {
        MakeTablesUnreadable(copy);
    }
    // The BIOS area is written after the tables. If the tables are in the area, it overwrites the zeros that
    // were appended to their last page.
    std::string area(kBiosAreaSize, '\0');
    if (ReadPhysMem(kBiosArea, kBiosAreaSize, reinterpret_cast<unsigned char*>(area.data())) != TRUE) {
        throw std::runtime_error("the BIOS area can't be read any more");
    }
    if (copy.GetRedaction() == nullptr) {
        memory.push_back({kBiosArea, area});
    } else {
        AddRedactedArea(memory, area, tables);
    }
    copy.Write(kMemoryFile, memory);
}

void SavePicl(MachineCopy& copy) {
    copy.ShowProgress("the PICL tree");
    picl_nodehdl_t root{};
    if (const int result = picl_initialize()) return copy.ReportFailedCall("picl initialize", result);
    if (const int result = picl_get_root(&root)) return copy.ReportFailedCall("picl root", result);

    std::string tree = Node(0, "picl") + Node(1, "platform");
    char kelm[80];
    std::snprintf(kelm, sizeof kelm, "%s vendor-id=0x%04x device-id=0x%04x", kPciFunctionClass, kKelmVendor,
                  kKelmDevice);
    if (find_kelm() != 0) tree += Node(2, kelm);
    copy.Write("picl", tree);
}
