// Saves the parts of the server that don't come from the driver: physical memory, as far as the programs read
// it, and the PICL tree.
#include <cerrno>
#include <cstdio>
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

// Formats a line of the file `picl`.
std::string Node(size_t level, const std::string& text) {
    return std::string(2 * level, ' ') + text + '\n';
}

}  // namespace

void SaveFirmware(MachineCopy& copy) {
    copy.ShowProgress("physical memory");
    std::vector<Extent> memory;
    if (IsSMBIOSAvailable() == TRUE) {
        const std::string tables(reinterpret_cast<const char*>(pSMBTables), EPS.wSTLength);
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
    memory.push_back({kBiosArea, area});
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
