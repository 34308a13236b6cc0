#include "zsg/colors/ColorDB.h"

#include "colors/EditIndex.h"
#include "colors/colorwayAccess.h"

#include "nyxrender/nyxScene.h"
#include "nyxrender/nyxScene_api.h"
#include "zcore/ZMainThreadCallback.h"

namespace zsg {

void ColorDB::checkForUnusedMultiColors(nyx::ColorwayId id) {
    ZColorwayEdit const* const edit = cachedColorway(id);
    // Without a scene nothing is known to be unused; the pairs would be lost for good.
    if (!edit || !scene()) {
        return;
    }
    std::vector<nyx::ColorId> unused = copied(edit->multiColors());
    std::erase_if(unused, [&](nyx::ColorId multi) { return totalSceneReferenceCount(multi) != 0; });
    if (!unused.empty()) {
        if (ZColorwayEdit* const again = cachedColorway(id)) {
            again->removeMultiColors(unused);
        }
    }
}

void ColorDB::pushColorway(nyx::ColorwayId id) {
    ZColorwayEdit* const edit = cachedColorway(id);
    if (!edit || !edit->commit(false)) {
        return;
    }
    if (edit->isActive()) {
        setActiveColorway(id);
    } else if (activeColorwayId() == id) {
        setActiveColorway({});
    }
    postColorwayUpdateSyncEvent(id);
}

void ColorDB::setActiveColorway(nyx::ColorwayId id) {
    if (ZColorSettingsEdit* const settings = getColorSettingsParameters()) {
        settings->setActiveColorwayId(id);
        settings->commit(false);
    }
}

void ColorDB::applyColorway(nyx::ColorwayId id) {
    ZColorwayEdit const* const edit = getColorwayParameters(id);
    if (!edit) {
        return;
    }
    std::vector<MultiColorPair> const pairs = edit->pairs();
    if (pairs.empty() || edit->multiColors().size() != edit->activeSubIndices().size()) {
        return;
    }
    setActiveColorway(edit->id());

    for (nyx::ColorwayId const other : copied(colorways())) {
        if (other != id) {
            setColorwayFlag(*this, other, &ZColorwayEdit::setActive, false);
        }
    }
    setColorwayFlag(*this, id, &ZColorwayEdit::setActive, true);

    for (MultiColorPair const& pair : pairs) {
        ZColorExtEdit* const multi = getColorParameters(pair.multiColor);
        if (multi && multi->hasSubColor(pair.subColor)) {
            multi->setActiveSub(pair.subColor);
            pushColor(pair.multiColor);
        }
    }
}

void ColorDB::handleColorwayActivated(nyx::ColorwayId const& id) {
    nyx::ColorwayId const colorway = id;
    ZColorwayEdit const* const edit = cachedColorway(colorway);
    if (!edit) {
        return;
    }
    for (nyx::ColorId const multi : copied(edit->multiColors())) {
        colorEdits_->erase(multi);
        getColorParameters(multi);
        pushColor(multi);
        announce<ColorUpdatedEvent>(eventQueue_, multi);
    }
    colorwayEdits_->erase(colorway);
    getColorwayParameters(colorway);
    pushColorway(colorway);
    postColorwayUpdateSyncEvent(colorway);
}

nyx::ColorwayId ColorDB::createColorway() {
    nyx::ColorwayId id;
    {
        ScopedRTApiLock const lock(rtApi_);
        nyxScene_api* const api = nyx_get_scene_api(scene());
        if (!api) {
            return {};
        }
        api->begin_colorway();
        if (nyx::ColorwayId const* const created = api->end_colorway()) {
            id = *created;
        }
    }
    if (id.isValid()) {
        postColorwayUpdateSyncEvent(id);
    }
    return id;
}

void ColorDB::postColorwayUpdateSyncEvent(nyx::ColorwayId id) {
    if (!eventQueue_) {
        return;
    }
    announce<ColorwayUpdatedEvent>(eventQueue_, id);
    // Owned by the queue, which it calls; it may run when the database is gone.
    new ZMainThreadCallback(
        rtApi_, [queue = eventQueue_, id] { announce<ColorwaySyncedEvent>(queue, id); },
        eventQueue_);
}

void ColorDB::setColorwayEdit(ZColorwayEdit const* edit) {
    nyx::ColorwayId const id = edit ? edit->id() : nyx::ColorwayId();
    if (!id.isValid()) {
        return;
    }
    auto copy = edit->copy();
    if (copy->id() != id) {
        return; // the renderer could not copy the block
    }
    colorwayEdits_->set(id, std::move(copy))->commit(true);
    postColorwayUpdateSyncEvent(id);
}

} // namespace zsg
