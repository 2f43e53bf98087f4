// Tests of the simulator of physical memory and of the PICL tree.
#include <gtest/gtest.h>

#include "platform/physical_memory.h"
#include "platform/picl.h"
#include "tests/platform/make_call.h"

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

// Tree-walk callback: counts the nodes in arg[0] and returns arg[1].
int Visit(picl_nodehdl_t, void* arg) {
    int* const words = static_cast<int*>(arg);
    ++words[0];
    return words[1];
}

TEST(Picl, ReturnsTheCallbacksResultAndRejectsInvalidArguments) {
    // Each row: the result of the callback, and the expected result of the walk.
    const int walks[][2] = {{PICL_WALK_TERMINATE, PICL_SUCCESS}, {PICL_PROPNOTFOUND, PICL_PROPNOTFOUND}};
    TestMachine machine;
    machine.Write("picl", "r id=258\n  a\n    a\n  a\n");
    InChild(machine, [&] {
        picl_nodehdl_t root = 1;
        uint8_t value[8] = {};
        EXPECT_EQ(picl_get_propval_by_name(root, "id", value, 4), PICL_NOTINITIALIZED);
        EXPECT_EQ(picl_initialize() + picl_get_root(&root), PICL_SUCCESS);
        for (const auto& [returned, result] : walks) {
            int words[] = {0, returned};
            EXPECT_EQ(picl_walk_tree_by_class(root, "a", words, Visit), result);
            EXPECT_EQ(words[0], 1) << "wrong number of visited nodes";
        }
        int below_first[] = {0, PICL_WALK_CONTINUE};
        EXPECT_EQ(picl_walk_tree_by_class(root + 1, "a", below_first, Visit), PICL_SUCCESS);
        EXPECT_EQ(below_first[0], 1) << "wrong number of visited nodes below the first child";
        for (const picl_nodehdl_t invalid : {root - 1, root + 4, root + (uint64_t{1} << 32)}) {
            EXPECT_EQ(picl_get_propval_by_name(invalid, "id", value, 4), PICL_INVALIDHANDLE) << invalid;
            EXPECT_EQ(picl_walk_tree_by_class(invalid, "a", nullptr, Visit), PICL_INVALIDHANDLE) << invalid;
        }
        EXPECT_EQ(picl_get_propval_by_name(root, "no", value, 4), PICL_PROPNOTFOUND);
        EXPECT_EQ(picl_get_propval_by_name(root, "id", value, 3), PICL_VALUETOOBIG);
        EXPECT_EQ(value[0], 0) << "a value was stored in a buffer that is too small";
        EXPECT_EQ(picl_get_propval_by_name(root, "id", value, sizeof value), PICL_SUCCESS);
        EXPECT_EQ(value[0] + value[1] + value[4], 3)
            << "expected the 4 bytes of 258 and an unchanged rest of the buffer";
    });
}
