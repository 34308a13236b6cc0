#pragma once

#include "zcore/Export.h"

#include <QString>

#include <functional>
#include <memory>

class ZUndoCommand;

/// The user's history of edits. Main thread only. Entries are single commands or macros; entries
/// below index() are done, those from index() on are undone and can be redone.
///
/// While a command runs its undo() or redo(), every push, undo, redo, goTo and clear is refused (a
/// pushed command is deleted), and so are undo, redo, goTo and clear while a macro is open. A refusal
/// writes one warning and returns false.
class ZCORE_EXPORT ZUndoStack {
public:
    ZUndoStack();
    virtual ~ZUndoStack();
    ZUndoStack(ZUndoStack const&) = delete;
    ZUndoStack& operator=(ZUndoStack const&) = delete;

    /// Takes ownership of `command` and runs its redo(). When that fails the command is deleted, the
    /// stack stays as it was, and the result is false. Otherwise what could be redone is dropped, and
    /// the command is offered to the one before it on the same level (mergeWith; never across a clean
    /// mark or into a macro): merged it is deleted, else it becomes an entry. Null gives false.
    virtual bool push(ZUndoCommand* command);
    /// Collects what is pushed until the matching endMacro() into one entry. Macros nest.
    virtual void beginMacro(QString const& text);
    /// Ends the innermost macro; a non-empty text replaces the one that it began with. A macro in
    /// which nothing was pushed leaves no entry. Ignored when no macro is open.
    virtual void endMacro(QString const& text);

    /// Undoes the entry below index(), or redoes the one at it. Every command of a macro runs even
    /// when one fails; false when any failed or there is nothing to do. The index moves all the same
    /// when there was an entry.
    bool undo();
    bool redo();
    /// Undoes or redoes until index() is `index` (0 to count()); false when out of range or when any
    /// step failed.
    bool goTo(int index);
    /// Deletes all entries; the empty stack is clean.
    bool clear();

    [[nodiscard]] int count() const;
    [[nodiscard]] int index() const;
    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;
    /// The text of an entry; empty when out of range.
    [[nodiscard]] QString text(int entry) const;
    /// The entry itself, borrowed; null when out of range.
    [[nodiscard]] ZUndoCommand const* command(int entry) const;

    /// Marks the present state as the saved one.
    void setClean();
    [[nodiscard]] bool isClean() const;
    /// The index that is clean, or -1 when that state can no longer be reached.
    [[nodiscard]] int cleanIndex() const;

    /// At most this many entries are kept, the oldest go first; 0 keeps all.
    void setLimit(int limit);
    [[nodiscard]] int limit() const;

    /// Called after every change of entries, index or clean mark that a top-level call made. It may
    /// call the stack.
    void setChangeCallback(std::function<void()> callback);

    /// Whether a command's undo() or redo() is running.
    [[nodiscard]] bool isExecuting() const;
    /// How many macros are open.
    [[nodiscard]] int macroDepth() const;

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};
