#include "workbench/app/FileActions.h"

#include "workbench/app/Document.h"
#include "workbench/scene/commitTyping.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSignalBlocker>
#include <QTimer>

namespace workbench {

namespace {

constexpr char recentKey[] = "recentFiles";
constexpr qsizetype mostRecent = 10;
constexpr int retryTime = 500; // milliseconds

QString filter() { return FileActions::tr("Scenes (*.json);;All files (*)"); }

} // namespace

FileActions::FileActions(Document& document, QMainWindow& window)
    : QObject(&window), document_(document), window_(window) {
    QMenu* const menu = window.menuBar()->addMenu(tr("&File"));
    menu->addAction(tr("&Open…"), QKeySequence::Open, this, &FileActions::askWhatToOpen);
    recent_ = menu->addMenu(tr("Open &Recent"));
    connect(recent_, &QMenu::aboutToShow, this, &FileActions::fillRecent);
    menu->addSeparator();
    menu->addAction(tr("&Save"), QKeySequence::Save, this, &FileActions::save);
    menu->addAction(tr("Save &As…"), QKeySequence("Ctrl+Shift+S"), this,
                    &FileActions::askWhereToSave);
    menu->addSeparator();
    menu->addAction(tr("&Quit"), QKeySequence("Ctrl+Q"), &window, &QWidget::close);
    connect(&document_, &Document::stateChanged, this, &FileActions::watch);
    connect(&document_, &Document::fileMatches, this,
            [this] { known_ = QFileInfo(document_.path()).lastModified(); });
    connect(&watcher_, &QFileSystemWatcher::fileChanged, this, &FileActions::checkFile);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &FileActions::checkFile);
    watch();
}

bool FileActions::open(QString const& path) {
    if (!mayLeave()) {
        return false;
    }
    std::string const message = document_.open(path);
    if (!message.empty()) {
        showProblem(tr("The scene cannot be opened."), message);
        return false;
    }
    remember();
    return true;
}

bool FileActions::save() {
    return document_.path().isEmpty() ? askWhereToSave() : saveAs(document_.path());
}

bool FileActions::saveAs(QString const& path) {
    commitTyping();
    if (!mayReplace(path)) {
        return false;
    }
    std::string const message = document_.saveAs(path);
    if (!message.empty()) {
        showProblem(tr("The scene cannot be saved; it is as it was."), message);
        return false;
    }
    document_.scene().say(tr("Saved %1.").arg(document_.name()));
    remember();
    return true;
}

/// A watch can miss a change: folders of other machines tell of none.
bool FileActions::mayReplace(QString const& path) {
    QFileInfo const file(path);
    if (!file.exists() || file.absoluteFilePath() != document_.path() ||
        file.lastModified() == known_) {
        return true;
    }
    // The other question about it has to wait until this one is through.
    QSignalBlocker const quiet(watcher_);
    QTimer::singleShot(retryTime, this, &FileActions::checkFile);
    return QMessageBox::question(
               &window_, tr("The file has changed"),
               tr("Another program has changed %1. Write over it?").arg(document_.name()),
               QMessageBox::Save | QMessageBox::Cancel, QMessageBox::Cancel) == QMessageBox::Save;
}

bool FileActions::mayLeave() {
    commitTyping();
    document_.scene().endDrags();
    if (document_.isModified()) {
        auto const answer = QMessageBox::question(
            &window_, tr("Unsaved changes"),
            tr("%1 has changes that are not saved.").arg(document_.name()),
            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
        if (answer == QMessageBox::Save) {
            return save();
        }
        return answer == QMessageBox::Discard;
    }
    return true;
}

void FileActions::offerOrphans(QString const& folder) {
    for (Autosave::Orphan const& orphan : Autosave::orphans(folder)) {
        QString const name =
            orphan.original.isEmpty() ? tr("a scene without a file") : orphan.original;
        QMessageBox box(QMessageBox::Question, tr("Unsaved work was found"),
                        tr("The program ended without saving %1. A copy of %2 is there.")
                            .arg(name, QLocale().toString(orphan.time, QLocale::ShortFormat)),
                        QMessageBox::NoButton, &window_);
        auto* const opened = box.addButton(tr("Open the Copy"), QMessageBox::AcceptRole);
        box.addButton(tr("Keep It for Later"), QMessageBox::RejectRole);
        auto* const removed = box.addButton(tr("Delete It"), QMessageBox::DestructiveRole);
        box.setDefaultButton(opened);
        box.exec();
        if (box.clickedButton() == removed) {
            Autosave::remove(orphan);
        } else if (box.clickedButton() == opened && mayLeave()) {
            std::string const message = document_.recover(orphan);
            if (message.empty()) {
                return; // one window shows one scene; the others wait for the next start
            }
            showProblem(tr("The copy cannot be opened."), message);
        }
    }
}

QStringList FileActions::recentFiles() { return QSettings().value(recentKey).toStringList(); }

void FileActions::askWhatToOpen() {
    QString const folder = QFileInfo(document_.path()).path();
    QString const path = QFileDialog::getOpenFileName(&window_, tr("Open"), folder, filter());
    if (!path.isEmpty()) {
        open(path);
    }
}

bool FileActions::askWhereToSave() {
    QString const path =
        QFileDialog::getSaveFileName(&window_, tr("Save As"), document_.path(), filter());
    return !path.isEmpty() && saveAs(path);
}

void FileActions::remember() {
    QStringList files = recentFiles();
    files.removeAll(document_.path());
    files.prepend(document_.path());
    QSettings().setValue(recentKey, QStringList(files.mid(0, mostRecent)));
}

void FileActions::fillRecent() {
    recent_->clear();
    for (QString const& path : recentFiles()) {
        QAction* const action = recent_->addAction(QString(path).replace('&', "&&"), this,
                                                   [this, path] { open(path); });
        action->setEnabled(QFileInfo::exists(path));
    }
    recent_->setToolTipsVisible(true);
}

void FileActions::watch() {
    QString const path = document_.path();
    // The folder as well: who writes a file anew ends the watch over the old one.
    QStringList const wanted =
        path.isEmpty() ? QStringList() : QStringList{path, QFileInfo(path).path()};
    QStringList const watched = watcher_.files() + watcher_.directories();
    if (watched == wanted) {
        return;
    }
    if (!watched.isEmpty()) {
        watcher_.removePaths(watched);
    }
    if (!wanted.isEmpty()) {
        watcher_.addPaths(wanted);
    }
}

void FileActions::checkFile() {
    QString const path = document_.path();
    QFileInfo const file(path);
    if (path.isEmpty() || !file.exists() || file.lastModified() == known_) {
        return watch();
    }
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget()) {
        // Whoever asks there works on the scene that is to be replaced.
        QTimer::singleShot(retryTime, this, &FileActions::checkFile);
        return;
    }
    watch();
    known_ = file.lastModified();
    auto const answer = QMessageBox::question(
        &window_, tr("The file has changed"),
        document_.isModified()
            ? tr("Another program has changed %1. Load it, and lose what is not saved here?")
                  .arg(document_.name())
            : tr("Another program has changed %1. Load it?").arg(document_.name()));
    if (answer == QMessageBox::Yes) {
        if (std::string const message = document_.open(path); !message.empty()) {
            showProblem(tr("The scene cannot be opened."), message);
        }
    }
}

void FileActions::showProblem(QString const& what, std::string const& message) {
    QMessageBox::warning(&window_, what, what + "\n\n" + QString::fromStdString(message));
}

} // namespace workbench
