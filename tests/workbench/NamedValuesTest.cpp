#include "support/sourceDir.h"
#include "workbench/ValuesScene.h"
#include "workbench/app/KeptValues.h"
#include "workbench/values/MetalView.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QPlainTextEdit>
#include <QTableWidget>
#include <QToolButton>
#include <QTreeWidget>

#include <sstream>

using namespace workbench;

namespace {

using NamedValuesTest = ValuesScene;

} // namespace

TEST_F(NamedValuesTest, MetalsAreLoadedAndShown) {
    QString const data = QString::fromStdString(sourceDir()) + "/examples/data/";
    EXPECT_TRUE(panel().load(data + "gold.nk"));
    auto& table = find<QTableWidget>("metalTable");
    double nearest = 0;
    for (int row = 0; row < table.rowCount(); ++row) {
        QLocale const locale;
        if (locale.toDouble(table.item(row, 0)->text()) <= 660) {
            nearest = locale.toDouble(table.item(row, 3)->text());
        }
    }
    EXPECT_NEAR(nearest, 0.96, 0.01);
    find<QAction>("copyValue").trigger();
    EXPECT_EQ(QApplication::clipboard()->text().count('\n'), table.rowCount());
    EXPECT_EQ(metalCsv({550.125F, 0.123456789F, 1e-7F}), "550.125, 0.12345679, 1e-07\n");
    QFile broken(inFolder("broken.nk"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("no header at all\n1 2\n");
    broken.close();
    EXPECT_FALSE(panel().load(broken.fileName()));
    EXPECT_GT(find<QPlainTextEdit>("metalMessages").toPlainText().count('\n'), 0);
    EXPECT_FALSE(panel().load(inFolder("nowhere.nk")));
    EXPECT_EQ(panel().rowCount(), 1);
    EXPECT_EQ(history(), "New Value gold;|");
}

TEST_F(NamedValuesTest, NamesGoThroughTheHistory) {
    run("curve new ease");
    run("weave new denim twill 4 3");
    EXPECT_EQ(panel().rowCount(), 2) << "what commands make is seen";
    choose("denim");
    auto& list = find<QTreeWidget>("valueList");
    find<QAction>("duplicateValue").trigger();
    settle();
    EXPECT_EQ(list.currentItem()->text(0), "denim 2");
    list.currentItem()->setText(0, "jeans");
    settle();
    EXPECT_EQ(list.currentItem()->text(0), "jeans");
    EXPECT_EQ(run("weave equal denim jeans"), "equal\n");
    list.currentItem()->setText(0, "denim");
    settle();
    EXPECT_EQ(list.currentItem()->text(0), "jeans") << "the name is taken";
    find<QAction>("deleteValue").trigger();
    EXPECT_EQ(history(), "New Value denim 2;Rename Value;Delete Value jeans;|");
    EXPECT_EQ(panel().rowCount(), 2);
    stack().undo();
    settle();
    EXPECT_TRUE(panel().select("jeans"));
    stack().goTo(0);
    settle();
    EXPECT_EQ(panel().rowCount(), 2);
    EXPECT_FALSE(panel().select("jeans"));
    // An edit of what a command has taken away brings it back, and so does its undo.
    choose("denim");
    find<QToolButton>("weaveMake").click();
    run("weave delete denim");
    EXPECT_EQ(panel().rowCount(), 1);
    stack().undo();
    settle();
    EXPECT_EQ(panel().rowCount(), 2);
}

TEST_F(NamedValuesTest, ValuesOutliveTheProgram) {
    QString const path = inFolder("kept/values.json");
    auto const names = [](ValueStore const& store) {
        std::string text;
        for (auto const& key : store.keys()) {
            text += key.name + ' ';
        }
        return text;
    };
    run("weave new denim twill 4 3");
    run("curve new empty");
    run("value new other Float 1");
    KeptValues kept(document.values(), path);
    EXPECT_EQ(kept.load(), "") << "there is none yet";
    EXPECT_EQ(kept.save(), "");
    Document second(copies());
    KeptValues secondKept(second.values(), path);
    EXPECT_EQ(secondKept.load(), "");
    EXPECT_EQ(names(second.values()), "denim empty ");
    // Both go on: what the other one made stays, what it deleted is gone.
    std::ostringstream nothing;
    second.runCommand("weave new linen plain", nothing);
    second.runCommand("curve delete empty", nothing);
    EXPECT_EQ(secondKept.save(), "");
    EXPECT_EQ(kept.save(), "");
    Document third(copies());
    EXPECT_EQ(KeptValues(third.values(), path).load(), "");
    EXPECT_EQ(names(third.values()), "denim linen empty ") << "one of them still had it";

    QFile broken(path);
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("{");
    broken.close();
    EXPECT_NE(kept.load(), "");
    EXPECT_TRUE(QFile::exists(path + ".bad"));
    EXPECT_NE(KeptValues(document.values(), "/dev/null/values.json").save(), "");
}
