#include "store/Accounts.h"
#include "store/ColorStore.h"
#include "store/ColorwayStore.h"
#include "store/Scene.h"
#include "store/colorUses.h"

#include "nyxrender/nyx_color.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <vector>

using namespace nyx::embedded;

namespace {

template <class List>
nyx::Unique_array<typename List::value_type> toArray(List const& ids) {
    return {ids.data(), ids.size()};
}

nyx::Unique_array<nyx::ColorId> colorsOfName(nyxScene& scene, char const* name, bool multi) {
    std::vector<nyx::ColorId> ids;
    for (nyx::ColorId const id : scene.colors().named(name ? name : "")) {
        if (scene.colors().find(id)->isMulti() == multi) {
            ids.push_back(id);
        }
    }
    return toArray(ids);
}

} // namespace

void nyx_get_colordb_revision(nyxScene* scene, unsigned& color_revision,
                              unsigned& colorway_revision) {
    if (scene) {
        scene->journal().write("nyx_get_colordb_revision");
        color_revision = scene->colors().revision();
        colorway_revision = scene->colorways().revision();
    }
}

nyx::Unique_array<nyx::ColorId> nyx_get_colors(nyxScene* scene, nyxColor_extended::ColorType type) {
    if (!scene) {
        return {};
    }
    scene->journal().write("nyx_get_colors", static_cast<std::uint32_t>(type));
    switch (type) {
    case nyxColor_extended::PlainColor:
        return toArray(scene->colors().plain());
    case nyxColor_extended::MultiColor:
        return toArray(scene->colors().multi());
    }
    return {};
}

nyx::Unique_array<nyx::ColorId> nyx_get_colors_named(nyxScene* scene) {
    if (!scene) {
        return {};
    }
    scene->journal().write("nyx_get_colors_named");
    return toArray(scene->colors().named());
}

nyx::Unique_array<nyx::ColorwayId> nyx_get_colorways(nyxScene* scene) {
    if (!scene) {
        return {};
    }
    scene->journal().write("nyx_get_colorways");
    std::vector<nyx::ColorwayId> ids;
    scene->colorways().forEach([&](ColorwayRecord const& colorway) { ids.push_back(colorway.id); });
    return toArray(ids);
}

nyx::Unique_array<nyx::ColorId> nyx_color_from_name(nyxScene* scene, char const* name) {
    if (!scene) {
        return {};
    }
    scene->journal().write("nyx_color_from_name", name);
    return colorsOfName(*scene, name, false);
}

nyx::Unique_array<nyx::ColorId> nyx_multi_color_from_name(nyxScene* scene, char const* name) {
    if (!scene) {
        return {};
    }
    scene->journal().write("nyx_multi_color_from_name", name);
    return colorsOfName(*scene, name, true);
}

nyx::Unique_array<nyx::ColorwayId> nyx_colorway_from_name(nyxScene* scene, char const* name) {
    if (!scene || !name) {
        return {};
    }
    scene->journal().write("nyx_colorway_from_name", name);
    std::vector<nyx::ColorwayId> ids;
    scene->colorways().forEach([&](ColorwayRecord const& colorway) {
        if (!colorway.name.empty() && colorway.name == name) {
            ids.push_back(colorway.id);
        }
    });
    return toArray(ids);
}

unsigned nyx_color_reference_count(nyxScene* scene, nyx::ColorId id) {
    if (!scene) {
        return 0;
    }
    scene->journal().write("nyx_color_reference_count", id);
    return referenceCount(*scene, id);
}

void nyx_color_set_unique_name(nyxScene* scene, nyx::ColorId id) {
    if (!scene) {
        return;
    }
    scene->journal().write("nyx_color_set_unique_name", id);
    if (ColorRecord const* const color = scene->colors().find(id)) {
        std::string const name = scene->colors().uniqueName(color->name, {id});
        if (name != color->name) {
            ColorRecord renamed = *color;
            renamed.name = name;
            scene->colors().update(renamed);
        }
    }
}

char* nyx_color_find_unique_name(nyxScene* scene, char const* name, nyx::Span<nyx::ColorId> ignored,
                                 nyxColor_extended::ColorType type) {
    if (!scene || !name) {
        return nullptr;
    }
    scene->journal().write("nyx_color_find_unique_name", name, ignored,
                           static_cast<std::uint32_t>(type));
    if (scene->faults().noUniqueNames) {
        return nullptr;
    }
    // Names are unique among plain and multi-colours together, so the type makes no difference.
    std::string const unique = scene->colors().uniqueName(name, ignored);
    auto* const text = static_cast<char*>(std::malloc(unique.size() + 1));
    if (!text) {
        throw std::bad_alloc();
    }
    std::memcpy(text, unique.c_str(), unique.size() + 1);
    ++accounts().texts;
    return text;
}

nyx::Unique_array<nyx::MaterialId> nyx_get_materials_using_color(nyxScene* scene, nyx::ColorId id,
                                                                 unsigned how, bool unassigned) {
    if (!scene) {
        return {};
    }
    scene->journal().write("nyx_get_materials_using_color", id, how, unassigned);
    return toArray(materialsUsing(*scene, id, (how & 1u) != 0, (how & 2u) != 0, unassigned));
}
