#pragma once

#include "workbench/scene/SceneContents.h"

namespace app {
class Host;
}

namespace workbench {

/// The contents of the embedded renderer's scene, whichever is loaded.
class EmbeddedContents final : public SceneContents {
public:
    /// The host is borrowed.
    explicit EmbeddedContents(app::Host& host) : host_(host) {}

    [[nodiscard]] std::vector<Item> items() const override;
    [[nodiscard]] std::vector<nyx::MaterialId> materials() const override;
    [[nodiscard]] std::vector<Place> places(nyx::MaterialId material) const override;
    [[nodiscard]] zsg::IMaterialEdit* materialEdit(nyx::MaterialId material) const override;

private:
    app::Host& host_;
};

} // namespace workbench
