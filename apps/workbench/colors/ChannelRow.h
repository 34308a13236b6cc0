#pragma once

#include "workbench/colors/ChannelSlider.h"
#include "workbench/colors/ColorState.h"

#include <QObject>

class QDoubleSpinBox;
class QGridLayout;

namespace workbench {

/// One channel of a colour: its name, its bar, its number. How it is read and written stands in a
/// table; the row only knows which entry of it is its own.
class ChannelRow final : public QObject {
    Q_OBJECT

public:
    static constexpr int count = 10; ///< hue to brightness, red to blue, linear ones, alpha

    ChannelRow(int channel, QGridLayout& layout, QWidget& parent);

    [[nodiscard]] ChannelSlider& slider() { return *slider_; }
    [[nodiscard]] QDoubleSpinBox& number() { return *number_; }

    void show(ColorState const& state);
    /// Puts what the slider, or the number, says into `state`.
    void readSlider(ColorState& state) const;
    void readNumber(ColorState& state) const;

private:
    int channel_;
    ChannelSlider* slider_;
    QDoubleSpinBox* number_;
};

} // namespace workbench
