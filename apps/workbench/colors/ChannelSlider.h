#pragma once

#include <QAbstractSlider>
#include <QColor>

#include <array>
#include <optional>

namespace workbench {

/// A bar for one number, such as a channel of a colour; with a ramp it is painted with the colours
/// that its values would give, else it is filled up to the value. A press
/// alone changes nothing; a move sets the value under the pointer. The wheel works only with the
/// focus, so that scrolling past changes nothing.
class ChannelSlider final : public QAbstractSlider {
    Q_OBJECT

public:
    static constexpr int steps = 1000; ///< the value is 0 to steps

    explicit ChannelSlider(QWidget* parent = nullptr);

    using Ramp = std::array<QColor, 13>;
    /// The colours at equal distances from the smallest value to the largest.
    void setRamp(Ramp const& ramp);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void cancelled();
    /// The value changed by a key or the wheel.
    void stepped(int value);

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    std::optional<Ramp> ramp_;
};

} // namespace workbench
