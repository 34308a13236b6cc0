#pragma once

#include "zsg/colors/IColorEdits.h"
#include "zsg/colors/ParameterBlock.h"

#include <memory>

class nyxRT_api;
struct nyxParameter_edit;

namespace zsg {

/// The colour settings, read and changed in memory and written back by commit().
class ZSG_EXPORT ZColorSettingsEdit final : public IColorSettingsEdit {
public:
    /// Takes over `block` and hands it back to `api` (borrowed, may be null) in the end. A null
    /// block, or one that does not hold colour settings, is not taken: then every getter answers
    /// its default.
    ZColorSettingsEdit(nyxRT_api* api, nyxParameter_edit* block);
    ~ZColorSettingsEdit() override;
    ZColorSettingsEdit(ZColorSettingsEdit const&) = delete;
    ZColorSettingsEdit& operator=(ZColorSettingsEdit const&) = delete;

    /// The edit of the scene's settings; null when there are none.
    [[nodiscard]] static std::unique_ptr<ZColorSettingsEdit> read(nyxRT_api* api);

    [[nodiscard]] nyx::ColorwayId activeColorwayId() const override;
    [[nodiscard]] bool isModified() const override;

    /// Names the active colorway, the invalid id for none. It switches nothing by itself.
    void setActiveColorwayId(nyx::ColorwayId id);
    /// Writes the values into the scene and marks the edit unchanged; without `force` only when it
    /// was changed. False when nothing was written.
    bool commit(bool force);

private:
    explicit ZColorSettingsEdit(ParameterBlock&& block) noexcept;

    ParameterBlock block_;
};

} // namespace zsg
