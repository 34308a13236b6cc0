#pragma once

#include "host/metalSamples.h"

#include <QWidget>

#include <vector>

namespace workbench {

/// n and k of a metal over the wavelength, the reflectance with an axis of its own on the right,
/// and below it as a strip of grays.
class MetalPlot final : public QWidget {
    Q_OBJECT

public:
    explicit MetalPlot(QWidget* parent = nullptr);

    /// By wavelength.
    void setSamples(std::vector<app::MetalSample> samples);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QRectF area() const;
    void paintAxes(QPainter& painter) const;
    void paintLines(QPainter& painter) const;
    void paintStrip(QPainter& painter) const;

    std::vector<app::MetalSample> samples_; ///< finite ones
    double from_ = 0;
    double to_ = 0;
    double top_ = 1; ///< of n and k
};

} // namespace workbench
