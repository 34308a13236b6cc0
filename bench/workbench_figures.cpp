// What a person at the window waits for, over scenes that are larger than any real one. It prints
// a table; each figure has a limit, and the exit code is 1 when one is above it. By
// cmake --preset bench && cmake --build build/bench --target zsg_workbench_figures

#include "workbench/app/Document.h"
#include "workbench/app/MainWindow.h"
#include "workbench/scene/Scene.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"

#include "zcore/ZUndoStack.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using workbench::Document;
using workbench::MainWindow;

bool allWithin = true;

void row(char const* what, double value, char const* unit, double limit) {
    std::printf("| %s | %.2f %s | %.0f %s |%s\n", what, value, unit, limit, unit,
                value > limit ? " above" : "");
    allWithin = allWithin && value <= limit;
}

/// In milliseconds.
double timeOf(std::function<void()> const& act) {
    QElapsedTimer timer;
    timer.start();
    act();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// Everything that is waiting is done and painted.
void settle() {
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// Of this process, in megabytes: what it has for itself.
double memory() {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word) {
        if (word == "RssAnon:") {
            double kilobytes = 0;
            status >> kilobytes;
            return kilobytes / 1024;
        }
    }
    return 0;
}

std::string colorScene(QString const& folder) {
    nyx::embedded::Host host;
    for (int i = 0; i < 100'000; ++i) {
        host.renderer().colors().add("Colour " + std::to_string(i),
                                     {static_cast<float>(i % 256) / 255, 0.5F, 0.25F, 1});
    }
    std::string const path = folder.toStdString() + "/colors.json";
    if (std::string const error = host.saveScene(path); !error.empty()) {
        throw std::runtime_error(error);
    }
    return path;
}

std::string colorwayScene(QString const& folder) {
    nyx::embedded::Host host;
    auto& colors = host.renderer().colors();
    std::vector<nyx::embedded::ColorwayPair> pairs[2];
    for (int i = 0; i < 10'000; ++i) {
        std::string const name = std::to_string(i);
        nyx::ColorId const subs[] = {colors.add("A " + name, {1, 0, 0, 1}),
                                     colors.add("B " + name, {0, 0, 1, 1})};
        nyx::ColorId const multi = colors.addMulti("Multi " + name, subs, subs[0]);
        pairs[0].push_back({multi, subs[0]});
        pairs[1].push_back({multi, subs[1]});
    }
    host.renderer().colorways().add("First", pairs[0]);
    host.renderer().colorways().add("Second", pairs[1]);
    std::string const path = folder.toStdString() + "/colorways.json";
    if (std::string const error = host.saveScene(path); !error.empty()) {
        throw std::runtime_error(error);
    }
    return path;
}

void open(Document& document, std::string const& path) {
    if (std::string const error = document.open(QString::fromStdString(path)); !error.empty()) {
        throw std::runtime_error(error);
    }
}

void show(MainWindow& window) {
    window.resize(1500, 900);
    window.show();
    settle();
}

void measureColors(QString const& folder) {
    std::string const path = colorScene(folder);
    Document document(folder + "/autosave");
    MainWindow window(document);
    show(window);
    double const loading = timeOf([&] {
        nyx::embedded::Host host;
        if (!host.loadScene(path).empty()) {
            throw std::runtime_error("the scene does not load");
        }
    });
    double const opening = timeOf([&] {
        open(document, path);
        settle();
    });
    row("100,000 colours, from the file to the first paint", opening, "ms", 500);
    row("... of that without the library's loading of the file", opening - loading, "ms", 500);

    workbench::Scene& scene = document.scene();
    nyx::ColorId const id = scene.colorDB()->colors()[3];
    constexpr int edits = 300;
    double const editing = timeOf([&] {
        for (int i = 0; i < edits; ++i) {
            scene.colorController()->setColor(id, ZColor(static_cast<float>(i) / edits, 0, 0, 1),
                                              zsg::AllowForwardUndoMerge::Yes);
            settle();
        }
    });
    row("... edit of a colour that is seen, to its pixels", editing / edits, "ms", 16);

    auto* const filter = window.findChild<QLineEdit*>("colourFilter");
    filter->setText("9999");
    double longest = 0;
    for (int quiet = 0; quiet < 20;) {
        double const turn = timeOf([] {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        });
        longest = std::max(longest, turn);
        quiet = turn < 0.05 ? quiet + 1 : 0;
    }
    row("... longest wait while names are searched", longest, "ms", 50);
}

void measureColorways(QString const& folder) {
    Document document(folder + "/autosave");
    MainWindow window(document);
    show(window);
    open(document, colorwayScene(folder));
    settle();
    workbench::Scene& scene = document.scene();
    auto const ids = scene.colorDB()->colorways();
    std::vector<nyx::ColorwayId> const colorways(ids.begin(), ids.end());
    scene.colorController()->applyColorway(colorways[1]);
    settle();
    double const applying = timeOf([&] { scene.colorController()->applyColorway(colorways[0]); });
    double const showing = timeOf([] { settle(); });
    row("colorway switch over 10,000 multi-colours, to the pixels", applying + showing, "ms", 100);
    row("... of that in the window", showing, "ms", 100);
}

void measureHistory(QString const& folder) {
    Document document(folder + "/autosave");
    MainWindow window(document);
    show(window);
    open(document, std::string(ZSG_EXAMPLES) + "/scenes/showroom.json");
    workbench::Scene& scene = document.scene();
    nyx::ColorId const id = scene.colorDB()->colors()[3];
    auto const push = [&](int i) {
        scene.colorController()->setDisplayName(id, "Name " + std::to_string(i));
    };
    int count = 0;
    while (count < 10'000) {
        push(++count);
    }
    settle();
    constexpr int edits = 200;
    double const pushing = timeOf([&] {
        for (int i = 0; i < edits; ++i) {
            push(++count);
        }
    });
    double const shown = timeOf([&] {
        for (int i = 0; i < edits; ++i) {
            push(++count);
            settle();
        }
    });
    row("push at 10,000 entries of the history", pushing / edits, "ms", 1);
    row("... to the pixels", shown / edits, "ms", 16);
}

void measureMemory(QString const& folder) {
    Document document(folder + "/autosave");
    open(document, std::string(ZSG_EXAMPLES) + "/scenes/showroom.json");
    settle();
    double const before = memory();
    MainWindow window(document);
    show(window);
    for (QString const& name : window.panelNames()) {
        window.showPanel(name);
        settle();
    }
    row("memory of the window, all panels shown", memory() - before, "MB", 40);
}

} // namespace

int main(int argc, char** argv) try {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir const folder;
    QStandardPaths::setTestModeEnabled(true);
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    QApplication::setStyle("Fusion");
    QApplication const application(argc, argv);
    std::printf("| What | Measured | Limit |\n|---|---|---|\n");
    measureMemory(folder.path());
    measureColors(folder.path());
    measureHistory(folder.path());
    measureColorways(folder.path());
    return allWithin ? 0 : 1;
} catch (std::exception const& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
}
