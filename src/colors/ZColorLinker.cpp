#include "colors/ZColorLinker.h"

#include "zsg/colors/IColorController.h"
#include "zsg/colors/IColorDB.h"
#include "zsg/colors/IColorLinkHandler.h"

#include <vector>

namespace zsg {

ZColorLinker::ZColorLinker(IColorController* controller, IColorLinkHandler* handler)
    : controller_(controller), colorDB_(controller->colorDB()), handler_(handler) {}

std::string ZColorLinker::uniqueColorName(std::string const& name) {
    return colorDB_->findUniqueColorName(name, {}, nyxColor_extended::PlainColor)
        .value_or(std::string());
}

nyx::ColorId ZColorLinker::importColor(ZColorExt& color) {
    std::vector<ZColorExt::ZColorWithId> elements;
    for (int i = 0; i < color.nColors(); ++i) {
        elements.emplace_back(color.getColor(i), color.getSubColorId(i));
    }
    auto const conflicts = controller_->checkForConflict(color);
    for (IColorController::ColorConflict const& conflict : conflicts) {
        auto& element = elements[static_cast<std::size_t>(conflict.index)];
        auto const resolution =
            handler_ ? handler_->resolveConflict(color, conflict.index, conflict.existing)
                     : IColorLinkHandler::Resolution::Rename;
        if (resolution == IColorLinkHandler::Resolution::Rename) {
            element.setName(uniqueColorName(conflict.name));
            continue;
        }
        // The existing colour keeps its value, or linking would overwrite it.
        ZColorExt const existing = colorDB_->colorFromId(conflict.existing);
        if (!color.isMultiColor()) {
            color = existing;
            return conflict.existing;
        }
        element = ZColorExt::ZColorWithId(ZColor(existing), conflict.existing);
    }
    if (!conflicts.empty()) {
        color.setColors(elements);
        if (!color.isMultiColor()) {
            color.setColorName(elements.front().name());
        }
    }
    colorDB_->pushColor(color);
    return color.getId();
}

void ZColorLinker::mergeSubColors(nyx::ColorId to, nyx::ColorId from) {
    ZColorExt const target = colorDB_->colorFromId(to);
    ZColorExt const source = colorDB_->colorFromId(from);
    if (!target.isMultiColor() || !source.isMultiColor()) {
        return;
    }
    std::vector<nyx::ColorId> missing;
    for (int i = 0; i < source.nColors(); ++i) {
        if (nyx::ColorId const id = source.getSubColorId(i); !target.hasSubColor(id)) {
            missing.push_back(id);
        }
    }
    if (!missing.empty()) {
        controller_->addSubColors(to, missing, -1, nyx::ColorId());
    }
}

IColorController* ZColorLinker::controller() const { return controller_; }

IColorDB* ZColorLinker::colorDB() const { return colorDB_; }

} // namespace zsg
