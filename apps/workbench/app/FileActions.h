#pragma once

#include "workbench/app/Autosave.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>

class QMainWindow;
class QMenu;

namespace workbench {

class Document;

/// The File menu: which scene the window shows and where it is kept, and the questions that nobody
/// can lose work without having answered.
class FileActions final : public QObject {
    Q_OBJECT

public:
    FileActions(Document& document, QMainWindow& window);

    /// Opens a file when the present scene may be left. False when it was not opened; the reason
    /// stands in a dialog.
    bool open(QString const& path);
    /// False when it was not saved.
    bool save();
    bool saveAs(QString const& path);
    /// Asks about unsaved changes: true when they are saved or not wanted. Their copy is kept until
    /// the scene is really left.
    [[nodiscard]] bool mayLeave();
    /// The document's file goes to the head of the recent ones.
    void remember();
    /// Offers what programs that did not come to their end have left in the folder.
    void offerOrphans(QString const& folder);

    /// Up to ten, the newest first; those that are gone stay.
    [[nodiscard]] static QStringList recentFiles();

private:
    void askWhatToOpen();
    bool askWhereToSave();
    void fillRecent();
    void watch();
    void checkFile();
    [[nodiscard]] bool mayReplace(QString const& path);
    void showProblem(QString const& what, std::string const& message);

    Document& document_;
    QMainWindow& window_;
    QMenu* recent_;
    QFileSystemWatcher watcher_;
    QDateTime known_; ///< when the document's file changed last that we know of
};

} // namespace workbench
