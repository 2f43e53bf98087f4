// Compares the requests to the driver byte for byte, and tests how replies are used, also replies that a
// correct driver never sends. This test program replaces the request library: its functions record each call
// and return the reply that the test has set.

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <deque>
#include <filesystem>
#include <vector>

#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/misc-commands/asr.h"
#include "cli/misc-commands/dimm.h"
#include "cli/misc-commands/event_log.h"
#include "cli/misc-commands/rom_store.h"
#include "cli/misc-commands/uid.h"
#include "include/health_records.h"
#include "include/rom_variables.h"
#include "include/smbios_records.h"
#include "mkmachine/events.h"
#include "platform/request.h"
#include "savemachine/parts.h"
#include "tests/misc-commands/listing_shape.h"
#include "tests/support/test_machine.h"

namespace {

int open_result;                 // result of each open
std::vector<std::string> calls;  // the code of each request, and the bytes of its block
int result;                      // result of each request; a failing request also stores the reply
int32_t timer_state;             // reply to a read of the recovery timer
EV_IOCTL_STRUCT variable;        // reply to a read of a ROM variable
int record;                      // reply of the data tables: the value of each byte of the record
DataTableType failing_table;     // the table whose requests fail

struct EventReply {
    int status;
    std::string entry;  // bytes that replace the beginning of the entry
};
std::deque<EventReply> event_replies;  // replies to reads of the event log; after the last one, the log ends

}  // namespace

int SaveMachine(int argc, char** argv);  // in save.cpp

int vxOpenRequest(char* path, int mode) {
    calls.push_back(path + (" mode " + std::to_string(mode)));
    return open_result;
}

void vxCloseRequest(int) {}

int vxIoctlRequest(int, int code, void* arg) {
    calls.push_back(std::to_string(code) + ":");
    const auto exchange = [](void* bytes, const void* reply, size_t size) {
        calls.back().append(static_cast<char*>(bytes), size);
        if (reply != nullptr) std::memcpy(bytes, reply, size);
    };
    if (code == 69) {
        const DT_IOCTL& request = *static_cast<DT_IOCTL*>(arg);
        exchange(arg, nullptr, sizeof request.DtHdr);
        exchange(request.pData, nullptr, request.DtHdr.size);
        std::memset(request.pData, record, request.DtHdr.size);
        if (request.DtHdr.DT_Type == failing_table) return 2;
    } else if (code == 81) {
        exchange(arg, nullptr, static_cast<LOG_INFO*>(arg)->length);
        if (event_replies.empty()) return 1;
        const EventReply reply = event_replies.front();
        event_replies.pop_front();
        std::memcpy(static_cast<char*>(arg) + sizeof(LOG_INFO), reply.entry.data(), reply.entry.size());
        return reply.status;
    } else if (code < 3) {
        exchange(arg, &variable, sizeof variable);
    } else if (arg != nullptr) {
        exchange(arg, &timer_state, sizeof timer_state);
    }
    return result;
}

namespace {

// Runs an action that makes one call, and returns the call. Fills the stack with a value before, so that the
// call shows whether the block was cleared.
template <typename Action>
std::string CallOf(const Action& action) {
    volatile char stack[4096];
    for (volatile char& byte : stack) byte = 0x5A;
    calls.clear();
    action();
    return calls.size() == 1 ? calls[0] : std::to_string(calls.size()) + " calls instead of one";
}

// Builds the expected call: a request whose block contains these bytes and zeros elsewhere.
struct Byte {
    size_t offset;
    int value;
};
std::string Request(int code, size_t size, std::initializer_list<Byte> bytes) {
    std::string block(size, '\0');
    for (const Byte& byte : bytes) block[byte.offset] = static_cast<char>(byte.value);
    return std::to_string(code) + ":" + block;
}

InputLineType line = [] {  // the line of a command without arguments
    InputLineType words{};
    words.NumWords = 2;
    return words;
}();

TEST(RequestBlocks, ADeviceIsOpenedForReadingAndWriting) {
    calls.clear();
    for (const int opened : {-2, 0}) {
        open_result = opened;
        EXPECT_EQ(OpenDevices(), opened == 0);
    }
    for (const std::string& call : calls) EXPECT_NE(call.find(" mode 2"), call.npos) << call;
}

TEST(RequestBlocks, UnusedBytesAreZero) {
    EXPECT_EQ(CallOf([] { do_clear_hlog(&line); }), Request(81, 56, {{0, 56}, {4, 5}}));
    EXPECT_EQ(CallOf([] { std::free(generic_dtioctl(0x06AA, -1, 0x102, 5, 0)); }),
              Request(69, 17, {{0, 5}, {4, 0xAA}, {5, 6}, {6, 255}, {7, 2}}));
    const char* state;
    EXPECT_EQ(CallOf([&] { ReadLight(state); }),
              Request(69, 17, {{0, 5}, {4, 0xDF}, {5, 5}, {8, 1}, {9, 4}}));
}

// Of two neighbouring bit fields, one is set. No program reads most of these fields, so no other test fails
// if two of them are swapped.
TEST(RequestBlocks, BitFieldsOfRecordsHaveTheirPositions) {
    COMMONFEATUREINFO feature{};
    feature.DeviceState.s1.bit_PhysicallyFailed = feature.DeviceState.s1.bit_SharedGrpIsRedundant = 1;
    feature.FeatureState.s1.bit_Detected = feature.FeatureState.s1.bit_Enabled = 1;
    feature.Location.s1.bit_ExternalAccess = 1;
    feature.RedGroup.s1.bit_RedundantCapable = 1;
    feature.RedGroup.s1.bits_RedundantGroupId = 31;
    auto& reaction = feature.Reaction.s1;
    reaction.bit_Shutdown = reaction.bit_DisplayWarning = 1;
    reaction.bit_ImmediatePowerOff = reaction.bit_DedicatedIndicator = 1;
    EXPECT_EQ(MachineBuilder::Plain(feature), std::string("\0\x0A\0\5\0\0\0\0\4\xC1\7\xAA\0", 13));

    FANDESCRIPTOR fan{};
    fan.s1.bit_SpeedCntrl = fan.s1.bit_TachForFault = 1;
    fan.s1.bit_AlwaysSpeedsUp = fan.s1.bit_FanBlkRedCapable = 1;
    EXPECT_EQ(fan.usFanDescriptor, 0xAA);
    INDCDESCRIPTOR light{};
    light.s1.bit_InitialState = light.s1.bit_SWCtrl = light.s1.bit_SWCtrlSwtch = 1;
    light.s1.bits_Buttons = 3;
    EXPECT_EQ(light.usIndcDescriptor, 0xD5);

    WOLEVREC settings{};
    settings.data1.s.bits_APIC = settings.data1.s.bits_Mouse = 3;
    settings.parallel.s.bits_Port = settings.vsp.s.bits_UART1 = 7;
    settings.parallel.s.bits_IRQ = settings.vsp.s.bits_IRQ = 15;
    settings.dma.s.bits_FloppyWrites = settings.flags.s.bits_PCIUSB = settings.flags2.s.bits_FanSpeed = 3;
    settings.flags.s.bit_OptRom = settings.flags2.s.bit_NMI = 1;
    settings.amp.s.bit_OnlineSpare = settings.amp.s.bit_DualCardMemory = 1;
    settings.flags3.s.bits_ParallelPort = 7;
    settings.flags3.s.bits_ACPI = settings.flags3.s.bits_CPU = 1;
    settings.flags4.s.bits_USB = 3;
    settings.flags4.s.bit_IPMILegacy = settings.flags5.s.bit_NXMPSupported = settings.flags5.s.bit_PCIXRiser =
        1;
    settings.flags5.s.bits_PowerOnDelay = 15;
    EXPECT_EQ(MachineBuilder::Plain(settings),
              std::string("\0\xCC\0\0\xF7\x30\x4C\x4C\5\x57\xF7\x0B\xF5", 13));
    ZTTBT1STRUCT once{};
    once.boot.s.b_mode = 15;
    EXPECT_EQ(once.boot.bVal, 0xF0);

    ZTSMBIOS_ZET_PROC_INFO processor{};
    processor.bfBSP = 1;
    EXPECT_EQ(MachineBuilder::Plain(processor), std::string("\0\0\0\0\0\0\0\1\0\0", 10));
    GBX_PORT_MAP port{};
    port.bayWidth = 1;
    EXPECT_EQ(MachineBuilder::Plain(port), std::string("\0\x80", 2));
}

TEST(RequestBlocks, NoneFollowsAFailedOneInAWalkOfMemoryModules) {
    result = 0;
    record = 1;
    for (const DataTableType table : {kModuleConfigTable, kModuleStatusTable}) {
        failing_table = table;
        calls.clear();
        EXPECT_EQ(do_show_dimm(&line), table == kModuleConfigTable ? 0 : 1);
        EXPECT_EQ(calls.size(), table == kModuleConfigTable ? 3 : 4) << table;
    }
    failing_table = 0;
}

TEST(RequestBlocks, AVariableIsTransferredWithItsNameAndLength) {
    std::memset(&variable, 0xEE, sizeof variable);
    variable.DataLength = 2;  // the length of the request counts, not that of the reply
    unsigned char bytes[] = "\1\2\3\4";
    const std::string written = Request(2, 520, {{0, 'A'}, {1, 'B'}, {260, 3}, {264, 1}, {265, 2}, {266, 3}});
    result = 2;
    EXPECT_EQ(CallOf([&] { EXPECT_EQ(set_ev("AB", bytes, 3), 1); }), written);

    for (const int failure : {2, -1, 0}) {
        result = failure;
        EXPECT_EQ(CallOf([&] { EXPECT_EQ(get_ev("A", bytes, 3), failure != 0); }),
                  Request(1, 520, {{0, 'A'}, {260, 3}}));
        EXPECT_STREQ(reinterpret_cast<char*>(bytes), failure != 0 ? "\1\2\3\4" : "\xEE\xEE\xEE\4");
    }
}

TEST(RequestBlocks, TheTimerIsSwitchedWithoutABlockAndEnabledInAnyStateBut0) {
    result = 1;
    EXPECT_EQ(CallOf([&] { do_enable_asr(&line); }), "4:");
    EXPECT_EQ(CallOf([&] { do_disable_asr(&line); }), "3:");
    result = 0;
    for (const int32_t state : {2, INT32_MIN, 0}) {
        timer_state = state;
        AsrTimer timer{};
        ReadAsrTimer(timer);
        EXPECT_EQ(timer.enabled, state != 0) << state;
    }
    result = 1;
    EXPECT_EQ(CallOf([] {
                  AsrTimer timer;
                  ReadAsrTimer(timer);
              }),
              Request(6, 4, {}));
}

EventReply Event(uint32_t number) {
    return {0, EventEntry(EventHeader(number, kCaution, 13, 1), "")};
}

TEST(RequestBlocks, WrongRepliesEndTheEventListingOrAreRequestedAgain) {
    const EventReply small = {3, ""}, empty = {0, ""};
    // clang-format off
    const struct {
        const char* catches;
        std::deque<EventReply> replies;
        const char* shape;  // expected listing, abbreviated by Shape()
        int result;
        std::vector<uint32_t> requested;  // event numbers that are requested
    } cases[] = {
        // cases: an entry whose number is below the requested one, which would make the listing loop forever
        // without a check
        {"the same entry again", {Event(5), Event(5), Event(7)}, "/5 !", 1, {0, 6}},
        {"an entry numbered below the requested number", {Event(5), Event(1), Event(7)}, "/5 !", 1, {0, 6}},
        {"status 0 without an entry", {empty, empty}, "/0 !", 1, {0, 1}},
        {"numbers compared as signed", {Event(0x7FFFFFFF), Event(0x80000000), Event(7)}, "/2147483647 -2147483648 !", 1, {0, 0x80000000, 0x80000001}},
        {"a request after the largest number", {Event(0xFFFFFFFF), Event(1)}, "/-1 ", 0, {0}},
        {"a prompt after the largest number", {Event(1), Event(2), Event(3), Event(4), Event(5), Event(0xFFFFFFFF)}, "/1 2 3 4 5 -1 ", 0, {0, 2, 3, 4, 5, 6}},
        // cases: after status 3 (buffer too small), the same entry is requested again
        {"an entry skipped after status 3", {Event(1), small, Event(7)}, "/1 S7 ", 0, {0, 2, 2, 8}},
        {"replies with status 3 counted across an entry", {small, small, small, small, small, small, Event(1), small, small, small, small, small, small}, "/SSSSSS?/1 SSSSS?/S", 0, {0, 0, 0, 0, 0, 0, 0, 2, 2, 2, 2, 2, 2, 2}},
    };
    // clang-format on
    for (const auto& c : cases) {
        event_replies = c.replies;
        calls.clear();
        testing::internal::CaptureStdout();
        EXPECT_EQ(do_show_hlog(&line), c.result) << c.catches;
        std::fflush(stdout);
        EXPECT_EQ(Shape(testing::internal::GetCapturedStdout()), c.shape) << c.catches;
        std::vector<std::string> expected;
        for (const uint32_t number : c.requested) {
            expected.push_back(Request(81, 312, {{0, 0x38}, {1, 1}, {4, 2}, {16, 0x1C}, {17, 1}}));
            std::memcpy(&expected.back()[3 + 12], &number, sizeof number);
        }
        EXPECT_EQ(calls, expected) << c.catches
                                   << ": another number, or bytes of the last entry in the block";
    }
}

// Lengths are limited to those of a header and of the read. An entry numbered below the requested number is a
// fault of the copy.
TEST(RequestBlocks, WrongRepliesAreSavedAsEntriesThatCanBeReadOrAsFaults) {
    EventReply empty = Event(1), too_long = Event(2);
    empty.entry[0] = 0;
    too_long.entry.replace(0, 2, "\xFF\xFF");
    event_replies = {empty, too_long, Event(1)};
    calls.clear();
    const TestMachine parent;
    testing::internal::CaptureStderr();
    {
        MachineCopy copy(parent.Directory() + "/copy");
        copy.CreateFolder("cevt");
        SaveEvents(copy);
        copy.Finish();
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "savemachine: not read: cevt read 3: Protocol error\n");
    EXPECT_EQ(parent.Read("copy/faults"), "cevt read 3 -" + std::to_string(EPROTO) + "\n");
    EXPECT_EQ(parent.Read("copy/cevt/hlog"),
              Event(1).entry + Event(2).entry.replace(0, 2, "\x28\1") + std::string(268, '\0'));
    EXPECT_EQ(calls.size(), 4U);
}

// Runs savemachine in a child process. Expects these messages, which end with an errno of an earlier call if
// the program takes it for that of a failed request.
void ExpectSaved(const TestMachine& machine, const TestMachine& parent, const std::string& messages) {
    setenv("BRANT_MACHINE", machine.Directory().c_str(), 1);
    std::string name = "savemachine", copy = parent.Directory() + "/copy";
    char* arguments[] = {name.data(), copy.data(), nullptr};
    EXPECT_EXIT(_exit(SaveMachine(2, arguments)), testing::ExitedWithCode(0), "^" + messages + "$");
    EXPECT_EQ(parent.Read("copy/faults"), "");
}

TEST(RequestBlocks, FailuresWithoutAnErrnoAreNoFaultsOfTheCopy) {
    const TestMachine machine("tr300"), closed, open;
    open_result = -1;
    ExpectSaved(machine, closed, "(savemachine: not read: open c[a-z]+: refused\n){4}");
    open_result = 0;
    result = -1;
    event_replies.clear();
    ExpectSaved(machine, open, "(savemachine: not read: c[^\n]+: refused\n){18}");
}

// Each header counts 255 parts, and each number of modules is -1.
TEST(RequestBlocks, RepliesOfTheLargestBytesAreSaved) {
    const TestMachine machine, parent;
    result = 0;
    failing_table = 0;
    record = 255;
    timer_state = INT32_MIN;
    ExpectSaved(machine, parent, "savemachine: not read: picl initialize: refused\n");
    const std::filesystem::directory_iterator tables(parent.Directory() + "/copy/cdt");
    EXPECT_EQ(std::distance(begin(tables), end(tables)), 3 * 255 + 2 * 256 + 3 * 255 + 3 + 2 + 2);
    EXPECT_EQ(parent.Read("copy/casr/enabled"), "1\n");
}

}  // namespace
