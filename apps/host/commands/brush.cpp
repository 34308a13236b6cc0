#include "host/BrushPreset.h"
#include "host/Command.h"
#include "host/CommandResult.h"
#include "host/CurrentBrush.h"
#include "host/Host.h"
#include "host/OutputFile.h"
#include "host/ValueText.h"
#include "host/didYouMean.h"
#include "host/parameterResult.h"
#include "host/pictures/BrushSheet.h"
#include "host/pictures/PictureFile.h"
#include "host/printable.h"
#include "host/sRGB.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/painting/IPainterManager.h"
#include "zsg/values/ValueVariant.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <ostream>

namespace app {

namespace {

using zsg::Parameter;
using zsg::Type;

Parameter take(Host& host, Arguments& arguments) {
    QString const name = QString::fromStdString(arguments.word("a parameter"));
    Parameter const parameter = currentBrush(host).parameter(name);
    if (!parameter.isValid()) {
        std::vector<std::string> names;
        QString meant = name;
        for (Parameter const& known : currentBrush(host).parameters()) {
            names.push_back(known.name().toStdString());
            meant = known.name().endsWith('_' + name) ? known.name() : meant; // "opacity"
        }
        throw CommandError("the brush has no parameter \"" + name.toStdString() + '"' +
                           didYouMean(meant.toStdString(), names));
    }
    return parameter;
}

/// The value in words: of a choice its id and label.
void printValue(std::ostream& out, Parameter const& p) {
    switch (p.type()) {
    case Type::Boolean:
        out << (*p.value<bool>() ? "on" : "off");
        break;
    case Type::Integer:
        out << *p.value<int>();
        break;
    case Type::Float:
        out << *p.value<float>();
        break;
    case Type::String:
        out << '"' << printable(p.value<QString>()->toStdString()) << '"';
        break;
    case Type::Color: {
        out << hexColor(p.getColor().rgba());
        break;
    }
    case Type::Enumerable: {
        auto const choice = *p.value<zsg::Enumerable>();
        int const id = choice.getSelection();
        auto const found =
            std::ranges::find_if(choice, [id](auto const& option) { return option.first == id; });
        out << id << ' ' << (found == choice.end() ? "?" : found->second.toStdString());
        break;
    }
    default:
        out << (p.value<nyxShader*>().value_or(nullptr) ? "a shader" : "none");
    }
}

char const* unitOf(Parameter const& p) {
    switch (p.quantity()) {
    case zsg::Quantity::WorldLength:
        return " units";
    case zsg::Quantity::Angle:
        return " degrees";
    case zsg::Quantity::Pixels:
        return " pixels";
    case zsg::Quantity::Percent:
        return " %";
    default:
        return "";
    }
}

/// The line of a parameter: name, type, value with its unit, limits, label, tool tip.
void print(std::ostream& out, Parameter const& p) {
    out << "  " << std::left << std::setw(27) << p.name().toStdString() << std::setw(11)
        << zsg::typeName(p.type());
    printValue(out, p);
    out << unitOf(p);
    float low = 0;
    float high = 0;
    int lowest = 0;
    int highest = 0;
    if (p.limits(low, high)) {
        out << ", " << low << " to " << high;
    } else if (p.limits(lowest, highest)) {
        out << ", " << lowest << " to " << highest;
    }
    QString toolTip = p.toolTip();
    out << " | " << p.displayName().toStdString() << (toolTip.isEmpty() ? "" : ": ")
        << toolTip.replace('\n', ' ').toStdString() << '\n';
}

void create(Host& host, Arguments& arguments) {
    double const size = arguments.empty() ? 20 : arguments.real("a size");
    nyx::MaterialId const material(
        arguments.empty() ? nyx::MaterialId() : nyx::MaterialId(arguments.number("a material id")));
    arguments.done();
    host.sceneState<CurrentBrush>().brush =
        host.root().painterManager()->createBrush(static_cast<float>(size), material);
}

void reload(Host& host, Arguments&) {
    zsg::IPainterBrush const& old = currentBrush(host);
    host.sceneState<CurrentBrush>().brush =
        host.root().painterManager()->loadBrush(old.brushNode(), old.materialId());
}

void show(Host& host, Arguments& arguments) {
    if (!arguments.empty()) {
        Parameter const parameter = take(host, arguments);
        arguments.done();
        giveResult(host, [&] { return parameterResult(parameter); });
        return print(host.out(), parameter);
    }
    QList<Parameter> parameters = currentBrush(host).parameters();
    std::ranges::sort(parameters, {}, &Parameter::name);
    beginResultList(host);
    for (Parameter const& parameter : parameters) {
        addResult(host, [&] { return parameterResult(parameter); });
        print(host.out(), parameter);
    }
}

void set(Host& host, Arguments& arguments) {
    Parameter parameter = take(host, arguments);
    bool changed = false;
    if (parameter.type() == Type::Enumerable) {
        auto choice = *parameter.value<zsg::Enumerable>();
        QString const wanted = QString::fromStdString(arguments.word("an option or its id"));
        arguments.done();
        auto const found = std::ranges::find_if(choice, [&wanted](auto const& option) {
            return option.second == wanted || QString::number(option.first) == wanted;
        });
        if (found == choice.end()) {
            throw CommandError("\"" + wanted.toStdString() + "\" is none of the choices");
        }
        changed = choice.getSelection() != found->first;
        choice.setSelection(found->first);
        parameter.setValue(choice); // which compares the options only
    } else {
        changed = setValue(host, parameter, arguments);
    }
    host.out() << (changed ? "  changed\n" : "  unchanged\n");
}

void apply(Host& host, Arguments&) { currentBrush(host).applyToNode(); }

void update(Host& host, Arguments&) { currentBrush(host).updateFromNode(); }

void save(Host& host, Arguments& arguments) {
    zsg::IPainterBrush const& brush = currentBrush(host);
    QString const path = QString::fromStdString(arguments.word("a path"));
    arguments.done();
    std::string const text = brushPreset(brush, QFileInfo(path).absolutePath().toStdString());
    writeOutputFile(path.toStdString(), text, host.renderer().faults().failSaveStep);
}

void load(Host& host, Arguments& arguments) {
    std::string const path = arguments.word("a path");
    arguments.done();
    host.sceneState<CurrentBrush>().brush = presetBrush(host, path);
}

void sheet(Host& host, Arguments& arguments) {
    PictureFile const file = PictureFile::take(host, arguments);
    std::vector<NamedBrush> brushes;
    auto const add = [&](std::string const& name, zsg::IPainterBrush const& brush) {
        if (auto settings =
                nyx::embedded::brushSettings(*host.renderer().scene(), brush.brushNode())) {
            brushes.push_back({name, std::move(*settings)});
        }
    };
    if (arguments.empty()) {
        add("current brush", currentBrush(host));
    }
    for (std::string const& word : arguments.rest()) {
        QString const preset = QString::fromStdString(word);
        add(QFileInfo(preset).completeBaseName().toStdString(), *presetBrush(host, word));
    }
    file.write(brushSheet(brushes));
}

constexpr Command table[] = {
    {"brush new", "[SIZE [MATERIAL]]", "a brush over new nodes becomes the current one",
     "brush new 24", create},
    {"brush reload", "", "a new brush over the nodes of the current one", "brush reload", reload},
    {"brush show", "[PARAM]", "one parameter or all: type, value, limits, label, tool tip",
     "brush show color_color", show},
    {"brush set", "PARAM WORDS...", "set its value and say whether it changed",
     "brush set color_color #c03020", set},
    {"brush apply", "", "write the brush's fields into its nodes and tell the renderer",
     "brush apply", apply},
    {"brush update", "", "read the fields from the nodes", "brush update", update},
    {"brush save", "PATH", "write the settings as JSON", "brush save red.json", save},
    {"brush load", "PATH", "a new brush with the settings of such a file, applied",
     "brush load examples/brushes/marker.json", load},
    {"brush sheet", "PATH [dark] [PRESET...]",
     "draw a stroke of the current brush, or of presets (.svg, .png)",
     "brush sheet brushes.svg examples/brushes/spray.json examples/brushes/ink-pen.json", sheet},
};

} // namespace

Family brushFamily() { return {"brushes for 3D painting", table}; }

} // namespace app
