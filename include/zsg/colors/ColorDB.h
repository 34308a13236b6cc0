#pragma once

#include "zsg/colors/IColorDB.h"
#include "zsg/colors/ZColorExtEdit.h"
#include "zsg/colors/ZColorSettingsEdit.h"
#include "zsg/colors/ZColorwayEdit.h"

#include "nyxrender/Unique_array.h"

#include <memory>

class nyxScene;

namespace zsg {

class AliveGuard;
template <class Id, class Edit>
class EditIndex;
class IEventQueue;

/// The colour database over the renderer's run-time API. It keeps one edit per colour and colorway
/// that was ever asked for, and lists of ids that are read again when the renderer's revision
/// counters have moved. A derived database may intercept any virtual operation: pushColor and
/// getColorParameters are called through it throughout.
class ZSG_EXPORT ColorDB : public IColorDB {
public:
    /// Both are borrowed and must outlive the database. Without a queue nothing is announced;
    /// without an API there are no colours.
    ColorDB(IEventQueue* eventQueue, nyxRT_api* rtApi);
    ~ColorDB() override;
    ColorDB(ColorDB const&) = delete;
    ColorDB& operator=(ColorDB const&) = delete;

    [[nodiscard]] nyx::ColorId colorFromName(ScopedRTApiLock& lock,
                                             std::string const& name) override;
    [[nodiscard]] nyx::ColorId multiColorFromName(ScopedRTApiLock& lock,
                                                  std::string const& name) override;
    [[nodiscard]] nyx::ColorwayId colorwayFromName(ScopedRTApiLock& lock,
                                                   std::string const& name) override;
    ZColorExtEdit* getColorParameters(nyx::ColorId id) override;
    ZColorSettingsEdit* getColorSettingsParameters() override;
    [[nodiscard]] std::optional<std::string>
    findUniqueColorName(std::string const& name, nyx::Span<nyx::ColorId> colors,
                        nyxColor_extended::ColorType type) override;
    void pushColor(ZColorExt& color) override;
    void pushColor(nyx::ColorId id) override;
    void pushTempColor(ZColorExt& color) override;
    void setActiveSubColor(MultiColorPair const& pair) override;
    [[nodiscard]] ZColorExt colorFromId(nyx::ColorId id) override;
    nyx::ColorId idFromColor(ZColorExt color) override;
    [[nodiscard]] unsigned int totalSceneReferenceCount(nyx::ColorId id) const override;
    nyx::ColorId clone(nyx::ColorId id) override;
    nyx::ColorId cloneRecursively(nyx::ColorId id) override;
    nyx::ColorId multiColorFromColor(nyx::ColorId id) override;
    ZColorwayEdit* getColorwayParameters(nyx::ColorwayId id) override;
    void checkForUnusedMultiColors(nyx::ColorwayId id) override;
    void pushColorway(nyx::ColorwayId id) override;
    void applyColorway(nyx::ColorwayId id) override;
    [[nodiscard]] nyx::Span<nyx::ColorId> colors() override;
    [[nodiscard]] std::vector<nyx::ColorId> namedColors() override;
    [[nodiscard]] nyx::Span<nyx::ColorId> multiColors() override;
    [[nodiscard]] nyx::Span<nyx::ColorwayId> colorways() override;
    [[nodiscard]] bool anyMultiColorsInScene() override;
    [[nodiscard]] std::vector<nyx::MaterialId>
    getMaterialsUsingColor(nyx::ColorId id, unsigned int how, bool unassigned) override;
    [[nodiscard]] std::unique_ptr<ScopedRTApiLock> createRtApiLock() override;
    [[nodiscard]] nyx::ColorwayId activeColorwayId() override;
    [[nodiscard]] std::string activeColorwayName() override;
    [[nodiscard]] std::string colorwayName(nyx::ColorwayId id) override;
    [[nodiscard]] std::unique_ptr<IColorLinker> getColorLinker(IColorController* controller,
                                                               IColorLinkHandler* handler) override;
    void handleColorwayActivated(nyx::ColorwayId const& id) override;

    /// The colour's name as its edit has it, else as the renderer has it: then no edit is made and
    /// kept, so whoever asks all names of a large scene once fills no memory. Empty for an unknown
    /// id.
    [[nodiscard]] std::string colorName(nyx::ColorId id) const;

    /// A new black colour; its name becomes a unique form of `name`. Nothing is announced. The
    /// invalid id when none could be made.
    nyx::ColorId createColor(std::string const& name, nyxColor_extended::ColorType type);
    /// A new colorway without name and pairs, announced. The invalid id when none could be made.
    nyx::ColorwayId createColorway();

    /// Announces a colour as updated.
    void postColorUpdateSyncEvent(nyx::ColorId id);
    /// Announces a colorway as updated, and as synchronised once the renderer has caught up.
    void postColorwayUpdateSyncEvent(nyx::ColorwayId id);

    /// Installs a state that was saved earlier: a copy of `edit` (borrowed) becomes the edit of its
    /// colour or colorway, is committed and announced. Null, and an edit without an id, are
    /// ignored.
    void setColorEdit(ZColorExtEdit const* edit);
    void setColorwayEdit(ZColorwayEdit const* edit);

    /// What undo commands ask whether the database is still there.
    [[nodiscard]] AliveGuard const& aliveGuard() const;

private:
    void pushColorImpl(ZColorExt& color);
    void pushSubColorToDb(ZColorExt const& color, int index);
    void setActiveColorway(nyx::ColorwayId id);

    [[nodiscard]] nyxScene* scene() const;
    [[nodiscard]] ZColorwayEdit* cachedColorway(nyx::ColorwayId id) const;
    nyx::ColorId createRecord(std::string const& name, bool multi);
    nyx::ColorId createUniqueColor(std::string const& name, bool multi);
    nyx::ColorId copyRecord(nyx::ColorId source, bool wrapped);

    IEventQueue* eventQueue_;
    nyxRT_api* rtApi_;
    std::unique_ptr<EditIndex<nyx::ColorId, ZColorExtEdit>> const colorEdits_;
    std::unique_ptr<EditIndex<nyx::ColorwayId, ZColorwayEdit>> const colorwayEdits_;
    std::unique_ptr<ZColorSettingsEdit> settingsEdit_;
    nyx::Unique_array<nyx::ColorwayId> colorwayIds_;
    nyx::Unique_array<nyx::ColorId> plainIds_;
    nyx::Unique_array<nyx::ColorId>
        namedIds_; ///< in step with plainIds_; namedColors() asks afresh
    nyx::Unique_array<nyx::ColorId> multiIds_;
    unsigned plainRevision_ = 0; ///< of plainIds_ and namedIds_
    unsigned multiRevision_ = 0;
    unsigned colorwayRevision_ = 0;
    nyx::ColorId tempColor_;
    std::unique_ptr<AliveGuard> const aliveGuard_;
};

} // namespace zsg
