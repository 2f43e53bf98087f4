#include <gtest/gtest.h>

#include <string>

#include "cli/smbios_old/smbios.h"
#include "cli/smbios_old/tables.h"
#include "mkmachine/smbios_table.h"
#include "tests/support/loaded_tables.h"

using namespace std::string_literals;

namespace {

// Walks the records and returns the low byte of each handle.
std::string Handles() {
    std::string handles;
    for (unsigned char* record = nullptr; SmbGetRecord(&record) == TRUE;) {
        handles.push_back(static_cast<char>(record[offsetof(SMBIOS_HEADER, wHandle)]));
    }
    return handles;
}

struct WalkCase {
    const char* catches;
    std::string tables;
    const char* handles;
};

// Each record consists of the type, the length, the handle (a letter and 0), then the strings and a NUL, or
// two NULs if there are no strings.
const WalkCase kWalks[] = {
    // cases: the offset of the next record
    {"two NULs without strings not skipped", "\1\4a\0\0\0\2\4b\0\0\0"s, "ab"},
    {"NULs in the formatted area taken for the end of the strings", "\1\6a\0\0\0\0\0\2\4b\0\0\0"s, "ab"},
    {"the end of a string taken for the end of the strings", "\1\4a\0x\0y\0\0\2\4b\0\0\0"s, "ab"},
    {"strings that begin with an empty one", "\1\4a\0\0x\0\0\2\4b\0\0\0"s, "ab"},
    {"the end-of-table record taken for the end", "\177\4a\0\0\0\2\4b\0\0\0"s, "ab"},
    // cases: the end of the tables
    {"a last record with truncated strings not found", "\1\4a\0\0\0\2\4b\0x"s, "ab"},
    {"a last record truncated after its formatted area not found", "\1\4a\0\0\0\2\4b\0"s, "ab"},
    {"a truncated formatted area accepted", "\1\4a\0\0\0\2\6b\0\0"s, "a"},
    {"a truncated header accepted", "\1\4a\0\0\0\2\4b"s, "a"},
    {"a length of 3 accepted", "\1\4a\0\0\0\2\3b\0\0\0\3\4c\0\0\0"s, "a"},
    {"length 0 accepted, an endless walk", "\2\0b\0\0\0"s, ""},
};

struct StringCase {
    const char* catches;
    std::string record;
    unsigned short number;
    const char* text;  // null: the record has no such string
};

const StringCase kStrings[] = {
    {"number 0", "\1\4a\0one\0two\0\0"s, 0, nullptr},
    {"the first", "\1\4a\0one\0two\0\0"s, 1, "one"},
    {"the last", "\1\4a\0one\0two\0\0"s, 2, "two"},
    {"a number above the last", "\1\4a\0one\0two\0\0next\0"s, 3, ""},
    {"no strings", "\1\4a\0\0\0next\0"s, 1, ""},
    {"after an empty first string", "\1\4a\0\0two\0\0next\0"s, 2, "two"},
    {"truncated by the end of the tables", "\1\4a\0one\0tw"s, 2, "tw"},
    {"after a truncated string", "\1\4a\0one\0tw"s, 255, ""},
    {"no strings before the end of the tables", "\1\4a\0"s, 1, ""},
};

}  // namespace

TEST(Records, AreWalkedUpToTheLastWithACompleteFormattedArea) {
    for (const WalkCase& c : kWalks) {
        LoadedTables tables(c.tables);
        EXPECT_EQ(Handles(), c.handles) << c.catches;
    }
}

TEST(Records, ReturnTheirStringsByNumber) {
    for (const StringCase& c : kStrings) {
        LoadedTables tables(c.record);
        void* record = nullptr;
        ASSERT_EQ(SmbGetRecordByType(1, 0, &record), TRUE) << c.catches;
        EXPECT_STREQ(reinterpret_cast<char*>(SmbGetStringByNumber(record, c.number)), c.text) << c.catches;
    }
}

TEST(Records, AreFoundByTypeAndByHandle) {
    SmbiosTable table;
    table.Add(SmbiosRecord(1, 0x1234).Byte(1)).Add(SmbiosRecord(2, 0x3412));
    table.Add(SmbiosRecord(1, 0x1234).Byte(2)).Add(SmbiosRecord(1, 0x7856));
    LoadedTables tables(table.Bytes());
    void* found = nullptr;
    EXPECT_EQ(SmbGetRecordByType(1, 2, &found), TRUE) << "the third record of type 1 not found";
    EXPECT_EQ(ReadField<uint16_t>(SmbFormattedArea(found), 2), 0x7856) << "records of other types counted";
    void* unchanged = &table;
    EXPECT_EQ(SmbGetRecordByType(1, 3, &unchanged), FALSE) << "a fourth record found";
    EXPECT_EQ(SmbGetRecordByHandle(0x0034, &unchanged), FALSE) << "one byte of the handle compared";
    EXPECT_EQ(unchanged, &table) << "the pointer was changed by a failed search";
    EXPECT_EQ(SmbGetRecordByHandle(0x1234, &found), TRUE);
    EXPECT_EQ(SmbFormattedArea(found).data[4], 1) << "not the first record of a handle";

    DeinitSMBIOS();
    EXPECT_EQ(IsSMBIOSAvailable(), FALSE);
    EXPECT_EQ(EPS.wSTLength, table.Bytes().size()) << "the entry point was cleared";
    EXPECT_EQ(SmbGetRecordByType(1, 0, &unchanged), FALSE) << "found a record of freed tables";
}
