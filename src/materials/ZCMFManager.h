#pragma once

#include "zsg/materials/ICMFManager.h"
#include "zsg/materials/ZCMFSchema.h"

namespace zsg {

class ISceneGraph;

/// Starts with the built-in schema.
class ZCMFManager final : public ICMFManager {
public:
    /// The root is borrowed and may be null. It is asked for its event queue only when there is
    /// something to post.
    explicit ZCMFManager(ISceneGraph* root);
    ~ZCMFManager() override;

    [[nodiscard]] ZCMFSchema const& schema() const override;
    void setSchema(ZCMFSchema const& schema) override;

private:
    ZCMFSchema current_;
    ISceneGraph* root_;
};

} // namespace zsg
