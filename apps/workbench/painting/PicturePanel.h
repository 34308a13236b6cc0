#pragma once

#include "workbench/scene/Panel.h"

class QComboBox;
class QHBoxLayout;
class QLabel;
class QStackedWidget;

namespace workbench {

class Canvas;
class PaintView;
class Scene;

/// The painted surface, and which one it is. Its rows are the surfaces.
class PicturePanel final : public Panel {
    Q_OBJECT

public:
    PicturePanel(Scene& scene, Canvas& canvas, QWidget* parent = nullptr);

    [[nodiscard]] int rowCount() const override;
    bool select(QString const& text) override;

private:
    void makeActions(QHBoxLayout& bar);
    void showSurfaces();
    void makeSurface();

    Scene& scene_;
    Canvas& canvas_;
    QComboBox* surfaces_;
    QStackedWidget* pages_;
    PaintView* view_;
    QLabel* zoom_;
};

} // namespace workbench
