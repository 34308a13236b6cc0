#include "documents/documentText.h"
#include "support/sourceDir.h"
#include "zsg/colors/ColorController.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/lightlayers/ILightLayerApi.h"
#include "zsg/lightlayers/ILightLayerController.h"
#include "zsg/painting/IPainter.h"
#include "zsg/painting/IPainterManager.h"
#include "zsg/painting/IPainterSurface.h"

#include "nyxembedded/Host.h"
#include "zcore/ZUndoCommand.h"

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <typeinfo>
#include <vector>

using namespace documents;
using namespace zsg;
using nyx::ColorId;
using nyx::ColorwayId;

namespace {

/// One edit, upon a scene of its own: what the first cell of its row begins with, and how it is
/// made.
struct Edit {
    QString row;
    std::function<void()> run;
};

class UndoTable : public testing::Test {
protected:
    void SetUp() override { load(); }

    void load() {
        ASSERT_EQ(host.loadScene(sourceDir() + "/examples/scenes/showroom.json"), "");
        host.undoStack().clear();
        colors = host.root().colorController();
        lights = host.root().lightLayerController();
        lights->lightLayerApi()->sync();
        IPainter* const painter = host.root().painterManager()->painter();
        surface = painter->surface(painter->createSurface(64));
        surface->addLayer(0);
        surface->addLayer(0);
        host.undoStack().clear();
    }

    std::vector<Edit> edits();

    nyx::embedded::Host host{nyx::embedded::RenderTaskQueue::Mode::Manual};
    IColorController* colors = nullptr;
    ILightLayerController* lights = nullptr;
    IPainterSurface* surface = nullptr;
};

std::vector<Edit> UndoTable::edits() {
    ColorId const white(1), cover(38), its(30), other(7), none(99), bound(10);
    ColorwayId const nordic(1), studio(2);
    nyx::LightLayerId const layer(2);
    auto const no = AllowForwardUndoMerge::No;
    using Ids = std::vector<ColorId>;
    using Pairs = std::vector<MultiColorPair>;
    return {
        {"`setDisplayName(ColorId)`", [=, this] { colors->setDisplayName(white, "Chalk"); }},
        {"`setDisplayName(ColorId)`", [=, this] { colors->setDisplayName(white, ""); }},
        {"`setColor`", [=, this] { colors->setColor(white, ZColor(0, 1, 0), no); }},
        {"`changeSubColor`", [=, this] { colors->changeSubColor(cover, its, white); }},
        {"`setFlags`", [=, this] { colors->setFlags(white, 8, true); }},
        {"`setActiveSubColor`", [=, this] { colors->setActiveSubColor(cover, other); }},
        {"`addSubColors`", [=, this] { colors->addSubColors(cover, Ids{white}, 0, none); }},
        {"`addSubColors`", [=, this] { colors->setSubColors(cover, Ids{white}); }},
        {"`moveSubColors`", [=, this] { colors->moveSubColors(cover, Ids{its}, -1, none); }},
        {"`addSubColor`", [=, this] { colors->addSubColor(cover, ZColor(0, 1, 0), 0); }},
        {"`addSubColor`",
         [=, this] { colors->addSubKColors(cover, std::vector{ZColor(0, 1, 0)}); }},
        {"`addOrSwitchSubColor`", [=, this] { colors->addOrSwitchSubColor(cover, white, true); }},
        {"`unlinkSubColor`", [=, this] { colors->unlinkSubColor(cover, 0); }},
        {"`removeSubColors`", [=, this] { colors->removeSubColors(cover, Ids{its}); }},
        {"`toggleMultiColor`, on", [=, this] { colors->toggleMultiColor(bound); }},
        {"`toggleMultiColor`, off", [=, this] { colors->toggleMultiColor(cover); }},
        {"`toggleMultiColor`, off",
         [=, this] {
             colors->setDisplayName(cover, ""), host.undoStack().clear(),
                 colors->toggleMultiColor(cover);
         }},
        {"`linkColor`", [=, this] { colors->linkColor(cover, white); }},
        {"`createColorway`",
         [=, this] {
             colors->createColorway("New", Pairs{{cover, its}});
         }},
        {"`applyColorway`", [=, this] { colors->applyColorway(studio); }},
        {"`setDisplayName(ColorwayId)`", [=, this] { colors->setDisplayName(studio, "Hall"); }},
        {"`setDisplayName(ColorwayId)`", [=, this] { colors->setDisplayName(studio, ""); }},
        {"`setColors`",
         [=, this] {
             colors->setColors(nordic, Pairs{{cover, other}});
         }},
        {"`setColors`", [=, this] { colors->removeMultiColors(nordic, Ids{cover}); }},
        {"`addColors`",
         [=, this] {
             colors->addColors(nordic, Pairs{{cover, other}}, 0, true);
         }},
        {"`setDeleted`", [=, this] { colors->setDeleted(studio, true); }},
        {"`createLayer`", [=, this] { lights->createLayer("Rim"); }},
        {"`createLayer`",
         [=, this] {
             while (lights->createLayer("Rim").isValid()) {}
         }},
        {"`deleteLayer`", [=, this] { lights->deleteLayer(layer); }},
        {"`addLightsToLayer`",
         [=, this] { lights->addLightsToLayer(layer, std::vector{nyx::ObjectId(24)}); }},
        {"`removeLightsFromLayer`",
         [=, this] { lights->removeLightsFromLayer(layer, std::vector{nyx::ObjectId(29)}); }},
        {"`setItemsLightLayer`",
         [=, this] { lights->setItemsLightLayer(layer, std::vector{nyx::GroupItemId(23)}); }},
        {"`addLayer`", [=, this] { surface->addLayer(0); }},
        {"`setLayerDeleted`", [=, this] { surface->setLayerDeleted(0, true); }},
        {"`setLayerBlend`",
         [=, this] { surface->setLayerBlend(0, nyx::ColorBlendMode::Multiply); }},
        {"`setLayerVisibility`", [=, this] { surface->setLayerVisibility(0, false); }},
        {"`setLayerName`", [=, this] { surface->setLayerName(0, "Dirt"); }},
        {"`moveLayer`", [=, this] { surface->moveLayer(0, 1); }},
        {"`setLayerBackgroundColor`",
         [=, this] {
             surface->setLayerBackgroundColor(0, {1, 0, 0, 1}, true);
         }},
    };
}

// Both ways: what is pushed stands in the row, and what stands in a row is pushed.
TEST_F(UndoTable, IsWhatTheLibraryPushes) {
    QString const document = read("docs/undo.md");
    std::vector<QStringList> table;
    for (QStringList const& row : rows(document)) {
        if (row.size() == 7 && row[0] != "Operation") {
            table.push_back(row);
        }
    }
    ZUndoStack& stack = host.undoStack();
    QStringList seen;
    for (Edit const& edit : edits()) {
        load();
        edit.run();
        QStringList const* row = nullptr;
        for (QStringList const& candidate : table) {
            if (candidate[0].startsWith(edit.row)) {
                row = &candidate;
            }
        }
        ASSERT_TRUE(row && stack.count() > 0) << edit.row.toStdString();
        for (int i = 0; i < stack.count(); ++i) {
            std::string const where = (edit.row + ": " + stack.text(i)).toStdString();
            for (QStringList const& id : all(R"((\d+))", (*row)[2])) {
                auto const number = static_cast<ZCommandId>(id[0].toInt());
                seen += stack.command(i)->hasIdRecursive(number) ? row->at(0) + id[0] : QString();
            }
            QString const id = QString::number(static_cast<int>(stack.command(i)->id()));
            EXPECT_TRUE(all(R"(\b)" + id + R"(\b)", (*row)[2]).size())
                << where << ' ' << id.toStdString();
            QString texts;
            for (QStringList const& text : all("\"([^\"]+)\"", (*row)[3])) {
                QString pattern = QRegularExpression::escape(text[0]);
                pattern.replace("\\(X\\)", "\\([^)]+\\)").replace("\\(Y\\)", "\\([^)]+\\)");
                if (QRegularExpression(QRegularExpression::anchoredPattern(pattern))
                        .match(stack.text(i))
                        .hasMatch()) {
                    texts += text[0];
                }
            }
            EXPECT_NE(texts, QString()) << where;
            seen += row->at(0) + texts;
            if (id != "1" && !(*row)[1].startsWith("as ") && !(*row)[1].startsWith("up to ")) {
                QString const name = all("`(\\w+)`", (*row)[1]).at(0)[0];
                ZUndoCommand const& command = *stack.command(i);
                EXPECT_NE(std::string(typeid(command).name()).find(name.toStdString()),
                          std::string::npos)
                    << where << " is no " << name.toStdString();
            }
        }
    }
    for (QStringList const& row : table) {
        for (QStringList const& id : all(R"((\d+))", row[2])) {
            EXPECT_TRUE(seen.contains(row[0] + id[0]))
                << row[0].toStdString() << ' ' << id[0].toStdString();
        }
        for (QStringList const& text : all("\"([^\"]+)\"", row[3])) {
            EXPECT_TRUE(seen.contains(row[0] + text[0]))
                << row[0].toStdString() << ' ' << text[0].toStdString();
        }
    }
    // A command or an operation that is new has no row yet.
    for (QStringList const& command : all(R"(class (Z\w+Command) final)", headers({"src"}))) {
        EXPECT_TRUE(document.contains("`" + command[0] + "`")) << command[0].toStdString();
    }
    for (char const* const area : {"colors/IColorController", "lightlayers/ILightLayerController",
                                   "painting/IPainterSurface"}) {
        QString const header = read(QString("include/zsg/%1.h").arg(area));
        for (QStringList const& operation : all(R"(\n    virtual \S+ (\w+)\()", header)) {
            EXPECT_TRUE(document.contains("`" + operation[0])) << operation[0].toStdString();
        }
    }
}

} // namespace
