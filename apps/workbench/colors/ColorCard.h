#pragma once

#include "nyxrender/Ids.h"

#include <QWidget>

#include <vector>

namespace workbench {

class Scene;

/// Every plain colour of the scene with its name, value and uses, as wide as there is room, and as
/// high as that takes. Only what is seen is read and drawn.
class ColorCard final : public QWidget {
    Q_OBJECT

public:
    explicit ColorCard(Scene& scene, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void read();
    void layOut();
    [[nodiscard]] int columns() const;
    [[nodiscard]] QSize cell() const;

    Scene& scene_;
    std::vector<nyx::ColorId> ids_;
};

} // namespace workbench
