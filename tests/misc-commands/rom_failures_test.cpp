// What a command does when it gets the wrong words and when a request fails.
#include <gtest/gtest.h>

#include "cli/brantcli/state.h"
#include "cli/parse/command_tree.h"
#include "tests/misc-commands/rom_case.h"

namespace {

struct Failure {
    const char* fault;     // the request that is refused
    const char* commands;  // separated by ';'
    const char* output;    // of each
    int status = 1;
};

// clang-format off
constexpr const char* kWrongCounts[] = {
    "SHOW ASR 1", "ENABLE ASR 1", "DISABLE ASR 1", "SET ASSET A B", "SHOW NAME 1", "SET NAME", "SET NAME A B",
    "SHOW EAAS 1", "ENABLE EAAS 1", "DISABLE EAAS 1", "SHOW BOOT 1", "SET BOOT ONCE", "SET BOOT ONCE HDD 1",
    "SET BOOT FIRST", "SET BOOT FIRST HDD 1", "SHOW IPL 1", "SHOW NIC 1", "ENABLE PXE NIC1 NIC2",
    "DISABLE PXE NIC1 NIC2", "ENABLE ISCSI NIC1 NIC2", "DISABLE ISCSI NIC1 NIC2", "SHOW WOL 1", "ENABLE WOL 1",
    "DISABLE WOL 1", "SHOW SERIAL BIOS 1", "SET SERIAL BIOS", "SET SERIAL BIOS COM1 9600 1",
    "SHOW SERIAL VIRTUAL 1", "SET SERIAL VIRTUAL", "SET SERIAL VIRTUAL COM1 9600", "SHOW SERIAL EMBEDDED 1",
    "SET SERIAL EMBEDDED PORTA", "SET SERIAL EMBEDDED PORTB COM2 9600", "SHOW F1 1", "SET F1 ENABLED 1",
    "SHOW HT 1", "ENABLE HT 1", "DISABLE HT 1",
};
constexpr const char* kWithoutValue[] = {
    "SET ASR", "SET ASSET", "SET F1", "ENABLE PXE", "DISABLE PXE", "ENABLE ISCSI", "DISABLE ISCSI",
};

constexpr Failure kFailures[] = {
    {"casr 6", "SHOW ASR", "\nERROR: Failed to get ASR enabled state."},
    {"casr 4", "ENABLE ASR", "\nERROR: Failed to enable ASR."},
    {"casr 3", "DISABLE ASR", "\nERROR: Failed to disable ASR."},
    {"crom read ZTHCPR", "SHOW ASR;SET ASR 5", "\nERROR: Failed to read ASR status."},
    {"crom write ZTHCPR", "SET ASR 5", "\nERROR: Failed to set ASR timeout."},
    {"crom read ZTSCAT", "SHOW ASSET", "\nERROR: Failed to read Asset Text."},
    {"crom write ZTSCAT", "SET ASSET A", "\nERROR: Failed to set Asset Text."},
    {"crom read ZTHLS1", "SHOW NAME", "\nNo Server name seems to have been set, or command failed."
                                      "\nPlease use \"SET NAME\" to set a server name."},
    {"crom write ZTHLS1", "SET NAME A", "\nNOTE: On some servers the name may be split in two depending on"
                                        " length\nFailed to set server name. "},
    {"crom read ZTHCSM", "SHOW EAAS;ENABLE EAAS;DISABLE EAAS", "\nERROR: Failed to read EAAS status."},
    {"crom write ZTHCSM", "ENABLE EAAS", "\nERROR: Failed to enable EAAS."},
    {"crom write ZTHCSM", "DISABLE EAAS", "\nERROR: Failed to disable EAAS."},
    {"crom read ZTHIPL", "SHOW IPL;SHOW BOOT", "\nERROR: Failed to get IPL list."},
    {"crom read ZTTBT1", "SHOW BOOT", "\nERROR: Failed to get next boot device."},
    {"crom write ZTTBT1", "SET BOOT ONCE HDD", "\nERROR: Failed to set first boot."},
    {"crom read ZTHNIPL", "SHOW IPL;SET BOOT FIRST HDD",
     "\nERROR: Failed to get number of IPL devices installed."},
    {"crom read ZTHIPL", "SET BOOT FIRST HDD", "\nERROR: Failed to get first boot device."},
    {"crom write ZTHIPL", "SET BOOT FIRST HDD", "\nERROR: Failed to set first boot.", 0},
    {"crom read ZTHNIC", "SHOW NIC;ENABLE ISCSI NIC9;DISABLE ISCSI NIC9", "\nERROR: Failed to read NIC status."},
    {"crom write ZTHNIC", "ENABLE PXE NIC1", "\nERROR: Failed to enable NIC1 PXE support."},
    {"crom write ZTHNIC", "DISABLE PXE NIC2", "\nERROR: Failed to disable NIC2 PXE support."},
    {"crom write ZTHNIC", "ENABLE ISCSI NIC1", "\nERROR: Failed to enable NIC1 iSCSI support."},
    {"crom write ZTHNIC", "DISABLE ISCSI NIC2", "\nERROR: Failed to disable NIC2 iSCSI support."},
    {"crom read ZTSBKT", "SHOW WOL;ENABLE WOL;DISABLE WOL", "\nERROR: Failed to read Wake-On-Lan status."},
    {"crom write ZTSBKT", "ENABLE WOL", "\nERROR: Failed to enable Wake-On-Lan support."},
    {"crom write ZTSBKT", "DISABLE WOL", "\nERROR: Failed to disable Wake-On-Lan support."},
    {"crom read ZTHBAUD", "SHOW SERIAL BIOS", "\nERROR: Failed to read BIOS serial port baud."},
    {"crom read ZTHCON", "SHOW SERIAL BIOS", "\nERROR: Failed to read BIOS serial port status."},
    {"crom write ZTHBAUD", "SET SERIAL BIOS COM1 9600", "\nERROR: Failed to set BIOS serial port config."},
    {"crom read ZTSBKT", "SHOW SERIAL VIRTUAL", "\nERROR: Failed to read Virtual serial port status."},
    {"crom read ZTSBKT", "SHOW SERIAL EMBEDDED", "\nERROR: Failed to read embedded serial status."},
    {"crom read ZTSBKT", "SET SERIAL VIRTUAL A;SET SERIAL EMBEDDED PORTB A",
     "\nERROR: Failed to read serial port status."},
    {"crom write ZTSBKT", "SET SERIAL VIRTUAL DISABLED", "\nERROR: Failed to set Virtual serial port config.", 0},
    {"crom write ZTSBKT", "SET SERIAL EMBEDDED PORTB COM3",
     "\nERROR: Failed to set Embedded serial port config.", 0},
    {"crom read ZTSBKT", "SHOW F1;SET F1 A", "\nERROR: Failed to read POST F1 status."},
    {"crom write ZTSBKT", "SET F1 DELAYED", "\nFailed to set the POST F1 prompt to DELAYED. ", 0},
    {"crom read ZTSBKT", "SHOW HT;ENABLE HT;DISABLE HT", "\nERROR: Failed to read hyper-threading status."},
    {"crom write ZTSBKT", "ENABLE HT", "\nERROR: Failed to enable processor hyper-threading."},
    {"crom write ZTSBKT", "DISABLE HT", "\nERROR: Failed to disable processor hyper-threading."},
    {"crom read ZTHUV", "SHOW VERSIONS", "\nERROR: Failed to read version information."},
};
// clang-format on

TEST(RomFailures, WrongWordsAreRefusedBeforeAnyRequest) {
    RomShell shell;
    shell.machine.TakeTrace();
    got_kelm = 1;
    auto check = [&](const std::string& line, const std::string& text) {
        const std::string output = shell.Run(line);
        EXPECT_EQ(output, text + current_command->Help) << line;
    };
    for (const char* line : kWrongCounts) check(line, "\nInvalid argument(s)\n");
    for (const char* line : kWithoutValue) check(line, "\n");
    check("SET ASR 5 10", "\nERROR: You must provide an ASR timeout value in minutes.\n");
    EXPECT_EQ(shell.machine.TakeTrace(), "");
    shell.machine.Variable("ZTSBKT", '\0');
    check("SET F1 \"delayed\"", "\nERROR: Invalid argument(s)\n");
    EXPECT_EQ(shell.machine.TakeTrace(), "crom read ZTSBKT length=13 -> 0\n");
}

// Each command ends with the request that failed.
TEST(RomFailures, NothingIsAskedForAfterARefusal) {
    for (const Failure& row : kFailures) {
        SCOPED_TRACE(std::string(row.commands) + " without " + row.fault);
        TestMachine machine("tr500k2");
        machine.Fault(row.fault + std::string(" -5"));
        machine.StartTrace();
        const RunResult result = machine.Script(row.commands);
        const std::string trace = machine.TakeTrace("c");

        std::string output = "\n";
        size_t commands = 1;
        for (const char* c = row.commands; *c != '\0'; ++c) commands += *c == ';';
        for (size_t i = 0; i < commands; ++i) output = row.output + ("\n" + output);
        EXPECT_EQ(result.output, output);
        EXPECT_EQ(result.status, row.status);
        const size_t last = trace.rfind(row.fault);
        EXPECT_EQ(trace.rfind(" write ") + 1, std::string(row.fault).find("write") == 5 ? last + 5 : 0);
        EXPECT_NE(trace.find(" -> -1 errno=5\nclose", last), std::string::npos) << trace;
    }
}

}  // namespace
