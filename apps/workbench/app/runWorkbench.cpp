#include "workbench/app/runWorkbench.h"

#include "host/printable.h"
#include "workbench/app/Application.h"
#include "workbench/app/Document.h"
#include "workbench/app/FileActions.h"
#include "workbench/app/KeptValues.h"
#include "workbench/app/MainWindow.h"
#include "workbench/app/TerminationSignals.h"
#include "workbench/app/WindowCommands.h"

#include <QApplication>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>

#include <chrono>
#include <iostream>

namespace workbench {

namespace {

int fail(std::string const& message) {
    std::cerr << app::printable(message, app::longestMessage) << std::endl;
    return 1;
}

/// What a batch run does between loading and the end; 0 when all of it succeeded.
int runBatch(CommandLine const& line, MainWindow& window) {
    // What the first turns of the event loop lay out, the next draw; and what is painted comes from
    // the render thread.
    for (int turn = 0; turn < 3; ++turn) {
        window.document().host().taskQueue().waitIdle();
        QCoreApplication::processEvents();
    }
    if (line.screenshot.isEmpty()) {
        return 0;
    }
    if (!line.panel.isEmpty() && !window.panel(line.panel)) {
        return fail("--panel: there is no \"" + line.panel.toStdString() + "\"; there are " +
                    window.panelNames().join(", ").toStdString());
    }
    std::string const message = window.writePicture(line.screenshot, line.panel);
    return message.empty() ? 0 : fail(message);
}

} // namespace

int runWorkbench(CommandLine const& line, Application& application) {
    // First: a window that is there follows a turn of the event loop later, behind a script.
    if (!line.palette.isEmpty()) {
        MainWindow::setPaletteKind(line.palette == "dark" ? MainWindow::PaletteKind::Dark
                                                          : MainWindow::PaletteKind::Light);
    }
    QString const folder =
        QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + "/autosave";
    Document document(folder);
    document.setAutosaveInterval(std::chrono::seconds(line.autosave));
    MainWindow window(document);
    document.interpreter().setOwnCommands(
        [&](std::vector<std::string> const& words) { return runWindowCommand(window, words); });
    if (!line.scene.isEmpty()) {
        if (std::string const message = document.open(line.scene); !message.empty()) {
            return fail(message);
        }
    }
    window.resize(line.size);
    if (!line.isBatch()) {
        window.resize(line.size.boundedTo(window.screen()->availableSize()));
    }
    window.show(); // first: a layout that was kept goes over the one for the size
    if (!line.isBatch()) {
        QSettings const settings;
        window.restoreGeometry(settings.value("geometry").toByteArray());
        window.restoreState(settings.value("layout").toByteArray());
    }
    if (!line.script.isEmpty() &&
        document.runScript(line.script.toStdString(), std::cout, std::cerr) != 0) {
        return 1;
    }
    if (!std::cout.flush()) {
        return fail("the output could not be written");
    }
    if (line.isBatch()) {
        return runBatch(line, window);
    }
    KeptValues kept(document.values(), folder + "/../values.json");
    auto const tell = [&window](std::string const& message) {
        if (!message.empty()) {
            window.document().scene().say(QString::fromStdString(message));
        }
    };
    tell(kept.load());
    document.scene().noteCommands();
    QTimer keeping;
    QObject::connect(&keeping, &QTimer::timeout, &keeping, [&] { tell(kept.save()); });
    keeping.start(60'000);
    TerminationSignals const termination([&] {
        document.scene().endDrags();
        document.autosave();
        QCoreApplication::exit(0);
    });
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &document,
                     [&] { document.autosave(); });
    if (!document.path().isEmpty()) {
        window.files().remember();
    }
    // Within the event loop, or a request to end that comes while it asks would be forgotten.
    QTimer::singleShot(0, &window, [&] { window.files().offerOrphans(folder); });
    application.onFailure = [&](QString const& why) {
        document.autosave();
        document.scene().say(Document::tr("This failed: %1").arg(why));
    };
    int const code = QCoreApplication::exec();
    application.onFailure = {};
    if (std::string const message = kept.save(); !message.empty()) {
        fail(message);
    }
    QSettings settings;
    settings.setValue("geometry", window.saveGeometry());
    settings.setValue("layout", window.saveState());
    return code;
}

} // namespace workbench
