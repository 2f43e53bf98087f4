// Tests of savemachine: on a machine and on its copy, every SHOW command prints the same output and has the
// same status.
#include <gtest/gtest.h>

#include <cctype>
#include <cstring>
#include <filesystem>
#include <functional>
#include <set>

#include "include/health_records.h"
#include "include/memory_records.h"
#include "include/rom_variables.h"
#include "mkmachine/events.h"
#include "mkmachine/firmware_records.h"
#include "mkmachine/smbios_table.h"
#include "src/utils/utc.h"
#include "src/utils/version.h"
#include "tests/support/every_command.h"
#include "tests/support/golden.h"
#include "tests/support/pattern.h"

namespace {

namespace fs = std::filesystem;

// Copies the machine to the directory `copy`. If `variable` isn't empty, it is a setting NAME=VALUE for
// interposed/changes.cpp, and savemachine_interposed makes the copy.
RunResult Save(const TestMachine& machine, const std::string& copy, const std::string& variable = "") {
    RunOptions options;
    options.detect_leaks = true;
    options.environment = {"TZ=LMT-9"};  // not UTC, which the copy's time must be in
    if (!variable.empty()) options.environment.push_back(variable);
    const std::string program = ProgramPath(variable.empty() ? "savemachine" : "savemachine_interposed");
    return RunProgram(program, {copy}, machine.Directory(), options);
}

class MachineCopies : public testing::TestWithParam<std::string> {
  protected:
    // How the SHOW commands run. Only with kOnePerCommand, the status of each command is compared.
    enum Scripts { kOnePerCommand, kOneForAll };

    // Copies the machine, and compares the output of SHOW commands on the machine and on the copy. `what`
    // describes the machine for failure messages. Returns savemachine's messages.
    std::string Compare(const RestorableMachine& machine, const std::string& what,
                        Scripts scripts = kOnePerCommand) {
        SCOPED_TRACE(what);
        const TestMachine parent;
        const std::string copy = parent.Directory() + "/copy";
        const RunResult saved = Save(machine, copy);
        EXPECT_EQ(saved.status, 0) << saved.errors;
        EXPECT_EQ(fs::file_size(copy + "/xsvc") % 0x10000, 0U) << "not whole pages of the largest size";
        for (const std::string& script : ShowScripts(scripts)) {
            const RunResult on_machine = machine.Script(script);
            const RunResult on_copy = RunProgram(ProgramPath("brantcli"), {"-s", script}, copy);
            EXPECT_EQ(on_copy.output, on_machine.output) << script;
            EXPECT_EQ(on_copy.status, on_machine.status) << script;
            EXPECT_EQ(on_copy.errors, on_machine.errors) << script;
        }
        for (const auto& [path, bytes] : machine.State()) {
            if (path.rfind("crom/", 0) == 0 && scripts == kOnePerCommand) {
                EXPECT_EQ(parent.Read("copy/" + path).rfind(bytes, 0), 0U) << path << " isn't copied whole";
            }
        }
        log_ = parent.Read("copy/cevt/hlog");
        return saved.errors;
    }
    static std::vector<std::string> ShowScripts(Scripts scripts) {
        std::vector<std::string> each;
        std::string all;
        for (const std::string& command : Commands()) {
            if (command.rfind("SHOW", 0) != 0) continue;
            each.push_back(command);
            all += command + ';';
        }
        return scripts == kOnePerCommand ? each : std::vector<std::string>{all};
    }
    std::string log_;  // the event log of the last copy
};

// ENABLE PXE reads more bytes of the NIC settings than SHOW NIC. The faults are those of the records after
// the last power supply, module and cartridge.
TEST(SaveMachine, CopiesWholeNicSettingsAndOneNodeButNoRecordAfterTheLast) {
    TestMachine machine("tr500k2");
    machine.Variable("ZTHNIC", std::string(100, '\1'));
    for (const char* const record : {"159.4.0", "1706.0.5", "1706.2.0"}) {
        machine.Fault(std::string("cdt ") + record + " -5");
    }
    const TestMachine parent;
    EXPECT_EQ(Save(machine, parent.Directory() + "/copy").errors, "");
    EXPECT_FALSE(fs::exists(parent.Directory() + "/copy/faults"));
    EXPECT_EQ(parent.Read("copy/picl"),
              "picl\n  platform\n    obp-device vendor-id=0x1c4e device-id=0x6d19\n");
    EXPECT_EQ(parent.Read("copy/crom/ZTHNIC"), std::string(100, '\1'));
}

// Each file is damaged in one of kMachines machines. The test is repeated for each kind of damage: the file
// is missing, a directory, or truncated.
TEST_P(MachineCopies, OfDamagedMachinesShowTheSame) {
    constexpr size_t kMachines = 3;
    RestorableMachine machine(GetParam());
    EXPECT_EQ(Compare(machine, "whole"), "");
    const Files original = machine.State();
    const std::function<void(const std::string&)> damages[] = {
        [&](const std::string& path) { machine.Remove(path); },
        [&](const std::string& path) {
            machine.Remove(path);
            fs::create_directory(machine.Directory() + "/" + path);
        },
        [&](const std::string& path) {
            machine.Write(path, original.at(path).substr(0, original.at(path).size() / 2));
        },
    };
    for (size_t i = 0; i < kMachines * std::size(damages); ++i) {
        size_t index = 0;
        for (const auto& [path, bytes] : original) {
            if (index++ % kMachines == i % kMachines) damages[i / kMachines](path);
        }
        Compare(machine, "damage " + std::to_string(i), kOneForAll);
        for (const auto& [path, bytes] : original) machine.Remove(path);
        machine.Restore();
    }
}

TEST_P(MachineCopies, OfMachinesWithFaultsShowTheSame) {
    const std::string cases[] = {
        "open casr -13",
        "open cdt -5\nopen crom -5\npicl initialize 7",
        "xsvc map 0x000e8000 -5\ncevt read 3 3",
        "picl root 7\ncevt read * -1",
        "cdt 353.1.0 -5\ncdt 254.255.0 7\ncdt 1503.0.0 -5\ncasr 6 -5\ncrom read ZTSBKT -5\ncevt read 2 -5",
    };
    for (const std::string& faults : cases) {
        RestorableMachine machine(GetParam());
        machine.Write("casr/enabled", "2\n");  // enabled, like every number except 0
        machine.Fault(faults);
        EXPECT_NE(Compare(machine, faults, kOneForAll), "")
            << "no message about the failed calls: " << faults;
    }
    const std::string third = EventLog(3).substr(EventLog(2).size());
    EXPECT_EQ(log_, EventLog(1) + third) << "an unreadable entry ended the copied log";
}

// The copy of the log ends at the third consecutive entry that can't be read. An entry that can be read
// resets the count.
TEST_P(MachineCopies, HaveTheLogUpToThreeUnreadableEntriesInARow) {
    constexpr size_t kEvents = 11;
    const int unreadable[] = {0, 1, 3, 4, 6, 7, 8};
    RestorableMachine machine(GetParam());
    machine.Write("cevt/hlog", EventLog(kEvents));
    for (const int number : unreadable) machine.Fault("cevt read " + std::to_string(number) + " -5");
    Compare(machine, "unreadable", kOneForAll);
    const auto entry = [](size_t number) { return EventLog(number).substr(EventLog(number - 1).size()); };
    EXPECT_EQ(log_, entry(2) + entry(5));
}

TEST_P(MachineCopies, OfALogWithAnEntryTooLongToListShowTheSame) {
    RestorableMachine machine(GetParam());
    std::string entry(65535, 'x');
    entry.replace(0, 6, {'\xFF', '\xFF', 4, 0, 0, 0});  // the entry's length and number
    machine.Append("cevt/hlog", entry);
    EXPECT_EQ(Compare(machine, "long", kOneForAll), "");
}

// First the tables begin in the BIOS area and extend beyond the end of the memory. Then they are in a page
// that can't be read, but not at its beginning. Then the whole tables and the rest of their page are in the
// area. At last their last byte is the first byte of a page, and the file ends there, so the copy must fill
// the page. The last address doesn't fit into an int.
TEST_P(MachineCopies, OfTablesElsewhereShowTheSame) {
    RestorableMachine machine(GetParam());
    const std::string memory = machine.Read("xsvc");
    SMBIOSEntryPoint entry;
    std::memcpy(&entry, memory.data() + kEntryPointAddress, sizeof entry);
    const std::string tables = memory.substr(entry.dwSTAddr, entry.wSTLength);
    const auto move = [&](size_t address, size_t length) {
        entry.dwSTAddr = static_cast<uint32_t>(address);
        entry.wSTLength = static_cast<uint16_t>(length);
        SetChecksums(entry);
        machine.PhysicalMemory(kEntryPointAddress, MachineBuilder::Plain(entry));
    };
    move(kBiosArea + 2, 0xFFFF);
    EXPECT_NE(Compare(machine, "beyond the end", kOneForAll), "");
    move(kTablesAddress + 16, tables.size());
    machine.Fault("xsvc map 0x000e8000 -5");
    EXPECT_NE(Compare(machine, "unreadable", kOneForAll), "");
    machine.Remove("faults");
    machine.PhysicalMemory(kTablesAddress, std::string(tables.size(), '\0'));
    for (const size_t address : {kBiosArea + size_t{0x20}, 0x300001 - tables.size(), size_t{0xFFFF0000}}) {
        const size_t last_page = (address + tables.size()) & ~size_t{0xFFFF};
        if (last_page != kBiosArea) machine.PhysicalMemory(last_page, std::string(0x10000, '\0'));
        move(address, tables.size());
        machine.PhysicalMemory(address, tables);
        EXPECT_EQ(Compare(machine, "at " + std::to_string(address)), "");
    }
    EXPECT_NE(machine.Script("SHOW SERVER").output.find("Processor: 0"), std::string::npos);
}

// Returns the words of `text`, each after the separator that precedes it. MAC addresses, which have words of
// two digits, count as one word.
std::vector<std::string> Words(const std::string& text) {
    std::vector<std::string> words(1);
    for (const char letter : ReplaceAll(text, "([0-9a-f]{2}:){5}[0-9a-f]{2}", "MAC")) {
        if (std::isalnum(static_cast<unsigned char>(letter)) == 0) words.emplace_back();
        words.back() += letter;
    }
    return words;
}

// On a redacted copy, each command prints the same, except words that are in a string of the machine's files.
TEST_P(MachineCopies, AfterRedactionDifferOnlyInTexts) {
    TestMachine machine(GetParam());
    machine.PhysicalMemory(machine.Read("xsvc").find("DIMM 1"), "DIMM 8");  // not the number of its record
    const TestMachine parent;
    const std::string copy = parent.Directory() + "/copy";
    EXPECT_EQ(RunProgram(ProgramPath("savemachine"), {"--redact", copy}, machine.Directory()).errors, "");
    const std::string texts = machine.Read("xsvc").substr(kTablesAddress, 0x2000) +
                              machine.Read("crom/ZTSCAT") + machine.Read("crom/ZTHLS1") +
                              machine.Read("cevt/hlog");
    const std::set<std::string> with_numbers = {"SHOW ASSET", "SHOW NAME", "SHOW HLOG"};  // in their texts
    for (const std::string& script : ShowScripts(kOnePerCommand)) {
        const RunResult before = machine.Script(script);
        const RunResult after = RunProgram(ProgramPath("brantcli"), {"-s", script}, copy);
        EXPECT_EQ(after.status, before.status) << script;
        const std::vector<std::string> words = Words(before.output), replaced = Words(after.output);
        ASSERT_EQ(words.size(), replaced.size()) << after.output;
        for (size_t i = 0; i < words.size(); ++i) {
            EXPECT_EQ(words[i].size(), replaced[i].size()) << replaced[i];
            if (words[i] == replaced[i]) continue;
            const bool is_number = words[i].find_first_not_of("0123456789", 1) == words[i].npos;
            EXPECT_TRUE(!is_number || with_numbers.count(script) != 0) << script << words[i];
            EXPECT_NE(texts.find(words[i].substr(1)), texts.npos)
                << script << ": " << words[i] << ", " << replaced[i];
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Model, MachineCopies, testing::ValuesIn(ModelNames()));

TEST(SaveMachine, ReportsErrorsAndRemovesIncompleteCopies) {
    const struct {
        const char* what;
        const char* command;  // shell command; $1 is the program, $2 an empty directory
        const char* errors;   // expected messages; $2 is the directory
        int status;
    } cases[] = {
        {"invalid arguments",
         "cd $2; for words in '' -x --redact '--redact=no a' \"''\" 'a b'; do\n"
         "eval $1 $words; echo $?; done 2>&1 | sort -u >&2",
         "2\nusage: savemachine [--redact] DIR\n", 0},
        {"an existing name", "ln -s nowhere $2/a; $1 $2/a//; s=$?; rm $2/a; exit $s",
         "savemachine: $2/a: File exists\n", 1},
        {"a parent directory that doesn't exist", "$1 $2/a/b",
         "savemachine: $2/a/b: No such file or directory\n", 1},
        {"names in the root directory", "$1 //; $1 /dev/",
         "savemachine: /: File exists\nsavemachine: /dev: File exists\n", 1},
        {"a full disk", "ulimit -f 1000; $1 $2/a", "savemachine: $2/a: File too large\n", 1},
        {"foreign hardware", ">$2/xsvc; BRANT_MACHINE=$2 $1 $2/a; s=$?; rm $2/xsvc; exit $s",
         "ERROR: savemachine only runs on VX hardware.\n", 1},
        {"another line of servers",
         "cp -r $BRANT_MACHINE $2/m; LC_ALL=C sed -i s/Corvex/Vertex/ $2/m/xsvc; BRANT_MACHINE=$2/m $1 $2/a; "
         "s=$?; rm -r $2/m; exit $s",
         "ERROR: savemachine only runs on VX Corvex Servers.\n", 1},
        {"memory that disappears",
         "cp -r $BRANT_MACHINE $2/m; export BRANT_MACHINE=$2/m; BRANT_AFTER_MKDIR=\"truncate -s 0 "
         "$2/m/xsvc\" "
         "$1_interposed $2/a; s=$?; rm -r $2/m; exit $s",
         "smbios: ReadPhysMem: mmap FAILED\nsavemachine: the BIOS area can't be read any more\n", 1},
        {"another user, who gets help", "setpriv --ruid=65534 sh -c \"$1 $2/a --help; $1 $2/a\"",
         "ERROR: You must be root to run savemachine.\n", 1},
        // cases: the copy succeeds, and the command removes it
        {"messages that nobody reads",
         "cd $BRANT_MACHINE; echo casr 6 1 >faults; { sleep .1; $1 $2/a; } 2>&1 | :; rm -r faults $2/a", "",
         0},
        {"a hang-up that nohup ignores",
         "trap '' HUP; BRANT_AFTER_MKDIR='kill -HUP $PPID' $1_interposed $2/a && rm -r $2/a", "", 0},
        {"an unreadable working directory, without the privileges of root",
         "mkdir $2/d; cd $2/d; chmod 0 .; rmdir $2/d; setpriv --bounding-set=-all $1 $2/a",
         "savemachine: $2/a: Permission denied\n", 1},
        {"few descriptors", "ulimit -n 32; $1 $2/a && rm -r $2/a", "", 0},
        {"a file that can't be synced", "BRANT_NO_SYNC= $1_interposed $2/a",
         "savemachine: $2/a: Bad file descriptor\n", 1},
        {"an offset that can't be reached", "BRANT_NO_SEEK= $1_interposed $2/a",
         "savemachine: $2/a: Bad file descriptor\n", 1},
        {"a name that is used during the run",
         "BRANT_AFTER_MKDIR=\"mkdir -p $2/a/b\" $1_interposed $2/a; s=$?; rm -r $2/a; exit $s",
         "savemachine: $2/a: Directory not empty\n", 1},
        {"a path without a directory", "cd $2; $1 a && rm -r a", "", 0},
        {"a relative BRANT_MACHINE", "cd $BRANT_MACHINE; BRANT_MACHINE=. $1 $2/a && rm -r $2/a", "", 0},
        {"the temporary directory of a killed run",
         "sh -c \"mkdir $2/a.\\$\\$; exec $1 $2/a\" && rm -r $2/a $2/a.*", "", 0},
        {"a umask that removes all permissions",
         "umask 777; $1 $2/a && stat -c %a $2/a $2/a/cdt $2/a/xsvc >&2; rm -r $2/a", "700\n700\n600\n", 0},
    };
    const TestMachine machine("tr300");
    const TestMachine parent;
    const std::string folder = parent.Directory() + "/casr";
    for (const auto& [what, command, errors, status] : cases) {
        const RunResult run = RunProgram("/bin/sh", {"-c", command, "sh", ProgramPath("savemachine"), folder},
                                         machine.Directory());
        EXPECT_EQ(run.errors, ReplaceAll(errors, "\\$2", folder)) << what;
        EXPECT_EQ(run.status, status) << what;
        EXPECT_TRUE(fs::is_empty(folder)) << what << ": the copy or its temporary directory is left";
    }
}

// If the machine lacks a record, the copy lacks it, too. Every other failed call becomes a fault of the copy.
// failed_calls.txt contains the messages, the faults and the requests. A result of 1 after a failure with an
// errno shows whether that errno is reported again.
TEST(SaveMachine, ReportsFailedCallsAndCopiesThemAsFaults) {
    TestMachine machine("tr500k2");
    machine.Write("cevt/hlog", EventLog(3));
    machine.Write("cdt/251.0.0", {16, 0, 16});  // no data, so no sensor is requested
    for (const char* const fault :
         {"cdt 356.2.0 -5", "cdt 353.1.0 1", "cdt 151.0.0 1", "cdt 1700.0.0 1", "cdt 1702.255.0 -5",
          "cdt 1706.0.4 -5", "cdt 1500.0.0 -5", "cdt 1503.0.0 1", "crom read ZTHIPL -5", "crom read ZTSBKT 1",
          "crom read ZTHMAC 1", "crom read ZTHPXE -5", "crom read ZTHUV -5", "casr 6 1", "cevt read 0 3",
          "cevt read 2 -5", "picl root 7", "cdt 1707.0.1 1",
          // The socket is empty, so this isn't requested.
          "cdt 1707.0.2 -5"}) {
        machine.Fault(fault);
    }
    machine.StartTrace();
    const TestMachine parent;
    const std::string start = UtcText(std::time(nullptr));
    const std::string errors = Save(machine, parent.Directory() + "/copy").errors;
    ExpectGolden("savemachine/failed_calls.txt",
                 errors + parent.Read("copy/faults") + machine.TakeTrace("c"));
    const std::string about = "savemachine: " + std::string(kVersion) + "\ntime: (.*)\nredacted: no\n" +
                              ReplaceAll(errors, "savemachine: ", "");
    const auto match = MatchWhole(parent.Read("copy/about"), about);
    ASSERT_FALSE(match.empty()) << parent.Read("copy/about");
    EXPECT_GE(match[1], start);
    EXPECT_LE(match[1], UtcText(std::time(nullptr)));
}

// A machine is saved if it has a device but no tables, or tables but no devices, but not if it has neither.
TEST(SaveMachine, SavesDevicesOrTablesAlone) {
    TestMachine machine, with_tables("tr300");
    // This is the highest number, so the log ends after the entry.
    machine.Write("cevt/hlog", EventEntry(EventHeader(UINT32_MAX, 9, 13, 1), ""));
    for (const char* const device : {"cdt", "crom", "casr"}) machine.Remove(device);
    const auto save = [](const TestMachine& from) {
        const TestMachine parent;
        return Save(from, parent.Directory() + "/copy");
    };
    const RunResult devices = save(machine);
    EXPECT_EQ(devices.errors.find("xsvc"), devices.errors.npos) << devices.errors;
    EXPECT_EQ(devices.status, 0);
    for (const char* const device : {"cdt", "crom", "casr", "cevt"}) {
        machine.Remove(device);
        with_tables.Remove(device);
    }
    EXPECT_EQ(save(with_tables).status, 0);
    const RunResult neither = save(machine);
    EXPECT_NE(neither.errors.find("no device opens and there are no tables: nothing to be saved"),
              neither.errors.npos);
    EXPECT_EQ(neither.status, 1);
}

// "Hush" is in every place of a machine in which a private value may be.
TEST(SaveMachine, ReplacesEqualPrivateValuesByEqualOnes) {
    TestMachine machine("tr500k2");
    constexpr char kSerial[] = "Hush-8431,Hush";
    const smbios_nic nic = {1, 1, {'H', 'u', 's', 'h', 'H', 'u'}};
    const smbios_nic unused = {0, 0, {'H', 'u', 's', 'h', 'H', 'u'}};
    SmbiosRecord oem(193, 0x9300);
    oem.Dword(0x68737548).Text("Hush");  // the bytes of "Hush"
    SmbiosRecord system(smbios::System::kType, 0x0100);
    system.Text("Hush").Text("Corvex TR500 K2").Text("Hush").Text("Hush-8431");
    for (int i = 0; i < 4; ++i) system.Dword(0x68737548);  // UUID
    SmbiosRecord without_uuid(smbios::System::kType, 0x0101);
    without_uuid.Text("Hush").Text("Second product");
    SmbiosTable table;
    table.Add(BiosRecord("Z18", "06/12/2009"))
        .Add(MemoryArrayRecord({0x1000, 0, 0}).Dword(0x68737548))  // longer than known
        .Add(system)
        .Add(without_uuid)
        .Add(NicRecord(0x2001, std::vector<smbios_nic>(9, unused)))
        .Add(NicRecord(0x2000, {nic}).Dword(0x68737548))  // with an incomplete entry
        .Add(oem);
    constexpr uint32_t kAddress = kBiosArea + 0x100;
    SMBIOSEntryPoint entry = table.EntryPoint(kAddress);
    entry.wSTLength = static_cast<uint16_t>(entry.wSTLength + 8);  // with bytes that are no record
    SetChecksums(entry);
    entry.byEPSLength += 4;  // with the bytes after it
    entry.byEPSChecksum -= 4 + ('H' + 'u' + 's' + 'h') % 256;
    machine.PhysicalMemory(kAddress, table.Bytes() + std::string("\0\0\0\0Hush", 8));
    machine.PhysicalMemory(kEntryPointAddress, MachineBuilder::Plain(entry) + "Hush");
    machine.PhysicalMemory(kEntryPointAddress - 0x78, MachineBuilder::Plain(entry));  // not aligned

    machine.Variable(kAssetVariable, std::string(kSerial) + std::string(200, '\0') + "Hush");
    machine.Variable(kServerNameVariable, "Hush" + std::string(11, '\0') + "Hush");
    machine.Variable(kNicAddressVariable, MachineBuilder::Plain(nic) + MachineBuilder::Plain(unused));
    // In the data tables, each private byte is 0xFC.
    FANDDATA fan{};
    std::memset(fan.Evt.cChassisName, 0xFC, 1 + sizeof fan.cChassisNameContinued);
    fan.ucType = 'T';
    for (const int index : {0, 1}) machine.Table(kFanDataTable, index, 0, fan);
    RESMEM_DIMM_CONFIG module{};
    module.ulPresent = 1;
    std::memset(module.dimmInfo.keyBytes.ucKey, 0xFC, sizeof module.dimmInfo.keyBytes.ucKey);
    std::memset(module.dimmInfo.partNumber, 0xFC,
                sizeof module - offsetof(RESMEM_DIMM_CONFIG, dimmInfo.partNumber));
    machine.Table(kModuleConfigTable, 0, 1, module);
    RESMEM_DIMM_STATUS status{};
    std::memset(status.reserved, 0xFC, sizeof status.reserved);
    machine.Table(kModuleStatusTable, 0, 1, status);
    CartridgePrefix cartridge{};
    std::memset(cartridge.partName, 0xFC, sizeof cartridge.partName);
    machine.Table(kCartridgeTable, 255, 0, cartridge);
    const std::string suspects = MachineBuilder::Plain(EVT_MAIN_MEMORY_MULTI{1, {{1, 1}, {}, {}, {}}, {}});
    machine.Write("cevt/hlog", EventEntry(EventHeader(1, kCritical, 3, 3), suspects.substr(0, 9) + kSerial));

    std::string serials[2];
    for (std::string& serial : serials) {
        if (&serial != serials) {
            // The bytes become a record with a truncated string. The checksum covers fewer bytes.
            machine.PhysicalMemory(kAddress + table.Bytes().size(), "\301\4\1\1Hush");
            entry.byEPSLength = sizeof entry - 1;
            SetChecksums(entry);
            machine.PhysicalMemory(kEntryPointAddress, MachineBuilder::Plain(entry));
        }
        const TestMachine parent;
        const std::string copy = parent.Directory() + "/copy";
        RunProgram(ProgramPath("savemachine"), {"--redact", copy}, machine.Directory());
        for (const auto& file : fs::recursive_directory_iterator(copy)) {
            const std::string path = fs::relative(file.path(), parent.Directory());
            const char* const marker = path.rfind("copy/cdt/", 0) == 0 ? "\xFC" : "Hush";
            EXPECT_EQ(parent.Read(path).find(marker), std::string::npos) << path;
        }
        const std::string shown =
            RunProgram(ProgramPath("brantcli"), {"-s", "SHOW SERVER;SHOW ASSET;SHOW HLOG"}, copy).output;
        serial = MatchAll(shown, "Serial No.    : (.*)").at(0).at(1);
        EXPECT_NE(shown.find("\nAsset: '" + serial + ","), shown.npos) << shown;
        EXPECT_NE(shown.find("Serial Number " + serial + ")"), shown.npos) << shown;
        const std::string mac = parent.Read("copy/crom/ZTHMAC").substr(2, 6);
        const std::string memory = parent.Read("copy/xsvc");
        EXPECT_NE(memory.find(mac), memory.rfind(mac)) << "the NICs have different addresses";
        EXPECT_NE(memory.find("Second product"), memory.npos);
        EXPECT_NE(parent.Read("copy/cdt/352.0.0").find("?T"), std::string::npos);
    }
    EXPECT_NE(serials[0], serials[1]);
}

// The bytes 0xFC in the strings of each event, or after its record, become question marks. A payload without
// a known record is cleared. The fields don't change.
TEST(SaveMachine, ReplacesTheStringsOfEveryEvent) {
    SampleEvents events = EveryEvent();
    events.push_back({kCaution, 99, 1, ""});        // an unknown class
    events.push_back({kCaution, 11, 6, "\7\7\7"});  // an unknown chassis
    std::string log;
    std::vector<std::string> expected;
    for (const SampleEvent& event : events) {
        const auto entry = [&](char text) {
            const std::string fields = event.payload.substr(0, event.fields_size);
            const auto number = static_cast<uint32_t>(expected.size());
            return EventEntry(EventHeader(number, event.severity, event.event_class, event.code),
                              fields + std::string(event.payload.size() - fields.size() + 1, text));
        };
        log += entry('\xFC');
        expected.push_back(entry(event.payload.empty() ? '\0' : '?'));
    }
    TestMachine machine("tr300");
    machine.Write("cevt/hlog", log);
    const TestMachine parent;
    RunProgram(ProgramPath("savemachine"), {"--redact", parent.Directory() + "/copy"}, machine.Directory());
    const std::string redacted = parent.Read("copy/cevt/hlog");
    size_t offset = 0;
    for (size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(redacted.substr(offset, expected[i].size()), expected[i])
            << events[i].event_class << "/" << events[i].code;
        offset += expected[i].size();
    }
    EXPECT_EQ(offset, redacted.size());
}

// Two runs are killed. They leave directories whose names can't be guessed.
TEST(SaveMachine, HasARandomTemporaryName) {
    const TestMachine machine, parent;
    const std::string folder = parent.Directory() + "/casr";
    for (int i = 0; i < 2; ++i) Save(machine, folder + "/copy", "BRANT_AFTER_MKDIR=kill -9 $PPID");
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        const std::string name = entry.path().filename();
        EXPECT_FALSE(MatchWhole(name, "copy\\.[a-z2-7]{6}").empty()) << name;
        EXPECT_NE(name.substr(5), std::string(6, name[5]));
        names.insert(name);
    }
    EXPECT_EQ(names.size(), 2U);
}

TEST(SaveMachine, SyncsEachFileBeforeTheRename) {
    const TestMachine machine("tr300"), parent;
    const std::string calls = Save(machine, parent.Directory() + "/copy", "BRANT_KILL_AT=0").errors;
    const std::string unsynced = ReplaceAll(calls, "open (\\S*/)?(\\S+)\n(write \\2\n)*fsync \\2\n", "");
    EXPECT_EQ(unsynced, "rename copy\n");
}

TEST(SaveMachine, ShowsOnATerminalWhatItReads) {
    RestorableMachine machine("tr300");
    machine.Fault("picl root 7");
    const TestMachine parent;
    const RunResult run = RunProgram(
        "script", {"-qec", InShell("savemachine") + " " + parent.Directory() + "/copy", "/dev/null"},
        machine.Directory());
    std::string expected;
    for (const char* const part : {"fans", "temperatures", "power supplies", "memory modules", "indicators",
                                   "ROM variables", "the recovery timer", "event 0", "event 2", "event 3",
                                   "event 4", "physical memory", "the PICL tree"}) {
        expected += std::string("\r\33[Kreading ") + part;
    }
    EXPECT_EQ(run.output, expected + "\r\33[Ksavemachine: not read: picl root: refused\r\n\r\33[K\r\33[K");
}

TEST(SaveMachine, RemovesTheCopyIfASignalInterruptsIt) {
    const TestMachine machine("tr300");
    for (const char* const signal : {"INT", "TERM", "HUP"}) {
        const TestMachine parent;
        const std::string folder = parent.Directory() + "/casr";
        const RunResult run =
            Save(machine, folder + "/copy", std::string("BRANT_AFTER_MKDIR=kill -") + signal + " $PPID");
        EXPECT_EQ(run.errors, "savemachine: interrupted by a signal\n") << signal;
        EXPECT_EQ(run.status, 1) << signal;
        EXPECT_TRUE(fs::is_empty(folder)) << signal;
    }
}

// The owner of the parent directory can replace the new directory at any moment. The program then fails,
// changes no file of the replacement, and removes the files in its own directory.
TEST(SaveMachine, WritesNothingIntoADirectoryThatReplacesTheNewOne) {
    const std::string replaced = "the new directory was replaced by another user";
    struct Attack {
        const char* replacement;
        const char* after;    // name of the directory after whose creation the new directory is replaced
        const char* command;  // shell command that creates the replacement, $d
        std::string error;
    };
    const Attack attacks[] = {
        {"a link to a private directory", "a.*", "chmod 700 victim; ln -s victim $d", replaced},
        {"another user's directory", "a.*", "cp -rl victim $d; chmod 700 $d; chown 65534 $d", replaced},
        {"a directory that a group can change", "a.*", "cp -rl victim $d; chmod 770 $d", replaced},
        {"hard links", "a.*", "cp -rl victim $d; chmod 700 $d", "File exists"},
        {"a directory that all others can change", "a.*", "cp -rl victim $d; chmod 707 $d", replaced},
        {"a FIFO", "a.*", "mkfifo -m 700 $d", replaced},
        {"a directory that contains one", "a.*", "mkdir -m 700 $d $d/crom", "File exists"},
        {"links", "a.*", "mkdir -m 700 $d; ln -s $PWD/victim/xsvc $d", "File exists"},
        {"a link, once the directory is open", "cdt", "ln -s victim $d", replaced},
        {"a link, once most of it is written", "cevt", "ln -s victim $d", replaced},
    };
    for (const Attack& attack : attacks) {
        SCOPED_TRACE(attack.replacement);
        const TestMachine machine("tr300");
        TestMachine parent;
        const std::string copy = parent.Directory() + "/a";
        fs::create_directory(parent.Directory() + "/victim");
        for (const char* const file : {"victim/xsvc", "victim/picl"}) parent.Write(file, "kept");
        const RunResult run =
            Save(machine, copy,
                 "BRANT_AFTER_MKDIR=cd " + parent.Directory() + "; d=$(echo a.*); case ${MADE##*/} in " +
                     attack.after + ") mv $d moved; " + attack.command + ";; esac");
        for (const char* const file : {"victim/xsvc", "victim/picl"}) {
            EXPECT_TRUE(parent.Read(file) == "kept") << file << " was changed";
        }
        const std::string expected =
            "savemachine: not removed: " + copy + "\\..*\nsavemachine: " + copy + ": " + attack.error + "\n";
        EXPECT_FALSE(MatchWhole(run.errors, expected).empty())
            << "expected: " << expected << "actual: " << run.errors;
        EXPECT_EQ(run.status, 1);
        EXPECT_TRUE(fs::is_empty(parent.Directory() + "/moved")) << "files are left in the new directory";
    }
}

}  // namespace
