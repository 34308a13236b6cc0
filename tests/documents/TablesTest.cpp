#include "documents/documentText.h"
#include "support/EventTrace.h"
#include "support/sourceDir.h"
#include "zsg/core/EventType.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/core/SceneGraphPars.h"
#include "zsg/painting/IPainter.h"
#include "zsg/painting/IPainterManager.h"
#include "zsg/painting/IPainterSurface.h"

#include "nyxembedded/Renderer.h"

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <gtest/gtest.h>

#include <functional>
#include <map>

using namespace documents;

namespace {

TEST(Tables, EveryEventHasItsRow) {
    QStringList wanted;
    QString const classes = read("include/zsg/core/Events.h");
    for (QString const& piece : classes.split("class ZSG_EXPORT ").mid(1)) {
        QString const kind = all(R"(EventType::(\w+))", piece).at(0)[0];
        QStringList payload;
        for (QStringList const& accessor : all(R"(\] \S+ (\w+\(\)) const noexcept)", piece)) {
            payload += '`' + accessor[0] + '`';
        }
        auto const number =
            all("\n    " + kind + R"( = (\d+),)", read("include/zsg/core/EventType.h"));
        ASSERT_EQ(number.size(), 1u) << kind.toStdString();
        auto const type = static_cast<zsg::EventType>(number[0][0].toUInt());
        wanted += QStringList{number[0][0], '`' + kind + '`', '`' + piece.section(' ', 0, 0) + '`',
                              payload.isEmpty() ? "none" : payload.join(", "),
                              QString("\"%1\"").arg(zsg::eventTypeString(type))}
                      .join(" | ");
    }
    ASSERT_EQ(wanted.size(), static_cast<qsizetype>(zsg::allEventTypes.size()));
    for (QStringList row : rowsOf(read("docs/events.md"), "Kinds")) {
        row[3] = row[3].section(", the", 0, 0); // whose number it is
        EXPECT_TRUE(wanted.removeOne(row.mid(0, 5).join(" | "))) << row.join(" | ").toStdString();
    }
    EXPECT_EQ(wanted.join("\n").toStdString(), "") << "have no row";
}

TEST(Tables, SayWhatPaintingPostsWithoutATaskQueue) {
    nyx::embedded::Renderer renderer;
    ASSERT_EQ(renderer.loadScene(sourceDir() + "/examples/scenes/showroom.json"), "");
    zsg::SceneGraphPars pars;
    pars.rtApi = renderer.api();
    auto const root = zsg::ISceneGraph::create(pars);
    zsg::IPainter& painter = *root->painterManager()->painter();
    zsg::IPainterSurface& surface = *painter.surface(painter.createSurface(64));
    std::map<QString, std::function<void()>> const edits = {
        {"addLayer", [&] { surface.addLayer(0); }},
        {"setLayerDeleted", [&] { surface.setLayerDeleted(1, true); }},
        {"setLayerBlend", [&] { surface.setLayerBlend(0, nyx::ColorBlendMode::Multiply); }},
        {"setLayerVisibility", [&] { surface.setLayerVisibility(0, false); }},
        {"setLayerName", [&] { surface.setLayerName(0, "Dirt"); }},
        {"moveLayer", [&] { surface.moveLayer(0, 1); }},
        {"setLayerBackgroundColor",
         [&] {
             surface.setLayerBackgroundColor(0, {1, 0, 0, 1}, true);
         }},
    };
    auto const table = rowsOf(read("docs/events.md"), "Paint layers");
    QStringList const name = all("^all but `(\\w+)`, without a task queue$", table.back()[0]).at(0);
    EXPECT_EQ(table.back()[1], "none");
    EventTrace trace(*root->eventQueue());
    for (QString const& call : firstOf("`(\\w+)`", table[0][0] + table[1][0])) {
        edits.at(call)();
        EXPECT_EQ(trace.take(), call == name[0] ? "PaintLayersUpdated 1" : "")
            << call.toStdString();
    }
}

TEST(Tables, EveryCommandOfTheProgramsHasItsRow) {
    QString const code = sources({"apps", "examples/painting"}, {"*.h", "*.cpp"});
    QString const document = read("docs/undo.md");
    for (QStringList const& row : rowsOf(document, "Applications")) {
        EXPECT_TRUE(all(R"(\b)" + row[1] + R"(\b)", code).size()) << row[1].toStdString();
        for (QString const& text : firstOf("\"([^\"]+)\"", row[2])) {
            QString const source = QString(text).replace(QRegularExpression(R"(\bX\b)"), "%1");
            EXPECT_TRUE(code.contains('"' + source + '"')) << text.toStdString();
        }
    }
    for (QString const& name : firstOf(R"(class (\w+) final : public ZUndoCommand)", code)) {
        EXPECT_TRUE(document.contains('`' + name + '`')) << name.toStdString();
    }
}

TEST(Tables, EveryReaderAndWriterOfAFormatIsNamed) {
    QString const document = read("docs/formats.md");
    auto const found = all(R"(\b((?:load(?!Brush)|save|dump|toJson|store)[A-Z]?\w*)\()",
                           headers({"include", "platform/embedded/include"}));
    EXPECT_GE(found.size(), 12u);
    for (QStringList const& name : found) {
        EXPECT_TRUE(all(R"(`(?:\w+::)?)" + name[0] + R"(\b)", document).size())
            << name[0].toStdString();
    }
}

} // namespace
