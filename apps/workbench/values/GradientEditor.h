#pragma once

#include "workbench/values/ValueField.h"

class QCheckBox;

namespace workbench {

class ColorField;
class GradientStrip;
class NumberSpin;

/// A gradient: the strip with its stops, and the numbers and the color of one of them.
class GradientEditor final : public ValueField {
    Q_OBJECT

public:
    explicit GradientEditor(QWidget* parent = nullptr);

    void showValue(zsg::Variant const& value) override;
    [[nodiscard]] std::unique_ptr<zsg::Variant> wanted() const override;

private:
    void makeStop();
    void connectColor();
    void showStop();
    /// The current stop gets what the fields say.
    void readStop();

    GradientStrip* strip_;
    QCheckBox* blend_;
    NumberSpin* location_;
    NumberSpin* left_;
    NumberSpin* right_;
    ColorField* color_;
};

} // namespace workbench
