// Tests of the four devices of the health driver: their replies, and the files of the machine afterwards.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <map>
#include <random>

#include "include/event_log.h"
#include "tests/platform/make_call.h"

namespace {

// Builds an event log entry: a header, then bytes that depend on its number.
std::string Entry(uint32_t number, unsigned length) {
    EVT_HEADER header{};
    header.wEvtLength = static_cast<uint16_t>(length);
    header.dwEvtNumber = number;
    std::string entry = MachineBuilder::Plain(header);
    entry.resize(std::max<size_t>(length, sizeof header), static_cast<char>(number & 0x7F));
    return entry;
}

}  // namespace

TEST(Devices, OpenIfTheMachineHasTheirDirectories) {
    TestMachine machine;
    machine.Remove("cevt");
    machine.Remove("xsvc");
    machine.Remove("crom");
    machine.Write("crom", "");
    ExpectCalls(machine, R"(open cevt -> -1 errno=2 # a missing device
        xsvc open -> -1 errno=2
        picl initialize -> 1
        open crom -> -1 errno=20                    # a file instead of a directory
        open /dev/zethealth/cdt2 -> -1 errno=2      # a path compared by its beginning
        open casr -> 0
        casr 69 -> -1 errno=22                      # another device's code
        fd=1 code=6 -> -1 errno=9                   # a descriptor that was never open
        fd=-1 code=6 -> -1 errno=9                  # a negative descriptor
        fd=1048576 code=6 -> -1 errno=9             # a descriptor past the last
        close casr
        fd=0 code=6 -> -1 errno=9                   # a descriptor that is closed)");
    EXPECT_EQ(machine.Read("stderr"), "simulated machine: crom: Not a directory\n")
        << "hardware that the machine doesn't have, reported";
    InChild(machine, [] {
        setenv("BRANT_MACHINE", "/nowhere", 1);
        EXPECT_EQ(Make("open casr"), "-1 errno=2") << "a missing machine directory";
    });
    TestMachine going;
    InChild(going, [&] {
        for (const std::string device : {"casr", "cdt", "cevt", "crom"}) {
            Make("open " + device);
            going.Remove(device);
        }
        const std::string without = "a device that was removed after it was opened";
        for (const char* request :
             {"casr 4", "casr 6", "cdt 351.0.0 size=4 cru=0.0", "cdt 1503.0.0 size=5 cru=1.1",
              "crom read A length=1", "crom write A length=1 data=07", "cevt read 0 length=312",
              "cevt clear length=56"}) {
            EXPECT_EQ(Make(request), "-1 errno=2") << without;
        }
    });
}

TEST(Devices, ReturnDataTables) {
    TestMachine machine;
    machine.Write("cdt/351.0.0", "\1\2\3\4");
    machine.Write("cdt/1702.255.7", "\5");
    machine.Write("cdt/1503.0.0", "\1\7\3\4\5");
    machine.Write("cdt/1503.1.0", "");
    machine.Write("cdt/1503.2.0", std::string(65536, '\0'));
    machine.Write("cdt/1503.3.0", std::string(65537, '\0'));
    ExpectCalls(machine, R"(open cdt -> 0
        cdt 351.0.0 size=3 cru=0.0 -> 0 = 010203       # bytes past the caller's size
        cdt 351.0.0 size=9 cru=0.0 -> 0 = 01020304     # bytes invented after the record
        cdt 1702.255.7 size=4 cru=0.0 -> 0 = 05        # indexes mixed up, or signed
        cdt 351.0.1 size=4 cru=0.0 -> 1                # a missing record
        cdt 351.0.0 size=1 cru=9.2 -> 0 = 01           # control bytes used for a plain table
        cdt 1503.0.0 size=5 cru=1.4 -> 0 = 0107030405  # a report that changes the state
        cdt 1503.0.0 size=5 cru=0.1 -> 1               # an indicator without its function
        cdt 1503.0.0 size=5 cru=1.3 -> 1               # a control that doesn't exist
        cdt 1503.9.0 size=5 cru=1.1 -> 1               # a missing indicator
        cdt 1503.0.0 size=5 cru=1.2 -> 0 = 0100030405  # the old state reported
        cdt 1503.0.0 size=1 cru=1.1 -> 0 = 01          # a change truncated to the caller's size
        cdt 1503.1.0 size=5 cru=1.1 -> 0 = 0001        # a short record not lengthened
        cdt 1503.2.0 size=2 cru=1.1 -> 0 = 0001        # the largest record
        cdt 1503.3.0 size=2 cru=1.1 -> -1 errno=27     # one that is larger)");
    EXPECT_EQ(machine.Read("cdt/1503.0.0"), "\1\1\3\4\5");
    EXPECT_EQ(machine.Read("cdt/1503.1.0"), std::string("\0\1", 2));
}

TEST(Devices, EnableAndDisableTheRecoveryTimer) {
    TestMachine machine;
    ExpectCalls(machine, "open casr -> 0; casr 6 -> 1; casr 4 -> 1; casr 3 -> 1 # no timer");
    machine.Asr(false);
    ExpectCalls(machine, "open casr -> 0; casr 6 -> 0 = 00000000; casr 4 -> 0; casr 6 -> 0 = 01000000");
    EXPECT_EQ(machine.Read("casr/enabled"), "1\n");
    machine.Write("casr/enabled", "on\n");
    ExpectCalls(machine, "open casr -> 0; casr 6 -> -1 errno=22 # a word; casr 3 -> 0");
    EXPECT_EQ(machine.Read("casr/enabled"), "0\n");
}

TEST(Devices, ReadAndWriteRomVariables) {
    TestMachine machine;
    machine.Remove("crom/ZTHMAC");
    machine.Variable("ZTHCPR", std::string("\1\2\3\4"));
    const std::string changed = machine.Directory() + "/crom/ZTHCPR";
    chmod(changed.c_str(), 07555);
    machine.Write("cdt/351.0.0", "secret");
    const std::string longest(255, 'N'), every_byte(256, '\x5a');
    ExpectCalls(machine, R"(open crom -> 0
        crom read ZTHCPR length=3 -> 0 = 010203        # bytes past the length
        crom read ZTHCPR length=256 -> 0 = 01020304    # bytes invented after the value
        crom read ZTHCPR length=257 -> 1               # a length above the block's
        crom read ZTHLS1 length=4 -> 1                 # a missing variable
        crom write ZTHCPR length=2 data=aabb -> 0      # the bytes after the length lost
        crom write AZ_az-09 length=3 data=00ff10 -> 0  # a new variable
        crom read ../cdt/351.0.0 length=6 -> 1         # a path outside the directory
        crom read . length=6 -> 1                      # the directory itself
        crom write  length=1 data=07 -> 1              # an empty name
        crom write A B length=1 data=07 -> 1           # an invalid character
        )" +
                             ("crom write " + longest + " length=256 data=" + Hexadecimal(every_byte) +
                              " -> 0 # the longest name, the longest value;") +
                             ("crom read " + longest + "N length=1 -> 1 # a name without NUL"));
    EXPECT_EQ(machine.Read("crom/ZTHCPR"), "\xaa\xbb\3\4");
    EXPECT_EQ(machine.Read("crom/" + longest), every_byte);
    const auto mode = [](const std::string& path) {
        return static_cast<unsigned>(std::filesystem::status(path).permissions());
    };
    EXPECT_EQ(mode(changed), 0444u) << "the file's own read and write bits, and no others";
    EXPECT_EQ(mode(machine.Directory() + "/crom/AZ_az-09"), 0644u) << "the mode of a new file";
    EXPECT_EQ(machine.Read("crom/AZ_az-09"), std::string("\0\xff\x10", 3));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(machine.Directory() + "/crom"), {}), 3);
}

TEST(Devices, ReadTheEventLog) {
    const std::string first = Entry(9, 30), high = Entry(0x80000000, 28), lowest = Entry(4, 300);
    TestMachine machine;
    machine.Write("cevt/hlog", first + high + lowest + Entry(9, 40) + Entry(7, 27) + Entry(1, 28));
    const auto read = [](const char* call, const std::string& entry) {
        return std::string("cevt read ") + call + " -> 0 = " + Hexadecimal(entry) + ";";
    };
    ExpectCalls(machine, "open cevt -> 0; cevt read 0 length=315 -> 3; cevt read 0 length=15 -> 3;" +
                             read("0 length=316", lowest) + read("5 length=312", first) +
                             read("9 length=46", first) + read("10 length=312", high) +
                             read("-2147483648 length=312", high) + R"(
        cevt read -2147483647 length=312 -> 1      # numbers taken as signed
        cevt choice=7 length=56 -> -1 errno=22     # a choice that doesn't exist
        cevt clear length=56 -> 0
        cevt read 0 length=312 -> 1                # an entry of the cleared log)");
    EXPECT_EQ(machine.Read("cevt/hlog"), "");
    machine.Write("cevt/hlog", Entry(4, 40) + Entry(5, 30).substr(0, 29));
    ExpectCalls(machine, "open cevt -> 0; cevt read 5 length=312 -> 1 # a truncated entry");
    machine.Remove("cevt/hlog");
    ExpectCalls(machine, "open cevt -> 0; cevt read 0 length=312 -> 1 # no log at all");
    std::filesystem::create_directory(machine.Directory() + "/cevt/hlog");
    ExpectCalls(machine, "open cevt -> 0; cevt clear length=56 -> -1 errno=21");
    EXPECT_FALSE(std::filesystem::exists(machine.Directory() + "/cevt/.new"))
        << "a failed change has left its new file";
}

// Ways to replace the log while a listing reads it. `catches`: the log that must not be listed.
const struct {
    const char* catches;
    void (*replace)(TestMachine& machine, const std::string& log);
} kReplacements[] = {
    {"the old contents of a file that was overwritten",
     [](TestMachine& machine, const std::string& log) { machine.Write("cevt/hlog", log); }},
    {"a file that was replaced",
     [](TestMachine& machine, const std::string& log) {
         machine.Write("cevt/.new", log);
         std::filesystem::rename(machine.Directory() + "/cevt/.new", machine.Directory() + "/cevt/hlog");
     }},
};

TEST(Devices, ListTheCurrentLog) {
    const auto log = [](uint32_t first) {
        return Entry(first, 40) + Entry(first + 1, 40) + Entry(first + 2, 40);
    };
    TestMachine machine;
    InChild(machine, [&] {
        Make("open cevt");
        uint32_t next = 1;  // each log begins with another number
        machine.Write("cevt/hlog", log(next));
        const auto expect_next = [&next](const char* catches) {
            const std::string call = "cevt read " + std::to_string(next) + " length=56";
            EXPECT_EQ(Make(call), "0 = " + Hexadecimal(Entry(next, 40))) << catches;
            ++next;
        };
        for (const auto& [catches, replace] : kReplacements) {
            usleep(60000);  // until the file is old enough for its index to be reused
            expect_next(catches);
            expect_next(catches);
            replace(machine, log(++next));
            expect_next(catches);
        }
        for (int i = 0; i < 20; ++i) {
            for (int entries = 0; entries < 2; ++entries) expect_next("an old log");
            kReplacements[0].replace(machine, log(++next));
            expect_next("the log before a change in the same clock tick as the previous change");
        }
        machine.Remove("cevt/hlog");
        EXPECT_EQ(Make("cevt read 1 length=56"), "1") << "a removed log";
    });
}

TEST(Devices, ListALongLogByNumber) {
    constexpr uint32_t kNumbers = 3000;
    std::mt19937 random(81);
    std::string log;
    std::map<uint32_t, std::string> first_of;  // each number, in order
    for (uint32_t i = 0; i < kNumbers; ++i) {
        const auto number = static_cast<uint32_t>(random() % kNumbers);
        const std::string entry = Entry(number, static_cast<unsigned>(28 + random() % 300));
        first_of.emplace(number, entry);
        log += entry;
    }
    TestMachine machine;
    machine.Write("cevt/hlog", log + "\x1d" + std::string(27, '\0'));  // the last entry lacks a byte
    usleep(60000);  // until the file is old enough for its index to be reused
    InChild(machine, [&] {
        Make("open cevt");
        for (const auto& [number, entry] : first_of) {
            const std::string result = Make("cevt read " + std::to_string(number) + " length=344");
            ASSERT_EQ(result, "0 = " + Hexadecimal(entry)) << number;
        }
    });
}
