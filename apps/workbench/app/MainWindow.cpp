#include "workbench/app/MainWindow.h"

#include "workbench/app/Document.h"
#include "workbench/app/FileActions.h"
#include "workbench/app/makePanels.h"
#include "workbench/app/palettes.h"
#include "workbench/scene/Panel.h"
#include "workbench/scene/Scene.h"

#include "nyxembedded/writeFile.h"
#include "zcore/ZUndoStack.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QBuffer>
#include <QCloseEvent>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QStyle>
#include <QTabWidget>

#include <algorithm>

namespace workbench {

namespace {

constexpr int messageTime = 8000; // milliseconds
constexpr int tabFrame = 2;       // pixels

/// Scrolls a panel that has less room than it needs at least, or the window would need a large
/// screen. QScrollArea itself would give a panel with wrapped texts the height that it likes best.
class PanelArea final : public QScrollArea {
public:
    explicit PanelArea(workbench::Panel* panel) {
        setFocusPolicy(Qt::NoFocus);
        setFrameShape(QFrame::NoFrame);
        setWidget(panel);
    }

protected:
    void resizeEvent(QResizeEvent* event) override {
        QScrollArea::resizeEvent(event);
        fit();
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == widget() && event->type() == QEvent::LayoutRequest) {
            fit();
        }
        return QScrollArea::eventFilter(watched, event);
    }

private:
    void fit() {
        QSize const least = widget()->minimumSizeHint().expandedTo(widget()->minimumSize());
        QSize size = maximumViewportSize();
        if (least.height() > size.height()) {
            size.rwidth() -= verticalScrollBar()->sizeHint().width();
        }
        if (least.width() > size.width()) {
            size.rheight() -= horizontalScrollBar()->sizeHint().height();
        }
        widget()->resize(size.expandedTo(least));
    }
};

QString withText(QString const& verb, ZUndoStack const& stack, int entry) {
    QString const text = stack.text(entry);
    return text.isEmpty() ? verb : verb + ' ' + QString(text).replace('&', "&&");
}

} // namespace

MainWindow::MainWindow(Document& document)
    : document_(document), files_(new FileActions(document, *this)) {
    setObjectName("workbench");
    setDockNestingEnabled(true);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    makePanels(*this);
    makeEditMenu();
    makeViewMenu();
    statusBar();
    connect(&document.scene(), &Scene::said, this,
            [this](QString const& text) { statusBar()->showMessage(text, messageTime); });
    connect(&document, &Document::stateChanged, this, &MainWindow::showState);
    showState();
    arrange();
    firstLayout_ = saveState();
}

MainWindow::~MainWindow() {
    // The panels end what they edit while everything they stand on is still there.
    document_.scene().endDrags();
    qDeleteAll(std::exchange(docks_, {}));
    delete takeCentralWidget();
}

Panel* MainWindow::panel(QString const& name) const { return panels_.value(name); }

bool MainWindow::showPanel(QString const& name) {
    if (QDockWidget* const dock = docks_.value(name)) {
        dock->show();
        dock->raise();
        return true;
    }
    Panel* const panel = panels_.value(name);
    for (int i = 0; panel && i < tabs_->count(); ++i) {
        if (tabs_->widget(i)->isAncestorOf(panel)) {
            tabs_->setCurrentIndex(i);
        }
    }
    return panel;
}

QPixmap MainWindow::picture(QString const& panelName) {
    document_.scene().flush();
    if (panelName.isEmpty()) {
        return grab();
    }
    if (!showPanel(panelName)) {
        return {};
    }
    // What came to the front a moment ago has not been laid out yet.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QDockWidget* const dock = docks_.value(panelName);
    return dock ? dock->grab() : panels_.value(panelName)->grab();
}

std::string MainWindow::writePicture(QString const& path, QString const& panelName) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!picture(panelName).save(&buffer, "PNG")) {
        return path.toStdString() + ": there is nothing to draw";
    }
    return nyx::embedded::writeFile(path.toStdString(), bytes.toStdString());
}

void MainWindow::setPaletteKind(PaletteKind kind) {
    if (kind == PaletteKind::System) {
        QApplication::setPalette(QApplication::style()->standardPalette());
    } else {
        QApplication::setPalette(kind == PaletteKind::Dark ? darkPalette() : lightPalette());
    }
}

void MainWindow::closeEvent(QCloseEvent* event) {
    document_.scene().endDrags();
    event->setAccepted(files_->mayLeave());
    if (event->isAccepted()) {
        document_.discardChanges();
    }
}

void MainWindow::addPanel(Place place, QString const& name, QString const& title, Panel* panel) {
    panel->setAccessibleName(title);
    panels_.insert(name, panel);
    if (place == Place::Center) {
        if (!tabs_) {
            tabs_ = new QTabWidget(this);
            tabs_->setObjectName("views");
            tabs_->setDocumentMode(true);
            setCentralWidget(tabs_);
        }
        tabs_->addTab(new PanelArea(panel), title);
        return;
    }
    auto* const dock = new QDockWidget(title, this);
    dock->setObjectName(name);
    dock->setWidget(new PanelArea(panel));
    docks_.insert(name, dock);
    places_[place] += dock;
}

void MainWindow::arrange() {
    std::pair<Place, Qt::DockWidgetArea> const areas[] = {
        {Place::LeftUpper, Qt::LeftDockWidgetArea},   {Place::LeftLower, Qt::LeftDockWidgetArea},
        {Place::RightUpper, Qt::RightDockWidgetArea}, {Place::RightLower, Qt::RightDockWidgetArea},
        {Place::Bottom, Qt::BottomDockWidgetArea},
    };
    for (auto const& [place, area] : areas) {
        QList<QDockWidget*> const docks = places_.value(place);
        addDockWidget(area, docks.front());
        for (qsizetype i = 1; i < docks.size(); ++i) {
            tabifyDockWidget(docks[i - 1], docks[i]);
        }
        docks.front()->raise();
    }
    sizeDocks();
}

void MainWindow::sizeDocks() {
    auto const first = [this](Place place) { return places_.value(place).front(); };
    // As wide as the texts of its tabs side by side at least, or they would be cut.
    auto const tabs = [this](Place place) {
        int sum = 0;
        for (QDockWidget const* const dock : places_.value(place)) {
            sum += fontMetrics().horizontalAdvance(dock->windowTitle()) +
                   style()->pixelMetric(QStyle::PM_TabBarTabHSpace) + tabFrame;
        }
        return sum;
    };
    auto const widest = [&](int share, Place upper, Place lower) {
        return std::max({width() * share / 100, tabs(upper), tabs(lower)});
    };
    resizeDocks({first(Place::LeftUpper), first(Place::RightUpper)},
                {widest(21, Place::LeftUpper, Place::LeftLower),
                 widest(23, Place::RightUpper, Place::RightLower)},
                Qt::Horizontal);
    resizeDocks({first(Place::LeftUpper), first(Place::LeftLower)}, {60, 40}, Qt::Vertical);
    resizeDocks({first(Place::RightUpper), first(Place::RightLower)}, {70, 30}, Qt::Vertical);
    resizeDocks({first(Place::Bottom)}, {height() * 3 / 10}, Qt::Vertical);
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (!isVisible()) { // it is about to be shown for the first time
        sizeDocks();
    }
}

void MainWindow::makeEditMenu() {
    Scene& scene = document_.scene();
    QMenu* const menu = menuBar()->addMenu(tr("&Edit"));
    undo_ = menu->addAction(tr("&Undo"), &scene, &Scene::undo);
    undo_->setObjectName("undo");
    undo_->setShortcut(QKeySequence("Ctrl+Z"));
    redo_ = menu->addAction(tr("&Redo"), &scene, &Scene::redo);
    redo_->setObjectName("redo");
    redo_->setShortcuts({QKeySequence("Ctrl+Shift+Z"), QKeySequence("Ctrl+Y")});
    auto const update = [this] {
        ZUndoStack const& stack = document_.scene().undoStack();
        undo_->setEnabled(stack.canUndo());
        undo_->setText(withText(tr("&Undo"), stack, stack.index() - 1));
        redo_->setEnabled(stack.canRedo());
        redo_->setText(withText(tr("&Redo"), stack, stack.index()));
    };
    connect(&scene, &Scene::historyChanged, this, update);
    update();
    menuBar()->addMenu(tr("&Colour"))->addActions(panels_.value("colours")->actions());
}

void MainWindow::makeViewMenu() {
    QMenu* const menu = menuBar()->addMenu(tr("&View"));
    for (QDockWidget* const dock : docks_) {
        menu->addAction(dock->toggleViewAction());
    }
    for (int i = 0; tabs_ && i < tabs_->count(); ++i) {
        menu->addAction(tabs_->tabText(i), this, [this, i] { tabs_->setCurrentIndex(i); });
    }
    menu->addSeparator();
    auto* const palettes = new QActionGroup(this);
    std::pair<QString, PaletteKind> const kinds[] = {
        {tr("Colours of the &System"), PaletteKind::System},
        {tr("&Dark"), PaletteKind::Dark},
        {tr("&Light"), PaletteKind::Light},
    };
    for (auto const& [text, kind] : kinds) {
        QAction* const action = palettes->addAction(text);
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [wanted = kind] { setPaletteKind(wanted); });
    }
    palettes->actions().front()->setChecked(true);
    menu->addActions(palettes->actions());
    menu->addSeparator();
    menu->addAction(tr("&Reset Layout"), this, &MainWindow::resetLayout);
    menu->addAction(tr("&Next Panel"), QKeySequence("F6"), this, [this] { walkPanels(1); });
    menu->addAction(tr("&Previous Panel"), QKeySequence("Shift+F6"), this,
                    [this] { walkPanels(-1); });
    menu->addAction(tr("&Find in Panel"), QKeySequence("Ctrl+F"), this, [this] {
        for (Panel* const panel : panels_) {
            if (panel->isAncestorOf(QApplication::focusWidget()) && panel->filterField()) {
                panel->filterField()->setFocus(Qt::ShortcutFocusReason);
                return;
            }
        }
        if (Panel* const colours = panels_.value("colours"); colours && colours->filterField()) {
            showPanel("colours");
            colours->filterField()->setFocus(Qt::ShortcutFocusReason);
        }
    });
}

void MainWindow::resetLayout() {
    for (QDockWidget* const dock : docks_) {
        dock->show();
    }
    restoreState(firstLayout_);
    arrange();
}

void MainWindow::walkPanels(int step) {
    QList<Panel*> shown;
    qsizetype at = -1;
    for (Panel* const panel : panels_) {
        if (panel->isVisible() && !panel->visibleRegion().isEmpty()) {
            if (panel->isAncestorOf(QApplication::focusWidget())) {
                at = shown.size();
            }
            shown += panel;
        }
    }
    if (shown.isEmpty()) {
        return;
    }
    qsizetype const next = at < 0 ? 0 : (at + step + shown.size()) % shown.size();
    Panel* const panel = shown[next];
    panel->setFocus(Qt::TabFocusReason);
    if (!panel->hasFocus() && !panel->isAncestorOf(QApplication::focusWidget())) {
        for (QWidget* const child : panel->findChildren<QWidget*>()) {
            if ((child->focusPolicy() & Qt::TabFocus) != 0 && child->isVisible() &&
                child->isEnabled()) {
                child->setFocus(Qt::TabFocusReason);
                break;
            }
        }
    }
}

void MainWindow::showState() {
    setWindowTitle(tr("%1[*] – zsg-workbench").arg(document_.name()));
    setWindowModified(document_.isModified());
    setWindowFilePath(document_.path());
}

} // namespace workbench
