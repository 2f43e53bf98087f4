// Tests of the start-up steps that read the firmware's memory and tables; SHOW SERVER prints most results.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "cli/pci/kelm.h"
#include "cli/smbios-commands/inventory.h"
#include "include/smbios_records.h"
#include "mkmachine/firmware_records.h"
#include "tests/support/golden.h"
#include "tests/support/loaded_tables.h"

namespace {

constexpr char kOtherMaker[] = "ERROR: brantcli only runs on VX hardware.\n\n";

struct SignatureCase {
    const char* catches;
    unsigned int offset;
    const char* bytes;
    bool ours;
};

constexpr SignatureCase kSignatures[] = {
    {"the right signature is rejected", 0xFFEA, "ZETRIX", true},
    {"the bytes after the signature are compared", 0xFFEA, "ZETRIXZETRIX", true},
    {"a signature one byte early is accepted", 0xFFE9, "ZETRIX", false},
    {"a signature one byte late is accepted", 0xFFEB, "ZETRIX", false},
    {"only the first bytes are compared, or the case is ignored", 0xFFEA, "ZETRIx", false},
};

const std::string kRom = BiosRecord("", "").Bytes();
const std::string kArray = MemoryArrayRecord({0x10}).Bytes();

std::string System(const char* product) {
    return SystemRecord(product, "").Bytes();
}

struct ServerCase {
    const char* catches;
    std::string tables;
};

const ServerCase kServers[] = {
    // cases: the product name must begin with the server line "Corvex"
    {"the name is accepted anywhere in the product name", System("Vertex Corvex")},
    {"a part of the name is accepted", System("Corve")},
    {"the case of letters matters", System("cORVEX9") + kRom + kArray},
    {"an empty product name is accepted", System("")},
    {"a missing system record is accepted", kRom},
    // cases: the records that the command requires
    {"the command runs without tables", ""},
    {"the ROM record is checked before the memory", System("Corvex")},
    {"the command runs without a ROM record", System("Corvex") + kArray},
};

// A NIC that is present because its bus number isn't 0, and another one.
constexpr smbios_nic kNic = {0, 1, {0, 1, 2, 3, 4, 0xFF}};
constexpr smbios_nic kOther = {8, 0, {6, 7, 8, 9, 10, 11}};
constexpr smbios_nic kNone = {0, 0, {9, 9, 9, 9, 9, 9}};

struct NicCase {
    const char* catches;
    std::vector<smbios_nic> rom;  // entries of the ROM variable; if empty, the variable doesn't exist
    std::string record;           // the OEM record of the NICs
};

// clang-format off
const NicCase kNics[] = {
    {"an empty entry of the ROM variable counts, or the eighth doesn't", {kNic, kNone, kNone, kNone, kNone, kNone, kNone, kOther}, ""},
    {"0 NICs are reported as unknown", {kNone}, ""},
    {"neither the record nor the variable exists", {}, ""},
    {"the ROM variable is preferred to the record, or empty entries are stored", {kOther}, NicRecord(1, {kNone, kNic, kNone, kOther}).Bytes()},
    {"entries after the eighth NIC are stored, or an empty one counts", {}, NicRecord(1, {kNic, kNone, kOther, kOther, kOther, kOther, kOther, kOther, kOther, kOther, kNone}).Bytes()},
    {"the ROM variable is used because the record has no NIC", {kOther}, NicRecord(1, {kNone}).Bytes()},
    {"a truncated entry counts", {}, NicRecord(1, {kNic, kOther}).TruncateTo(19).Bytes()},
};
// clang-format on

struct TreeCase {
    const char* catches;
    const char* picl;
    bool present;
};

constexpr TreeCase kTrees[] = {
    {"another device of the vendor, or the device of another vendor, is accepted, or only 16 bits count",
     "p\n  obp-device vendor-id=0x1c4e device-id=0x16d19\n  obp-device vendor-id=0x11c4e device-id=0x6d19\n",
     false},
    {"a node with one of the two properties is accepted",
     "p\n  obp-device vendor-id=0x1c4e\n  obp-device device-id=0x6d19\n", false},
    {"a node of another class is accepted", "p\n  fru vendor-id=0x1c4e device-id=0x6d19\n", false},
    {"the search ends before a nested node, or at another node of the vendor",
     "p\n  obp-device\n    obp-device vendor-id=0x1c4e\n      obp-device vendor-id=0x1c4e device-id=1\n"
     "        obp-device vendor-id=0x1c4e device-id=0x6d19\n",
     true},
};

int visited = 0;  // number of nodes for which the callback has run

int CountedIsKelm(picl_nodehdl_t node, void* found) {
    ++visited;
    return is_kelm(node, found);
}

// Returns the part of the output of SHOW SERVER from `from` to `to`.
std::string ServerText(const TestMachine& machine, const std::string& from, const char* to) {
    const std::string output = machine.Script("SHOW SERVER").output;
    const size_t start = output.find(from) + from.size();
    return output.substr(start, output.find(to, start) - start);
}

}  // namespace

TEST(RomSignature, DecidesWhetherTheProgramRuns) {
    for (const SignatureCase& c : kSignatures) {
        TestMachine machine;
        machine.PhysicalMemory(kBiosArea, std::string(kBiosAreaSize, '\0'));
        machine.PhysicalMemory(kBiosArea + c.offset, c.bytes);
        machine.StartTrace();
        const RunResult result = machine.Script("EXIT");
        EXPECT_NE(machine.TakeTrace().find("xsvc unmap"), std::string::npos) << c.catches;
        EXPECT_EQ(result.output, c.ours ? "\n" : kOtherMaker) << c.catches;
        EXPECT_EQ(result.status, c.ours ? 0 : 1) << c.catches;
    }
}

TEST(FirmwareTables, DecideWhetherTheProgramAndShowServerRun) {
    std::string listing;
    for (const ServerCase& c : kServers) {
        LoadedTables tables(c.tables);
        const RunResult run = tables.Machine().Script("SHOW SERVER");
        listing += c.catches + (": status " + std::to_string(run.status)) + "\n" + run.output;
    }
    ExpectGolden("brantcli/servers.txt", listing);
    LoadedTables long_name(System(std::string(70, 'x').c_str()));
    EXPECT_EQ(smbios_get_systemname(), 0);
    EXPECT_EQ(detect_corvex(), 1);
    EXPECT_EQ(system_name, std::string(63, 'x'));
    std::strcpy(system_name, "CORVEX TR500 K2");
    EXPECT_FALSE(is_tr500k2());
}

TEST(EmbeddedNics, AreReadFromTheOemRecordOrElseFromTheRomVariable) {
    std::string listing;
    for (const NicCase& c : kNics) {
        LoadedTables tables(kRom + System("Corvex") + kArray + c.record);
        TestMachine& machine = tables.Machine();
        std::string variable;
        for (const smbios_nic& nic : c.rom) variable += MachineBuilder::Plain(nic);
        machine.Variable("ZTHMAC", variable);
        if (c.rom.empty()) machine.Remove("crom/ZTHMAC");
        listing += c.catches + machine.Script("EXIT").output;
        listing += "Embedded NICs : " + ServerText(machine, "NICs : ", "\n\nProcessor") + "\n";

        std::memset(zthmac, 0xEE, sizeof zthmac);
        get_embedded_nics_smbios();
        for (size_t i = 0; i < sizeof zthmac; i += sizeof(smbios_nic)) {
            EXPECT_EQ(zthmac[i] << 8 | zthmac[i + 1], 0xEEEE)
                << c.catches << ": the PCI address at byte " << i << " was written";
        }
    }
    ExpectGolden("brantcli/nics.txt", listing);
}

TEST(ManagementProcessor, IsSearchedForInThePiclTree) {
    LoadedTables tables(kRom + System("Corvex") + kArray);
    TestMachine& machine = tables.Machine();
    const auto present = [&] { return ServerText(machine, "Kelm present  : ", "\n") == "Yes"; };
    EXPECT_FALSE(present()) << "found although there is no PICL service";
    for (const TreeCase& c : kTrees) {
        machine.Write("picl", c.picl);
        EXPECT_EQ(present(), c.present) << c.catches;
    }
    machine.Write("picl", std::string(kTrees[3].picl) + "  obp-device\n");
    picl_nodehdl_t root{};
    int found = 0;
    ASSERT_TRUE(picl_initialize() == PICL_SUCCESS && picl_get_root(&root) == PICL_SUCCESS);
    picl_walk_tree_by_class(root, kPciFunctionClass, &found, CountedIsKelm);
    EXPECT_EQ(found, 1);
    EXPECT_EQ(visited, 4) << "the search must end at the management processor";
    machine.Fault("picl root 1");
    machine.StartTrace();
    EXPECT_FALSE(present()) << "found although the PICL service fails";
    EXPECT_EQ(machine.TakeTrace("picl walk"), "") << "a tree without a root was searched";
}

// Runs a script and returns the number of memory blocks that are allocated when the process ends.
int BlocksAtExit(const TestMachine& machine, const char* commands) {
    RunOptions options;
    options.environment = {"BRANT_COUNT_BLOCKS=1"};
    const RunResult run =
        RunProgram(ProgramPath("brantcli_interposed"), {"-s", commands}, machine.Directory(), options);
    return std::stoi(run.errors);
}

TEST(StartUp, FreesItsMemoryOnEveryExitPath) {
    TestMachine nothing_started;
    nothing_started.Remove("cdt");
    const int kept = BlocksAtExit(nothing_started, "HELP");
    LoadedTables other(System("Vertex")), ours(System("Corvex"));
    EXPECT_EQ(BlocksAtExit(other.Machine(), "HELP"), kept)
        << "memory is left allocated on another line of servers";
    const int with_tree = kept + 1;  // the command tree is never freed
    EXPECT_EQ(BlocksAtExit(ours.Machine(), "HELP"), with_tree)
        << "memory is left allocated at the end of a script";
    EXPECT_EQ(BlocksAtExit(ours.Machine(), "EXIT"), with_tree) << "memory is left allocated after EXIT";
    ours.Machine().Remove("cdt");
    EXPECT_EQ(BlocksAtExit(ours.Machine(), "HELP"), kept)
        << "memory is left allocated if a device can't be opened";
}
