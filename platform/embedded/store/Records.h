#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/nyxColor.h"
#include "nyxrender/nyxGroup_item.h"
#include "nyxrender/nyxScene_api.h"
#include "nyxrender/nyxShader.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

// The records of the embedded scene. They are plain data: a nyxScene keeps the indexes over them,
// so whatever an index covers is changed through the scene only.

namespace nyx::embedded {

class Journal;

/// Flag bits of colours and colorways.
enum RecordFlag : std::uint32_t {
    MultiColorFlag = 1,
    TemporaryColorFlag = 4,
    DeletedColorwayFlag = 1,
    ActiveColorwayFlag = 2,
};

struct ColorRecord {
    /// Id and flags as end_color() lends them out: the borrower may write the flags of the colour
    /// made last at any time, so they are read here when they are needed.
    nyxColor_record head;
    std::string name;
    std::string originalName;
    nyxColor_rgba value{0, 0, 0, 1};
    std::vector<nyx::ColorId> subColors; ///< may name records that are gone, or one twice
    nyx::ColorId activeSub;

    [[nodiscard]] bool isMulti() const { return (head.flags & MultiColorFlag) != 0; }
    [[nodiscard]] bool isTemporary() const { return (head.flags & TemporaryColorFlag) != 0; }
};

struct ColorwayRecord {
    nyx::ColorwayId id;
    std::uint32_t flags = 0;
    std::string name;
    std::vector<nyx::ColorId> multiColors;
    std::vector<nyx::ColorId> activeSubs; ///< meant to be as long as multiColors; nothing forces it
};

/// A parameter of a shader node with the colour that it is bound to; the invalid id when to none.
struct MaterialPlace {
    std::uint32_t node = 0;
    std::string parameter;
    nyx::ColorId color;
};

enum class ItemKind { Group, Object, Light };

struct ItemRecord {
    nyx::GroupItemId id; ///< also its ObjectId, unless it is a group
    ItemKind kind = ItemKind::Object;
    std::string name;
    nyx::GroupItemId parent;  ///< invalid: at the top
    nyx::MaterialId material; ///< objects only; invalid: none
};

/// A light's shader: all that it knows is about light layers.
class LightShader final : public nyxShader {
public:
    [[nodiscard]] std::uint32_t light_layer_mask() const override { return mask; }
    [[nodiscard]] bool info(unsigned query) const override;

    std::uint32_t mask = 0; ///< bit n-1 for layer n
    bool unlisted = false;  ///< what query 4100 answers
};

/// An item in the tree. Its address is stable as long as its scene keeps its contents.
class GroupItem final : public nyxGroup_item {
public:
    explicit GroupItem(ItemRecord itemRecord) : record(std::move(itemRecord)) {}

    [[nodiscard]] nyx::GroupItemId id() const override { return record.id; }
    [[nodiscard]] nyx::ObjectId object_id() const override;
    [[nodiscard]] bool is_light() const override { return record.kind == ItemKind::Light; }
    [[nodiscard]] nyx::Span<nyxGroup_item*> children() const override { return childItems; }
    [[nodiscard]] nyxShader* shader() const override;
    [[nodiscard]] std::uint32_t light_layer_mask() const override;

    ItemRecord record;
    std::vector<nyxGroup_item*> childItems; ///< in creation order
    mutable LightShader lightShader;        ///< lights only
};

} // namespace nyx::embedded

/// A material record. Everything but the places may be changed directly.
class nyxMaterial {
public:
    nyx::MaterialId id;
    std::string name;
    std::vector<nyx::embedded::MaterialPlace> places; ///< in the order in which they were made
    std::map<std::string, std::string> cmfValues;
    std::string metadata; ///< JSON text, empty when there is none
    std::vector<unsigned> items;
    nyx::embedded::Journal* journal = nullptr; ///< set when the material is handed out
};
