#include "nyxembedded/MaterialManager.h"

#include "store/Scene.h"
#include "zcore/ZUndoCommand.h"
#include "zcore/ZUndoStack.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace nyx::embedded {

namespace {

struct Rebinding {
    zsg::MaterialColorPlace place;
    nyx::ColorId before;
    nyx::ColorId after;
};

/// One closed edit of a material. Undo gives every place the colour that it had; a place or
/// material that is gone by then makes the step fail, the others are still bound.
class EditMaterialCommand final : public ZUndoCommand {
public:
    EditMaterialCommand(nyxScene& scene, nyx::MaterialId material, std::vector<Rebinding> changes,
                        QString const& text)
        : ZUndoCommand(ZCommandId::EditMaterial, text),
          scene_(scene),
          material_(material),
          changes_(std::move(changes)) {}

    bool undo() override { return bindAll(&Rebinding::before); }
    bool redo() override { return bindAll(&Rebinding::after); }

private:
    bool bindAll(nyx::ColorId Rebinding::*color) {
        bool done = true;
        for (Rebinding const& change : changes_) {
            done &= scene_.bindColor(material_, change.place.node, change.place.parameter,
                                     change.*color, false);
        }
        return done;
    }

    nyxScene& scene_;
    nyx::MaterialId material_;
    std::vector<Rebinding> changes_;
};

class MaterialEdit final : public zsg::IMaterialEdit {
public:
    MaterialEdit(nyxScene& scene, nyx::MaterialId material, ZUndoStack* undoStack)
        : scene_(scene), material_(material), undoStack_(undoStack) {}

    [[nodiscard]] std::vector<zsg::MaterialColorPlace>
    colorPlaces(nyx::ColorId color) const override {
        scene_.journal().write("material_color_places", material_, color);
        std::vector<zsg::MaterialColorPlace> places;
        if (nyxMaterial const* const material = std::as_const(scene_).material(material_)) {
            for (MaterialPlace const& place : material->places) {
                if (place.color == color) {
                    places.push_back({place.node, place.parameter});
                }
            }
        }
        return places;
    }

    void beginEdit() override {
        scene_.journal().write("material_begin_edit", material_);
        open_ = true;
    }

    void bindColor(zsg::MaterialColorPlace const& place, nyx::ColorId color) override {
        scene_.journal().write("material_bind_color", material_, place.node, place.parameter,
                               color);
        auto const bound = scene_.boundColor(material_, place.node, place.parameter);
        if (!open_ || !bound) {
            return;
        }
        auto const known =
            std::find_if(changes_.begin(), changes_.end(),
                         [&](Rebinding const& change) { return change.place == place; });
        if (known == changes_.end()) {
            changes_.push_back({place, *bound, color});
        } else {
            known->after = color;
        }
    }

    void endEdit() override {
        scene_.journal().write("material_end_edit", material_);
        if (!std::exchange(open_, false)) {
            return;
        }
        std::vector<Rebinding> changes = std::exchange(changes_, {});
        std::erase_if(changes,
                      [](Rebinding const& change) { return change.before == change.after; });
        nyxMaterial const* const material = std::as_const(scene_).material(material_);
        if (changes.empty() || material == nullptr) {
            return;
        }
        auto command = std::make_unique<EditMaterialCommand>(
            scene_, material_, std::move(changes),
            QCoreApplication::translate("ZEditMaterialCommand", "Edit Material %1")
                .arg(QString::fromStdString(material->name)));
        if (undoStack_ != nullptr) {
            undoStack_->push(command.release());
        } else {
            command->redo();
        }
    }

private:
    nyxScene& scene_;
    nyx::MaterialId material_;
    ZUndoStack* undoStack_;
    bool open_ = false;
    std::vector<Rebinding> changes_;
};

} // namespace

zsg::IMaterialEdit* MaterialManager::materialEdit(nyx::MaterialId material) {
    scene_.journal().write("material_edit", material);
    auto const edit = edits_.find(material);
    return edit == edits_.end() ? nullptr : edit->second.get();
}

zsg::IMaterialEdit* MaterialManager::createMaterialEdit(nyx::MaterialId material) {
    scene_.journal().write("create_material_edit", material);
    if (std::as_const(scene_).material(material) == nullptr) {
        return nullptr;
    }
    std::unique_ptr<zsg::IMaterialEdit>& edit = edits_[material];
    if (edit == nullptr) {
        edit = std::make_unique<MaterialEdit>(scene_, material, undoStack_);
    }
    return edit.get();
}

bool MaterialManager::isMaterialInUse(nyx::MaterialId material) const {
    scene_.journal().write("is_material_in_use", material);
    return scene_.isMaterialUsed(material);
}

} // namespace nyx::embedded
