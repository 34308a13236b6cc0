#pragma once

#include "workbench/scene/Panel.h"

class QTableView;

namespace workbench {

class HistoryModel;
class Scene;

/// The list of edits; choosing one goes to the state after it.
class HistoryPanel final : public Panel {
    Q_OBJECT

public:
    explicit HistoryPanel(Scene& scene, QWidget* parent = nullptr);

    [[nodiscard]] int rowCount() const override;
    bool select(QString const& text) override;

private:
    void showCurrent();
    void goToCurrent();

    Scene& scene_;
    HistoryModel* model_;
    QTableView* view_;
    bool following_ = false; ///< the view follows the history, not the other way round
};

} // namespace workbench
