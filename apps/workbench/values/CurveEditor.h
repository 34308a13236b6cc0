#pragma once

#include "workbench/values/ValueField.h"

class QComboBox;

namespace workbench {

class CurvePlot;
class NumberSpin;

/// A curve: the plot with its keys, and the numbers of the point that is worked on.
class CurveEditor final : public ValueField {
    Q_OBJECT

public:
    explicit CurveEditor(QWidget* parent = nullptr);

    void showValue(zsg::Variant const& value) override;
    [[nodiscard]] std::unique_ptr<zsg::Variant> wanted() const override;

private:
    void showPoint();
    void readPoint();

    CurvePlot* plot_;
    NumberSpin* x_;
    NumberSpin* y_;
    QComboBox* type_;
};

} // namespace workbench
