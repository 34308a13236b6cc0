#pragma once

#include "workbench/scene/Panel.h"

#include "nyxrender/Ids.h"

class QLabel;
class QListView;

namespace workbench {

class Scene;
class SubColorModel;

/// The sub-colours of the multi-colour that was selected last; it stays when a plain colour is
/// selected, so that one can be dragged here.
class MultiColorPanel final : public Panel {
    Q_OBJECT

public:
    explicit MultiColorPanel(Scene& scene, QWidget* parent = nullptr);

    /// Shows the colour when it is a multi-colour.
    void setColor(nyx::ColorId id);

    [[nodiscard]] int rowCount() const override;
    bool select(QString const& text) override;

private:
    void showTitle();
    void activate();
    void removeSelected();
    void move(int step);

    Scene& scene_;
    SubColorModel* model_;
    QListView* view_;
    QLabel* title_;
};

} // namespace workbench
