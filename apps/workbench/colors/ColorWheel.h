#pragma once

#include <QImage>
#include <QWidget>

namespace workbench {

/// A ring of hues around a square of saturation (to the right) and brightness (upwards), for the
/// pointer and for keys: arrows move in the square, with Ctrl round the ring. Values are 0 to 1.
/// It only says what the user wants; the owner sets the values.
class ColorWheel final : public QWidget {
    Q_OBJECT

public:
    explicit ColorWheel(QWidget* parent = nullptr);

    void setHsv(float hue, float saturation, float brightness);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void pressed();
    void moved(float hue, float saturation, float brightness);
    void released();
    void cancelled();
    /// As moved(), by a key.
    void stepped(float hue, float saturation, float brightness);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    enum class Part { None, Ring, Square };

    [[nodiscard]] QPointF centre() const;
    [[nodiscard]] double outerRadius() const;
    [[nodiscard]] double innerRadius() const;
    [[nodiscard]] QRectF square() const;
    [[nodiscard]] bool takePart(QPointF const& at);
    void follow(QPointF const& at);
    void drawRing();

    float hue_ = 0;
    float saturation_ = 0;
    float brightness_ = 0;
    Part part_ = Part::None; ///< that is dragged
    QImage ring_;
};

} // namespace workbench
