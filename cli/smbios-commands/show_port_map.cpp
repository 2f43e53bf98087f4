// SHOW PORTMAP: at which bay of the enclosure each NIC port of a blade comes out.
#include <algorithm>
#include <climits>
#include <cstdio>

#include "cli/command/refusals.h"
#include "cli/command/state.h"
#include "cli/smbios-commands/smbios_commands.h"
#include "cli/smbios_old/smbios.h"
#include "src/utils/numbers.h"

namespace {

constexpr int kConnectors = 4;
constexpr int kPorts = 8;         // of a connector
constexpr int kNoPort = 0;        // a connection
constexpr int kSystemBoard = 15;  // a connection, shown as slot 0

GBX_PORT_MAP PortOf(const void* record, int connector, int port) {
    const size_t index = static_cast<size_t>(connector * kPorts + port);
    return SmbReadEntry<GBX_PORT_MAP>(
        record, offsetof(SMBIOS_NIC_PORT_MAP_INFO, GbxConnectorEntry) + index * sizeof(GBX_PORT_MAP));
}

// bay: the blade's own, 1 or more.
void PrintPort(GBX_PORT_MAP entry, int port, int bay) {
    const int slot = entry.connection != kSystemBoard ? entry.connection : 0;
    const int switch_bay = bay + std::min<int>(entry.portOffsetFromSVBBay, INT_MAX - bay);
    std::printf("%-10d%-10d%-10d%-10d\n", slot, entry.mezzPortNumber, port + 1, switch_bay);
}

// The number of the enclosure bay that a blade sits in; 0 when its record doesn't tell.
int GetEnclosureBayNumber(void* rack_info) {
    return DecimalNumber(SmbText(rack_info, zet_rack::kEnclosureBay));
}

}  // namespace

int do_show_nic_port_mapping(InputLineType* /*InputLine*/) {
    if (smbios_available == 0) {
        return Fail("\nThis command requires an SMBIOS which is not available on this sytem.");
    }
    void* rack = nullptr;
    if (SmbGetRecordByType(kZetRackInfo, 0, &rack) != TRUE) {
        return Fail("\n       Port mapping information is not available on this server");
    }
    const int bay = GetEnclosureBayNumber(rack);
    if (bay < 1) return Fail("\nERROR: Failed to get Enclosure Bay number.");
    void* map = nullptr;
    if (SmbGetRecordByType(kNicPortMap, 0, &map) != TRUE) {
        return Fail("\nERROR: Failed to get SMBIOS system data.");
    }

    std::printf("%s\n", "NIC Port Mapping INFO");
    std::printf("Gbx Connector Entry Table version : %d\n", SmbRead(map, nic_port_map::kTableVersion));
    std::printf("%-10s%-10s%-10s%-10s\n", "Slot", "SlotPort", "Bay", "BayPort");
    for (int e = 0; e < kConnectors; ++e) {
        for (int p = 0; p < kPorts; ++p) {
            const GBX_PORT_MAP entry = PortOf(map, e, p);
            if (entry.connection != kNoPort) PrintPort(entry, p, bay);
        }
    }
    return 0;
}
