#pragma once

#include "nyxrender/Ids.h"
#include "zcore/ZUndoCommand.h"

#include <QCoreApplication>

#include <cstdint>
#include <string>
#include <vector>

namespace zsg {
class ILightLayerApi;
}

namespace workbench {

// What the library changes of light layers without the history, or cannot take back as it was. The
// API must outlive the commands.

/// Id 1010. The name that the layer gets may be a numbered form of the one that is wanted.
class RenameLightLayer final : public ZUndoCommand {
    Q_DECLARE_TR_FUNCTIONS(workbench::RenameLightLayer)

public:
    RenameLightLayer(zsg::ILightLayerApi& api, nyx::LightLayerId layer, std::string name);

    bool undo() override;
    bool redo() override;

private:
    bool setName(std::string const& name);

    zsg::ILightLayerApi& api_;
    nyx::LightLayerId layer_;
    std::string before_;
    std::string after_;
};

/// Id 1011. Changes some flags and leaves the others as they are.
class SetLightLayerFlags final : public ZUndoCommand {
    Q_DECLARE_TR_FUNCTIONS(workbench::SetLightLayerFlags)

public:
    /// `bits` are what the flags in `mask` become.
    SetLightLayerFlags(zsg::ILightLayerApi& api, nyx::LightLayerId layer, std::uint32_t mask,
                       std::uint32_t bits);

    bool undo() override;
    bool redo() override;

private:
    bool setBits(std::uint32_t bits);

    zsg::ILightLayerApi& api_;
    nyx::LightLayerId layer_;
    std::uint32_t mask_;
    std::uint32_t before_;
    std::uint32_t after_;
};

/// Id 1012. Deletes a layer, whose lights all come back when that is undone, listed or not; or
/// brings a deleted one back, without lights.
class DeleteLightLayer final : public ZUndoCommand {
    Q_DECLARE_TR_FUNCTIONS(workbench::DeleteLightLayer)

public:
    enum class Act { Delete, Restore };

    /// The working copy of the layers must be up to date when it is first done.
    DeleteLightLayer(zsg::ILightLayerApi& api, nyx::LightLayerId layer, Act act);

    bool undo() override { return act_ == Act::Delete ? restore() : remove(); }
    bool redo() override { return act_ == Act::Delete ? remove() : restore(); }

private:
    bool remove();
    bool restore();

    zsg::ILightLayerApi& api_;
    nyx::LightLayerId layer_;
    Act act_;
    std::vector<nyx::ObjectId> lights_; ///< that the deletion took out
};

} // namespace workbench
