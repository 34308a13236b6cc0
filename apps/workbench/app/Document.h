#pragma once

#include "host/Host.h"
#include "host/Interpreter.h"
#include "workbench/app/Autosave.h"
#include "workbench/app/EmbeddedContents.h"
#include "workbench/scene/Scene.h"
#include "workbench/values/ValueStore.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>

namespace workbench {

/// One scene with its host, its history and its file. Messages for people are empty on success.
/// Main thread; there may be several.
class Document final : public QObject {
    Q_OBJECT

public:
    /// An empty scene without a file. Copies of unsaved changes go to the folder.
    explicit Document(QString const& autosaveFolder);
    ~Document() override;

    [[nodiscard]] app::Host& host() { return host_; }
    [[nodiscard]] Scene& scene() { return scene_; }
    /// What commands and people have given a name, in this program.
    [[nodiscard]] ValueStore& values() { return values_; }
    [[nodiscard]] app::Interpreter& interpreter() { return interpreter_; }

    /// Replaces the scene by that of a file, and drops what was not saved of the one before; on
    /// failure all stays as it was.
    [[nodiscard]] std::string open(QString const& path);
    /// The same for a copy that was left behind: it has unsaved changes and no file yet, and the
    /// copy is the document's own from then on.
    [[nodiscard]] std::string recover(Autosave::Orphan const& orphan);
    /// Writes the scene to a file, which is the document's from then on.
    [[nodiscard]] std::string saveAs(QString const& path);

    /// Runs a script of commands, or one command, which may write to `out`. Whatever is edited
    /// continuously ends before.
    int runScript(std::string const& path, std::ostream& out, std::ostream& errors);
    void runCommand(std::string const& line, std::ostream& out);

    /// Empty for a scene that was never saved, and for one that was recovered.
    [[nodiscard]] QString const& path() const { return path_; }
    /// What the title shows.
    [[nodiscard]] QString name() const;
    [[nodiscard]] bool isModified() const;

    /// Writes the copy for after a crash, when there are changes that it lacks.
    void autosave();
    /// Does so again and again from now on; a new document every two minutes.
    void setAutosaveInterval(std::chrono::seconds interval);
    /// The unsaved changes are not wanted.
    void discardChanges() { autosave_.discard(); }

signals:
    /// Path, name, or whether there are unsaved changes.
    void stateChanged();
    /// The file holds what the scene does: it was loaded or saved a moment ago.
    void fileMatches();

private:
    class CommandRun;

    void takeOver(zsg::ISceneGraph* root);
    void loadedFrom(QString const& path);
    void savedTo(QString const& path);
    void noteChange();
    bool writeCopy();

    app::Host host_;
    app::Interpreter interpreter_{host_};
    EmbeddedContents contents_{host_};
    Scene scene_;
    ValueStore values_;
    Autosave autosave_;
    QTimer autosaveTimer_;
    int roots_ = 0; ///< so many have begun or ended
    QString path_;
    QString recoveredFrom_; ///< the file that a recovered copy is of
    bool isRecovered_ = false;
    bool keepsUnsaved_ = false; ///< while commands run that may replace a scene with changes
    bool changedUnrecorded_ = false;
    bool changedSinceAutosave_ = false;
    std::optional<std::size_t> unmodified_; ///< hash of the scene while nothing is unsaved
};

} // namespace workbench
