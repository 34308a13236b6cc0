#pragma once

#include "workbench/scene/Panel.h"

#include <QTimer>

#include <memory>

class QComboBox;
class QHBoxLayout;
class QLabel;

namespace zsg {
class IPainterBrush;
}

namespace workbench {

class Canvas;
class ParameterRows;
class Scene;

/// The settings of the brush, and a stroke that shows them. They are a tool's and stay out of the
/// history: there is Reset, and there are presets.
class BrushPanel final : public Panel {
    Q_OBJECT

public:
    BrushPanel(Scene& scene, Canvas& canvas, QWidget* parent = nullptr);
    ~BrushPanel() override;

    [[nodiscard]] int rowCount() const override;
    bool select(QString const& text) override;

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void makePresets(QHBoxLayout& bar);
    void listPresets();
    void savePreset();
    void showBrush();
    void drawPreview();

    Scene& scene_;
    Canvas& canvas_;
    QComboBox* presets_;
    QLabel* preview_;
    ParameterRows* rows_;
    QTimer soon_; ///< a preview for all settings that change in one turn
    std::shared_ptr<zsg::IPainterBrush> brush_;
};

} // namespace workbench
