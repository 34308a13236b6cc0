#pragma once

#include "workbench/scene/Panel.h"
#include "workbench/values/ValueStore.h"

class QListWidget;

namespace workbench {

class ParameterRows;
class Scene;

/// The parameters of what is selected: of a set of settings, or of values that have a name. Several
/// of one type are edited as one.
class ParametersPanel final : public Panel {
    Q_OBJECT

public:
    /// `settings` is shown as one subject under that title. The store is borrowed.
    ParametersPanel(Scene& scene, ValueStore& store, QString const& title,
                    QList<zsg::Parameter> const& settings, QWidget* parent = nullptr);

    /// Of the parameters.
    [[nodiscard]] int rowCount() const override;
    /// A subject, or else a parameter of those that are shown.
    bool select(QString const& text) override;

private:
    void follow();
    void showSelected();
    [[nodiscard]] ParameterItems itemsAt(int row);

    ValueStore& store_;
    ParameterItems settings_;
    std::vector<ValueStore::Key> keys_; ///< from the second row on
    std::vector<zsg::Type> types_;      ///< of the keys' values
    QListWidget* subjects_;
    ParameterRows* rows_;
};

} // namespace workbench
