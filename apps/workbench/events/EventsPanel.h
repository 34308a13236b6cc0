#pragma once

#include "workbench/scene/Panel.h"

class QLabel;
class QLineEdit;
class QTableView;

namespace workbench {

class EventModel;
class Scene;

/// What the scene announces, as it comes: to be searched, held still, cleared and copied.
class EventsPanel final : public Panel {
    Q_OBJECT

public:
    explicit EventsPanel(Scene& scene, QWidget* parent = nullptr);

    [[nodiscard]] int rowCount() const override;
    bool select(QString const& text) override;
    [[nodiscard]] QWidget* filterField() override;

private:
    void makeView();
    void copy();
    void showCount();

    EventModel* model_;
    QTableView* view_;
    QLineEdit* filter_;
    QLabel* count_;
    bool following_ = true; ///< the newest row is in sight, and stays so
};

} // namespace workbench
