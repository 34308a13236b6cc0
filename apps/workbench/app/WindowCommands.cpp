#include "workbench/app/WindowCommands.h"

#include "host/Arguments.h"
#include "workbench/app/Document.h"
#include "workbench/app/MainWindow.h"
#include "workbench/scene/Panel.h"

namespace workbench {

namespace {

Panel& takePanel(MainWindow& window, app::Arguments& arguments, QString* name = nullptr) {
    QString const word = QString::fromStdString(arguments.word("the name of a panel"));
    Panel* const panel = window.panel(word);
    if (!panel) {
        throw app::CommandError("there is no panel \"" + word.toStdString() + "\"; there are " +
                                window.panelNames().join(", ").toStdString());
    }
    if (name) {
        *name = word;
    }
    return *panel;
}

void grab(MainWindow& window, app::Arguments& arguments) {
    std::string const path = arguments.word("a path");
    QString name;
    if (!arguments.empty()) {
        takePanel(window, arguments, &name);
    }
    arguments.done();
    std::string const message = window.writePicture(QString::fromStdString(path), name);
    if (!message.empty()) {
        throw app::CommandError(message);
    }
}

void expectRows(MainWindow& window, app::Arguments& arguments) {
    arguments.oneOf({"rows"});
    Panel const& panel = takePanel(window, arguments);
    int const expected = arguments.integer("a number of rows");
    arguments.done();
    if (panel.rowCount() != expected) {
        throw app::CommandError("expected " + std::to_string(expected) + " rows, there are " +
                                std::to_string(panel.rowCount()));
    }
}

} // namespace

bool runWindowCommand(MainWindow& window, std::vector<std::string> const& words) {
    if (words[0] != "window") {
        return false;
    }
    // What the commands before have done is to be seen.
    window.document().scene().flush();
    window.document().scene().noteCommands();
    app::Arguments arguments({words.begin() + 1, words.end()});
    std::string const what = arguments.oneOf({"show", "select", "grab", "expect"});
    if (what == "grab") {
        grab(window, arguments);
    } else if (what == "expect") {
        expectRows(window, arguments);
    } else if (what == "show") {
        QString name;
        takePanel(window, arguments, &name);
        arguments.done();
        window.showPanel(name);
    } else {
        Panel& panel = takePanel(window, arguments);
        std::string const text = arguments.word("the text of a row");
        arguments.done();
        if (!panel.select(QString::fromStdString(text))) {
            throw app::CommandError("there is no row \"" + text + '"');
        }
    }
    return true;
}

} // namespace workbench
