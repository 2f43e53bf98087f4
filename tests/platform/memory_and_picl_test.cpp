// Tests of the simulator of physical memory and of the PICL tree.
#include <gtest/gtest.h>

#include "platform/physical_memory.h"
#include "platform/picl.h"
#include "tests/platform/make_call.h"
#include "tests/support/pattern.h"

TEST(PhysicalMemory, IsMappedUpToTheEndOfTheFile) {
    TestMachine machine;
    machine.PhysicalMemory(0xF0000, "M");
    machine.PhysicalMemory(0x100000000, "N" + std::string(4094, '\0') + "O");
    ExpectCalls(machine, R"(xsvc open -> 0
        xsvc map 0x000f0000 65536 -> 0 = 4d00; xsvc unmap 65536
        xsvc map 0x100000000 4096 -> 0 = 4e4f; xsvc unmap 4096   # an address truncated to 32 bits
        xsvc map 0x100000000 8192 -> -1 errno=22                 # a page past the end
        xsvc map 0x100002000 4096 -> -1 errno=22                 # a range beyond the end
        xsvc map 0x000f0000 0 -> -1 errno=22                     # an empty range
        xsvc map 0xfffffffffffff000 4096 -> -1 errno=22          # an address below 0
        xsvc close)");
}

TEST(PhysicalMemory, StaysMappedWhenTheFileShrinks) {
    TestMachine machine;
    machine.Write("xsvc", std::string(8192, 'M'));
    InChild(machine, [&] {
        const int fd = xsvc_open();
        const auto* bytes = static_cast<const char*>(xsvc_map(fd, 0, 8192));
        xsvc_close(fd);
        EXPECT_EQ(xsvc_open(), fd) << "the descriptor wasn't closed";
        machine.Write("xsvc", "");
        ASSERT_NE(bytes, nullptr);
        EXPECT_EQ(bytes[8191], 'M') << "the mapping isn't a copy";
    });
}

namespace {

const struct {
    const char* catches;
    const char* tree;
    const char* nodes;           // the "id" of each node of class a; null: there is no root
    const char* bad_lines = "";  // the numbers of the lines that are reported
} kTrees[] = {
    {"the walk's order, or the root in it", "a id=1\n  a id=2\n    a id=3\n    b id=9\n  a id=4\n", "020304"},
    {"a class compared by its beginning", "r\n  ab id=1\n  a id=2\n  b id=3\n", "02"},
    {"a node without the property", "r\n  a\n  a ids=1 xid=2 id=3\n", "ff03"},
    {"a decimal or hexadecimal number", "r\n  a id=0x7f\n  a id=127 x=4294967295\n", "7f7f"},
    {"a comment taken for a node", "# r\n\nr\n\n  a id=1\n# x\n  # x\n   \n    a id=2", "0102"},
    {"CR LF line ends", "r\r\n  a id=1\r\n", "01"},
    {"no root", "# nothing\n", nullptr},
    {"a root that is indented", "  r\n", nullptr, "1 "},
    {"random bytes", "\x8e\x01\n\xff  =\t\n   \x7f", "", "2 "},
    {"a second root and all below it", "r\na id=1\n  a id=2\n", "", "2 "},
    {"a skipped level", "r\n    a id=1\n  a id=2\n", "02", "2 "},
    {"half a level", "r\n   a id=1\n  a id=2\n", "02", "2 "},
    {"a value of 33 bits", "r\n  a id=4294967296\n  a id=2\n", "02", "2 "},
    {"a value that isn't a number", "r\n  a id=0x\n    a id=1\n  a id=2\n", "02", "2 "},
    {"a property without a name", "r\n  a =1\n  a id=2\n", "02", "2 "},
    {"a property without a value", "r\n  a 7\n  a id=2\n", "02", "2 "},
};

}  // namespace

TEST(Picl, WalksTheTreeOfTheFile) {
    for (const auto& [catches, tree, nodes, bad_lines] : kTrees) {
        SCOPED_TRACE(catches);
        TestMachine machine;
        machine.Write("picl", tree);
        const std::string found = nodes == nullptr ? "1" : "0; picl walk a -> 0";
        const std::string ids = nodes == nullptr || *nodes == '\0' ? "" : std::string(" = ") + nodes;
        ExpectCalls(machine, "picl initialize -> 0; picl root -> " + found + ids);
        const char* const report = "simulated machine: picl: line (\\d+) can't be read\n";
        EXPECT_EQ(ReplaceAll(machine.Read("stderr"), report, "$1 "), bad_lines);
    }
}

// Tree-walk callback: counts the nodes in arg[0] and returns arg[1].
int Visit(picl_nodehdl_t, void* arg) {
    int* const words = static_cast<int*>(arg);
    ++words[0];
    return words[1];
}

TEST(Picl, ReturnsTheCallbacksResultAndRejectsInvalidArguments) {
    const int walks[][3] = {
        {PICL_WALK_CONTINUE, PICL_SUCCESS, 2},  // the callback's result, the walk's result, visited nodes
        {PICL_WALK_TERMINATE, PICL_SUCCESS, 1},
        {PICL_PROPNOTFOUND, PICL_PROPNOTFOUND, 1}};
    TestMachine machine;
    machine.Write("picl", "r id=258\n  a\n    a\n");
    InChild(machine, [&] {
        picl_nodehdl_t root = 1;
        uint8_t value[8] = {};
        EXPECT_EQ(picl_get_propval_by_name(root, "id", value, 4), PICL_NOTINITIALIZED);
        EXPECT_EQ(picl_initialize() + picl_get_root(&root), PICL_SUCCESS);
        for (const auto& [returned, result, visits] : walks) {
            int words[] = {0, returned};
            EXPECT_EQ(picl_walk_tree_by_class(root, "a", words, Visit), result);
            EXPECT_EQ(words[0], visits);
        }
        for (const picl_nodehdl_t invalid : {root - 1, root + 3, root + (uint64_t{1} << 32)}) {
            EXPECT_EQ(picl_get_propval_by_name(invalid, "id", value, 4), PICL_INVALIDHANDLE) << invalid;
            EXPECT_EQ(picl_walk_tree_by_class(invalid, "a", nullptr, Visit), PICL_INVALIDHANDLE) << invalid;
        }
        EXPECT_EQ(picl_get_propval_by_name(root, "no", value, 4), PICL_PROPNOTFOUND);
        EXPECT_EQ(picl_get_propval_by_name(root, "id", value, 3), PICL_VALUETOOBIG);
        EXPECT_EQ(value[0], 0) << "a value was stored in a buffer that is too small";
        EXPECT_EQ(picl_get_propval_by_name(root, "id", value, sizeof value), PICL_SUCCESS);
        EXPECT_EQ(value[0] + value[1] + value[4], 3)
            << "the value 258 has 4 bytes, and the rest of the buffer is unchanged";
    });
}
