#include "workbench/values/ParameterEdit.h"

#include "workbench/scene/Scene.h"
#include "workbench/values/parameterValue.h"

#include "zcore/ZUndoStack.h"

#include <algorithm>
#include <utility>

namespace workbench {

ParameterEdit::ParameterEdit(ParameterWrite write)
    : ZUndoCommand(commandId), write_(std::move(write)) {
    for (ParameterChange const& change : write_.changes) {
        before_.push_back(valueOf(change.parameter));
    }
    setText(tr("Set %1").arg(write_.changes.front().parameter.displayName()));
}

bool ParameterEdit::undo() {
    for (std::size_t i = 0; i < before_.size(); ++i) {
        assign(write_.changes[i].parameter, *before_[i]);
    }
    return true;
}

bool ParameterEdit::redo() {
    for (ParameterChange const& change : write_.changes) {
        assign(change.parameter, *change.value);
    }
    return true;
}

bool ParameterEdit::mergeWith(ZUndoCommand const* other) {
    if (other->id() != commandId) {
        return false;
    }
    auto const& next = static_cast<ParameterEdit const&>(*other);
    if (!isOpenFor(next.write_.edit)) {
        return false;
    }
    write_ = next.write_;
    return true;
}

bool ParameterEdit::isOpenFor(int edit) const {
    return write_.step == EditDrag::Step::Open && write_.edit == edit;
}

ParameterWriter recordedWriter(Scene& scene) {
    return [&scene](ParameterWrite const& write) {
        ZUndoStack& stack = scene.undoStack();
        ZUndoCommand const* const last = stack.command(stack.index() - 1);
        bool const isOpen = last && last->id() == ParameterEdit::commandId &&
                            static_cast<ParameterEdit const*>(last)->isOpenFor(write.edit);
        // Those of an edit that is going on have to have the same parameters each time.
        bool const changes = std::ranges::any_of(write.changes, [](ParameterChange const& change) {
            auto const now = valueOf(change.parameter);
            return now && !isSame(*now, *change.value);
        });
        if (changes || isOpen) {
            stack.push(std::make_unique<ParameterEdit>(write).release());
        }
    };
}

ParameterWriter directWriter(std::function<void()> written) {
    return [written = std::move(written)](ParameterWrite const& write) {
        for (ParameterChange const& change : write.changes) {
            assign(change.parameter, *change.value);
        }
        written();
    };
}

} // namespace workbench
