#pragma once

#include "workbench/values/ValueField.h"

#include <optional>
#include <utility>

namespace workbench {

class ChannelSlider;
class NumberSpin;

/// One number of an Integer, Float or Double: a bar where it has a span, and the number with its
/// unit. A colour temperature has the bar in its colours.
class NumberField final : public ValueField {
    Q_OBJECT

public:
    explicit NumberField(zsg::Parameter const& parameter, QWidget* parent = nullptr);

    void showValue(zsg::Variant const& value) override;
    void showMixed(zsg::Variant const& one) override;
    [[nodiscard]] std::unique_ptr<zsg::Variant> wanted() const override;

    /// A drag of something else, such as the label, now `part` of the span away from its beginning.
    void beginDrag();
    void dragBy(double part);
    void endDrag(bool given);

private:
    void showNumber(double number, bool mixed);
    void makeBar(bool isKelvin);

    zsg::Type type_;
    std::optional<std::pair<double, double>> span_;
    double number_ = 0;
    double dragged_ = 0; ///< what it was when the drag began
    ChannelSlider* bar_ = nullptr;
    NumberSpin* spin_;
};

} // namespace workbench
