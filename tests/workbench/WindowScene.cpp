#include "workbench/WindowScene.h"

#include "support/sourceDir.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <sstream>

WindowScene::WindowScene() : document(folder_.filePath("autosave")), window(document) {}

WindowScene::~WindowScene() = default;

void WindowScene::SetUp() {
    QFile::copy(QString::fromStdString(sourceDir() + "/examples/scenes/showroom.json"),
                inFolder("scene.json"));
    QFile::setPermissions(inFolder("scene.json"), QFile::ReadOwner | QFile::WriteOwner);
    ASSERT_EQ(document.open(inFolder("scene.json")), "");
    window.resize(1400, 900);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window)); // or it happens in the middle of a drag
    settle();
    atStart_ = dump();
}

void WindowScene::TearDown() {
    settle();
    document.scene().endDrags();
    while (stack().canUndo()) {
        EXPECT_TRUE(stack().undo());
    }
    settle();
    if (!scratch) {
        EXPECT_EQ(dump(), atStart_);
    }
}

std::string WindowScene::run(std::string const& line) {
    std::ostringstream out;
    document.runCommand(line, out);
    settle();
    return out.str();
}

std::string WindowScene::history() {
    std::string text;
    for (int i = 0; i <= stack().count(); ++i) {
        text += i == stack().index() ? "|" : "";
        text += i < stack().count() ? stack().text(i).toStdString() + ';' : std::string();
    }
    return text;
}

void WindowScene::type(QAbstractSpinBox& field, QString const& text) {
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, text);
    QTest::keyClick(&field, Qt::Key_Return);
    settle();
}

void WindowScene::settle() {
    for (int i = 0; i < 5; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

void WindowScene::answer(QString const& button) {
    asked.clear();
    QTimer::singleShot(0, &window, [this, button] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        asked = box->text();
        for (QAbstractButton* const candidate : box->buttons()) {
            if (candidate->text().remove('&') == button) {
                candidate->click();
                return;
            }
        }
        box->reject();
        FAIL() << "there is no button " << button.toStdString();
    });
}
