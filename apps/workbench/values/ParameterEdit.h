#pragma once

#include "workbench/scene/EditDrag.h"
#include "zsg/values/Parameter.h"
#include "zsg/values/Variant.h"

#include "zcore/ZUndoCommand.h"

#include <functional>
#include <memory>
#include <vector>

namespace workbench {

class Scene;

/// What is to be written: parameters with the values that they get.
struct ParameterChange {
    zsg::Parameter parameter;
    std::shared_ptr<zsg::Variant const> value;
};

/// One write of an edit. Those of one edit have the same number, and the last one says so.
struct ParameterWrite {
    std::vector<ParameterChange> changes;
    EditDrag::Step step = EditDrag::Step::Last;
    int edit = 0;
};
using ParameterWriter = std::function<void(ParameterWrite const&)>;

/// Changes parameters of the scene, and back. The writes of one edit merge.
class ParameterEdit final : public ZUndoCommand {
    Q_DECLARE_TR_FUNCTIONS(ParameterEdit)

public:
    /// Numbers from 1000 on are the applications' own.
    static constexpr ZCommandId commandId{1001};

    explicit ParameterEdit(ParameterWrite write);

    bool undo() override;
    bool redo() override;
    bool mergeWith(ZUndoCommand const* other) override;

    /// Whether more writes of the edit may follow.
    [[nodiscard]] bool isOpenFor(int edit) const;

private:
    ParameterWrite write_;
    std::vector<std::shared_ptr<zsg::Variant const>> before_;
};

/// Writes through the scene's history. What changes nothing is not pushed.
[[nodiscard]] ParameterWriter recordedWriter(Scene& scene);

/// Writes without a history, as for tools; `written` is called after each write.
[[nodiscard]] ParameterWriter directWriter(std::function<void()> written);

} // namespace workbench
