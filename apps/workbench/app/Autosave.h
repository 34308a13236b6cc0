#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>

#include <memory>
#include <string>
#include <vector>

namespace workbench {

/// Copies of one document's unsaved state in a folder of the program's own, so that a crash loses
/// little and the user's file is never touched. A copy is FOLDER/<uuid>.json with what it is a copy
/// of in <uuid>.origin.json beside it; <uuid>.lock says that its program still runs. Main thread.
class Autosave {
public:
    /// A copy that a program left behind which no longer runs.
    struct Orphan {
        QString file;     ///< the copy
        QString original; ///< the file that was edited; empty when it had none
        QDateTime time;   ///< when the copy was made
    };

    /// The folder is made with the first copy.
    explicit Autosave(QString folder);
    ~Autosave();
    Autosave(Autosave const&) = delete;
    Autosave& operator=(Autosave const&) = delete;

    /// Replaces the copy. The result is a message for people, empty on success.
    [[nodiscard]] std::string write(QString const& original, std::string const& scene);
    /// Removes the copy, because its content is saved or not wanted.
    void discard();
    /// Takes a copy over that was left behind: it is this document's from now on. False when
    /// another program has done so already.
    bool adopt(Orphan const& orphan);
    /// Another document begins: what was written for the last one stays when it was not discarded.
    void startAnew();

    /// The newest first. Those older than 30 days are removed on the way.
    [[nodiscard]] static std::vector<Orphan> orphans(QString const& folder);
    static void remove(Orphan const& orphan);

private:
    [[nodiscard]] QString path(QString const& ending) const;

    QString folder_;
    QString base_; ///< path of the copy without its ending
    std::unique_ptr<QLockFile> lock_;
};

} // namespace workbench
