#include "zsg/core/Events.h"

#include "workbench/WindowScene.h"
#include "workbench/events/EventModel.h"
#include "zsg/core/IEventQueue.h"
#include "zsg/core/ISceneGraph.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QToolButton>

using namespace workbench;

namespace {

class EventsTest : public WindowScene {
protected:
    void post(unsigned from, unsigned to) {
        for (unsigned id = from; id <= to; ++id) {
            scene().root()->eventQueue()->post(new zsg::ColorUpdatedEvent(nyx::ColorId(id)));
        }
    }
    QAbstractItemModel& model() { return *find<QTableView>("eventList").model(); }
    std::string count() {
        return window.panel("events")->findChild<QLabel*>()->text().toStdString();
    }
    std::string payload(int row) {
        return model().index(row, EventModel::PayloadColumn).data().toString().toStdString();
    }
    /// Whether no number is left out, and none is out of order.
    bool withoutGaps() {
        for (int row = 1; row < model().rowCount(); ++row) {
            if (model().index(row, 0).data().toUInt() !=
                model().index(row - 1, 0).data().toUInt() + 1) {
                return false;
            }
        }
        return true;
    }
};

} // namespace

TEST_F(EventsTest, ARingThatCanBePausedAndSearchedWithoutLosingWhatCame) {
    QAbstractItemModelTester const tester(&model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    auto& pause = find<QToolButton>("pauseEvents");
    find<QToolButton>("clearEvents").click();
    post(1, 9000);
    EXPECT_EQ(count(), "Events: 0"); // nothing within the delivery
    settle();
    EXPECT_EQ(count(), "Events: 9000");
    pause.click();
    post(9001, 10'500);
    settle();
    EXPECT_EQ(count(), "Events: 9000");
    pause.click();
    EXPECT_EQ(count(), "Events: 10000, older ones dropped: 500");
    EXPECT_EQ(payload(0), "501");
    EXPECT_EQ(payload(9999), "10500");
    EXPECT_TRUE(withoutGaps());
    // More in one turn, and during a pause, than the ring holds.
    pause.click();
    post(1, 10'003);
    settle();
    pause.click();
    EXPECT_EQ(count(), "Events: 10000, older ones dropped: 10503");
    EXPECT_EQ(payload(0), "4");

    // What is looked for is found among those that come as well.
    find<QLineEdit>("eventFilter").setText("77");
    EXPECT_EQ(payload(0), "77");
    int const found = model().rowCount();
    post(77, 78);
    scene().root()->eventQueue()->post(new zsg::LightLayerUpdatedEvent(nyx::LightLayerId(3)));
    settle();
    EXPECT_EQ(model().rowCount(), found + 1);
    find<QLineEdit>("eventFilter").setText("lightlayerupdated");
    find<QAction>("copyEvents").trigger();
    QStringList const cells = QGuiApplication::clipboard()->text().trimmed().split('\t');
    ASSERT_EQ(cells.size(), 4);
    EXPECT_EQ(cells[1] + ' ' + cells[2], "LightLayerUpdated 3");
    EXPECT_TRUE(window.panel("events")->select("LightLayerUpdated"));
    find<QLineEdit>("eventFilter").clear();

    // Another scene: its events follow, also those of its root, and what waited is not lost.
    find<QToolButton>("clearEvents").click();
    pause.click();
    post(5, 5);
    ASSERT_EQ(document.open(inFolder("scene.json")), "");
    pause.click();
    settle();
    EXPECT_EQ(payload(0), "5");
    EXPECT_GT(model().rowCount(), 40);
}
