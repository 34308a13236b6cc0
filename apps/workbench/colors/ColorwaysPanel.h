#pragma once

#include "workbench/scene/Panel.h"

#include "nyxrender/Ids.h"

class QHBoxLayout;
class QTableView;

namespace workbench {

class ColorwayModel;
class Scene;

/// The board of colorways: which sub-colour each makes active, and what can be done with them.
class ColorwaysPanel final : public Panel {
    Q_OBJECT

public:
    explicit ColorwaysPanel(Scene& scene, QWidget* parent = nullptr);

    [[nodiscard]] int rowCount() const override;
    /// A colorway by its name.
    bool select(QString const& text) override;

    /// Makes a sub-colour the one of a cell; the invalid id takes the multi-colour out of the
    /// colorway.
    void setCell(QModelIndex const& cell, nyx::ColorId sub);

private:
    void makeActions(QHBoxLayout& bar);
    void chooseForCell(QModelIndex const& cell);
    [[nodiscard]] int column() const;
    [[nodiscard]] nyx::ColorwayId current() const;
    void create(bool asCopy);
    void apply();
    void rename();
    void toggleDeleted();

    Scene& scene_;
    ColorwayModel* model_;
    QTableView* view_;
};

} // namespace workbench
