// How ColorController reaches the materials that use a colour.

#include "zsg/colors/ColorController.h"

#include "colors/announce.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/materials/ISceneMaterialManager.h"

#include <QObject>

#include <algorithm>

namespace zsg {

namespace {

/// Binds all places in one open edit. The edit is closed whatever happens; closing it pushes a
/// command, which may throw, so that a destructor could not do it.
void rebind(IMaterialEdit& edit, std::vector<MaterialColorPlace> const& places, nyx::ColorId to) {
    edit.beginEdit();
    try {
        for (MaterialColorPlace const& place : places) {
            edit.bindColor(place, to);
        }
    } catch (...) {
        edit.endEdit();
        throw;
    }
    edit.endEdit();
}

constexpr unsigned boundDirectly = 1;
constexpr unsigned boundAnyhow = 3;

} // namespace

void ColorController::linkMaterialColors(nyx::ColorId from, nyx::ColorId to) {
    if (!from.isValid() || !to.isValid() || !materialManager_) {
        return;
    }
    for (nyx::MaterialId const material :
         colorDB_->getMaterialsUsingColor(from, boundDirectly, true)) {
        IMaterialEdit* edit = materialManager_->materialEdit(material);
        if (!edit) {
            edit = materialManager_->createMaterialEdit(material);
        }
        auto const places = edit ? edit->colorPlaces(from) : std::vector<MaterialColorPlace>();
        if (!places.empty()) {
            rebind(*edit, places, to);
        }
    }
}

void ColorController::linkColor(nyx::ColorId from, nyx::ColorId to) {
    if (!from.isValid() || !to.isValid()) {
        return;
    }
    auto const name = [this](nyx::ColorId id) {
        return QString::fromStdString(colorDB_->colorFromId(id).getColorName());
    };
    ScopedMacro const macro(undoStack_,
                            QObject::tr("Link Color (%1) To (%2)").arg(name(from), name(to)));
    linkMaterialColors(from, to);
}

unsigned int ColorController::activeReferenceCount(nyx::ColorId id) const {
    if (!materialManager_) {
        return 0;
    }
    auto const materials = colorDB_->getMaterialsUsingColor(id, boundAnyhow, false);
    return static_cast<unsigned>(std::ranges::count_if(
        materials, [this](nyx::MaterialId m) { return materialManager_->isMaterialInUse(m); }));
}

bool ColorController::anyMultiColorInUse() const {
    // A copy: what the material manager does when asked may refill the list.
    return std::ranges::any_of(copied(colorDB_->multiColors()),
                               [this](nyx::ColorId id) { return activeReferenceCount(id) != 0; });
}

} // namespace zsg
