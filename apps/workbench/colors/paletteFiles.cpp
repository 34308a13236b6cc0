#include "workbench/colors/paletteFiles.h"

#include "host/Arguments.h"
#include "host/InputFile.h"
#include "host/OutputFile.h"
#include "host/scenePalette.h"
#include "workbench/scene/Scene.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>

#include <optional>

namespace workbench {

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(Palette)
};

std::optional<app::SameName> ask(int count, QWidget* parent) {
    QMessageBox box(QMessageBox::Question, Text::tr("Import a Palette"),
                    Text::tr("%n colours of the palette have names that belong to colours of other "
                             "values here.",
                             nullptr, count),
                    QMessageBox::Cancel, parent);
    auto* const rename = box.addButton(Text::tr("Bring Them in Renamed"), QMessageBox::NoRole);
    auto* const change = box.addButton(Text::tr("Change Those Here"), QMessageBox::YesRole);
    auto* const keep = box.addButton(Text::tr("Keep Those Here"), QMessageBox::NoRole);
    box.setDefaultButton(rename);
    box.exec();
    if (box.clickedButton() == rename) {
        return app::SameName::Rename;
    }
    if (box.clickedButton() == change) {
        return app::SameName::Change;
    }
    return box.clickedButton() == keep ? std::optional(app::SameName::Keep) : std::nullopt;
}

void warn(app::CommandError const& error, QWidget* parent) {
    QMessageBox box(QMessageBox::Warning, Text::tr("Palette"), QString::fromUtf8(error.what()),
                    QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace

void importPalette(Scene& scene, QString const& path, app::PaletteHeader& header, QWidget* parent) {
    scene.endDrags();
    if (!scene.root()) {
        return;
    }
    app::Palette palette;
    try {
        std::string const file = path.toStdString();
        palette = app::paletteFromText(app::readInputFile(file, app::largestPalette), file);
    } catch (app::CommandError const& error) {
        warn(error, parent);
        return;
    }
    auto how = std::optional(app::SameName::Rename);
    if (auto const same = app::countSameNames(*scene.colorDB(), palette); same > 0) {
        how = ask(int(same), parent);
    }
    if (!how || !scene.root()) {
        return;
    }
    header = {palette.name, palette.columns};
    QString const name =
        palette.name.empty() ? QFileInfo(path).fileName() : QString::fromStdString(palette.name);
    auto const counts = app::bringIn(*scene.root(), scene.undoStack(), palette, *how,
                                     Text::tr("Import Palette (%1)").arg(name));
    QStringList parts;
    if (counts.added > 0) {
        scene.noteUnrecordedChange();
        parts +=
            Text::tr("%n colours brought in. This cannot be undone.", nullptr, int(counts.added));
    }
    if (counts.changed > 0) {
        parts += Text::tr("%n colours changed.", nullptr, int(counts.changed));
    }
    if (counts.there > 0) {
        parts += Text::tr("%n colours were there.", nullptr, int(counts.there));
    }
    if (counts.lost > 0) {
        parts += Text::tr("%n colours could not be made.", nullptr, int(counts.lost));
    }
    scene.flush();
    scene.say(parts.isEmpty() ? Text::tr("The palette has no colours.") : parts.join(' '));
}

void exportPalette(Scene& scene, std::vector<nyx::ColorId> const& ids, QString const& path,
                   app::PaletteHeader const& header, QWidget* parent) {
    if (!scene.root()) {
        return;
    }
    app::ScenePalette colors = app::paletteOf(*scene.colorDB(), ids);
    colors.palette.name =
        header.name.empty() ? QFileInfo(path).completeBaseName().toStdString() : header.name;
    colors.palette.columns = header.columns;
    try {
        app::writeOutputFile(path.toStdString(), app::paletteText(colors.palette));
    } catch (app::CommandError const& error) {
        warn(error, parent);
        return;
    }
    QString text = Text::tr("%n colours written.", nullptr, int(colors.palette.colors.size()));
    if (colors.cut > 0) {
        text += ' ' + Text::tr("%n of them were cut to opaque sRGB.", nullptr, int(colors.cut));
    }
    scene.say(text);
}

} // namespace workbench
