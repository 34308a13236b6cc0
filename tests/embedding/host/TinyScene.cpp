#include "TinyScene.h"

#include "nyxrender/nyxBrush_node.h"
#include "nyxrender/nyxRT_api.h"
#include "nyxrender/nyx_color.h"
#include "nyxrender/nyx_material.h"
#include "nyxrender/nyx_memory.h"
#include "nyxrender/nyx_warning.h"

#include <cstdarg>
#include <cstdlib>
#include <cstring>

nyxScene_api::~nyxScene_api() = default;
nyxScene_hierarchy::~nyxScene_hierarchy() = default;
nyxGroup_item::~nyxGroup_item() = default;
nyxShader::~nyxShader() = default;
nyx::painter::nyxBrush_node::~nyxBrush_node() = default;

namespace {

std::string nameOf(Block const& block) {
    char const* const name = valueOf(*block, "display_name").text;
    return name ? name : "";
}

template <class Id>
nyx::Unique_array<Id> idsWhere(std::deque<Block> const& records, auto const& wanted) {
    std::vector<Id> ids;
    for (Block const& record : records) {
        if (wanted(record)) {
            ids.push_back(Id(record->record_id));
        }
    }
    return {ids.data(), ids.size()};
}

auto ofType(std::uint32_t type) {
    return [type](Block const& color) {
        std::uint32_t const flags = valueOf(*color, "flags").word;
        return (flags & nyxColor_flags::Temporary) == 0 &&
               (flags & nyxColor_flags::MultiColor) == (type - 1);
    };
}

auto ofName(char const* name) {
    return [name](Block const& record) { return nameOf(record) == name; };
}

} // namespace

void nyxScene::begin_color() {
    auto const id = static_cast<std::uint32_t>(colors.size() + 1);
    colors.emplace_back(makeBlock(nyxParameter_edit::ColorKind, id));
    ++colorRevision;
}

// Here multi-colours are never made, so the flags need not be the record's own.
nyxColor_record* nyxScene::end_color() {
    made_ = {nyx::ColorId(colors.back()->record_id), 0};
    return &made_;
}

void nyxScene::begin_colorway() {
    auto const id = static_cast<std::uint32_t>(colorways.size() + 1);
    colorways.emplace_back(makeBlock(nyxParameter_edit::ColorwayKind, id));
    ++colorwayRevision;
}

nyx::ColorwayId const* nyxScene::end_colorway() {
    madeColorway_ = nyx::ColorwayId(colorways.back()->record_id);
    return &madeColorway_;
}

void nyxScene::set_param(char const* name, int, char const* text) {
    if (std::strcmp(name, "display_name") == 0) {
        valueOf(*colors.back(), name).text = nyx_string_dup(*this, text);
    }
}

void nyxScene::walk(std::function<void(nyxGroup_item const&)> const& visit) const {
    for (TinyLight const& light : lights) {
        visit(light);
    }
}

TinyLight* nyxScene::light(nyx::ObjectId id) {
    return id.toUint() - 1 < lights.size() ? &lights[id.toUint() - 1] : nullptr;
}

nyxScene_api* nyx_get_scene_api(nyxScene* scene) { return scene; }
double nyx_scene_unit_scale(nyxScene const&) { return 0; }
nyxScene_hierarchy* nyx_scene_hierarchy_get(nyxScene* scene) { return scene; }
nyxGroup_item* nyx_group_item_from_id(nyxScene* scene, nyx::GroupItemId id) {
    return scene ? scene->light(nyx::ObjectId(id.toUint())) : nullptr;
}

void nyx_get_colordb_revision(nyxScene* scene, unsigned& color, unsigned& colorway) {
    if (scene) {
        color = scene->colorRevision;
        colorway = scene->colorwayRevision;
    }
}
nyx::Unique_array<nyx::ColorId> nyx_get_colors(nyxScene* scene, nyxColor_extended::ColorType type) {
    return scene ? idsWhere<nyx::ColorId>(scene->colors, ofType(type))
                 : nyx::Unique_array<nyx::ColorId>();
}
nyx::Unique_array<nyx::ColorId> nyx_get_colors_named(nyxScene* scene) {
    return scene ? idsWhere<nyx::ColorId>(scene->colors,
                                          [](Block const& color) { return !nameOf(color).empty(); })
                 : nyx::Unique_array<nyx::ColorId>();
}
nyx::Unique_array<nyx::ColorwayId> nyx_get_colorways(nyxScene* scene) {
    return scene ? idsWhere<nyx::ColorwayId>(scene->colorways, [](Block const&) { return true; })
                 : nyx::Unique_array<nyx::ColorwayId>();
}
nyx::Unique_array<nyx::ColorId> nyx_color_from_name(nyxScene* scene, char const* name) {
    return scene ? idsWhere<nyx::ColorId>(scene->colors, ofName(name))
                 : nyx::Unique_array<nyx::ColorId>();
}
nyx::Unique_array<nyx::ColorId> nyx_multi_color_from_name(nyxScene*, char const*) { return {}; }
nyx::Unique_array<nyx::ColorwayId> nyx_colorway_from_name(nyxScene* scene, char const* name) {
    return scene ? idsWhere<nyx::ColorwayId>(scene->colorways, ofName(name))
                 : nyx::Unique_array<nyx::ColorwayId>();
}
unsigned nyx_color_reference_count(nyxScene*, nyx::ColorId) { return 0; } // without materials
void nyx_color_set_unique_name(nyxScene*, nyx::ColorId) {}
char* nyx_color_find_unique_name(nyxScene* scene, char const* name, nyx::Span<nyx::ColorId>,
                                 nyxColor_extended::ColorType) {
    std::string unique = name;
    for (int n = 1; scene && *name && !nyx_color_from_name(scene, unique.c_str()).empty(); ++n) {
        unique = std::string(name) + ' ' + std::to_string(n);
    }
    return strdup(unique.c_str());
}
nyx::Unique_array<nyx::MaterialId> nyx_get_materials_using_color(nyxScene*, nyx::ColorId, unsigned,
                                                                 bool) {
    return {};
}

nyxMaterial* nyx_material_from_id(nyxScene*, nyx::MaterialId) { return nullptr; }
char const* nyx_material_name(nyxMaterial const&) { return ""; }
void nyx_material_cmf_values(nyxMaterial const&,
                             std::function<void(char const*, char const*)> const&) {}
void nyx_material_clear_cmf_values(nyxMaterial&) {}
void nyx_material_set_cmf_value(nyxMaterial&, char const*, char const*) {}
char const* nyx_material_metadata(nyxMaterial const&) { return ""; }
void nyx_material_set_metadata(nyxMaterial&, char const*) {}
nyx::Span<unsigned> nyx_material_items(nyxMaterial const&) { return {}; }

void* nyx_malloc_aligned(std::size_t bytes, std::size_t alignment) {
    return bytes ? std::aligned_alloc(alignment, (bytes + alignment - 1) / alignment * alignment)
                 : nullptr;
}
void nyx_free_aligned(void* memory) noexcept { std::free(memory); }
char* nyx_string_dup(nyxScene& scene, char const* text) {
    return text ? scene.texts.emplace_back(text).data() : nullptr;
}
void nyx_free(void* memory) noexcept { std::free(memory); }
void* nyx::Unique_array_helper::allocate(std::size_t bytes) {
    return bytes ? std::malloc(bytes) : nullptr;
}
void nyx::Unique_array_helper::free(void* memory) noexcept { std::free(memory); }
void nyx_warning(char const* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::vfprintf(stderr, format, arguments);
    va_end(arguments);
}
