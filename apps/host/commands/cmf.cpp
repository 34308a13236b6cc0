// The CMF schema in force, and schema files.

#include "host/CMFLint.h"
#include "host/Command.h"
#include "host/CommandResult.h"
#include "host/Host.h"
#include "host/InputFile.h"
#include "host/OutputFile.h"
#include "host/counted.h"
#include "host/printable.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/materials/ICMFManager.h"
#include "zsg/materials/ZCMFSchema.h"

#include <QByteArray>
#include <QIODevice>
#include <QTextStream>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <ostream>

namespace app {

namespace {

using zsg::ZCMFAttribute;
using zsg::ZCMFSchema;

constexpr std::array<char const*, 8> kinds = {"text",   "image",  "other2", "color3",
                                              "color4", "color5", "color6", "other7"};

std::string kindText(ZCMFAttributeKind kind) {
    auto const number = static_cast<std::size_t>(kind);
    return number < kinds.size() ? kinds[number] : std::to_string(static_cast<int>(kind));
}

ZCMFAttributeKind takeKind(Arguments& arguments) {
    std::string const word = arguments.word("a kind");
    auto const found = std::find(kinds.begin(), kinds.end(), word);
    if (found == kinds.end()) {
        throw CommandError("expected text, image, color3 to color6, other2 or other7, found \"" +
                           word + "\"");
    }
    return static_cast<ZCMFAttributeKind>(found - kinds.begin());
}

zsg::ICMFManager& manager(Host& host) { return *host.root().cmfManager(); }

/// An attribute's name that a file can hold and that no other attribute has.
QString takeNewName(Arguments& arguments, ZCMFSchema const& schema, int exceptIndex) {
    std::string const word = arguments.word("a name");
    QString name = QString::fromStdString(word);
    if (name.contains(QLatin1Char('|'))) {
        throw CommandError("a name cannot hold vertical bars: files lose them");
    }
    if (schema.hasAttributeWithName(name, exceptIndex)) {
        throw CommandError("there is an attribute \"" + word + "\" already");
    }
    return name;
}

std::vector<ZCMFAttribute>::iterator takeAttribute(Arguments& arguments, ZCMFSchema& schema) {
    std::string const word = arguments.word("an attribute");
    auto const found =
        std::find_if(schema.attributes.begin(), schema.attributes.end(),
                     [&word](ZCMFAttribute const& a) { return a.name.toStdString() == word; });
    if (found == schema.attributes.end()) {
        throw CommandError("the schema has no attribute \"" + word + "\"");
    }
    return found;
}

void show(Host& host, Arguments&) {
    ZCMFSchema const& schema = manager(host).schema();
    host.out() << "  schema \"" << printable(schema.schemaName.toStdString()) << "\"\n";
    for (ZCMFAttribute const& attribute : schema.attributes) {
        std::string const kind = kindText(attribute.kind);
        host.out() << "  " << kind << std::string(kind.size() < 8 ? 8 - kind.size() : 1, ' ')
                   << printable(attribute.name.toStdString())
                   << (attribute.visible ? "" : " (hidden)") << '\n';
    }
    giveResult(host, [&] {
        auto attributes = nlohmann::ordered_json::array();
        for (ZCMFAttribute const& attribute : schema.attributes) {
            attributes.push_back({{"name", attribute.name.toStdString()},
                                  {"kind", kindText(attribute.kind)},
                                  {"visible", attribute.visible}});
        }
        return nlohmann::ordered_json{{"name", schema.schemaName.toStdString()},
                                      {"attributes", attributes}};
    });
}

QByteArray readBytes(std::string const& path) {
    return QByteArray::fromStdString(readInputFile(path, largestCMFSchema));
}

void load(Host& host, Arguments& arguments) {
    std::string const path = arguments.word("a path");
    arguments.done();
    QByteArray const bytes = readBytes(path);
    QTextStream in(bytes);
    ZCMFSchema::LoadInfo const info = ZCMFSchema::load(in);
    if (!info.schema) {
        throw CommandError(path + ": " + info.message.toStdString());
    }
    for (QString const& warning : info.warnings) {
        host.out() << "  " << printable(warning.toStdString()) << '\n';
    }
    manager(host).setSchema(*info.schema);
}

void save(Host& host, Arguments& arguments) {
    std::string const path = arguments.word("a path");
    arguments.done();
    QByteArray bytes;
    QTextStream out(&bytes, QIODevice::WriteOnly);
    manager(host).schema().save(out);
    out.flush();
    writeOutputFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())},
                    host.renderer().faults().failSaveStep);
}

void lint(Host& host, Arguments& arguments) {
    std::string const path = arguments.word("a path");
    arguments.done();
    auto const findings = lintCMF(readBytes(path));
    for (CMFFinding const& finding : findings) {
        host.out() << "  line " << finding.line << (finding.place.empty() ? "" : ", ")
                   << finding.place << ": " << (finding.isFault ? "" : "(note) ")
                   << printable(finding.text) << '\n';
    }
    auto const faults =
        static_cast<std::size_t>(std::ranges::count(findings, true, &CMFFinding::isFault));
    if (faults > 0) {
        throw CommandError(path + ": " + counted(faults, "fault", "faults") +
                           "; it cannot be loaded");
    }
    host.out() << (findings.empty() ? "  nothing to complain of\n" : "  it can be loaded\n");
}

void rename(Host& host, Arguments& arguments) {
    ZCMFSchema schema = manager(host).schema();
    schema.schemaName = QString::fromStdString(arguments.word("a name"));
    arguments.done();
    manager(host).setSchema(schema);
}

void add(Host& host, Arguments& arguments) {
    ZCMFSchema schema = manager(host).schema();
    ZCMFAttribute attribute;
    attribute.name = takeNewName(arguments, schema, -1);
    attribute.visible = !arguments.flag("hidden");
    if (!arguments.empty()) {
        attribute.kind = takeKind(arguments);
    }
    arguments.done();
    schema.attributes.push_back(attribute);
    manager(host).setSchema(schema);
}

/// Changes the attribute that the next word names and puts the schema in force.
template <class Change>
void edit(Host& host, Arguments& arguments, Change const& change) {
    ZCMFSchema schema = manager(host).schema();
    auto const attribute = takeAttribute(arguments, schema);
    change(schema, attribute);
    arguments.done();
    manager(host).setSchema(schema);
}

void remove(Host& host, Arguments& arguments) {
    edit(host, arguments,
         [](ZCMFSchema& schema, auto attribute) { schema.attributes.erase(attribute); });
}

void renameAttribute(Host& host, Arguments& arguments) {
    edit(host, arguments, [&arguments](ZCMFSchema& schema, auto attribute) {
        auto const index = static_cast<int>(attribute - schema.attributes.begin());
        attribute->name = takeNewName(arguments, schema, index);
    });
}

void setKind(Host& host, Arguments& arguments) {
    edit(host, arguments,
         [&arguments](ZCMFSchema&, auto attribute) { attribute->kind = takeKind(arguments); });
}

void setVisible(Host& host, Arguments& arguments) {
    edit(host, arguments,
         [&arguments](ZCMFSchema&, auto attribute) { attribute->visible = arguments.onOff(); });
}

void move(Host& host, Arguments& arguments) {
    edit(host, arguments, [&arguments](ZCMFSchema& schema, auto attribute) {
        auto const last = static_cast<int>(schema.attributes.size()) - 1;
        int const to = arguments.integer("a position");
        if (to < 0 || to > last) {
            throw CommandError("expected a position from 0 to " + std::to_string(last));
        }
        auto const target = schema.attributes.begin() + to;
        if (attribute < target) {
            std::rotate(attribute, attribute + 1, target + 1);
        } else {
            std::rotate(target, attribute, attribute + 1);
        }
    });
}

constexpr Command table[] = {
    {"cmf show", "", "show the schema in force", "cmf show", show},
    {"cmf load", "PATH", "put a schema file in force", "cmf load examples/cmf/good/furniture.json",
     load},
    {"cmf save", "PATH", "write the schema in force", "cmf save schema.json", save},
    {"cmf lint", "PATH", "say everything that is wrong or odd about a schema file",
     "cmf lint examples/cmf/odd/unknown-kind.json", lint},
    {"cmf title", "NAME", "give the schema another name", "cmf title \"House schema\"", rename},
    {"cmf add", "NAME [hidden] [KIND]", "add an attribute at the end",
     "cmf add Swatch hidden image", add},
    {"cmf remove", "ATTRIBUTE", "take an attribute out", "cmf remove Swatch", remove},
    {"cmf name", "ATTRIBUTE NAME", "give an attribute another name", "cmf name Vendor Maker",
     renameAttribute},
    {"cmf kind", "ATTRIBUTE KIND", "text, image, color3 to color6, other2, other7",
     "cmf kind Maker image", setKind},
    {"cmf visible", "ATTRIBUTE on|off", "show or hide an attribute", "cmf visible Maker off",
     setVisible},
    {"cmf move", "ATTRIBUTE POSITION", "move an attribute, positions count from 0",
     "cmf move Maker 0", move},
};

} // namespace

Family cmfFamily() { return {"the CMF schema: what materials say of themselves", table}; }

} // namespace app
