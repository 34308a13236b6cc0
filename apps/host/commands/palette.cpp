#include "host/Palette.h"

#include "host/ColorArguments.h"
#include "host/Command.h"
#include "host/CommandResult.h"
#include "host/Host.h"
#include "host/InputFile.h"
#include "host/OutputFile.h"
#include "host/counted.h"
#include "host/printable.h"
#include "host/sRGB.h"
#include "host/scenePalette.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/ISceneGraph.h"

#include <QCoreApplication>

#include <ostream>

namespace app {

namespace {

Palette takePalette(Arguments& arguments) {
    std::string const path = arguments.word("a path");
    return paletteFromText(readInputFile(path, largestPalette), path);
}

void show(Host& host, Arguments& arguments) {
    Palette const palette = takePalette(arguments);
    arguments.done();
    auto const hex = [](Palette::Entry const& entry) {
        return hexColor(linearFromSRGB({entry.sRGB[0], entry.sRGB[1], entry.sRGB[2], 255}));
    };
    host.out() << "  " << (palette.name.empty() ? "(unnamed)" : palette.name) << ", "
               << counted(palette.colors.size(), "colour", "colours");
    if (palette.columns > 0) {
        host.out() << " in " << counted(std::size_t(palette.columns), "column", "columns");
    }
    host.out() << '\n';
    for (Palette::Entry const& entry : palette.colors) {
        host.out() << "  " << hex(entry) << ' ' << (entry.name.empty() ? "(unnamed)" : entry.name)
                   << '\n';
    }
    giveResult(host, [&] {
        nlohmann::ordered_json result{{"name", palette.name}, {"columns", palette.columns}};
        auto& colors = result["colors"] = nlohmann::ordered_json::array();
        for (Palette::Entry const& entry : palette.colors) {
            colors.push_back({{"name", entry.name}, {"srgb", hex(entry)}});
        }
        return result;
    });
}

void load(Host& host, Arguments& arguments) {
    Palette const palette = takePalette(arguments);
    std::string const word =
        arguments.empty() ? "rename" : arguments.oneOf({"rename", "change", "keep"});
    arguments.done();
    SameName const how = word == "change" ? SameName::Change
                         : word == "keep" ? SameName::Keep
                                          : SameName::Rename;
    PaletteCounts const counts = bringIn(host.root(), host.undoStack(), palette, how,
                                         QCoreApplication::translate("Palette", "Load Palette (%1)")
                                             .arg(QString::fromStdString(palette.name)));
    host.sceneState<PaletteHeader>() = {palette.name, palette.columns};
    host.out() << "  " << counts.added << " added, " << counts.changed << " changed, "
               << counts.there << " there\n";
    giveResult(host, [&] {
        return nlohmann::ordered_json{
            {"added", counts.added}, {"changed", counts.changed}, {"there", counts.there}};
    });
    if (counts.lost > 0) {
        throw CommandError(counted(counts.lost, "colour", "colours") + " could not be made");
    }
}

void save(Host& host, Arguments& arguments) {
    std::string const path = arguments.word("a path");
    PaletteHeader header = host.sceneState<PaletteHeader>();
    if (arguments.flag("name")) {
        header.name = arguments.word("a name");
    }
    if (arguments.flag("columns")) {
        header.columns = arguments.integer("a number of columns");
        if (header.columns < 0 || header.columns > Palette::mostColumns) {
            throw CommandError("expected columns of 0 to 256");
        }
    }
    std::vector<nyx::ColorId> ids = takeColors(host, arguments);
    zsg::ColorDB& db = *host.root().colorDB();
    if (ids.empty()) {
        auto const all = db.colors();
        ids.assign(all.begin(), all.end());
    }
    ScenePalette scene = paletteOf(db, ids);
    scene.palette.name = header.name;
    scene.palette.columns = header.columns;
    writeOutputFile(path, paletteText(scene.palette), host.renderer().faults().failSaveStep);
    host.out() << "  " << counted(scene.palette.colors.size(), "colour", "colours") << ", "
               << scene.cut << " of them cut to opaque sRGB\n";
}

constexpr Command table[] = {
    {"palette show", "PATH", "list the colours of a GIMP palette (.gpl)",
     "palette show examples/palettes/weaving-mill.gpl", show},
    {"palette load", "PATH [rename|change|keep]",
     "bring its colours in (new ones: no undo); a name that a colour has: renamed, or that colour "
     "changed or kept",
     "palette load examples/palettes/weaving-mill.gpl change", load},
    {"palette save", "PATH [name NAME] [columns N] [COLOR...]",
     "write plain colours, or all of them, as a GIMP palette",
     "palette save showroom.gpl name Showroom columns 8 Teal Coral", save},
};

} // namespace

Family paletteFamily() { return {"palettes of colours, as other programs have them", table}; }

} // namespace app
