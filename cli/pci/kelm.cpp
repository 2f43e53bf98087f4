#include "cli/pci/kelm.h"

namespace {

// Reads a property of a node. Returns false if the node doesn't have it.
bool ReadProperty(picl_nodehdl_t node, const char* property, uint32_t& value) {
    return picl_get_propval_by_name(node, property, &value, sizeof value) == PICL_SUCCESS;
}

}  // namespace

int is_kelm(picl_nodehdl_t p, void* arg) {
    uint32_t vendor = 0;
    uint32_t device = 0;
    if (!ReadProperty(p, "vendor-id", vendor) || !ReadProperty(p, "device-id", device))
        return PICL_WALK_CONTINUE;
    if (vendor != kKelmVendor || device != kKelmDevice) return PICL_WALK_CONTINUE;

    *static_cast<int*>(arg) = 1;
    return PICL_WALK_TERMINATE;
}

int find_kelm() {
    int found = 0;
    picl_nodehdl_t root{};
    if (picl_initialize() != PICL_SUCCESS || picl_get_root(&root) != PICL_SUCCESS) return 0;
    picl_walk_tree_by_class(root, kPciFunctionClass, &found, is_kelm);
    return found;
}
