#pragma once

#include "workbench/app/Document.h"
#include "workbench/app/FileActions.h"
#include "workbench/app/MainWindow.h"
#include "workbench/scene/Panel.h"

#include "zcore/ZUndoStack.h"

#include <QAbstractSpinBox>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <functional>
#include <string>

/// A window over the showroom, in a folder of its own. In the end everything is undone, and the
/// scene has to be the one it was.
class WindowScene : public testing::Test {
protected:
    WindowScene();
    ~WindowScene() override;

    void SetUp() override;
    void TearDown() override;

    [[nodiscard]] workbench::Scene& scene() { return document.scene(); }
    [[nodiscard]] ZUndoStack& stack() { return document.host().undoStack(); }
    /// The scene once the renderer has done what it was told.
    [[nodiscard]] std::string dump() { return document.host().dump(); }
    /// Runs a command of the console.
    std::string run(std::string const& line);
    /// The texts of the history, done ones before the bar.
    [[nodiscard]] std::string history();
    /// Lets the event loop turn until nothing waits.
    void settle();
    /// Widget, action or model of a name; ends the test when there is none.
    template <class Object>
    Object& find(QString const& name) {
        Object* const found = window.findChild<Object*>(name);
        if (!found) {
            throw std::runtime_error("there is no " + name.toStdString());
        }
        return *found;
    }
    /// A text in place of the number in a field.
    void type(QAbstractSpinBox& field, QString const& text);
    /// Answers the next dialog by the button of a text.
    void answer(QString const& button);
    [[nodiscard]] QString inFolder(QString const& name) const { return folder_.filePath(name); }
    [[nodiscard]] QString copies() const { return folder_.filePath("autosave"); }

    /// What the last dialog said.
    QString asked;
    /// The scene may differ in the end.
    bool scratch = false;

private:
    QTemporaryDir folder_;

protected:
    workbench::Document document;
    workbench::MainWindow window;

private:
    std::string atStart_;
};
