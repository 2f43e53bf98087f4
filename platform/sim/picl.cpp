// The PICL service. The tree is in the machine's file `picl`, which is read when a program connects.
#include "platform/picl.h"

#include <cerrno>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include "platform/sim/call.h"
#include "platform/sim/machine_directory.h"
#include "platform/sim/picl_tree.h"

namespace {

constexpr char kFile[] = "picl";
constexpr size_t kLargestTree = size_t{1} << 24;  // in bytes

PiclTree& Tree() {
    static PiclTree tree;
    return tree;
}

// Returns the node of a handle, or null if there is none. A handle is a node's index plus 1.
const PiclNode* NodeOf(picl_nodehdl_t handle) {
    const auto& nodes = Tree().Nodes();
    return handle >= 1 && handle <= nodes.size() ? &nodes[static_cast<size_t>(handle - 1)] : nullptr;
}

bool connected = false;

int Connect() {
    connected = false;
    const Descriptor file = OpenFile(OpenMachine(), kFile);
    std::string text;
    if (!file || !ReadWhole(file, kLargestTree, text)) {
        if (errno != ENOENT) ReportFailure(kFile);
        return PICL_FAILURE;
    }
    Tree().Read(kFile, std::move(text));
    connected = true;
    return PICL_SUCCESS;
}

int Walk(picl_nodehdl_t root, std::string_view class_name, void* arg,
         int (*callback)(picl_nodehdl_t, void*)) {
    if (!connected) return PICL_NOTINITIALIZED;
    if (NodeOf(root) == nullptr) return PICL_INVALIDHANDLE;
    const size_t level = NodeOf(root)->level;
    picl_nodehdl_t handle = root + 1;
    for (const PiclNode* node = NodeOf(handle); node != nullptr && node->level > level;
         node = NodeOf(++handle)) {
        if (node->class_name != class_name) continue;
        const int result = callback(handle, arg);
        if (result == PICL_WALK_TERMINATE) return PICL_SUCCESS;
        if (result != PICL_WALK_CONTINUE) return result;
    }
    return PICL_SUCCESS;
}

}  // namespace

int picl_initialize(void) {
    const auto describe = [](Call& call) { call.SetSubject("picl initialize"); };
    return Perform(describe, Connect, PICL_FAILURE);
}

int picl_get_root(picl_nodehdl_t* node) {
    const auto describe = [](Call& call) { call.SetSubject("picl root"); };
    return Perform(describe, [&]() -> int {
        if (!connected) return PICL_NOTINITIALIZED;
        if (NodeOf(1) == nullptr) return PICL_FAILURE;
        *node = 1;
        return PICL_SUCCESS;
    });
}

int picl_walk_tree_by_class(picl_nodehdl_t root, const char* class_name, void* arg,
                            int (*callback)(picl_nodehdl_t node, void* arg)) {
    const auto describe = [&](Call& call) { call.SetSubject("picl walk %s", class_name); };
    return Perform(describe, [&] { return Walk(root, class_name, arg, callback); });
}

int picl_get_propval_by_name(picl_nodehdl_t node, const char* name, void* value, size_t size) {
    if (!connected) return PICL_NOTINITIALIZED;
    const PiclNode* const found = NodeOf(node);
    if (found == nullptr) return PICL_INVALIDHANDLE;

    uint32_t number = 0;
    if (!Tree().FindProperty(*found, name, number)) return PICL_PROPNOTFOUND;
    if (size < sizeof number) return PICL_VALUETOOBIG;
    std::memcpy(value, &number, sizeof number);
    return PICL_SUCCESS;
}
