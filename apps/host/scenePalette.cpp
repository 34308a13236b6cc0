#include "host/scenePalette.h"

#include "host/sRGB.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/ISceneGraph.h"

#include "zcore/ZUndoStack.h"

#include <algorithm>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace app {

namespace {

using Bytes = std::array<std::uint8_t, 3>;

Bytes bytesOf(nyxColor_rgba const& color) {
    auto const [red, green, blue, alpha] = sRGBFromLinear(color);
    return {red, green, blue};
}

nyxColor_rgba linearOf(Bytes const& bytes, float alpha) {
    nyxColor_rgba color = linearFromSRGB({bytes[0], bytes[1], bytes[2], 255});
    color.a = alpha;
    return color;
}

std::string nameOf(Palette::Entry const& entry) {
    return entry.name.empty() ? hexColor(linearOf(entry.sRGB, 1)) : entry.name;
}

/// A name without the number that was added to make it one of its own.
std::string withoutNumber(std::string const& name) {
    std::size_t const blank = name.find_last_not_of("0123456789");
    bool const isNumbered =
        blank != std::string::npos && blank > 0 && blank + 1 < name.size() && name[blank] == ' ';
    return isNumbered ? name.substr(0, blank) : name;
}

/// The plain colours of a scene that have names of a palette, also with a number behind.
class PlainColors {
public:
    PlainColors(zsg::ColorDB& db, Palette const& palette) : db_(db) {
        std::unordered_set<std::string> wanted;
        for (Palette::Entry const& entry : palette.colors) {
            wanted.insert(nameOf(entry));
            wanted.insert(entry.name); // also of those without one
        }
        for (nyx::ColorId const id : db.colors()) {
            std::string const name = db.colorName(id); // makes no edit, as asking the value does
            if (wanted.contains(name)) {
                byName_.try_emplace(name, id);
                note(name, bytesOf(valueOf(id)));
            }
            if (std::string const bare = withoutNumber(name);
                bare != name && wanted.contains(bare)) {
                note(bare, bytesOf(valueOf(id)));
            }
        }
    }

    void note(std::string const& name, Bytes const& bytes) { known_.emplace(name, bytes); }

    /// By its name, or under one that it got because its own was taken.
    [[nodiscard]] bool has(std::string const& name, Bytes const& bytes) const {
        return known_.contains({name, bytes});
    }
    /// Of two of one name the first; the invalid id when there is none.
    [[nodiscard]] nyx::ColorId find(std::string const& name) const {
        auto const found = byName_.find(name);
        return found == byName_.end() ? nyx::ColorId() : found->second;
    }
    [[nodiscard]] nyxColor_rgba valueOf(nyx::ColorId id) const {
        return db_.colorFromId(id).rgba();
    }

private:
    zsg::ColorDB& db_;
    std::unordered_map<std::string, nyx::ColorId> byName_;
    std::set<std::pair<std::string, Bytes>> known_;
};

} // namespace

std::size_t countSameNames(zsg::ColorDB& db, Palette const& palette) {
    PlainColors const there(db, palette);
    return static_cast<std::size_t>(
        std::ranges::count_if(palette.colors, [&](Palette::Entry const& entry) {
            std::string const name = nameOf(entry);
            nyx::ColorId const same = there.find(name);
            return same.isValid() && bytesOf(there.valueOf(same)) != entry.sRGB;
        }));
}

PaletteCounts bringIn(zsg::ISceneGraph& root, ZUndoStack& undoStack, Palette const& palette,
                      SameName how, QString const& text) {
    zsg::ColorDB& db = *root.colorDB();
    PlainColors there(db, palette);
    PaletteCounts counts;
    std::unordered_set<std::string> names; // of those before
    std::vector<std::pair<nyx::ColorId, nyxColor_rgba>> changes;
    for (Palette::Entry const& entry : palette.colors) {
        std::string const name = nameOf(entry);
        nyx::ColorId const same = there.find(name);
        bool const isTaken = names.insert(name).second && same.isValid() &&
                             bytesOf(there.valueOf(same)) != entry.sRGB;
        if (isTaken && how == SameName::Change) {
            changes.emplace_back(same, linearOf(entry.sRGB, there.valueOf(same).a));
            ++counts.changed;
        } else if ((isTaken && how == SameName::Keep) || there.has(name, entry.sRGB) ||
                   there.has(entry.name, entry.sRGB)) {
            ++counts.there;
        } else {
            ZColorExt color(ZColor(linearOf(entry.sRGB, 1), name));
            db.pushColor(color);
            if (!color.getId().isValid()) {
                ++counts.lost;
                continue;
            }
            ++counts.added;
        }
        there.note(name, entry.sRGB);
    }
    if (!changes.empty()) {
        undoStack.beginMacro(text);
        for (auto const& [id, color] : changes) {
            root.colorController()->setColor(id, ZColor(color, {}), zsg::AllowForwardUndoMerge::No);
        }
        undoStack.endMacro({});
    }
    return counts;
}

ScenePalette paletteOf(zsg::ColorDB& db, std::vector<nyx::ColorId> const& ids) {
    ScenePalette result;
    for (nyx::ColorId const id : ids) {
        ZColorExt const color = db.colorFromId(id);
        if (!color.isMultiColor()) {
            nyxColor_rgba const& value = color.rgba();
            auto const isCut = [](float part) { return !(part >= 0 && part <= 1); };
            if (isCut(value.r) || isCut(value.g) || isCut(value.b) || value.a != 1) {
                ++result.cut;
            }
            result.palette.colors.push_back({color.getColorName(), bytesOf(value)});
        }
    }
    return result;
}

} // namespace app
