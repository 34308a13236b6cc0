#pragma once

#include "zcore/ZUndoStack.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

/// Drives undoable edits to and fro and compares what they leave in the scene, as lines of text.
/// A fixture derives from it, or has one as a member.
class UndoRoundTrip {
public:
    /// A pattern (regular expression) and what it is shortened to, in the order of their use.
    using Abbreviations = std::vector<std::pair<std::string, std::string>>;

    /// One table row: an edit, and what it must do.
    struct Edit {
        std::function<void()> run;
        std::string history; ///< that it leaves
        std::string changes; ///< in the dump
        std::string left{};  ///< of them after undo
    };

    /// `stack` is borrowed; `dump` shows all that edits can change, one line per thing.
    UndoRoundTrip(ZUndoStack& stack, std::function<std::string()> dump,
                  Abbreviations abbreviations = {});

    /// The lines of the dump that `before` does not have, with "; " between them, ' in place of ",
    /// and what is frequent shortened.
    [[nodiscard]] std::string since(std::string const& before) const;

    /// The texts of what can be undone, a plus sign before those of macros.
    [[nodiscard]] std::string history() const;

    /// Does, undoes, redoes and undoes each; the stack is cleared after each.
    void check(std::vector<Edit> const& edits);

private:
    ZUndoStack& stack_;
    std::function<std::string()> dump_;
    Abbreviations abbreviations_;
};
