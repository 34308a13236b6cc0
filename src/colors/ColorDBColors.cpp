#include "zsg/colors/ColorDB.h"

#include "colors/EditIndex.h"
#include "colors/announce.h"

#include "nyxrender/nyxRT_api.h"
#include "nyxrender/nyxScene.h"
#include "nyxrender/nyxScene_api.h"
#include "nyxrender/nyx_color.h"

#include <algorithm>

namespace zsg {

void ColorDB::pushColor(ZColorExt& color) {
    ZColorExt clone = color.detachedClone();
    pushColorImpl(clone);
    color.copyDataFrom(clone);
}

void ColorDB::pushColorImpl(ZColorExt& color) {
    bool const isNew = !color.getId().isValid();
    if (isNew) {
        color.setId(createUniqueColor(color.getColorName(), color.isMultiColor()));
    }
    nyx::ColorId const id = color.getId();
    ZColorExtEdit* edit = id.isValid() ? getColorParameters(id) : nullptr;
    if (!edit) {
        return;
    }
    edit->setColor(color.rgba());
    if (isNew) {
        color.setColorName(edit->displayName());
    } else {
        edit->setDisplayName(color.getColorName());
    }

    if (color.isMultiColor()) {
        edit->setFlag(ColorFlags::MultiColor);
        std::vector<nyx::ColorId> subs;
        for (int i = 0; i < color.nColors(); ++i) {
            if (!color.getSubColorId(i).isValid()) {
                nyx::ColorId const sub = createUniqueColor(color.getName(i), false);
                if (!sub.isValid()) {
                    continue;
                }
                color.setSubColorId(i, sub);
                announce<ColorEvent>(eventQueue_, sub);
            }
            subs.push_back(color.getSubColorId(i));
        }
        // Again after each row of events: a listener may have put another state in place, or have
        // had the record read afresh.
        auto const write = [&] {
            edit = getColorParameters(id);
            if (edit) {
                edit->setColor(color.rgba());
                edit->setDisplayName(color.getColorName());
                edit->setFlag(ColorFlags::MultiColor);
                edit->setSubColors(subs);
                edit->setActiveSub(color.getSubColorId(color.activeIndex()));
            }
            return edit != nullptr;
        };
        if (!write()) {
            return;
        }
        for (int i = 0; i < color.nColors(); ++i) {
            pushSubColorToDb(color, i);
        }
        write();
    } else {
        edit->clearFlag(ColorFlags::MultiColor);
        edit->setSubColors({});
        edit->setActiveSub({});
    }

    if (edit) {
        color.setRevision(edit->revision());
    }
    if (isNew) {
        announce<ColorEvent>(eventQueue_, id);
    }
    pushColor(id);
}

// A new sub-colour gets the value's name here, in place of the unique one that it was created with.
void ColorDB::pushSubColorToDb(ZColorExt const& color, int index) {
    nyx::ColorId const sub = color.getSubColorId(index);
    if (ZColorExtEdit* const edit = sub.isValid() ? getColorParameters(sub) : nullptr) {
        edit->setColor(color.subRgba(index));
        edit->setDisplayName(color.getName(index));
        pushColor(sub);
    }
}

void ColorDB::pushColor(nyx::ColorId id) {
    ZColorExtEdit* const edit = colorEdits_->find(id);
    if (!edit || !edit->commit(false)) {
        return;
    }
    std::vector<nyx::ColorId> subs;
    if (edit->hasFlag(ColorFlags::MultiColor)) {
        subs = copied(edit->subColors());
    }
    announce<ColorUpdatedEvent>(eventQueue_, id);
    for (nyx::ColorId const sub : subs) {
        announce<ColorUpdatedEvent>(eventQueue_, sub);
    }
}

void ColorDB::pushTempColor(ZColorExt& color) {
    if (!tempColor_.isValid()) {
        {
            ScopedRTApiLock const lock(rtApi_);
            tempColor_ = createRecord({}, color.isMultiColor());
        }
        if (ZColorExtEdit* const edit =
                tempColor_.isValid() ? getColorParameters(tempColor_) : nullptr) {
            edit->setFlag(ColorFlags::Temporary);
        }
    }
    color.setId(tempColor_);
    // Without a record of its own the preview must not leave an ordinary colour behind.
    if (tempColor_.isValid()) {
        pushColor(color);
    }
}

void ColorDB::setActiveSubColor(MultiColorPair const& pair) {
    if (!pair.multiColor.isValid() || !pair.subColor.isValid()) {
        return;
    }
    ZColorExt color = colorFromId(pair.multiColor);
    nyx::ColorId const active = color.getActiveSubColorId();
    if (!color.isMultiColor() || !active.isValid() || active == pair.subColor) {
        return;
    }
    if (int const index = color.getIndexOfSubColor(pair.subColor); index >= 0) {
        color.setActiveIndex(index);
        pushColor(color);
    }
}

nyx::ColorId ColorDB::idFromColor(ZColorExt color) {
    if (!color.getId().isValid()) {
        pushColor(color);
    }
    return color.getId();
}

nyx::ColorId ColorDB::clone(nyx::ColorId id) { return copyRecord(id, false); }

nyx::ColorId ColorDB::cloneRecursively(nyx::ColorId id) {
    nyx::ColorId const newId = clone(id);
    ZColorExtEdit* edit = newId.isValid() ? getColorParameters(newId) : nullptr;
    if (!edit || !edit->hasFlag(ColorFlags::MultiColor)) {
        return newId;
    }
    std::vector<nyx::ColorId> const subs = copied(edit->subColors());
    std::vector<nyx::ColorId> clones = subs;
    for (nyx::ColorId& sub : clones) {
        if (nyx::ColorId const newSub = clone(sub); newSub.isValid()) {
            sub = newSub;
        }
    }
    // At once, after the clones' events, and only in a list that no listener has changed meanwhile.
    edit = getColorParameters(newId);
    if (edit && std::ranges::equal(edit->subColors(), subs)) {
        auto const active = std::ranges::find(subs, edit->activeSub());
        edit->setSubColors(clones);
        if (active != subs.end()) {
            edit->setActiveSub(clones[static_cast<std::size_t>(active - subs.begin())]);
        }
        edit->commit(false);
    }
    rtApi_->set_modified(true);
    return newId;
}

nyx::ColorId ColorDB::multiColorFromColor(nyx::ColorId id) { return copyRecord(id, true); }

nyx::ColorId ColorDB::createColor(std::string const& name, nyxColor_extended::ColorType type) {
    ScopedRTApiLock const lock(rtApi_);
    return createRecord(name, type == nyxColor_extended::MultiColor);
}

void ColorDB::postColorUpdateSyncEvent(nyx::ColorId id) {
    announce<ColorUpdatedEvent>(eventQueue_, id);
}

void ColorDB::setColorEdit(ZColorExtEdit const* edit) {
    nyx::ColorId const id = edit ? edit->id() : nyx::ColorId();
    if (!id.isValid()) {
        return;
    }
    auto copy = edit->copyFor(id);
    if (copy->id() != id) {
        return; // the renderer could not copy the block
    }
    colorEdits_->set(id, std::move(copy))->commit(true);
    announce<ColorUpdatedEvent>(eventQueue_, id);
}

/// Makes a record, under the caller's lock; unnamed when the name is empty.
nyx::ColorId ColorDB::createRecord(std::string const& name, bool multi) {
    nyxScene* const current = scene();
    nyxScene_api* const api = nyx_get_scene_api(current);
    if (!api) {
        return {};
    }
    api->begin_color();
    if (!name.empty()) {
        api->set_param("display_name", nyxScene_api::TypeText, name.c_str());
    }
    nyxColor_record* const record = api->end_color();
    if (!record) {
        return {};
    }
    if (multi) {
        record->flags |= ColorFlags::MultiColor;
    }
    nyx::ColorId const id = record->id;
    if (!name.empty()) {
        nyx_color_set_unique_name(current, id);
    }
    return id;
}

nyx::ColorId ColorDB::createUniqueColor(std::string const& name, bool multi) {
    ScopedRTApiLock const lock(rtApi_);
    nyx::ColorId const id = createRecord(name, multi);
    if (id.isValid()) {
        nyx_color_set_unique_name(scene(), id);
    }
    return id;
}

/// A new record with the values of `source`; `wrapped` makes it a multi-colour around the source.
nyx::ColorId ColorDB::copyRecord(nyx::ColorId source, bool wrapped) {
    nyx::ColorId id;
    {
        ScopedRTApiLock const lock(rtApi_);
        ZColorExtEdit const* const edit = getColorParameters(source);
        if (!edit) {
            return {};
        }
        id = createRecord({}, wrapped || edit->hasFlag(ColorFlags::MultiColor));
        if (!id.isValid()) {
            return {};
        }
        auto const copy = edit->copyFor(id);
        if (wrapped) {
            copy->setFlag(ColorFlags::MultiColor);
            copy->setSubColors({source});
            copy->setActiveSub(source);
        }
        copy->commit(true);
    }
    rtApi_->set_modified(true);
    nyx_color_set_unique_name(scene(), id);
    announce<ColorEvent>(eventQueue_, id);
    postColorUpdateSyncEvent(source);
    return id;
}

} // namespace zsg
