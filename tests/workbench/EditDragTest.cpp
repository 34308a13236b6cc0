#include "workbench/scene/EditDrag.h"

#include "support/sourceDir.h"
#include "workbench/app/Document.h"
#include "workbench/app/MainWindow.h"
#include "workbench/colors/ColorWheel.h"
#include "workbench/scene/Panel.h"

#include "zcore/ZUndoStack.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace workbench;

TEST(EditDragTest, EndsWithTheWindowAndWithTheScene) {
    QTemporaryDir const folder;
    QString const path = QString::fromStdString(sourceDir() + "/examples/scenes/showroom.json");
    Document document(folder.path());
    ASSERT_EQ(document.open(path), "");
    ZUndoStack const& stack = document.host().undoStack();
    for (bool const loads : {false, true}) {
        MainWindow window(document);
        window.show();
        window.panel("colours")->select("Teal");
        auto* const wheel = window.findChild<ColorWheel*>("wheel");
        ASSERT_NE(wheel, nullptr);
        emit wheel->pressed();
        emit wheel->moved(loads ? 0.75F : 0.5F, 1, 1);
        if (loads) {
            EXPECT_EQ(stack.count(), 1) << "what was dragged in the window before is not lost";
            EXPECT_EQ(document.open(path), "");
            emit wheel->released();
            EXPECT_EQ(stack.count(), 0) << "it belonged to the scene before";
        }
    }
    EXPECT_EQ(stack.count(), 0);
}
