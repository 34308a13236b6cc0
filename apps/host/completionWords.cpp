#include "host/completionWords.h"

#include "host/ColorArguments.h"
#include "host/CommandTable.h"
#include "host/CurrentBrush.h"
#include "host/DemoPanel.h"
#include "host/Host.h"
#include "host/KeptScenes.h"
#include "host/LightArguments.h"
#include "host/NamedValues.h"
#include "host/PaintState.h"
#include "host/ValueText.h"
#include "host/printable.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/EventType.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/lightlayers/ILightLayerApi.h"
#include "zsg/materials/ICMFManager.h"
#include "zsg/materials/ZCMFSchema.h"
#include "zsg/painting/IPainter.h"
#include "zsg/painting/IPainterBrush.h"
#include "zsg/painting/IPainterSurface.h"
#include "zsg/values/AnimationCurve.h"
#include "zsg/values/ColorGradient.h"
#include "zsg/values/FloatArray.h"
#include "zsg/values/Parameter.h"
#include "zsg/values/ValueVariant.h"
#include "zsg/values/WeavePattern.h"

#include <map>
#include <memory>

namespace app {

namespace {

using Words = std::vector<std::string>;

/// Whether the commands would take it for the name that it is.
bool canBeTyped(std::string const& name) {
    return !name.empty() && name.front() != '=' && printable(name) == name &&
           name.find_first_not_of("0123456789") != std::string::npos;
}

void addRecord(Words& words, std::string const& name, std::uint32_t id, char const* sign = "=") {
    words.push_back(canBeTyped(name) ? name : sign + std::to_string(id));
}

template <class Records>
Words namesOf(Records const& records, char const* sign = "=") {
    Words words;
    for (auto const id : records.ids()) {
        addRecord(words, records.record(id)->name, id.toUint(), sign);
    }
    return words;
}

Words colors(Host& host, Words const&) { return namesOf(host.renderer().colors()); }

Words colorways(Host& host, Words const&) { return namesOf(host.renderer().colorways()); }

Words materials(Host& host, Words const&) { return namesOf(host.renderer().materials(), ""); }

Words multiColors(Host& host, Words const&) {
    Words words;
    for (nyx::ColorId const id : host.root().colorDB()->multiColors()) {
        addRecord(words, host.renderer().colors().record(id)->name, id.toUint());
    }
    return words;
}

// The sub-colours of the multi-colour that a word before names.
Words subColors(Host& host, Words const& before) {
    for (std::string const& word : before) {
        try {
            Arguments arguments({word});
            ZColorExt const color = host.root().colorDB()->colorFromId(takeColor(host, arguments));
            Words words;
            for (int i = 0; color.isMultiColor() && i < color.nColors(); ++i) {
                addRecord(words, color.getName(i), color.getSubColorId(i).toUint());
            }
            if (!words.empty()) {
                return words;
            }
        } catch (CommandError const&) { // a word of the command, or none of a colour
            continue;
        }
    }
    return colors(host, before);
}

Words items(Host& host, bool onlyLights) {
    Words words;
    nyx::embedded::Items const& items = host.renderer().items();
    for (nyx::GroupItemId const id : items.ids()) {
        auto const item = items.record(id);
        if (!onlyLights || item->isLight()) {
            addRecord(words, item->name, id.toUint());
        }
    }
    return words;
}

Words layers(Host& host, Words const& before) {
    Words words;
    if (before.front() == "layer") {
        for (nyxLayerInfo const& layer : currentSurface(host).layers()) {
            if (layer.name && canBeTyped(layer.name)) {
                words.emplace_back(layer.name);
            }
        }
        return words;
    }
    zsg::ILightLayerApi const& api = lightLayers(host);
    for (nyx::LightLayerId const id : api.layers()) {
        addRecord(words, api.layerName(id), id.toUint());
    }
    return words;
}

Words surfaces(Host& host, Words const&) {
    Words words;
    for (zsg::IPainterSurface* const surface : painter(host).surfaces()) {
        words.push_back(std::to_string(surface->id().toUint()));
    }
    return words;
}

Words blendModes(Host&, Words const&) {
    Words words;
    for (int mode = 0; mode <= static_cast<int>(nyx::ColorBlendMode::Exclusion); ++mode) {
        words.push_back(blendModeName(static_cast<nyx::ColorBlendMode>(mode)));
    }
    return words;
}

template <class T>
Words named(Host& host, Words const&) {
    Words words;
    for (auto const& entry : host.state<NamedValues<T>>().byName) {
        words.push_back(entry.first);
    }
    return words;
}

using Holder = std::shared_ptr<zsg::Variant>;

// A name is mostly a new one.
Words names(Host& host, Words const& before) {
    if (before.front() == "ior" && before.size() > 1 && before[1] != "load") {
        return named<zsg::FloatArray>(host, before);
    }
    Words words;
    if (before.front() == "scene" || before.front() == "expect") {
        for (auto const& entry : host.state<KeptScenes>().byName) {
            words.push_back(entry.first);
        }
    }
    return words;
}

Words colorsOrValues(Host& host, Words const& before) {
    return before.front() == "value" ? named<Holder>(host, before) : colors(host, before);
}

Words parameters(Host& host, Words const& before) {
    Words words;
    auto const add = [&words](auto const& list) {
        for (zsg::Parameter const& parameter : list) {
            words.push_back(parameter.name().toStdString());
        }
    };
    before.front() == "brush" ? add(currentBrush(host).parameters())
                              : add(host.state<DemoPanel>().parameters);
    return words;
}

Words attributes(Host& host, Words const&) {
    Words words;
    for (zsg::ZCMFAttribute const& attribute : host.root().cmfManager()->schema().attributes) {
        words.push_back(attribute.name.toStdString());
    }
    return words;
}

Words kinds(Host&, Words const&) {
    return {"text", "image", "color3", "color4", "color5", "color6", "other2", "other7"};
}

Words types(Host&, Words const& before) {
    Words words;
    if (before.front() == "value") {
        for (zsg::Type const type : valueTypes()) {
            words.emplace_back(zsg::typeName(type));
        }
    } else {
        for (zsg::EventType const type : zsg::allEventTypes) {
            words.emplace_back(zsg::eventTypeString(type));
        }
    }
    return words;
}

Words families(Host&, Words const&) {
    Words words;
    for (Command const* const command : allCommands()) {
        words.emplace_back(command->name.substr(0, command->name.find(' ')));
    }
    return words;
}

} // namespace

std::vector<std::string> wordsFor(Host& host, std::string const& placeholder,
                                  std::vector<std::string> const& words) {
    using Find = Words (*)(Host&, Words const&);
    static std::map<std::string, Find> const table = {
        {"COLOR", colors},
        {"RGBA", colors},
        {"FROM", colorsOrValues},
        {"TO", colorsOrValues},
        {"OLD", subColors},
        {"NEW", colors},
        {"SUB", subColors},
        {"MULTI", multiColors},
        {"COLORWAY", colorways},
        {"MATERIAL", materials},
        {"ITEM", [](Host& h, Words const&) { return items(h, false); }},
        {"LIGHT", [](Host& h, Words const&) { return items(h, true); }},
        {"LAYER", layers},
        {"SURFACE", surfaces},
        {"MODE", blendModes},
        {"WEAVE", named<zsg::WeavePattern>},
        {"GRADIENT", named<zsg::ColorGradient>},
        {"CURVE", named<zsg::AnimationCurve>},
        {"NAME", names},
        {"PARAM", parameters},
        {"ATTRIBUTE", attributes},
        {"KIND", kinds},
        {"TYPE", types},
    };
    if (placeholder == "VALUE" && words.front() == "value") {
        return named<Holder>(host, words);
    }
    if (placeholder == "WORDS" && words.front() == "help") {
        return families(host, words);
    }
    auto const found = table.find(placeholder);
    try {
        return found == table.end() ? Words() : found->second(host, words);
    } catch (CommandError const&) { // there is no surface, or no brush
        return {};
    }
}

} // namespace app
