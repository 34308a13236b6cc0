#include "zcore/ZUndoCommand.h"
#include "zcore/ZUndoStack.h"

#include <vector>

// Without merging, limits and the saved state: nobody asks for them here.

ZUndoCommand::ZUndoCommand(ZCommandId id, QString text) : id_(id), text_(std::move(text)) {}
ZUndoCommand::~ZUndoCommand() = default;
QString ZUndoCommand::text() const { return text_; }
bool ZUndoCommand::mergeWith(ZUndoCommand const*) { return false; }
bool ZUndoCommand::hasIdRecursive(ZCommandId id) const { return id == id_; }

class ZUndoStack::Impl {
public:
    struct Entry {
        QString text;
        std::vector<std::unique_ptr<ZUndoCommand>> commands;
    };
    std::vector<Entry> entries;
    std::size_t index = 0;
    int depth = 0;
    bool isExecuting = false;
};

ZUndoStack::ZUndoStack() : impl_(std::make_unique<Impl>()) {}
ZUndoStack::~ZUndoStack() = default;

bool ZUndoStack::push(ZUndoCommand* command) {
    std::unique_ptr<ZUndoCommand> owned(command);
    if (!owned || impl_->isExecuting) {
        return false;
    }
    impl_->isExecuting = true;
    bool const done = owned->redo();
    impl_->isExecuting = false;
    if (done) {
        if (impl_->depth == 0) {
            impl_->entries.resize(impl_->index);
            impl_->entries.push_back({owned->text(), {}});
            ++impl_->index;
        }
        impl_->entries.back().commands.push_back(std::move(owned));
    }
    return done;
}

void ZUndoStack::beginMacro(QString const& text) {
    if (impl_->depth++ == 0) {
        impl_->entries.resize(impl_->index);
        impl_->entries.push_back({text, {}});
        ++impl_->index;
    }
}

void ZUndoStack::endMacro(QString const& text) {
    if (--impl_->depth > 0) {
        return;
    }
    if (!text.isEmpty()) {
        impl_->entries.back().text = text;
    }
    if (impl_->entries.back().commands.empty()) {
        impl_->entries.pop_back();
        --impl_->index;
    }
}

bool ZUndoStack::undo() {
    if (impl_->index == 0) {
        return false;
    }
    bool done = true;
    impl_->isExecuting = true;
    auto& commands = impl_->entries[--impl_->index].commands;
    for (auto command = commands.rbegin(); command != commands.rend(); ++command) {
        done = (*command)->undo() && done;
    }
    impl_->isExecuting = false;
    return done;
}

bool ZUndoStack::redo() {
    if (impl_->index == impl_->entries.size()) {
        return false;
    }
    bool done = true;
    impl_->isExecuting = true;
    for (auto const& command : impl_->entries[impl_->index++].commands) {
        done = command->redo() && done;
    }
    impl_->isExecuting = false;
    return done;
}

bool ZUndoStack::clear() {
    impl_->entries.clear();
    impl_->index = 0;
    return true;
}

int ZUndoStack::index() const { return static_cast<int>(impl_->index); }
QString ZUndoStack::text(int entry) const {
    return impl_->entries[static_cast<std::size_t>(entry)].text;
}
bool ZUndoStack::isExecuting() const { return impl_->isExecuting; }
