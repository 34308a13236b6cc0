// What materials say of themselves: drafts of their descriptions, and applying those.

#include "host/Command.h"
#include "host/CommandResult.h"
#include "host/DescribeMaterialCommand.h"
#include "host/Host.h"
#include "host/cmfAttributeKey.h"
#include "host/idArgument.h"
#include "host/parseJson.h"
#include "host/printable.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/materials/ICMFManager.h"
#include "zsg/materials/IMaterialHandler.h"
#include "zsg/materials/ZCMFSchema.h"

#include "zcore/ZUndoStack.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>
#include <map>
#include <memory>
#include <ostream>
#include <set>
#include <utility>
#include <vector>

namespace app {

namespace {

using zsg::IMaterialDescriptor;

/// Descriptions that were changed and not yet applied.
struct Drafts {
    std::map<nyx::MaterialId, std::unique_ptr<IMaterialDescriptor>> byMaterial;
};

zsg::IMaterialHandler& handler(Host& host) { return *host.root().materialHandler(); }

std::string nameOf(Host& host, nyx::MaterialId id) {
    return printable(handler(host).materialName(id).toStdString());
}

nyx::MaterialId takeMaterial(Host& host, Arguments& arguments) {
    std::string const word = arguments.word("a material");
    std::uint32_t number = 0;
    auto const [last, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error == std::errc() && last == word.data() + word.size() &&
        host.renderer().materials().contains(nyx::MaterialId(number))) {
        return nyx::MaterialId(number);
    }
    nyx::MaterialId const id = host.renderer().materials().find(word);
    if (!id.isValid()) {
        throw CommandError("the scene has no material \"" + word + '"' +
                           didYouMean(word, recordNames(host.renderer().materials())));
    }
    return id;
}

std::unique_ptr<IMaterialDescriptor> stored(Host& host, nyx::MaterialId id) {
    auto descriptor = handler(host).descriptor(id);
    if (!descriptor) {
        throw CommandError("the renderer knows no such material");
    }
    return descriptor;
}

/// The draft of a material, or what it says at present.
IMaterialDescriptor const& current(Host& host, nyx::MaterialId id,
                                   std::unique_ptr<IMaterialDescriptor>& holder) {
    auto const& drafts = host.sceneState<Drafts>().byMaterial;
    if (auto const found = drafts.find(id); found != drafts.end()) {
        return *found->second;
    }
    holder = stored(host, id);
    return *holder;
}

IMaterialDescriptor& draft(Host& host, nyx::MaterialId id) {
    auto& entry = host.sceneState<Drafts>().byMaterial[id];
    if (!entry) {
        entry = stored(host, id);
    }
    return *entry;
}

nlohmann::json readValue(std::string const& text) {
    auto value = parseJson<nlohmann::json>(text);
    if (value.is_discarded()) {
        throw CommandError("\"" + text + "\" is no JSON");
    }
    return value;
}

void list(Host& host, Arguments&) {
    auto const& drafts = host.sceneState<Drafts>().byMaterial;
    beginResultList(host);
    for (nyx::MaterialId const id : host.renderer().materials().ids()) {
        addResult(host, [&] {
            return nlohmann::ordered_json{{"id", id.toUint()},
                                          {"name", host.renderer().materials().record(id)->name},
                                          {"draft", drafts.contains(id)}};
        });
        host.out() << "  " << id.toUint() << ' ' << nameOf(host, id)
                   << (drafts.contains(id) ? " (draft)" : "") << '\n';
    }
}

/// Rows of a label and a text, printed as two columns.
class Table {
public:
    void add(std::string const& label, std::string const& text) {
        rows_.emplace_back(printable(label), printable(text));
    }

    void print(std::ostream& out) const {
        std::size_t widest = 0;
        for (auto const& [label, text] : rows_) {
            widest = std::max(widest, width(label));
        }
        for (auto const& [label, text] : rows_) {
            out << "  " << label << std::string(widest + 2 - width(label), ' ') << text << '\n';
        }
    }

private:
    static std::size_t width(std::string const& text) {
        return static_cast<std::size_t>(QString::fromStdString(text).toUcs4().size());
    }

    std::vector<std::pair<std::string, std::string>> rows_;
};

void describe(Host& host, Arguments& arguments) {
    nyx::MaterialId const id = takeMaterial(host, arguments);
    arguments.done();
    std::unique_ptr<IMaterialDescriptor> holder;
    IMaterialDescriptor const& descriptor = current(host, id, holder);
    host.out() << "  " << id.toUint() << ' ' << nameOf(host, id)
               << (holder ? "" : " (draft, not applied)") << '\n';
    Table table;
    std::set<std::string> shown;
    for (zsg::ZCMFAttribute const& attribute : host.root().cmfManager()->schema().attributes) {
        std::string const key = cmfAttributeKey(attribute.name.toStdString());
        shown.insert(key);
        if (attribute.visible) {
            table.add(attribute.name.toStdString(),
                      descriptor.hasValue(key) ? descriptor.value(key) : "-");
        }
    }
    for (auto const& [key, value] : descriptor.values()) {
        if (!shown.contains(key)) {
            table.add(key, value + "  (not in the schema)");
        }
    }
    if (nlohmann::json const metadata = descriptor.metadata(); !metadata.is_null()) {
        table.add("metadata", metadata.dump());
    }
    if (descriptor.hasItems()) {
        std::string items;
        for (unsigned const item : descriptor.items()) {
            items += (items.empty() ? "" : " ") + std::to_string(item);
        }
        table.add("items", items);
    }
    table.print(host.out());
    giveResult(host, [&] {
        nlohmann::ordered_json result = {{"id", id.toUint()},
                                         {"name", handler(host).materialName(id).toStdString()},
                                         {"draft", !holder},
                                         {"values", nlohmann::ordered_json::object()},
                                         {"metadata", descriptor.metadata()}};
        for (auto const& [key, value] : descriptor.values()) {
            result["values"][key] = value;
        }
        auto& items = result["items"] = nlohmann::ordered_json::array();
        for (unsigned const item : descriptor.items()) {
            items.push_back(item);
        }
        return result;
    });
}

void set(Host& host, Arguments& arguments) {
    nyx::MaterialId const id = takeMaterial(host, arguments);
    std::string const key = cmfAttributeKey(arguments.word("an attribute or a key"));
    std::string const value = arguments.word("a value");
    arguments.done();
    if (key.empty()) {
        throw CommandError("a key cannot be empty");
    }
    draft(host, id).setValue(key, value);
}

void remove(Host& host, Arguments& arguments) {
    nyx::MaterialId const id = takeMaterial(host, arguments);
    std::string const word = arguments.word("an attribute or a key");
    std::string const key = cmfAttributeKey(word);
    arguments.done();
    std::unique_ptr<IMaterialDescriptor> holder;
    if (!current(host, id, holder).hasValue(key)) {
        throw CommandError("there is no value \"" + word + "\"");
    }
    draft(host, id).removeValue(key);
}

void showMetadata(Host& host, Arguments& arguments) {
    nyx::MaterialId const id = takeMaterial(host, arguments);
    std::unique_ptr<IMaterialDescriptor> holder;
    IMaterialDescriptor const& descriptor = current(host, id, holder);
    nlohmann::json const metadata =
        arguments.empty() ? descriptor.metadata() : descriptor.metadata(arguments.word("a key"));
    arguments.done();
    host.out() << "  " << printable(metadata.dump()) << '\n';
}

void setMetadata(Host& host, Arguments& arguments) {
    nyx::MaterialId const id = takeMaterial(host, arguments);
    std::string const key = arguments.word("a key");
    std::string const text = arguments.word("a JSON value");
    arguments.done();
    nlohmann::json const value = readValue(text);
    std::unique_ptr<IMaterialDescriptor> holder;
    nlohmann::json const metadata = current(host, id, holder).metadata();
    if (!metadata.is_object() && !metadata.is_null()) {
        throw CommandError("the metadata is no object: " + metadata.dump());
    }
    draft(host, id).setMetadata(key, value);
}

void removeMetadata(Host& host, Arguments& arguments) {
    nyx::MaterialId const id = takeMaterial(host, arguments);
    std::string const key = arguments.word("a key");
    arguments.done();
    draft(host, id).removeMetadata(key);
}

void drop(Host& host, Arguments& arguments) {
    nyx::MaterialId const id = takeMaterial(host, arguments);
    arguments.done();
    host.sceneState<Drafts>().byMaterial.erase(id);
}

void apply(Host& host, Arguments& arguments) {
    nyx::MaterialId const id = takeMaterial(host, arguments);
    arguments.done();
    auto& drafts = host.sceneState<Drafts>().byMaterial;
    auto const found = drafts.find(id);
    if (found == drafts.end()) {
        throw CommandError("there is no draft for this material");
    }
    auto command = std::make_unique<DescribeMaterialCommand>(host.root(), stored(host, id),
                                                             std::move(found->second));
    drafts.erase(found);
    if (!host.undoStack().push(command.release())) {
        throw CommandError("the description could not be applied");
    }
}

constexpr Command table[] = {
    {"material list", "", "list the materials", "material list", list},
    {"material show", "MATERIAL", "show a description, by the schema in force",
     "material show \"Seat Fabric\"", describe},
    {"material set", "MATERIAL ATTRIBUTE|KEY VALUE", "set a value in the draft",
     "material set \"Seat Fabric\" CMF::TEXT::VENDOR \"Mill & Son\"", set},
    {"material remove", "MATERIAL ATTRIBUTE|KEY", "take a value out of the draft",
     "material remove \"Seat Fabric\" CMF::TEXT::FINISH", remove},
    {"material metadata", "MATERIAL [KEY]", "show the metadata",
     "material metadata \"Seat Fabric\" article", showMetadata},
    {"material metadata set", "MATERIAL KEY JSON", "set a member in the draft",
     "material metadata set \"Seat Fabric\" width_cm 140", setMetadata},
    {"material metadata remove", "MATERIAL KEY", "take a member out of the draft",
     "material metadata remove \"Seat Fabric\" martindale", removeMetadata},
    {"material apply", "MATERIAL", "apply the draft; this program makes it undoable",
     "material apply \"Seat Fabric\"", apply},
    {"material drop", "MATERIAL", "forget the draft", "material drop \"Seat Fabric\"", drop},
};

} // namespace

Family materialFamily() { return {"descriptions of materials, edited as drafts", table}; }

} // namespace app
