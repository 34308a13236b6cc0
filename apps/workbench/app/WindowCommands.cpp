#include "workbench/app/WindowCommands.h"

#include "host/Arguments.h"
#include "workbench/app/Document.h"
#include "workbench/app/MainWindow.h"
#include "workbench/scene/Panel.h"

#include <QAbstractItemView>
#include <QCoreApplication>

#include <ostream>

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

/// Where a widget, or a row of it, is on the display: for programs that move its pointer.
void where(MainWindow& window, app::Arguments& arguments) {
    std::string const name = arguments.word("the name of a widget");
    auto* const widget = window.findChild<QWidget*>(QString::fromStdString(name));
    if (!widget) {
        throw app::CommandError("there is no widget \"" + name + '"');
    }
    QRect place = widget->rect();
    QWidget const* within = widget;
    if (auto* const view = qobject_cast<QAbstractItemView*>(widget); view && !arguments.empty()) {
        std::string const text = arguments.word("the text of a row");
        QModelIndexList const found =
            view->model()->match(view->model()->index(0, 0), Qt::DisplayRole,
                                 QString::fromStdString(text), 1, Qt::MatchExactly);
        if (found.isEmpty()) {
            throw app::CommandError("there is no row \"" + text + '"');
        }
        view->scrollTo(found.front());
        place = view->visualRect(found.front());
        within = view->viewport();
    }
    arguments.done();
    QPoint const at = within->mapToGlobal(place.center());
    window.document().host().out() << "  " << name << ' ' << at.x() << ' ' << at.y() << ' '
                                   << place.width() << ' ' << place.height() << '\n';
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
    std::string const what = arguments.oneOf({"show", "select", "grab", "expect", "where"});
    if (what == "grab") {
        grab(window, arguments);
    } else if (what == "expect") {
        expectRows(window, arguments);
    } else if (what == "where") {
        // What the display makes of the window's place takes a moment.
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 100);
        where(window, arguments);
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
