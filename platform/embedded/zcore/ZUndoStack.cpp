#include "zcore/ZUndoStack.h"

#include "zcore/ZUndoCommand.h"

#include <QLoggingCategory>

#include <algorithm>
#include <cstddef>
#include <exception>
#include <iterator>
#include <utility>
#include <vector>

namespace {

Q_LOGGING_CATEGORY(undoLog, "zcore.undo")

using CommandPtr = std::unique_ptr<ZUndoCommand>;

/// Deletes the newest commands of a level down to `count`, newest first: a later command may refer
/// to what an earlier one holds.
template <class Level>
void shrink(Level& level, std::size_t count) {
    while (level.size() > count) {
        level.pop_back();
    }
}

/// Makes room for one command more, so that keeping one that has been done cannot fail.
template <class Level>
void makeRoom(Level& level) {
    if (level.size() == level.capacity()) {
        level.reserve(std::max<std::size_t>(8, 2 * level.size()));
    }
}

/// Runs a redo(). When it throws, no entry may stand for what it had changed by then, and nobody
/// else could take that back: its undo() does.
bool redoOrTakeBack(ZUndoCommand& command) {
    try {
        return command.redo();
    } catch (...) {
        try {
            command.undo();
        } catch (...) { // the first exception says what went wrong
        }
        throw;
    }
}

/// Several commands that are one entry.
class Macro final : public ZUndoCommand {
public:
    explicit Macro(QString const& text) : ZUndoCommand(ZCommandId::Macro, text) {}
    ~Macro() override { shrink(children, 0); }

    bool undo() override { return runAll(children.rbegin(), children.rend(), &ZUndoCommand::undo); }
    bool redo() override { return runAll(children.begin(), children.end(), &ZUndoCommand::redo); }

    [[nodiscard]] bool hasIdRecursive(ZCommandId id) const override {
        return ZUndoCommand::hasIdRecursive(id) ||
               std::ranges::any_of(children,
                                   [id](auto const& child) { return child->hasIdRecursive(id); });
    }

    /// Takes over what an inner macro held. Macros hold no macros, so however deep they were
    /// nested, no call on one goes deep.
    void absorb(std::vector<CommandPtr>&& inner) {
        if (children.empty()) {
            children = std::move(inner);
        } else {
            children.insert(children.end(), std::make_move_iterator(inner.begin()),
                            std::make_move_iterator(inner.end()));
        }
        sealed = children.size();
    }

    std::vector<CommandPtr> children;
    std::size_t sealed = 0; // so many were in an inner macro or come before one: none merges

private:
    // A child that fails, even by throwing, does not keep the others from running: a macro that
    // stopped half way would leave a state that no entry stands for.
    template <class Iterator>
    static bool runAll(Iterator child, Iterator end, bool (ZUndoCommand::*operation)()) {
        bool ok = true;
        std::exception_ptr first;
        for (; child != end; ++child) {
            try {
                ok = (child->get()->*operation)() && ok;
            } catch (...) {
                first = first ? first : std::current_exception();
            }
        }
        if (first) {
            std::rethrow_exception(first);
        }
        return ok;
    }
};

/// Sets a flag for a scope.
class [[nodiscard]] Raised {
public:
    explicit Raised(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
    ~Raised() { flag_ = before_; }
    Raised(Raised const&) = delete;
    Raised& operator=(Raised const&) = delete;

private:
    bool& flag_;
    bool before_;
};

} // namespace

class ZUndoStack::Impl {
public:
    [[nodiscard]] int count() const { return static_cast<int>(entries.size() - gone); }
    [[nodiscard]] ZUndoCommand& entry(int i) const {
        return *entries[gone + static_cast<std::size_t>(i)];
    }

    [[nodiscard]] bool isClean() const {
        return clean == index &&
               std::ranges::all_of(open, [](auto const& macro) { return macro->children.empty(); });
    }

    /// Whether a call has to be refused; says so in one warning.
    [[nodiscard]] bool refuses(char const* call, bool alsoInMacro) const {
        bool const inMacro = alsoInMacro && !open.empty();
        if (!executing && !inMacro) {
            return false;
        }
        qCWarning(undoLog, "%s refused: %s", call,
                  executing ? "a command is running" : "a macro is open");
        return true;
    }

    /// Deletes the newest entries down to `newCount`.
    void dropBack(int newCount) {
        if (clean > newCount) {
            clean = -1;
        }
        shrink(entries, gone + static_cast<std::size_t>(newCount));
    }

    /// Deletes the oldest entries.
    void dropFront(int number) {
        for (; number > 0; --number) {
            CommandPtr const oldest = std::move(entries[gone++]);
            --index;
            clean = std::max(clean - 1, -1);
        }
        // Empty places are let go many at a time, so that a full history costs no more per push.
        if (gone > entries.size() / 2) {
            entries.erase(entries.begin(), entries.begin() + static_cast<std::ptrdiff_t>(gone));
            gone = 0;
        }
    }

    [[nodiscard]] bool isOverLimit() const { return limit > 0 && count() > limit; }

    void trim() {
        if (!isOverLimit()) {
            return;
        }
        // An undone entry can only be redone upon all those before it: once no done entry is left
        // to go, the far end of what can be redone goes instead.
        dropFront(std::min(count() - limit, index));
        dropBack(std::max(limit, index));
    }

    /// In the level that it will come to.
    void makeRoomForNext() {
        if (open.empty()) {
            makeRoom(entries);
        } else {
            makeRoom(open.back()->children);
        }
    }

    /// Takes a command that has just been done into the innermost open level.
    void append(CommandPtr command) {
        dropBack(index);
        // Kept before it is offered: when mergeWith throws, the command stays undoable on its own.
        // There is room for it.
        if (!open.empty()) {
            Macro& macro = *open.back();
            macro.children.push_back(std::move(command));
            if (macro.children.size() > macro.sealed + 1 && mergesNewest(macro.children)) {
                macro.children.pop_back();
            }
            return;
        }
        bool const mayMerge = index > 0 && clean != index && entry(index - 1).id() != macroId &&
                              command->id() != macroId;
        entries.push_back(std::move(command));
        ++index;
        if (mayMerge && mergesNewest(entries)) {
            --index; // first, for a command that asks while it is deleted
            entries.pop_back();
        }
        trim();
    }

    /// Runs entries until the index is `target`. Every step moves the index, whatever comes of it,
    /// but for a redo() that throws.
    bool move(int target) {
        bool ok = true;
        try {
            while (index != target) {
                ok = step(target > index) && ok;
            }
        } catch (...) {
            notify();
            throw;
        }
        notify();
        return ok;
    }

    /// The last thing that a call does: the callback may call the stack, or replace itself.
    void notify() const {
        if (callback) {
            auto const running = callback;
            (*running)();
        }
    }

    std::vector<CommandPtr> entries; // the first `gone` places are empty
    std::size_t gone = 0;
    std::vector<std::unique_ptr<Macro>> open; // not entries yet; innermost last
    int index = 0;
    int clean = 0;
    int limit = 0;
    bool executing = false;
    std::shared_ptr<std::function<void()> const> callback;

private:
    static constexpr ZCommandId macroId = ZCommandId::Macro;

    /// Offers the newest command of a level to the one before it.
    static bool mergesNewest(std::vector<CommandPtr> const& level) {
        return level[level.size() - 2]->mergeWith(level.back().get());
    }

    bool step(bool forward) {
        Raised const running(executing);
        if (forward) {
            bool const ok = redoOrTakeBack(entry(index));
            ++index;
            return ok;
        }
        struct Move {
            int& index;
            ~Move() { --index; }
        } const move{index};
        return entry(index - 1).undo();
    }
};

ZUndoStack::ZUndoStack() : impl_(std::make_unique<Impl>()) {}

ZUndoStack::~ZUndoStack() {
    Q_ASSERT_X(impl_->open.empty(), "~ZUndoStack", "a macro is open: who ends it comes too late");
    impl_->executing = true; // for commands that call the stack while they are deleted
    impl_->index = 0;
    shrink(impl_->open, 0);
    shrink(impl_->entries, 0);
}

bool ZUndoStack::push(ZUndoCommand* command) {
    CommandPtr owned(command);
    if (!owned || impl_->refuses("push", false)) {
        return false;
    }
    try {
        Raised const running(impl_->executing);
        // Ends before `running` does: what its destructor asks of the stack is refused.
        CommandPtr doing = std::move(owned);
        impl_->makeRoomForNext();
        if (!redoOrTakeBack(*doing)) {
            return false;
        }
        impl_->append(std::move(doing));
    } catch (...) {
        impl_->notify();
        throw;
    }
    impl_->notify();
    return true;
}

void ZUndoStack::beginMacro(QString const& text) {
    if (impl_->refuses("beginMacro", false)) {
        return;
    }
    impl_->open.push_back(std::make_unique<Macro>(text));
    try {
        impl_->notify();
    } catch (...) {
        // The caller does not know that it would have a macro to end.
        if (!impl_->open.empty()) {
            impl_->open.pop_back();
        }
        throw;
    }
}

void ZUndoStack::endMacro(QString const& text) {
    if (impl_->refuses("endMacro", false)) {
        return;
    }
    if (impl_->open.empty()) {
        qCWarning(undoLog, "endMacro ignored: no macro is open");
        return;
    }
    Macro& ending = *impl_->open.back();
    if (!text.isEmpty()) {
        ending.setText(text);
    }
    // The macro stays open until nothing can fail any more that would lose its commands.
    if (impl_->open.size() > 1) {
        if (!ending.children.empty()) {
            impl_->open[impl_->open.size() - 2]->absorb(std::move(ending.children));
        }
        impl_->open.pop_back();
    } else {
        makeRoom(impl_->entries);
        std::unique_ptr<Macro> macro = std::move(impl_->open.back());
        impl_->open.pop_back();
        if (!macro->children.empty()) {
            Raised const running(impl_->executing);
            impl_->append(std::move(macro));
        }
    }
    impl_->notify();
}

bool ZUndoStack::undo() {
    return !impl_->refuses("undo", true) && impl_->index > 0 && impl_->move(impl_->index - 1);
}

bool ZUndoStack::redo() {
    return !impl_->refuses("redo", true) && impl_->index < impl_->count() &&
           impl_->move(impl_->index + 1);
}

bool ZUndoStack::goTo(int index) {
    return !impl_->refuses("goTo", true) && index >= 0 && index <= impl_->count() &&
           (index == impl_->index || impl_->move(index));
}

bool ZUndoStack::clear() {
    if (impl_->refuses("clear", true)) {
        return false;
    }
    {
        Raised const running(impl_->executing);
        impl_->index = 0;
        impl_->dropBack(0);
        impl_->clean = 0;
    }
    impl_->notify();
    return true;
}

bool ZUndoStack::clearRedo() {
    if (impl_->refuses("clearRedo", true)) {
        return false;
    }
    if (impl_->index < impl_->count()) {
        {
            Raised const running(impl_->executing);
            impl_->dropBack(impl_->index);
        }
        impl_->notify();
    }
    return true;
}

int ZUndoStack::count() const { return impl_->count(); }
int ZUndoStack::index() const { return impl_->index; }

bool ZUndoStack::canUndo() const {
    return impl_->index > 0 && impl_->open.empty() && !impl_->executing;
}

bool ZUndoStack::canRedo() const {
    return impl_->index < impl_->count() && impl_->open.empty() && !impl_->executing;
}

QString ZUndoStack::text(int entry) const {
    ZUndoCommand const* const found = command(entry);
    return found ? found->text() : QString();
}

ZUndoCommand const* ZUndoStack::command(int entry) const {
    return entry >= 0 && entry < count() ? &impl_->entry(entry) : nullptr;
}

void ZUndoStack::setClean() {
    if (!impl_->refuses("setClean", true) &&
        std::exchange(impl_->clean, impl_->index) != impl_->index) {
        impl_->notify();
    }
}

bool ZUndoStack::isClean() const { return impl_->isClean(); }
int ZUndoStack::cleanIndex() const { return impl_->clean; }

void ZUndoStack::setLimit(int limit) {
    impl_->limit = std::max(limit, 0);
    if (impl_->executing || !impl_->isOverLimit()) {
        return;
    }
    {
        Raised const running(impl_->executing);
        impl_->trim();
    }
    impl_->notify();
}

int ZUndoStack::limit() const { return impl_->limit; }

void ZUndoStack::setChangeCallback(std::function<void()> callback) {
    impl_->callback =
        callback ? std::make_shared<std::function<void()> const>(std::move(callback)) : nullptr;
}

bool ZUndoStack::isExecuting() const { return impl_->executing; }
int ZUndoStack::macroDepth() const { return static_cast<int>(impl_->open.size()); }
