#pragma once

#include "workbench/values/ParameterEdit.h"
#include "workbench/values/parameterValue.h"

#include <QScrollArea>

#include <vector>

namespace workbench {

class ParameterRow;
class Scene;

/// A list of parameters to edit, a row for each that is not null. How a change is written is the
/// owner's choice: recordedWriter() for what belongs to the scene, directWriter() for tools. It
/// follows the history; after any other change the owner calls refresh().
class ParameterRows final : public QScrollArea {
    Q_OBJECT

public:
    ParameterRows(Scene& scene, ParameterWriter writer, QWidget* parent = nullptr);
    ~ParameterRows() override;

    /// Each row stands for the parameters of one list: commonParameters() makes them of several
    /// subjects. Edits that are going on end.
    void setRows(std::vector<ParameterItems> const& rows);
    /// One subject.
    void setItems(ParameterItems const& items);

    /// Nothing is shown. Edits that are going on end, and nothing new is made: also for
    /// destructors.
    void clear();

    void refresh();
    [[nodiscard]] int rowCount() const { return static_cast<int>(rows_.size()); }
    /// Gives the focus to the parameter of that label or name; false when there is none.
    bool select(QString const& text);

private:
    Scene& scene_;
    ParameterWriter writer_;
    std::vector<ParameterRow*> rows_;
};

} // namespace workbench
