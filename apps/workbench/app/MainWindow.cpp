#include "workbench/app/MainWindow.h"

#include "workbench/app/ConsolePanel.h"
#include "workbench/app/Document.h"
#include "workbench/app/FileActions.h"
#include "workbench/app/palettes.h"
#include "workbench/colors/ColorEditor.h"
#include "workbench/colors/ColorsPanel.h"
#include "workbench/colors/ColorwaysPanel.h"
#include "workbench/colors/MultiColorPanel.h"
#include "workbench/events/EventsPanel.h"
#include "workbench/history/HistoryPanel.h"

#include "zcore/ZUndoStack.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QStyle>

namespace workbench {

namespace {

constexpr int messageTime = 8000; // milliseconds

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
    makePanels();
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
}

Panel* MainWindow::panel(QString const& name) const { return panels_.value(name); }

bool MainWindow::showPanel(QString const& name) {
    QDockWidget* const dock = docks_.value(name);
    if (dock) {
        dock->show();
        dock->raise();
    }
    return dock;
}

QPixmap MainWindow::picture(QString const& panelName) {
    document_.scene().flush();
    if (panelName.isEmpty()) {
        return grab();
    }
    return showPanel(panelName) ? docks_.value(panelName)->grab() : QPixmap();
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
}

void MainWindow::addPanel(QString const& name, QString const& title, Qt::DockWidgetArea area,
                          Panel* panel) {
    auto* const dock = new QDockWidget(title, this);
    dock->setObjectName(name);
    dock->setWidget(panel);
    panel->setAccessibleName(title);
    panels_.insert(name, panel);
    docks_.insert(name, dock);
    addDockWidget(area, dock);
}

void MainWindow::makePanels() {
    Scene& scene = document_.scene();
    auto* const colours = new ColorsPanel(scene);
    auto* const editor = new ColorEditor(scene);
    connect(colours, &ColorsPanel::currentChanged, editor, &ColorEditor::setColor);
    addPanel("colours", tr("Colours"), Qt::LeftDockWidgetArea, colours);
    auto* const multi = new MultiColorPanel(scene);
    connect(colours, &ColorsPanel::currentChanged, multi, &MultiColorPanel::setColor);
    addPanel("multicolour", tr("Multi-Colour"), Qt::LeftDockWidgetArea, multi);
    addPanel("coloreditor", tr("Colour Editor"), Qt::RightDockWidgetArea, editor);
    addPanel("history", tr("History"), Qt::RightDockWidgetArea, new HistoryPanel(scene));
    addPanel("colorways", tr("Colorways"), Qt::BottomDockWidgetArea, new ColorwaysPanel(scene));
    addPanel("console", tr("Console"), Qt::BottomDockWidgetArea, new ConsolePanel(document_));
    addPanel("events", tr("Events"), Qt::BottomDockWidgetArea, new EventsPanel(scene));
}

void MainWindow::arrange() {
    splitDockWidget(docks_["colorways"], docks_["console"], Qt::Vertical);
    tabifyDockWidget(docks_["console"], docks_["events"]);
    docks_["console"]->raise();
    resizeDocks({docks_["colours"], docks_["colorways"], docks_["coloreditor"]}, {30, 45, 25},
                Qt::Horizontal);
    resizeDocks({docks_["colours"], docks_["multicolour"]}, {60, 40}, Qt::Vertical);
    resizeDocks({docks_["colorways"], docks_["console"]}, {65, 35}, Qt::Vertical);
    resizeDocks({docks_["coloreditor"], docks_["history"]}, {70, 30}, Qt::Vertical);
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
    static_cast<ColorsPanel*>(panels_.value("colours"))
        ->fillMenu(*menuBar()->addMenu(tr("&Colour")));
}

void MainWindow::makeViewMenu() {
    QMenu* const menu = menuBar()->addMenu(tr("&View"));
    for (QDockWidget* const dock : docks_) {
        menu->addAction(dock->toggleViewAction());
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
    QList<QDockWidget*> shown;
    qsizetype at = -1;
    for (QDockWidget* const dock : docks_) {
        if (dock->isVisible() && !dock->visibleRegion().isEmpty()) {
            if (dock->isAncestorOf(QApplication::focusWidget())) {
                at = shown.size();
            }
            shown += dock;
        }
    }
    if (shown.isEmpty()) {
        return;
    }
    qsizetype const next = at < 0 ? 0 : (at + step + shown.size()) % shown.size();
    QWidget* const panel = shown[next]->widget();
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
