#pragma once

#include "zcore/Export.h"
#include "zcore/ZCommandId.h"

#include <QCoreApplication>
#include <QString>

/// One undoable edit. Made by whoever edits, owned by the ZUndoStack from push() on. Main thread.
class ZCORE_EXPORT ZUndoCommand {
    Q_DECLARE_TR_FUNCTIONS(ZUndoCommand)

public:
    explicit ZUndoCommand(ZCommandId id, QString text = {});
    virtual ~ZUndoCommand();
    ZUndoCommand(ZUndoCommand const&) = delete;
    ZUndoCommand& operator=(ZUndoCommand const&) = delete;

    /// Takes the edit back, or makes it (again). False means that it could not be done.
    virtual bool undo() = 0;
    virtual bool redo() = 0;
    /// What the user reads in the undo history.
    [[nodiscard]] virtual QString text() const;
    /// Asked of the earlier command when `other` has just been done after it: true when this
    /// command now stands for both, and its undo takes both back. The base never merges.
    virtual bool mergeWith(ZUndoCommand const* other);
    /// Whether this command, or any command inside it, has that id.
    [[nodiscard]] virtual bool hasIdRecursive(ZCommandId id) const;

    [[nodiscard]] ZCommandId id() const { return id_; }
    void setText(QString const& text) { text_ = text; }

private:
    ZCommandId id_;
    QString text_;
};
