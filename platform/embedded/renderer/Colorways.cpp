#include "nyxembedded/Colorways.h"

#include "api/Notifications.h"
#include "renderer/upToZero.h"
#include "store/ColorStore.h"
#include "store/ColorwayStore.h"

#include "nyxrender/nyxColor.h"

#include <algorithm>
#include <utility>

namespace nyx::embedded {

nyx::ColorwayId Colorways::add(std::string const& name, nyx::Span<ColorwayPair> pairs) {
    ColorwayRecord record;
    record.name = upToZero(name);
    for (ColorwayPair const& pair : pairs) {
        record.multiColors.push_back(pair.multiColor);
        record.activeSubs.push_back(pair.subColor);
    }
    return colorways_.add(std::move(record));
}

std::vector<nyx::ColorwayId> Colorways::ids() const {
    std::vector<nyx::ColorwayId> ids;
    colorways_.forEach([&](ColorwayRecord const& record) { ids.push_back(record.id); });
    return ids;
}

nyx::ColorwayId Colorways::find(std::string const& name) const {
    nyx::ColorwayId found;
    colorways_.forEach([&](ColorwayRecord const& record) {
        found = !found.isValid() && record.name == name ? record.id : found;
    });
    return found;
}

std::optional<ColorwayRecord> Colorways::record(nyx::ColorwayId id) const {
    ColorwayRecord const* const record = colorways_.find(id);
    return record ? std::optional(*record) : std::nullopt;
}

nyx::ColorwayId Colorways::active() const { return colorways_.active(); }

bool Colorways::remove(nyx::ColorwayId id) { return colorways_.remove(id); }

bool Colorways::activate(nyx::ColorwayId id) {
    ColorwayRecord const* const wanted = colorways_.find(id);
    if (!wanted) {
        return false;
    }
    std::vector<ColorwayRecord> flagged;
    colorways_.forEach([&](ColorwayRecord const& colorway) {
        std::uint32_t const flags = colorway.id == id ? colorway.flags | nyxColorway_flags::Active
                                                      : colorway.flags & ~nyxColorway_flags::Active;
        if (flags != colorway.flags) {
            flagged.push_back(colorway);
            flagged.back().flags = flags;
        }
    });
    for (ColorwayRecord const& colorway : flagged) {
        colorways_.update(colorway);
    }
    colorways_.setActive(id);
    std::size_t const pairs = std::min(wanted->multiColors.size(), wanted->activeSubs.size());
    for (std::size_t i = 0; i < pairs; ++i) {
        ColorRecord const* const multi = colors_.find(wanted->multiColors[i]);
        nyx::ColorId const sub = wanted->activeSubs[i];
        if (multi && multi->isMulti() &&
            std::find(multi->subColors.begin(), multi->subColors.end(), sub) !=
                multi->subColors.end()) {
            ColorRecord changed = *multi;
            changed.activeSub = sub;
            colors_.update(changed);
        }
    }
    notifications_.colorwayActivated(id);
    return true;
}

} // namespace nyx::embedded
