#pragma once

#include "workbench/scene/Panel.h"

#include "nyxrender/Ids.h"

class QTreeView;

namespace workbench {

class LightLayerModel;
class Scene;

/// The list of light layers: make, rename, duplicate, invert, delete and restore them.
class LightLayersPanel final : public Panel {
    Q_OBJECT

public:
    explicit LightLayersPanel(Scene& scene, QWidget* parent = nullptr);

    /// The invalid id when none is selected.
    [[nodiscard]] nyx::LightLayerId current() const;

    [[nodiscard]] int rowCount() const override;
    bool select(QString const& text) override;

signals:
    /// The lights that are selected elsewhere are to go into a layer.
    void assignmentWanted(nyx::LightLayerId layer);

private:
    void makeActions();
    void setCurrent(nyx::LightLayerId layer);
    void update();

    Scene& scene_;
    LightLayerModel* model_;
    QTreeView* view_;
    QList<QAction*> making_; ///< what needs a place for one more layer
};

} // namespace workbench
