#pragma once

#include "workbench/scene/Panel.h"

#include <set>

class QPointF;
class QTreeView;

namespace workbench {

class Canvas;
class PaintLayerModel;
class Scene;

/// The layers of the painted surface, the topmost first; the current one is painted on.
class LayersPanel final : public Panel {
    Q_OBJECT

public:
    LayersPanel(Scene& scene, Canvas& canvas, QWidget* parent = nullptr);

    [[nodiscard]] int rowCount() const override;
    bool select(QString const& text) override;

private:
    void makeView();
    void makeEyes(Scene& scene);
    void showCurrent();
    void chooseBackground();
    [[nodiscard]] int row() const;

    PaintLayerModel* model_;
    QTreeView* view_;
    std::set<int> crossed_; ///< rows of the eyes that are dragged over
    bool shows_ = false;    ///< what becomes of them
    bool following_ = false;
};

} // namespace workbench
