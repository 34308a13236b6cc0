#include "nyxembedded/Colors.h"

#include "api/Notifications.h"
#include "renderer/upToZero.h"
#include "store/ColorStore.h"

#include <utility>

namespace nyx::embedded {

nyx::ColorId Colors::add(std::string const& name, nyxColor_rgba const& value) {
    ColorRecord record;
    record.name = colors_.uniqueName(upToZero(name), {});
    record.value = value;
    return colors_.add(std::move(record));
}

nyx::ColorId Colors::addMulti(std::string const& name, nyx::Span<nyx::ColorId> subColors,
                              nyx::ColorId active) {
    ColorRecord record;
    record.flags = nyxColor_flags::MultiColor;
    record.name = colors_.uniqueName(upToZero(name), {});
    record.subColors.assign(subColors.begin(), subColors.end());
    record.activeSub = active;
    return colors_.add(std::move(record));
}

std::vector<nyx::ColorId> Colors::ids() const {
    std::vector<nyx::ColorId> ids;
    colors_.forEach([&](ColorRecord const& record) { ids.push_back(record.id); });
    return ids;
}

nyx::ColorId Colors::find(std::string const& name) const {
    std::vector<nyx::ColorId> const holders = colors_.named(name);
    return holders.empty() ? nyx::ColorId() : holders[0];
}

std::optional<ColorRecord> Colors::record(nyx::ColorId id) const {
    ColorRecord const* const record = colors_.find(id);
    return record ? std::optional(*record) : std::nullopt;
}

bool Colors::remove(nyx::ColorId id) { return colors_.remove(id); }

bool Colors::change(nyx::ColorId id, nyxColor_rgba const& value) {
    ColorRecord const* const record = colors_.find(id);
    if (!record) {
        return false;
    }
    ColorRecord changed = *record;
    changed.value = value;
    colors_.update(changed);
    notifications_.colorChanged(id);
    return true;
}

void Colors::announce() {
    colors_.forEach([this](ColorRecord const& color) {
        if (!color.isTemporary()) {
            notifications_.colorChanged(color.id);
        }
    });
}

} // namespace nyx::embedded
