// Tests of brantexport if requests fail or files of the machine are missing.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "mkmachine/firmware_records.h"
#include "mkmachine/models.h"
#include "tests/brantexport/export.h"
#include "tests/support/golden.h"
#include "tests/support/pattern.h"

namespace {

struct Failure {
    const char* model;
    const char* faults;  // lines of the file `faults`
};
// clang-format off
constexpr Failure kFailures[] = {
    {"tr500k2", "open cdt -13"},
    {"tr500k2", "open cevt -13"},
    {"tr500k2", "open casr -13"},
    {"tr500k2", "open crom -13"},
    {"tr500k2", "xsvc map 0x000e8000 -5"},  // mapping the SMBIOS tables
    {"tr300",   "xsvc map 0x000e8000 -5"},
    {"tr500k2", "picl initialize 1"},
    {"tr500k2", "cdt 351.0.0 1"},
    {"tr500k2", "cdt 356.10.0 -5"},
    {"tr500k2", "cdt 353.10.0 1"},
    {"tr500k2", "cdt 251.0.0 -5"},
    {"tr500k2", "cdt 256.255.0 1"},
    {"tr500k2", "cdt 254.15.0 1"},
    {"tr500k2", "cdt 151.0.0 -5"},
    {"tr500k2", "cdt 162.3.0 1"},
    {"tr500k2", "cdt 159.2.0 1"},
    {"tr300",   "cdt 158.0.0 1"},
    {"tr500k2", "cdt 1503.0.0 1"},
    {"tr500k2", "cdt 1700.0.0 1"},
    {"bx20",    "cdt 1702.255.0 1"},
    {"tr500k2", "cdt 1706.0.0 1\ncdt 1706.1.4 1\ncdt 1707.1.1 1"},
    // No socket of a cartridge can be read: it isn't installed.
    {"tr500k2", "cdt 1706.1.0 1\ncdt 1706.1.1 1\ncdt 1706.1.2 1\ncdt 1706.1.3 1\ncdt 1706.1.4 1"},
    {"tr500k2", "cdt 1706.0.0 1\ncdt 1706.0.1 1\ncdt 1706.0.2 1\ncdt 1706.0.3 1\ncdt 1706.0.4 1"},
    {"tr500k2", "cdt 1700.0.0 1\ncdt 1706.1.2 1"},  // without the counts, the list ends there
    {"tr500k2", "cdt 1707.1.4 1"},
    {"tr500k2", "cdt 1700.0.0 1\ncdt 1706.0.0 1\nxsvc map 0x000e8000 -5"},
    {"tr500k2", "casr 6 -5"},
    {"tr500k2", "crom read ZTHCPR 1"},
    {"tr500k2", "crom read ZTSCAT 1"},
    {"tr500k2", "crom read ZTHLS1 1"},
    {"tr500k2", "crom read ZTHCSM 1"},
    {"tr500k2", "crom read ZTHNIPL 1"},
    {"tr500k2", "crom read ZTHIPL 1"},
    {"tr500k2", "crom read ZTTBT1 1"},
    {"tr500k2", "crom read ZTSBKT 1"},
    {"tr500k2", "crom read ZTHBAUD 1"},
    {"tr500k2", "crom read ZTHCON 1"},
    {"tr500k2", "crom read ZTHNIC 1"},
    {"tr500k2", "crom read ZTHUV 1"},
    {"tr300",   "crom read ZTHMAC 1"},
    {"tr500k2", "cevt read 0 -5"},
    {"tr500k2", "cevt read 3 -5"},
    {"tr500k2", "cevt read 2 3"},   // an entry too large for the buffer
    {"tr500k2", "cevt read 4 -1"},  // errno 1 is the end of the log
};
// clang-format on

Exported ExportOf(const Model& model, const char* faults = nullptr) {
    TestMachine machine;
    MakeMachine(model, machine.Directory(), 3);
    if (faults != nullptr) machine.Fault(faults);
    return Export(machine);
}

// failures.txt contains the differences between a run with each failure and a run without it: missing values,
// and errors.
TEST(FailedRequests, LoseOnlyTheirOwnValues) {
    std::map<std::string, Exported> baseline;
    for (const Model& model : Models()) baseline[model.name] = ExportOf(model);
    std::vector<std::string> documents;
    std::string listing;
    for (const Failure& failure : kFailures) {
        const Exported exported = ExportOf(*FindModel(failure.model), failure.faults);
        listing += "---- " + std::string(failure.model) + ": " + failure.faults + "\n";
        listing += Difference(baseline[failure.model], exported);
        documents.push_back(exported.json);
    }
    ExpectGolden("brantexport/failures.txt", listing);
    ExpectFits(documents);
}

// The SMBIOS tables contain only the system record.
TEST(FailedRequests, MissingSmbiosRecordsAreReported) {
    TestMachine machine("tr500k2");
    AddTables(machine, SmbiosTable().Add(SystemRecord("corvex", "X")));
    const Exported exported = Export(machine);
    std::string values;
    for (const auto& [path, value] : ValuesOf(exported.json)) {
        if (Contains(path, "^/(system|processors|errors)")) values += path + " " + value + "\n";
    }
    EXPECT_EQ(values,
              "/system/product_name \"corvex\"\n"
              "/system/serial_number \"X\"\n"
              "/system/rom_version null\n"
              "/system/rom_date null\n"
              "/system/management_processor true\n"
              "/system/memory_mib null\n"
              "/system/memory_ecc null\n"
              "/processors: 0 entries\n"
              "/errors: 3 entries\n"
              R"(/errors/0 {"section":"system","message":"Failed to get SMBIOS ROM data."})"
              "\n"
              R"(/errors/1 {"section":"system","message":"Failed to get SMBIOS memory data."})"
              "\n"
              R"(/errors/2 {"section":"nics","message":"Failed to read embedded NIC status."})"
              "\n");
    ExpectFits({exported.json});
}

TEST(FailedRequests, MissingPortMapRecordsAreReported) {
    const std::pair<const char*, std::string> cases[] = {{"0", "Failed to get Enclosure Bay number."},
                                                         {"5", "Failed to get SMBIOS port mapping data."}};
    for (const auto& [bay, message] : cases) {
        TestMachine machine("bx20");
        AddTables(machine, SmbiosTable().Add(SystemRecord("corvex", "X")).Add(RackRecord(1, "", bay)));
        const std::string json = Export(machine).json;
        EXPECT_NE(json.find("\"port_map\": null"), json.npos) << json;
        EXPECT_NE(json.find("\"message\": \"" + message), json.npos) << json;
    }
}

// In each of eight runs per model, every eighth file of the machine is missing or is a directory.
TEST(DamagedMachines, AreExported) {
    namespace fs = std::filesystem;
    constexpr size_t kRounds = 8;
    std::vector<std::string> documents;
    for (size_t run = 0; run < kRounds * Models().size(); ++run) {
        TestMachine machine;
        MakeMachine(Models()[run / kRounds], machine.Directory(), 3);
        std::vector<std::string> files;
        for (const char* device : {"/cdt", "/casr", "/crom", "/cevt"}) {
            for (const auto& entry : fs::directory_iterator(machine.Directory() + device)) {
                files.push_back(entry.path());
            }
        }
        std::sort(files.begin(), files.end());
        for (size_t i = run % kRounds; i < files.size(); i += kRounds) {
            fs::remove(files[i]);
            if (i / kRounds % 2 == 0) fs::create_directory(files[i]);
        }
        documents.push_back(Export(machine).json);
    }
    ExpectFits(documents);
}

}  // namespace
