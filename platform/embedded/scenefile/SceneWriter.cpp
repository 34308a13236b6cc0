#include "scenefile/SceneWriter.h"

#include "scenefile/SurfaceSection.h"
#include "store/ColorStore.h"
#include "store/ColorwayStore.h"
#include "store/ItemTree.h"
#include "store/LightLayers.h"
#include "store/MaterialStore.h"
#include "store/Scene.h"
#include "store/Surfaces.h"
#include "store/jsonText.h"

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace nyx::embedded {
namespace {

std::string number(std::uint32_t value) { return std::to_string(value); }
template <class Tag>
std::string number(nyx::Id<Tag> id) {
    return std::to_string(id.toUint());
}

/// One object on one line.
class Line {
public:
    explicit Line(std::string& out) : out_(out) { out_ += '{'; }
    ~Line() { out_ += '}'; }
    Line(Line const&) = delete;
    Line& operator=(Line const&) = delete;

    std::string& key(char const* name) {
        separate();
        return out_.append(1, '"').append(name).append("\": ");
    }
    template <class Number>
    void value(char const* name, Number const& value) {
        key(name) += number(value);
    }
    void flags(std::uint32_t bits) {
        if (bits != 0) {
            value("flags", bits);
        }
    }
    void text(char const* name, std::string const& value) {
        if (!value.empty()) {
            appendText(key(name), value);
        }
    }
    template <class Tag>
    void reference(char const* name, nyx::Id<Tag> id) {
        if (id.isValid()) {
            value(name, id);
        }
    }
    template <class Element>
    void list(char const* name, std::vector<Element> const& elements) {
        if (elements.empty()) {
            return;
        }
        char const* separator = "[";
        key(name);
        for (Element const& element : elements) {
            out_.append(separator).append(number(element));
            separator = ", ";
        }
        out_ += ']';
    }

private:
    void separate() {
        if (!isFirst_) {
            out_ += ", ";
        }
        isFirst_ = false;
    }

    std::string& out_;
    bool isFirst_ = true;
};

/// A section: an array with one record per line.
class Section {
public:
    Section(std::string& out, char const* name) : out_(out) {
        out_.append(",\n  \"").append(name).append("\": [");
    }
    ~Section() { out_ += isEmpty_ ? "]" : "\n  ]"; }
    Section(Section const&) = delete;
    Section& operator=(Section const&) = delete;

    std::string& next() {
        out_ += isEmpty_ ? "\n    " : ",\n    ";
        isEmpty_ = false;
        return out_;
    }

private:
    std::string& out_;
    bool isEmpty_ = true;
};

void write(std::string& out, ColorRecord const& record) {
    Line line(out);
    line.value("id", record.id);
    line.text("name", record.name);
    line.text("originalName", record.originalName);
    char const* separator = "[";
    line.key("value");
    for (float const component : {record.value.r, record.value.g, record.value.b, record.value.a}) {
        appendFloat(out.append(separator), component);
        separator = ", ";
    }
    out += ']';
    line.flags(record.flags);
    line.list("subColors", record.subColors);
    line.reference("activeSub", record.activeSub);
}

void write(std::string& out, ColorwayRecord const& record) {
    Line line(out);
    line.value("id", record.id);
    line.text("name", record.name);
    line.flags(record.flags);
    line.list("multiColors", record.multiColors);
    line.list("activeSubs", record.activeSubs);
}

void write(std::string& out, std::vector<MaterialPlace> const& places) {
    char const* separator = "[";
    for (MaterialPlace const& place : places) {
        out += separator;
        separator = ", ";
        Line line(out);
        line.value("node", place.node);
        appendText(line.key("parameter"), place.parameter);
        line.reference("color", place.color);
    }
    out += ']';
}

/// An object cannot have a key that is no valid UTF-8, so the values are pairs.
void write(std::string& out, std::map<std::string, std::string> const& values) {
    char const* separator = "[";
    for (auto const& [key, value] : values) {
        appendText(out.append(separator).append(1, '['), key);
        appendText(out.append(", "), value);
        out += ']';
        separator = ", ";
    }
    out += ']';
}

void write(std::string& out, MaterialRecord const& record) {
    Line line(out);
    line.value("id", record.id);
    line.text("name", record.name);
    if (!record.places.empty()) {
        write(line.key("places"), record.places);
    }
    if (!record.cmfValues.empty()) {
        write(line.key("cmf"), record.cmfValues);
    }
    line.text("metadata", record.metadata);
    line.list("items", record.items);
}

char const* kindName(ItemKind kind) {
    switch (kind) {
    case ItemKind::Group:
        return "\"group\"";
    case ItemKind::Light:
        return "\"light\"";
    default:
        return "\"object\"";
    }
}

void write(std::string& out, nyx::LightLayerId id, LightLayer const& layer) {
    Line line(out);
    line.value("id", id);
    line.text("name", layer.name);
    line.flags(layer.flags.bits());
}

void write(std::string& out, GroupItem const& item, LightLayers const& layers) {
    ItemRecord const& record = item.record;
    Line line(out);
    line.value("id", record.id);
    line.key("kind") += kindName(record.kind);
    line.text("name", record.name);
    line.reference("parent", record.parent);
    line.reference("material", record.material);
    if (item.is_light()) {
        nyx::LightLayerId const layer = layers.layerOf(item.object_id());
        line.reference("lightLayer",
                       layer == LightLayers::defaultLayer ? nyx::LightLayerId() : layer);
        if (item.record.unlisted) {
            line.key("unlisted") += "true";
        }
    }
}

} // namespace

std::string writeScene(nyxScene const& scene) {
    std::string out = "{\n  \"format\": \"zsg-scene\",\n  \"version\": 1";
    appendDouble(out.append(",\n  \"unitScale\": "), scene.unitScale());
    out += ",\n  \"nextIds\": ";
    {
        Line line(out);
        line.value("color", scene.colors().nextId());
        line.value("colorway", scene.colorways().nextId());
        line.value("material", scene.materials().nextId());
        line.value("item", scene.items().nextId());
        if (scene.surfaces().nextId().toUint() > 1) {
            line.value("surface", scene.surfaces().nextId());
        }
    }
    {
        Section section(out, "colors");
        scene.colors().forEach([&](ColorRecord const& record) { write(section.next(), record); });
    }
    {
        Section section(out, "colorways");
        scene.colorways().forEach(
            [&](ColorwayRecord const& record) { write(section.next(), record); });
    }
    out += ",\n  \"settings\": ";
    Line(out).reference("activeColorway", scene.colorways().active());
    {
        Section section(out, "materials");
        scene.materials().forEach(
            [&](MaterialRecord const& record) { write(section.next(), record); });
    }
    LightLayers const& layers = scene.lightLayers();
    out.append(",\n  \"environmentLightMask\": ").append(number(layers.environmentMask()));
    {
        Section section(out, "lightLayers");
        for (nyx::LightLayerId const id : layers.ids()) {
            write(section.next(), id, *layers.find(id));
        }
    }
    {
        Section section(out, "hierarchy");
        scene.items().forEach([&](GroupItem const& item) { write(section.next(), item, layers); });
    }
    if (auto const surfaces = scene.surfaces().all(); !surfaces.empty()) {
        Section section(out, "surfaces");
        for (Surface const* const surface : surfaces) {
            appendSurface(section.next(), *surface);
        }
    }
    out += "\n}\n";
    return out;
}

} // namespace nyx::embedded
