#pragma once

#include "nyxrender/nyxScene_hierarchy.h"

class nyxScene;

namespace nyx::embedded {

/// The tree of a scene's items.
class Hierarchy final : public nyxScene_hierarchy {
public:
    explicit Hierarchy(nyxScene& scene) : scene_(scene) {}
    void walk(std::function<void(nyxGroup_item const&)> const& visit) const override;

private:
    nyxScene& scene_;
};

} // namespace nyx::embedded
