#pragma once

#include "workbench/values/ParameterEdit.h"
#include "workbench/values/parameterValue.h"

#include <QObject>

class QGridLayout;
class QLabel;
class QPoint;

namespace workbench {

class FieldBinding;
class Scene;
class ValueField;

/// One row of a list of parameters: what it is called, and a field for the value. It stands for one
/// parameter, or for the same one of several subjects.
class ParameterRow final : public QObject {
    Q_OBJECT

public:
    /// Adds itself to the end of the layout of `parent`, which owns it.
    ParameterRow(Scene& scene, ParameterItems items, ParameterWriter writer, QGridLayout& layout,
                 QWidget& parent);
    ~ParameterRow() override;

    [[nodiscard]] zsg::Parameter const& parameter() const { return parameter_; }
    /// Shows what the parameters hold now, and whether they can be edited.
    void refresh();
    void takeFocus();

private:
    void makeField(Scene& scene, ParameterItems items, ParameterWriter writer, QGridLayout& layout,
                   QWidget& parent);
    void makeLabelDrag();
    void openMenu(QPoint const& at);
    void copyValue() const;
    void pasteValue();

    Scene& scene_;
    zsg::Parameter parameter_; ///< the first one
    QLabel* label_;
    ValueField* field_ = nullptr; ///< null when there is no value
    FieldBinding* binding_ = nullptr;
};

} // namespace workbench
