// The machine's file `picl`: one node per line, indented by two blanks per level, its class and then its
// properties.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct PiclProperty {
    std::string_view name;  // in the tree's text
    uint32_t value;
};

struct PiclNode {
    size_t level;                       // 0: the root
    std::string_view class_name;        // in the tree's text
    size_t properties, properties_end;  // its own among those of the tree
};

class PiclTree {
  public:
    // Reads the tree in place of the one before. file: the name by which a line that can't be read is
    // reported on standard error: a second root, a level that is skipped or half a level, a property whose
    // value isn't a number of 32 bits. It is skipped with what stands below it. Throws std::bad_alloc.
    void Read(const char* file, std::string text);

    // The nodes in file order, so that what stands below a node follows it at higher levels.
    const std::vector<PiclNode>& Nodes() const { return nodes_; }

    // A node's property. False, with value as it was, when it has none of that name.
    bool FindProperty(const PiclNode& node, std::string_view name, uint32_t& value) const;

  private:
    bool ReadNode(std::string_view line, size_t indentation);
    bool ReadProperties(std::string_view text);

    std::string text_;
    std::vector<PiclNode> nodes_;
    std::vector<PiclProperty> properties_;
};
