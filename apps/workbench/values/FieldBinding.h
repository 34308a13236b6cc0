#pragma once

#include "workbench/values/ParameterEdit.h"
#include "workbench/values/parameterValue.h"

#include <QObject>

#include <memory>

namespace workbench {

class Scene;
class ValueField;

/// Ties a field to the parameters that it edits, all of one type: shows what they hold, and makes
/// one edit of everything that is done to the field in one go.
class FieldBinding final : public QObject {
    Q_OBJECT

public:
    /// `field` owns the binding.
    FieldBinding(Scene& scene, ValueField& field, ParameterItems items, ParameterWriter writer);
    ~FieldBinding() override;

    /// Other parameters; an edit that is going on ends.
    void setItems(ParameterItems items);
    [[nodiscard]] ParameterItems const& items() const { return items_; }

    /// Shows what the parameters hold now, unless an edit is going on that is newer.
    void refresh();
    /// One whole edit.
    void write(std::vector<std::shared_ptr<zsg::Variant const>> const& values);
    void writeAll(std::shared_ptr<zsg::Variant const> const& value);
    void reset();
    /// Whether Reset would change something.
    [[nodiscard]] bool isChanged() const;

private:
    void begin();
    [[nodiscard]] std::vector<std::shared_ptr<zsg::Variant const>> wantedNow() const;
    void end();
    void cancel();
    void push(EditDrag::Step step);

    Scene& scene_;
    ValueField& field_;
    ParameterItems items_;
    ParameterWriter writer_;
    std::vector<std::shared_ptr<zsg::Variant const>> before_;
    std::vector<std::shared_ptr<zsg::Variant const>> wanted_; ///< one for each item
    int edit_ = 0;
    std::unique_ptr<EditDrag> drag_; ///< ends first
};

} // namespace workbench
