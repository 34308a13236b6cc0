// What a person at the window waits for, over scenes that are larger than any real one. It prints
// a table; each figure has a limit, and the exit code is 1 when one is above it. By
// cmake --preset bench && cmake --build build/bench --target zsg_workbench_figures

#include "workbench/app/Document.h"
#include "workbench/app/HostCanvas.h"
#include "workbench/app/MainWindow.h"
#include "workbench/painting/PaintView.h"
#include "workbench/scene/Scene.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/Events.h"
#include "zsg/core/IEventQueue.h"
#include "zsg/core/ISceneGraph.h"

#include "zcore/ZUndoStack.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <functional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
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

/// Of the process's processors, in milliseconds: what somebody waits for on a machine that does
/// nothing else.
double timeOf(std::function<void()> const& act) {
    std::clock_t const before = std::clock();
    act();
    return static_cast<double>(std::clock() - before) * 1000 / CLOCKS_PER_SEC;
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
    nyx::MaterialId const material = host.renderer().materials().add("Everything");
    std::vector<nyx::embedded::ColorwayPair> pairs[2];
    for (int i = 0; i < 10'000; ++i) {
        std::string const name = std::to_string(i);
        nyx::ColorId const subs[] = {colors.add("A " + name, {1, 0, 0, 1}),
                                     colors.add("B " + name, {0, 0, 1, 1})};
        nyx::ColorId const multi = colors.addMulti("Multi " + name, subs, subs[0]);
        // A colorway lets go of multi-colours that no material uses.
        host.renderer().materials().bindColor(material, static_cast<unsigned>(i), "colour", multi);
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
    auto const multis = scene.colorDB()->multiColors();
    ZColorExt const last = scene.colorDB()->colorFromId(multis[multis.size() - 1]);
    if (last.getActive().rgba() != nyxColor_rgba{1, 0, 0, 1}) {
        throw std::runtime_error("the colorway was not applied");
    }
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

void measureEvents(QString const& folder) {
    Document document(folder + "/autosave");
    MainWindow window(document);
    show(window);
    window.showPanel("events");
    constexpr int batch = 100;
    auto const post = [&](int count) { // no other panel has anything to do with it
        for (int i = 0; i < count; ++i) {
            document.scene().root()->eventQueue()->post(
                new zsg::PaintLayersUpdatedEvent(nyx::SurfaceId(12'345)));
        }
        settle();
    };
    post(10'000);
    constexpr int batches = 100;
    double const showing = timeOf([&] {
        for (int i = 0; i < batches; ++i) {
            post(batch);
        }
    });
    row("100 events at 10,000 in their panel, to the pixels", showing / batches, "ms", 16);
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

/// Paints as a person does, by the pointer, and sees when the view has been painted again.
class Painter final : public QObject {
public:
    explicit Painter(MainWindow& window) : view_(*window.findChild<workbench::PaintView*>()) {
        view_.installEventFilter(this);
        connect(window.findChild<workbench::HostCanvas*>(), &workbench::Canvas::pictureChanged,
                this, [this](workbench::Canvas::Picture const& picture) {
                    for (auto const& part : picture.parts) {
                        QRectF const area(part.at, part.image.size());
                        isMade_ = isMade_ || area.contains(texel_);
                    }
                });
    }

    /// To a place in texels. Returns when that is seen, after how many milliseconds.
    double press(double x, double y) { return send(QEvent::MouseButtonPress, x, y); }
    double move(double x, double y) { return send(QEvent::MouseMove, x, y); }
    void release(double x, double y) { send(QEvent::MouseButtonRelease, x, y, false); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        isSeen_ = isSeen_ || (isMade_ && event->type() == QEvent::Paint);
        return QObject::eventFilter(watched, event);
    }

private:
    double send(QEvent::Type type, double x, double y, bool waits = true) {
        QElapsedTimer timer;
        timer.start();
        isMade_ = isSeen_ = false;
        texel_ = {x, y};
        QPointF const at = view_.fromTexel({x, y});
        QMouseEvent event(type, at, view_.mapToGlobal(at),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, {});
        QCoreApplication::sendEvent(&view_, &event);
        while (waits && !isSeen_) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
            if (timer.elapsed() > 10'000) {
                throw std::runtime_error("nothing is painted");
            }
        }
        return static_cast<double>(timer.nsecsElapsed()) / 1e6;
    }

    workbench::PaintView& view_;
    QPointF texel_;       ///< where the pointer is
    bool isMade_ = false; ///< pixels there have come since
    bool isSeen_ = false; ///< and the view has shown them
};

/// Loops of a few hundred texels, one beside the other.
struct Loop {
    double x, y, radius;
    Loop(int number, int side)
        : x(side * (0.15 + 0.7 * std::fmod(number * 0.618034, 1.0))),
          y(side * (0.15 + 0.7 * std::fmod(number * 0.754878, 1.0))),
          radius(side * 0.1) {}
    [[nodiscard]] double xAt(double turns) const { return x + radius * std::cos(turns * 6.2832); }
    [[nodiscard]] double yAt(double turns) const { return y + radius * std::sin(turns * 6.2832); }
};

constexpr int side = 4096;

/// A surface to paint on, seen in the window.
void openSurface(Document& document, MainWindow& window) {
    show(window);
    open(document, std::string(ZSG_EXAMPLES) + "/scenes/showroom.json");
    std::ostringstream out;
    for (std::string const& line :
         {"surface new " + std::to_string(side),
          "brush load " + std::string(ZSG_EXAMPLES) + "/brushes/marker.json",
          std::string("brush apply")}) {
        document.runCommand(line, out);
    }
    window.showPanel("picture");
    document.host().taskQueue().waitIdle();
    settle();
}

void paint(Painter& painter, int number) {
    Loop const loop(number, side);
    painter.press(loop.xAt(0), loop.yAt(0));
    for (int k = 1; k <= 8; ++k) {
        painter.move(loop.xAt(k / 8.0), loop.yAt(k / 8.0));
    }
    painter.release(loop.xAt(1), loop.yAt(1));
    settle();
}

void measurePainting(QString const& folder) {
    Document document(folder + "/autosave");
    MainWindow window(document);
    openSurface(document, window);
    Painter painter(window);

    std::vector<double> times;
    for (int i = 0; i < 10; ++i) {
        Loop const loop(i, side);
        painter.press(loop.xAt(0), loop.yAt(0));
        for (int k = 1; k <= 60; ++k) {
            times.push_back(painter.move(loop.xAt(k / 60.0), loop.yAt(k / 60.0)));
        }
        painter.release(loop.xAt(1), loop.yAt(1));
        settle();
    }
    std::ranges::sort(times);
    constexpr double twoFrames = 2000.0 / 60;
    row("4096 x 4096 texels, from the pen to the pixels, median", times[times.size() / 2], "ms",
        twoFrames);
    row("... of 99 in 100", times[times.size() * 99 / 100], "ms", twoFrames);
    row("... the longest of 600", times.back(), "ms", twoFrames);

    document.host().taskQueue().waitIdle();
    settle();
    double const before = memory();
    double most = before;
    std::string course;
    for (int i = 1; i <= 1000; ++i) {
        paint(painter, i);
        most = std::max(most, memory());
        if (i % 100 == 0) {
            course += ' ' + std::to_string(static_cast<int>(memory() - before));
        }
    }
    // The tiles that undo keeps, up to the canvas's limit, and what the layer has new itself.
    row("... memory that 1,000 strokes take at most", most - before, "MB", 256 + 64 + 64);
    std::printf("\nAfter every 100 strokes, in MB:%s\n", course.c_str());
}

/// As somebody paints: a stroke and a pause, for two minutes and a copy for after a crash.
void measureTwoMinutes(QString const& folder) {
    Document document(folder + "/autosave");
    MainWindow window(document);
    openSurface(document, window);
    Painter painter(window);
    constexpr int strokes = 1000;
    constexpr int milliseconds = 125'000; // the copy comes after 120,000
    double const before = memory();
    double most = before;
    double early = before;
    QElapsedTimer timer;
    timer.start();
    for (int i = 1; i <= strokes; ++i) {
        paint(painter, i);
        do {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
            QThread::msleep(1);
            most = std::max(most, memory());
        } while (timer.elapsed() < qint64{i} * milliseconds / strokes);
        early = i == 300 ? memory() : early;
    }
    if (QDir(folder + "/autosave").isEmpty()) {
        throw std::runtime_error("no copy was written");
    }
    double const limit = 256 + 64 + 64;
    row("1,000 strokes in two minutes, memory after 300", early - before, "MB", limit);
    row("... after 1,000", memory() - before, "MB", limit);
    row("... at most", most - before, "MB", limit);
    std::printf("\nBefore the first stroke: %.1f MB\n", before);
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
    std::pair<std::string_view, void (*)(QString const&)> const parts[] = {
        {"memory", measureMemory},       {"colors", measureColors},     {"history", measureHistory},
        {"colorways", measureColorways}, {"painting", measurePainting}, {"events", measureEvents},
        {"minutes", measureTwoMinutes},
    };
    std::vector<std::string_view> const wanted(argv + 1, argv + argc);
    for (auto const& [name, measure] : parts) {
        bool const isAll = wanted.empty() && name != "minutes"; // which lasts as long as it says
        if (isAll || std::ranges::find(wanted, name) != wanted.end()) {
            measure(folder.path());
        }
    }
    return allWithin ? 0 : 1;
} catch (std::exception const& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
}
