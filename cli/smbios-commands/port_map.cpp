// SHOW PORTMAP: the enclosure bay that each NIC port of a blade is connected to.
#include "cli/smbios-commands/port_map.h"

#include <algorithm>
#include <climits>
#include <cstdio>

#include "cli/command/command.h"
#include "cli/command/state.h"
#include "cli/smbios_old/smbios.h"
#include "src/utils/text.h"

namespace {

constexpr size_t kConnectors = 4;
constexpr int kPorts = 8;         // ports of each connector
constexpr int kNoPort = 0;        // value of `connection` for an entry without a port
constexpr int kSystemBoard = 15;  // value of `connection` for the system board, which is printed as slot 0

// Prints the line of a port. `bay`: the blade's enclosure bay, 1 or more.
void PrintPort(GBX_PORT_MAP entry, int port, int bay) {
    const int slot = entry.connection != kSystemBoard ? entry.connection : 0;
    const int switch_bay = bay + std::min<int>(entry.portOffsetFromSVBBay, INT_MAX - bay);
    std::printf("%-10d%-10d%-10d%-10d\n", slot, entry.mezzPortNumber, port + 1, switch_bay);
}

// Returns the number of the blade's enclosure bay, or 0 if the record has no number.
int GetEnclosureBayNumber(const PZTSMBIOS_ZET_RACK_INFO& rack_info) {
    return DecimalNumber(rack_info.Text(smbios::kEnclosureBay));
}

}  // namespace

int do_show_nic_port_mapping(InputLineType* /*InputLine*/) {
    if (smbios_available == 0) {
        return Fail("\nThis command requires an SMBIOS which is not available on this sytem.");
    }
    const auto rack = SmbFirst<ZTSMBIOS_ZET_RACK_INFO>();
    if (!rack) return Fail("\n       Port mapping information is not available on this server");
    const int bay = GetEnclosureBayNumber(rack);
    if (bay < 1) return Fail("\nERROR: Failed to get Enclosure Bay number.");
    const auto map = SmbFirst<SMBIOS_NIC_PORT_MAP_INFO>();
    if (!map) return Fail("\nERROR: Failed to get SMBIOS system data.");

    std::printf("%s\n", "NIC Port Mapping INFO");
    std::printf("Gbx Connector Entry Table version : %d\n", map.Read(smbios::kGbxTableVersion));
    std::printf("%-10s%-10s%-10s%-10s\n", "Slot", "SlotPort", "Bay", "BayPort");
    for (size_t e = 0; e < kConnectors; ++e) {
        const GBX_CONNECTOR_ENTRY connector = map.Read(smbios::kGbxConnectors, e);
        for (int p = 0; p < kPorts; ++p) {
            const GBX_PORT_MAP entry = connector.PortMap[p];
            if (entry.connection != kNoPort) PrintPort(entry, p, bay);
        }
    }
    return 0;
}
