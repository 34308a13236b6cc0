#include "nyxembedded/Colors.h"

#include "api/Notifications.h"
#include "renderer/upToZero.h"
#include "store/Scene.h"

#include <utility>

namespace nyx::embedded {

nyx::ColorId Colors::add(std::string const& name, nyxColor_rgba const& value) {
    ColorRecord record;
    record.name = scene_.uniqueColorName(upToZero(name), {});
    record.value = value;
    return scene_.addColor(std::move(record));
}

nyx::ColorId Colors::addMulti(std::string const& name, nyx::Span<nyx::ColorId> subColors,
                              nyx::ColorId active) {
    ColorRecord record;
    record.flags = ColorRecord::MultiColor;
    record.name = scene_.uniqueColorName(upToZero(name), {});
    record.subColors.assign(subColors.begin(), subColors.end());
    record.activeSub = active;
    return scene_.addColor(std::move(record));
}

std::vector<nyx::ColorId> Colors::ids() const {
    std::vector<nyx::ColorId> ids;
    scene_.forEachColor([&](ColorRecord const& record) { ids.push_back(record.id); });
    return ids;
}

nyx::ColorId Colors::find(std::string const& name) const {
    std::vector<nyx::ColorId> const holders = scene_.colorsNamed(name);
    return holders.empty() ? nyx::ColorId() : holders[0];
}

std::optional<ColorRecord> Colors::record(nyx::ColorId id) const {
    ColorRecord const* const record = scene_.color(id);
    return record == nullptr ? std::nullopt : std::optional(*record);
}

bool Colors::remove(nyx::ColorId id) { return scene_.removeColor(id); }

bool Colors::change(nyx::ColorId id, nyxColor_rgba const& value) {
    ColorRecord const* const record = scene_.color(id);
    if (record == nullptr) {
        return false;
    }
    ColorRecord changed = *record;
    changed.value = value;
    scene_.updateColor(changed);
    notifications_.colorChanged(id);
    return true;
}

void Colors::announce() {
    scene_.forEachColor([this](ColorRecord const& color) {
        if (!color.isTemporary()) {
            notifications_.colorChanged(color.id);
        }
    });
}

} // namespace nyx::embedded
