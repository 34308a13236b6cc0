#pragma once

#include "nyxrender/nyxScene_hierarchy.h"

namespace nyx::embedded {

class ItemTree;
class Journal;

/// The tree of a scene's items as the renderer's clients walk it.
class Hierarchy final : public nyxScene_hierarchy {
public:
    Hierarchy(ItemTree const& items, Journal& journal) : items_(items), journal_(journal) {}
    void walk(std::function<void(nyxGroup_item const&)> const& visit) const override;

private:
    ItemTree const& items_;
    Journal& journal_;
};

} // namespace nyx::embedded
