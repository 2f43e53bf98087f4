// The machine's file `picl`: one line for each node, indented by two spaces per level. A line contains the
// node's class, then its properties.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct PiclProperty {
    std::string_view name;  // points into PiclTree::text_
    uint32_t value;
};

struct PiclNode {
    size_t level;                       // 0 for the root
    std::string_view class_name;        // points into PiclTree::text_
    size_t properties, properties_end;  // a range of indexes in PiclTree::properties_
};

class PiclTree {
  public:
    // Replaces the tree with the one in `text`. Prints a message on standard error, with the name `file`, for
    // each invalid line, and skips this node and the nodes below it. These lines are invalid: a second root,
    // a line that is indented by half a level or by more than one level, and a property whose value isn't a
    // 32-bit number. Throws std::bad_alloc.
    void Read(const char* file, std::string text);

    // Returns the nodes in file order. The nodes below a node follow it and have higher levels.
    const std::vector<PiclNode>& Nodes() const { return nodes_; }

    // Stores the value of a node's property in `value`. If the node has no such property, returns false and
    // leaves `value` unchanged.
    bool FindProperty(const PiclNode& node, std::string_view name, uint32_t& value) const;

  private:
    bool ReadNode(std::string_view line, size_t indentation);
    bool ReadProperties(std::string_view text);

    std::string text_;
    std::vector<PiclNode> nodes_;
    std::vector<PiclProperty> properties_;
};
