// The machine's file `picl`: one node per line, indented by two spaces per level. A line contains the node's
// class, then its properties.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct PiclProperty {
    std::string_view name;  // within PiclTree::text_
    uint32_t value;
};

struct PiclNode {
    size_t level;                       // 0: the root
    std::string_view class_name;        // within PiclTree::text_
    size_t properties, properties_end;  // range of indexes in PiclTree::properties_
};

class PiclTree {
  public:
    // Replaces the tree by the one in `text`. Reports invalid lines on standard error, with the name `file`,
    // and skips them with the nodes below them: a second root, indentation by half a level or by more than
    // one, a property whose value isn't a 32-bit number. Throws std::bad_alloc.
    void Read(const char* file, std::string text);

    // Returns the nodes in file order. The nodes below a node follow it, at higher levels.
    const std::vector<PiclNode>& Nodes() const { return nodes_; }

    // Stores the value of a node's property. Returns false, and leaves `value` unchanged, if the node has no
    // such property.
    bool FindProperty(const PiclNode& node, std::string_view name, uint32_t& value) const;

  private:
    bool ReadNode(std::string_view line, size_t indentation);
    bool ReadProperties(std::string_view text);

    std::string text_;
    std::vector<PiclNode> nodes_;
    std::vector<PiclProperty> properties_;
};
