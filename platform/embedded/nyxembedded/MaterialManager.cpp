#include "nyxembedded/MaterialManager.h"

#include "nyxembedded/Renderer.h"
#include "zcore/ZUndoCommand.h"
#include "zcore/ZUndoStack.h"

#include <QCoreApplication>

#include <map>
#include <unordered_map>
#include <utility>
#include <vector>

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
    EditMaterialCommand(Renderer& renderer, nyx::MaterialId material,
                        std::vector<Rebinding> changes, QString const& text)
        : ZUndoCommand(ZCommandId::EditMaterial, text),
          renderer_(renderer),
          material_(material),
          changes_(std::move(changes)) {}

    bool undo() override { return bindAll(&Rebinding::before); }
    bool redo() override { return bindAll(&Rebinding::after); }

private:
    bool bindAll(nyx::ColorId Rebinding::*color) {
        bool done = true;
        for (Rebinding const& change : changes_) {
            done &= renderer_.materials().rebindColor(material_, change.place.node,
                                                      change.place.parameter, change.*color);
        }
        return done;
    }

    Renderer& renderer_;
    nyx::MaterialId material_;
    std::vector<Rebinding> changes_;
};

class MaterialEdit final : public zsg::IMaterialEdit {
public:
    MaterialEdit(Renderer& renderer, nyx::MaterialId material, ZUndoStack* undoStack)
        : renderer_(renderer), material_(material), undoStack_(undoStack) {}

    [[nodiscard]] std::vector<zsg::MaterialColorPlace>
    colorPlaces(nyx::ColorId color) const override {
        renderer_.journal().write("material_color_places", material_, color);
        std::vector<zsg::MaterialColorPlace> places;
        if (auto const material = renderer_.materials().record(material_)) {
            for (MaterialPlace const& place : material->places) {
                if (place.color == color) {
                    places.push_back({place.node, place.parameter});
                }
            }
        }
        return places;
    }

    void beginEdit() override {
        renderer_.journal().write("material_begin_edit", material_);
        if (open_) {
            return;
        }
        // Read once: a material may have very many places, and the edit may bind them all.
        std::map<zsg::MaterialColorPlace, Binding> bindings;
        if (auto const material = renderer_.materials().record(material_)) {
            for (MaterialPlace const& place : material->places) {
                bindings.insert_or_assign({place.node, place.parameter},
                                          Binding{place.color, place.color});
            }
        }
        bindings_ = std::move(bindings);
        open_ = true;
    }

    void bindColor(zsg::MaterialColorPlace const& place, nyx::ColorId color) override {
        renderer_.journal().write("material_bind_color", material_, place.node, place.parameter,
                                  color);
        if (auto const binding = bindings_.find(place); binding != bindings_.end()) {
            binding->second.after = color;
        }
    }

    void endEdit() override {
        renderer_.journal().write("material_end_edit", material_);
        if (!std::exchange(open_, false)) {
            return;
        }
        std::vector<Rebinding> changes;
        for (auto const& [place, colors] : std::exchange(bindings_, {})) {
            if (colors.before != colors.after) {
                changes.push_back({place, colors.before, colors.after});
            }
        }
        auto const material = renderer_.materials().record(material_);
        if (changes.empty() || !material) {
            return;
        }
        auto command = std::make_unique<EditMaterialCommand>(
            renderer_, material_, std::move(changes),
            QCoreApplication::translate("ZEditMaterialCommand", "Edit Material %1")
                .arg(QString::fromStdString(material->name)));
        if (undoStack_) {
            undoStack_->push(command.release());
        } else {
            command->redo();
        }
    }

private:
    struct Binding {
        nyx::ColorId before;
        nyx::ColorId after;
    };

    Renderer& renderer_;
    nyx::MaterialId material_;
    ZUndoStack* undoStack_;
    bool open_ = false;
    /// Of the open edit: what each place was bound to when it began, and is to be bound to.
    std::map<zsg::MaterialColorPlace, Binding> bindings_;
};

} // namespace

class MaterialManager::Impl {
public:
    Renderer& renderer;
    ZUndoStack* undoStack;
    std::unordered_map<nyx::MaterialId, std::unique_ptr<zsg::IMaterialEdit>> edits;
};

MaterialManager::MaterialManager(Renderer& renderer, ZUndoStack* undoStack)
    : impl_(new Impl{renderer, undoStack, {}}) {}

MaterialManager::~MaterialManager() = default;

zsg::IMaterialEdit* MaterialManager::materialEdit(nyx::MaterialId material) {
    impl_->renderer.journal().write("material_edit", material);
    auto const edit = impl_->edits.find(material);
    return edit == impl_->edits.end() ? nullptr : edit->second.get();
}

zsg::IMaterialEdit* MaterialManager::createMaterialEdit(nyx::MaterialId material) {
    impl_->renderer.journal().write("create_material_edit", material);
    if (!impl_->renderer.materials().contains(material)) {
        return nullptr;
    }
    std::unique_ptr<zsg::IMaterialEdit>& edit = impl_->edits[material];
    if (!edit) {
        edit = std::make_unique<MaterialEdit>(impl_->renderer, material, impl_->undoStack);
    }
    return edit.get();
}

bool MaterialManager::isMaterialInUse(nyx::MaterialId material) const {
    impl_->renderer.journal().write("is_material_in_use", material);
    return impl_->renderer.materials().contains(material) &&
           impl_->renderer.materials().isUsed(material);
}

} // namespace nyx::embedded
