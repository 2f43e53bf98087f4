// Tests of the exported values. MODEL.json, MODEL.prom and MODEL.txt are golden files with the complete
// outputs of each model; MODEL.txt contains the outputs of --check and --lines. values.txt contains the
// differences between each of the cases below and the unchanged model tr500k2.
#include <gtest/gtest.h>

#include <ctime>

#include "include/event_log.h"
#include "include/memory_records.h"
#include "mkmachine/events.h"
#include "mkmachine/models.h"
#include "tests/brantexport/export.h"
#include "tests/support/golden.h"
#include "tests/support/pattern.h"

namespace {

template <typename Number>
Number Code(int code) {
    return static_cast<Number>(code);
}

// Sets each member that contains a code to the code `k`, or to a code that is selected by `k`.
void SetCodes(Model& model, int k) {
    constexpr uint8_t kBootOnce[] = {0, 1, 2, 3, 0x30, 0x40, 4, 0xFF};
    const auto byte = static_cast<uint8_t>(k);
    RomSettings& settings = model.settings;
    settings.asr_enabled = k % 2 != 0;
    settings.asr_minutes = static_cast<uint8_t>(255 - k);
    settings.shutdown = k / 2 % 2 != 0;
    settings.hyper_threading = k / 4 % 2 != 0;
    settings.boot_order.clear();
    for (int i = 0; i <= k; ++i) settings.boot_order.push_back(Code<uint8_t>(k - i));
    settings.boot_once = Code<BootOnce>(kBootOnce[k]);
    settings.nics = {Code<NicBoot>(k), Code<NicBoot>(7 - k)};
    settings.port_a = byte;
    settings.port_b = 7 - byte;
    settings.virtual_port = static_cast<uint8_t>(0xF8 | ((k + 2) & 7));
    settings.wake_on_lan = Code<WakeOnLan>(k);
    settings.f1_prompt = Code<F1Prompt>(k / 2);
    settings.bios_port = Code<BiosPortCode>(k);
    settings.bios_baud = Code<BiosBaudRate>(7 - k);
    model.uid = Code<IndicatorState>(k);
    Fan& fan = model.fans[2];
    fan.zone = Code<ZoneType>(k + 8);
    fan.speed = byte;
    fan.percent = 255 - k;
    fan.hot_plug = k % 2 != 0;
    fan.state = static_cast<unsigned>(k);
    fan.partner = static_cast<unsigned>(31 - k);
    Module& module = model.memory.cartridges[1][2];
    module.status = static_cast<uint32_t>(k + 3);
    module.present = static_cast<uint32_t>(k + 1);
    Processor& processor = model.hardware.processors[3];
    processor.status = 0x40 | byte;
    processor.id = static_cast<uint32_t>(2 * k);
}

void MoreThanTheInventoryHolds(Model& model) {
    Hardware& hardware = model.hardware;
    hardware.processor_locations.clear();
    hardware.processors.clear();
    hardware.caches = {{0x700, "", 7, 0xFFFF}, {0x701, "", 8, 0x7FFF}};
    for (uint16_t i = 0; i < 12; ++i) {
        Processor processor{i, "Proc 77", 0xFFFF, 1, 1, kNoHandle, 0x701, 0x700};
        processor.bus = 0xFFFE;
        processor.cores = static_cast<uint8_t>(i % 2 * 255);
        processor.threads = static_cast<uint8_t>((i + 1) / 2 % 2 * 255);
        hardware.processors.push_back(processor);
    }
    hardware.module_locations.clear();
    hardware.devices.assign(62, {0x1100, kArray, "SLOT 3 DIMM 9", 0});
    hardware.devices.resize(96, {0x1100, kArray, "SLOT 3 DIMM 9", 0x7FFF, 0xFFFF, 14, 0, 0x200});
    hardware.devices[62].form_factor = 3;
    hardware.devices[62].size = 0x87FF;  // KiB
    hardware.array.error_correction = smbios::MemoryArray::kNone;
    model.memory = {};
}

void ManyNics(Model& model) {
    model.hardware.nics.clear();
    for (uint8_t i = 1; i <= 12; ++i) {
        const auto byte = [&](int n) { return static_cast<uint8_t>(0xF0 + i - 1 - n); };
        model.hardware.nics.push_back({i, 1, {byte(0), byte(1), byte(2), byte(3), byte(4), byte(5)}});
    }
    model.settings.nics = {kNicBootPxe, kNicBootNone, kNicBootIscsi, kNicBootPxe, kNicBootPxe};
}

void LegacyRecords(Model& model) {
    model.fans[0] = {kPresent | kRedundant, kSystemZone, 0, kFanNormal, 0, false, 255, true};
    model.fans[1] = {kAbsent, kIoZone, 0, kFanHigh, 7, true, 254, true};
    model.supplies[0].legacy_record = LegacyRecord::Absent;
    model.supplies[1] = {kAbsent, false, LegacyRecord::Present};
}

// Makes the driver report that it has no data, and the firmware that it has no versions and no boot devices.
void NoDataAvailable(TestMachine& machine) {
    machine.Table(kFanHeaderTable, 0, 0, FANHEADER{9, 0, 1, 9});
    machine.Table(kTemperatureHeaderTable, 0, 0, TEMPERATUREHEADER{9, 0, 9});
    machine.Table(kSupplyHeaderTable, 0, 0, POWERSUPPLYHEADER{9, 0, 9, 1, 9});
    machine.Variable(kVersionsVariable, VERSEVREC{});
    machine.Variable(kBootCountVariable, BootDeviceCount{0});
    machine.Write("cevt/hlog", "");
}

void LargestNumbers(TestMachine& machine) {
    RESMEM_DIMM_CONFIG config{};
    config.ulCartID = 0xFFFFFFFF;
    config.ulModuleID = 0xFFFFFFFE;
    config.ulPresent = 1;
    config.dimmInfo.ulFormFactor = 0xFFFFFFFD;
    config.dimmInfo.ulMemType = 0xFFFFFFFC;
    config.dimmInfo.ulSize = 0xFFFFFFFB;
    config.dimmInfo.ulSpeed = 0xFFFFFFFA;
    machine.Table(kModuleConfigTable, 0, 0, config);
    RESMEM_DIMM_STATUS status{};
    status.ulStatus = 0xFFFFFFF9;
    machine.Table(kModuleStatusTable, 0, 0, status);
    std::string versions(sizeof(VERSEVREC), '\0');
    for (size_t i = 0; i < versions.size(); ++i) versions[i] = static_cast<char>(255 - i);
    machine.Variable(kVersionsVariable, versions);
}

// Returns an entry of the log without payload, with the code 65535 - `number`.
std::string Event(uint32_t number, uint8_t severity, uint16_t event_class, EVT_TIME_STAMP first,
                  EVT_TIME_STAMP last) {
    EVT_HEADER header = EventHeader(number, severity, event_class, static_cast<uint16_t>(65535 - number));
    header.InitTime = first;
    header.UpdateTime = last;
    return EventEntry(header, "");
}

void Events(TestMachine& machine) {
    std::string log = Event(0, 0, 65535, {20, 0, 2, 29, 0, 0}, {19, 0, 2, 29, 0, 0}) +
                      Event(1, 2, 34, {20, 8, 2, 29, 23, 59}, {20, 7, 2, 29, 23, 59}) +
                      Event(2, 3, 1, {0, 0, 1, 1, 0, 0}, {20, 8, 2, 30, 0, 0}) +
                      Event(3, 6, 1, {99, 99, 12, 31, 1, 2}, {21, 0, 2, 29, 0, 0}) +
                      Event(4, 9, 1, {20, 6, 1, 31, 0, 0}, {20, 6, 1, 32, 0, 0}) +
                      Event(5, 15, 1, {20, 6, 4, 31, 0, 0}, {20, 6, 4, 30, 0, 0}) +
                      Event(6, 15, 1, {20, 6, 6, 30, 0, 0}, {20, 6, 6, 31, 0, 0}) +
                      Event(7, 15, 1, {20, 6, 9, 30, 0, 0}, {20, 6, 9, 31, 0, 0}) +
                      Event(8, 15, 1, {20, 6, 11, 30, 0, 0}, {20, 6, 11, 31, 0, 0}) +
                      Event(9, 15, 1, {20, 6, 3, 31, 0, 0}, {20, 6, 13, 1, 0, 0}) +
                      Event(10, 15, 1, {20, 6, 5, 31, 0, 0}, {20, 6, 0, 1, 0, 0}) +
                      Event(11, 15, 1, {20, 6, 7, 31, 0, 0}, {20, 6, 7, 0, 0, 0}) +
                      Event(12, 15, 1, {20, 6, 8, 31, 0, 0}, {20, 6, 8, 1, 24, 0}) +
                      Event(13, 15, 1, {20, 6, 10, 31, 0, 0}, {20, 6, 10, 1, 0, 60}) +
                      Event(14, 15, 1, {20, 100, 1, 1, 0, 0}, {100, 0, 1, 1, 0, 0});
    EVT_HEADER chassis = EventHeader(15, kRepaired, 2, 1);
    EVT_MACH_OVERHEAT overheat{};
    overheat.Chassis = {kChassisServer, 2, 0};
    log += EventEntry(chassis, WithTexts(overheat, {"R\xC3\"\\7"}));
    log += EventEntry(EventHeader(16, kCaution, 33, 2), "\t\x7F\x1F" + std::string(265, 'x'));
    log += Event(0xFFFFFFFF, 255, 2, {20, 6, 1, 1, 0, 0}, {20, 6, 1, 1, 0, 0});
    machine.Write("cevt/hlog", log);
}

void FullTexts(TestMachine& machine) {
    machine.Variable(kAssetVariable, "\xE9\x7F\"\\\n\t\x01" + std::string(248, 'x'));
    machine.Variable(kServerNameVariable, std::string("Abcdefghijklmn\0Opqrstuvwxyz01\0", 30));
}

void ShortTexts(TestMachine& machine) {
    machine.Variable(kAssetVariable, std::string(255, '\0'));
    machine.Variable(kServerNameVariable, std::string("ab\0d\0\0\0\0\0\0\0\0\0\0\0o\xC3\0q\0", 19));
}

void Utf8Texts(TestMachine& machine) {
    machine.Variable(kAssetVariable, "Z\xC3\xBCrich \xE2\x82\xAC \xF0\x9F\x98\x80" + std::string(200, '\0'));
    machine.Variable(kServerNameVariable, std::string("12345678901234\xC3\xBCrich-1\0\0\0\0\0\0\0\0", 30));
}

struct Case {
    const char* what;
    void (*model)(Model& model);            // changes the model before the machine is created; may be null
    void (*machine)(TestMachine& machine);  // changes the machine; may be null
};
const Case kCases[] = {
    {"more parts than the inventory holds", MoreThanTheInventoryHolds, nullptr},
    {"more NICs than have an address or a setting", ManyNics, nullptr},
    {"no NIC", [](Model& model) { model.hardware.nics.assign(3, {}); }, nullptr},
    {"no memory", [](Model& model) { model.memory = {}, model.hardware.devices = {}; }, nullptr},
    {"legacy records of fans and supplies", LegacyRecords, nullptr},
    {"no management processor", [](Model& model) { model.kelm = Kelm::Absent; }, nullptr},
    {"texts of the firmware",
     [](Model& model) {
         model.product_name = "corvex \xE9\"\\\n\x01";
         model.hardware.serial = "\xED\xA0\x80";  // a surrogate
         model.hardware.rom_version = "Z\xFF\x80\"";
         model.hardware.rom_date = "\xC0\xAF?\xE2\x82";  // UTF-8: an overlong form, and a truncated one
     },
     nullptr},
    {"no data", nullptr, NoDataAvailable},
    {"largest numbers", nullptr, LargestNumbers},
    {"events", nullptr, Events},
    {"full texts", nullptr, FullTexts},
    {"short texts", nullptr, ShortTexts},
    {"UTF-8 texts", nullptr, Utf8Texts},
};

// Exports a machine of `model` with three events in its log, after `change`.
Exported ExportOf(const Model& model, void (*change)(TestMachine&) = nullptr) {
    TestMachine machine;
    MakeMachine(model, machine.Directory(), 3);
    if (change != nullptr) change(machine);
    return Export(machine);
}

TEST(ExportedValues, ChangeWithTheMachine) {
    const Exported baseline = ExportOf(kTr500k2);
    std::vector<std::string> documents;
    std::string listing;
    for (int k = 0; k < 8; ++k) {
        Model model = kTr500k2;
        SetCodes(model, k);
        const Exported exported = ExportOf(model);
        listing += "---- codes " + std::to_string(k) + "\n" + Difference(baseline, exported);
        documents.push_back(exported.json);
    }
    for (const Case& c : kCases) {
        Model model = kTr500k2;
        if (c.model != nullptr) c.model(model);
        const Exported exported = ExportOf(model, c.machine);
        listing += "---- " + std::string(c.what) + "\n" + Difference(baseline, exported);
        documents.push_back(exported.json);
    }
    ExpectGolden("brantexport/values.txt", listing);
    ExpectFits(documents);
}

TEST(ExportedValues, UseTheLowerOfTwoSamplesWithTheSameLabels) {
    RESMEM_DIMM_STATUS degraded{};
    degraded.ulStatus = 9;
    for (int degraded_module : {0, 1}) {
        TestMachine machine("bx20");
        machine.Write("cdt/1706.255.1", machine.Read("cdt/1706.255.0"));
        machine.Table(kModuleStatusTable, 255, degraded_module, degraded);
        const std::string metrics = Export(machine).metrics;
        EXPECT_NE(metrics.find("module_ok{cartridge=\"0\",module=\"1\"} 0\n"), metrics.npos);
        EXPECT_EQ(metrics.find("module_ok{cartridge=\"0\",module=\"1\"} 1\n"), metrics.npos);
    }
}

// Returns the UTC time `hours` hours before now.
EVT_TIME_STAMP HoursAgo(int hours) {
    const time_t seconds = std::time(nullptr) - hours * 3600;
    const std::tm time = *std::gmtime(&seconds);
    const auto byte = [](int value) { return static_cast<uint8_t>(value); };
    return {20,
            byte(time.tm_year - 100),
            byte(time.tm_mon + 1),
            byte(time.tm_mday),
            byte(time.tm_hour),
            byte(time.tm_min)};
}

TEST(Check, WarnsOfNewCriticalEventsAndOfAFullLog) {
    TestMachine machine("bx20");
    std::string log;
    const EVT_TIME_STAMP times[] = {
        HoursAgo(23), HoursAgo(-23), HoursAgo(25), HoursAgo(-25), {20, 6, 13, 1, 0, 0}};
    for (const EVT_TIME_STAMP& time : times) {
        const auto number = static_cast<uint32_t>(log.size());
        log += Event(number, kCritical, 2, HoursAgo(0), time) + Event(number + 1, kCaution, 2, time, time);
    }
    machine.Write("cevt/hlog", log);
    machine.Fault("cdt 1503.0.0 1");
    EXPECT_EQ(RunExport(machine, {"--check", "events", "uid"}).output,
              "BRANT WARNING - critical events within a day: 2, the last is event 56; "
              "uid: Failed to read the unit identification light. | events=10\n");
    // Five hours east of UTC, this is 26 hours ago.
    machine.Write("cevt/hlog", Event(1, kCritical, 2, HoursAgo(0), HoursAgo(21)));
    RunOptions east;
    east.environment = {"TZ=ABC-5"};
    EXPECT_EQ(RunProgram(ProgramPath("brantexport"), {"--check", "events"}, machine.Directory(), east).output,
              "BRANT OK - no problem found | events=1\n");
    MakeMachine(kBx20, machine.Directory(), 999);
    EXPECT_EQ(RunExport(machine, {"--check", "events"}).output, "BRANT OK - no problem found | events=999\n");
    MakeMachine(kBx20, machine.Directory(), 1000);
    EXPECT_EQ(RunExport(machine, {"--check", "events"}).output,
              "BRANT WARNING - entries in the event log: 1000 | events=1000\n");
    EXPECT_EQ(MatchAll(RunExport(machine, {"--lines"}).output, "\n").size(), 1000U);
}

TEST(Check, CountsTheProblemsThatItLeavesOut) {
    TestMachine machine("bx20");
    machine.Table(kFanHeaderTable, 0, 0, FANHEADER{22, 1, 1, 22});
    const std::string verdict = RunExport(machine, {"--check", "fans"}).output;
    EXPECT_TRUE(Contains(verdict, "fan 20\\.; fans: Failed to read fan 21\\.; and 1 more \\| fans=1\n$"))
        << verdict;
}

TEST(Lines, ShowEveryEventUpToAFailure) {
    TestMachine machine("bx20");
    Events(machine);
    machine.StartTrace();
    ExpectGolden("brantexport/lines.txt", RunExport(machine, {"--lines"}).output);
    machine.Fault("cevt read 2 -5\ncdt 1503.0.0 1");  // the second one is not of the log
    // An event without a valid time may have happened since any time.
    const RunResult run = RunExport(machine, {"--lines", "--since", "9999-12-31"});
    EXPECT_EQ(run.output,
              "- unknown Not defined: Unknown Event (Class 65535, Code 65535)\n"
              "- info Infrastructure Environment: Unknown Event (Class 34, Code 65534)\n");
    EXPECT_EQ(run.errors, "brantexport: Failed to read the event log to its end.\n");
    EXPECT_EQ(run.status, 1);
}

constexpr char kShowAll[] =
    "SHOW SERVER; SHOW DIMM; SHOW NIC; SHOW PORTMAP; SHOW FANS; SHOW TEMP; SHOW POWERSUPPLY; SHOW UID;"
    "SHOW ASR; SHOW SERIAL EMBEDDED; SHOW ASSET; SHOW NAME; SHOW EAAS; SHOW IPL; SHOW BOOT; SHOW WOL;"
    "SHOW F1; SHOW HT; SHOW SERIAL BIOS; SHOW SERIAL VIRTUAL; SHOW VERSIONS; SHOW HLOG";

// Removes the two differences between brantexport and the shell: the shell closes the devices in another
// order, and SHOW BOOT reads the list that SHOW IPL has read.
std::string Requests(const std::string& trace) {
    return ReplaceAll(trace, "\nclose \\w+|\ncrom read ZTHIPL .*(?=\ncrom read ZTHIPL )", "");
}

TEST(ExportedValues, OfEachModel) {
    std::vector<std::string> documents;
    for (const Model& model : Models()) {
        TestMachine machine;
        MakeMachine(model, machine.Directory(), 3);
        const std::string golden = "brantexport/" + std::string(model.name);
        machine.StartTrace();
        const std::string json = RunExport(machine, {}).output;
        const std::string requests = Requests(machine.TakeTrace());
        machine.Script(kShowAll);
        EXPECT_EQ(requests, Requests(machine.TakeTrace()));
        ExpectGolden(golden + ".json", json);
        ExpectGolden(golden + ".prom", RunExport(machine, {"--prometheus"}).output);
        ExpectGolden(golden + ".txt",
                     RunExport(machine, {"--check"}).output + RunExport(machine, {"--lines"}).output);
        documents.push_back(json);
    }
    ExpectFits(documents);
}

}  // namespace
