// SHOW PORTMAP: the enclosure bay that each NIC port of a blade is connected to.
#include "cli/smbios-commands/port_map.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <iterator>

#include "cli/command/command.h"
#include "cli/command/state.h"
#include "cli/smbios_old/smbios.h"
#include "src/utils/text.h"

namespace {

constexpr size_t kConnectors = 4;
constexpr int kPorts = 8;         // ports of each connector
constexpr int kNoPort = 0;        // value of `connection` for an entry without a port
constexpr int kSystemBoard = 15;  // value of `connection` for the system board, which is printed as slot 0

static_assert(kConnectors * kPorts == std::size(PortMap{}.port));

// `port`: the index within its connector. `enclosure_bay`: the number of the blade's bay, 1 or more.
BladePort PortOf(GBX_PORT_MAP entry, int port, int enclosure_bay) {
    const int slot = entry.connection != kSystemBoard ? entry.connection : 0;
    const int bay_port = enclosure_bay + std::min<int>(entry.portOffsetFromSVBBay, INT_MAX - enclosure_bay);
    return {slot, entry.mezzPortNumber, port + 1, bay_port};
}

// Returns the number of the blade's enclosure bay, or 0 if the record has no number.
int GetEnclosureBayNumber(const PZTSMBIOS_ZET_RACK_INFO& rack_info) {
    return DecimalNumber(rack_info.Text(smbios::kEnclosureBay));
}

}  // namespace

PortMapRead ReadPortMap(PortMap& map) {
    if (smbios_available == 0) return PortMapRead::NoTables;
    const auto rack = SmbFirst<ZTSMBIOS_ZET_RACK_INFO>();
    if (!rack) return PortMapRead::NoRack;
    const int enclosure_bay = GetEnclosureBayNumber(rack);
    if (enclosure_bay < 1) return PortMapRead::NoBayNumber;
    const auto record = SmbFirst<SMBIOS_NIC_PORT_MAP_INFO>();
    if (!record) return PortMapRead::NoMap;

    map.version = record.Read(smbios::kGbxTableVersion);
    map.count = 0;
    for (size_t e = 0; e < kConnectors; ++e) {
        const GBX_CONNECTOR_ENTRY connector = record.Read(smbios::kGbxConnectors, e);
        for (int p = 0; p < kPorts; ++p) {
            const GBX_PORT_MAP entry = connector.PortMap[p];
            if (entry.connection != kNoPort) map.port[map.count++] = PortOf(entry, p, enclosure_bay);
        }
    }
    return PortMapRead::Done;
}

int do_show_nic_port_mapping(InputLineType* /*InputLine*/) {
    PortMap map;
    switch (ReadPortMap(map)) {
        case PortMapRead::NoTables:
            return Fail("\nThis command requires an SMBIOS which is not available on this sytem.");
        case PortMapRead::NoRack:
            return Fail("\n       Port mapping information is not available on this server");
        case PortMapRead::NoBayNumber: return Fail("\nERROR: Failed to get Enclosure Bay number.");
        case PortMapRead::NoMap: return Fail("\nERROR: Failed to get SMBIOS system data.");
        case PortMapRead::Done: break;
    }
    std::printf("%s\n", "NIC Port Mapping INFO");
    std::printf("Gbx Connector Entry Table version : %d\n", map.version);
    std::printf("%-10s%-10s%-10s%-10s\n", "Slot", "SlotPort", "Bay", "BayPort");
    for (int i = 0; i < map.count; ++i) {
        const BladePort& port = map.port[i];
        std::printf("%-10d%-10d%-10d%-10d\n", port.slot, port.slot_port, port.bay, port.bay_port);
    }
    return 0;
}
