// The platform information and control library (PICL), as far as the program uses it. It describes the
// hardware as a tree of nodes; each node has a class and named properties. The functions return a
// picl_errno_t. They have C linkage, because the server's library is written in C.
#pragma once

#include <cstddef>
#include <cstdint>

using picl_nodehdl_t = uint64_t;

enum picl_errno_t : int {
    PICL_SUCCESS = 0,
    PICL_FAILURE = 1,
    PICL_NOTINITIALIZED = 4,
    PICL_INVALIDARG = 5,
    PICL_VALUETOOBIG = 6,
    PICL_PROPNOTFOUND = 7,
    PICL_INVALIDHANDLE = 15,
    PICL_WALK_CONTINUE = 24,   // returned by a callback: continue with the next node
    PICL_WALK_TERMINATE = 25,  // returned by a callback: end the walk with PICL_SUCCESS
};

extern "C" {

// Connects the process to the PICL service.
int picl_initialize(void);

// Stores the handle of the tree's root in `*node`.
int picl_get_root(picl_nodehdl_t* node);

// Calls `callback(node, arg)` for each node of class `class_name` below `root`, parents before their
// children, until a call returns something other than PICL_WALK_CONTINUE.
int picl_walk_tree_by_class(picl_nodehdl_t root, const char* class_name, void* arg,
                            int (*callback)(picl_nodehdl_t node, void* arg));

// Copies a property's value into `value`, a buffer of `size` bytes. Returns PICL_VALUETOOBIG if it doesn't
// fit.
int picl_get_propval_by_name(picl_nodehdl_t node, const char* name, void* value, size_t size);

}  // extern "C"
