#include "documents/documentText.h"
#include "support/EventTrace.h"
#include "support/sourceDir.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/lightlayers/ILightLayerApi.h"
#include "zsg/lightlayers/ILightLayerController.h"
#include "zsg/materials/ICMFManager.h"
#include "zsg/materials/IMaterialDescriptor.h"
#include "zsg/materials/IMaterialHandler.h"
#include "zsg/materials/ZCMFSchema.h"
#include "zsg/painting/IPainter.h"
#include "zsg/painting/IPainterBrush.h"
#include "zsg/painting/IPainterManager.h"
#include "zsg/painting/IPainterSurface.h"

#include "nyxembedded/Colors.h"
#include "nyxembedded/Colorways.h"
#include "nyxembedded/Host.h"
#include "nyxembedded/Renderer.h"
#include "nyxrender/nyxMessage.h"

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using namespace documents;
using namespace zsg;
using nyx::ColorId;
using nyx::ColorwayId;

namespace {

/// What is done upon a scene of its own, and its row: the part of the document, how it begins.
struct Act {
    char const* part;
    char const* row;
    std::function<void()> run;
};

constexpr ColorId white(1), cover(38), its(30), other(7);
constexpr ColorwayId nordic(1), studio(2);
constexpr nyx::LightLayerId accent(2);
constexpr nyxColor_rgba red{1, 0, 0, 1};
constexpr auto plain = nyxColor_extended::PlainColor;
std::vector const pairs{MultiColorPair{cover, other}};
std::vector const subs{its};
std::vector const lamp{nyx::ObjectId(24)};
std::vector const items{nyx::GroupItemId(23)};
char const messages[] = "From the renderer";
char const database[] = "Colour database";
char const edits[] = "Colour edits";
char const layers[] = "Light layers";
char const matter[] = "Materials and CMF";
char const paint[] = "Paint layers";

class EventTables : public testing::Test {
protected:
    void load() {
        ASSERT_EQ(host.loadScene(sourceDir() + "/examples/scenes/showroom.json"), "");
        host.renderer().processEvents();
        root = &host.root();
        db = root->colorDB();
        colors = root->colorController();
        controller = root->lightLayerController();
        lights = controller->lightLayerApi();
        lights->sync();
        materials = root->materialHandler();
        fabric = materials->descriptor(MaterialId(1));
        painter = root->painterManager()->painter();
        board = painter->createSurface(64);
        surface = painter->surface(board);
        surface->addLayer(0);
        surface->addLayer(0);
    }

    /// The kinds that are heard, in their order.
    QStringList heardOf(Act const& act) {
        load();
        EventTrace trace(*root->eventQueue());
        act.run();
        host.renderer().processEvents();
        return firstOf(R"((?:^|\n)(\w+))",
                       QString::fromStdString(trace.take()).replace("Way", "way"));
    }

    std::vector<Act> acts();

    nyx::embedded::Host host{nyx::embedded::RenderTaskQueue::Mode::Manual};
    ISceneGraph* root = nullptr;
    ColorDB* db = nullptr;
    IColorController* colors = nullptr;
    ILightLayerController* controller = nullptr;
    ILightLayerApi* lights = nullptr;
    IMaterialHandler* materials = nullptr;
    std::unique_ptr<IMaterialDescriptor> fabric;
    ZColorExt leaf{0, 1, 0, 1};
    IPainter* painter = nullptr;
    nyx::SurfaceId board;
    IPainterSurface* surface = nullptr;
};

std::vector<Act> EventTables::acts() {
    auto const undo = [this] { host.undoStack().undo(); };
    return {
        {messages, "5006", [this] { host.renderer().colors().announce(); }},
        {messages, "5007", [this] { host.renderer().colorways().activate(studio); }},
        {messages, "any", [this] { EXPECT_FALSE(root->handleRendererMessage(nyxMessage())); }},
        {database, "`createColor`", [this] { db->createColor("Leaf", plain); }},
        {database, "`createColorway`", [this] { db->createColorway(); }},
        {database, "`pushColor(id)`",
         [this] { db->getColorParameters(cover)->setDisplayName("Seat"), db->pushColor(cover); }},
        {database, "`pushColor(Z", [this] { db->idFromColor(leaf); }},
        {database, "`pushTemp", [this] { db->pushTempColor(leaf); }},
        {database, "`setActive", [this] { db->setActiveSubColor(pairs[0]); }},
        {database, "`clone`", [this] { db->clone(white); }},
        {database, "`clone`", [this] { db->multiColorFromColor(white); }},
        {database, "`cloneRec", [this] { db->cloneRecursively(cover); }},
        {database, "`setColorEdit`", [this] { db->setColorEdit(db->getColorParameters(white)); }},
        {database, "`postColorUpdate", [this] { db->postColorUpdateSyncEvent(white); }},
        {database, "`getColorwayP",
         [this] { db->getColorwayParameters(nordic), db->checkForUnusedMultiColors(nordic); }},
        {database, "`pushColorway`",
         [this] {
             db->getColorwayParameters(studio)->setDisplayName("Hall"), db->pushColorway(studio);
         }},
        {database, "`applyColorway`", [this] { db->applyColorway(studio); }},
        {database, "`setColorwayEdit`",
         [this] { db->setColorwayEdit(db->getColorwayParameters(nordic)); }},
        {database, "`handle",
         [this] { db->getColorwayParameters(nordic), db->handleColorwayActivated(nordic); }},
        {database, "`colorFromName`",
         [this] { (void)db->colorFromName(*db->createRtApiLock(), "White"); }},
        {edits, "any edit", [this] { colors->changeSubColor(cover, its, white); }},
        {edits, "`removeSub", [this] { colors->removeSubColors(cover, subs); }},
        {edits, "`addSub", [this] { colors->addSubColor(cover, ZColor(0, 1, 0), 0); }},
        {edits, "`addSub", [this] { colors->addOrSwitchSubColor(cover, white, false); }},
        {edits, "`unlinkSub", [this] { colors->unlinkSubColor(cover, 0); }},
        {edits, "`toggleMultiColor`, on",
         [this] { colors->toggleMultiColor(db->createColor("", plain)); }},
        {edits, "`toggleMultiColor`, off", [this] { colors->toggleMultiColor(cover); }},
        {edits, "`linkColor`", [this] { colors->linkColor(cover, white); }},
        {edits, "`createColorway`", [this] { colors->createColorway("New", pairs); }},
        {edits, "`applyColorway`", [this] { colors->applyColorway(studio); }},
        {edits, "`setColors`", [this] { colors->setDeleted(studio, true); }},
        {layers, "`createLayer`", [this] { lights->createLayer("Rim"); }},
        {layers, "`createLayer`", [this] { lights->cloneLayer(accent); }},
        {layers, "`setLayerName`", [this] { lights->setLayerName(accent, "Accent"); }},
        {layers, "`moveLights", [this] { lights->moveLightsToNewLayer(lamp); }},
        {layers, "`sync`", [this] { lights->sync(); }},
        {layers, "undo of a del", [=, this] { controller->deleteLayer(accent), undo(); }},
        {layers, "undo of `set",
         [=, this] { controller->setItemsLightLayer(accent, items), undo(); }},
        {matter, "`IMaterialHandler::apply", [this] { materials->applyDescriptor(*fabric); }},
        {matter, "`IMaterialHandler::desc", [this] { fabric->setValue(3, "Matte"); }},
        {matter, "`ICMF", [this] { root->cmfManager()->setSchema(root->cmfManager()->schema()); }},
        {paint, "`addLayer`", [this] { surface->addLayer(0); }},
        {paint, "`setLayerDeleted`", [this] { surface->setLayerDeleted(0, true); }},
        {paint, "`setLayerDeleted`",
         [this] { surface->setLayerBlend(0, nyx::ColorBlendMode::Multiply); }},
        {paint, "`setLayerDeleted`", [this] { surface->setLayerName(0, "Dirt"); }},
        {paint, "`setLayerDeleted`", [this] { surface->moveLayer(0, 1); }},
        {paint, "`setLayerDeleted`", [this] { surface->setLayerBackgroundColor(0, red, true); }},
        {paint, "undo and redo", undo},
        {paint, "`setEditLayer`",
         [this] {
             surface->setEditLayer(1), surface->setDeleted(true), painter->createSurface(64, board),
                 painter->changeResolution(board, 128), painter->reload();
         }},
        {paint, "`createBrush`", [this] { (void)root->painterManager()->createBrush(20, {}); }},
    };
}

/// The kinds that a row promises. Some say so by other rows of their part: "as `pushColor(id)`".
QStringList promisedBy(QStringList const& row, std::vector<QStringList> const& in, int depth = 2) {
    QString text = row.mid(1).join(' ').remove(QRegularExpression(R"(\(no [^)]*\))"));
    text.replace(QRegularExpression(R"(\bsync\b)"), "`ColorwayUpdated` `ColorwaySynced`");
    QStringList kinds =
        firstOf("`((?:Color|Light|Mat|CMF)\\w*?(?:Updat|Sync|Chang|Creat)ed)", text);
    kinds += QStringList(text.contains("`ColorEvent"), "ColorCreated");
    kinds +=
        QStringList(text.startsWith("once") + 2 * text.startsWith("twice"), "PaintLayersUpdated");
    QStringList others = firstOf(R"((`[a-z]\w+(?:\([^)]*\))?)`)", text);
    if (text.contains("as above") || text.contains("edit of the multi-colour")) {
        others += "any edit";
    }
    for (QString const& call : others) {
        for (QStringList const& candidate : in) {
            if (depth > 0 && candidate != row && candidate[0].startsWith(call)) {
                kinds += promisedBy(candidate, in, depth - 1);
                break;
            }
        }
    }
    return kinds;
}

// Every row is tried, what is heard stands in its row, and what stands there is heard.
TEST_F(EventTables, SayWhatIsPosted) {
    QString const document = read("docs/events.md");
    std::map<QString, std::pair<QStringList, QStringList>> found; // of each row: promised, heard
    for (Act const& act : acts()) {
        std::vector<QStringList> const table = rowsOf(document, act.part);
        auto const row = std::ranges::find_if(
            table, [&](QStringList const& cells) { return cells[0].startsWith(act.row); });
        ASSERT_NE(row, table.end()) << act.row;
        QStringList promised = promisedBy(*row, table);
        if (act.part == std::string("Colour edits") && promised.contains("ColorwayUpdated")) {
            promised += "ColorwaySynced";
        }
        QStringList heard = heardOf(act);
        if (!promised.contains("ColorSynced")) { // the renderer's answer to a commit
            heard.removeAll("ColorSynced");
        }
        for (QString const& kind : heard) {
            EXPECT_TRUE(promised.contains(kind))
                << row->join(" | ").toStdString() << "\nposts " << kind.toStdString();
        }
        if (promised.contains("PaintLayersUpdated")) {
            EXPECT_EQ(heard.size(), promised.size()) << act.row;
        }
        auto& [wanted, seen] = found[row->at(0) + '|' + act.part];
        bool const asAnother = row->at(1).startsWith("as ") || row->at(1).startsWith("those");
        wanted = asAnother ? QStringList() : promised;
        seen += heard;
    }
    std::size_t count = 0;
    for (char const* const part : {messages, database, edits, layers, matter, paint}) {
        count += rowsOf(document, part).size();
    }
    EXPECT_EQ(count, found.size() + 1) << "all are tried but that of a root without task queue";
    for (auto const& [row, kinds] : found) {
        for (QString const& kind : kinds.first) {
            EXPECT_TRUE(kinds.second.contains(kind))
                << row.toStdString() << " does not post " << kind.toStdString();
        }
    }
}

} // namespace
