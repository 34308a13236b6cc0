#pragma once

#include "workbench/colors/ColorState.h"
#include "workbench/values/ValueField.h"

class QFrame;
class QLineEdit;
class QToolButton;

namespace workbench {

class ColorWheel;

/// A Color or ColorAlpha: its swatch, which opens a wheel, and its hexadecimal value.
class ColorField final : public ValueField {
    Q_OBJECT

public:
    explicit ColorField(QWidget* parent = nullptr);

    void showValue(zsg::Variant const& value) override;
    void showMixed(zsg::Variant const& one) override;
    [[nodiscard]] std::unique_ptr<zsg::Variant> wanted() const override;

private:
    void showState(bool mixed);
    void openWheel();
    void commit();

    QLineEdit* hex_; ///< made before the swatch: Tab enters here, and goes on from here
    QToolButton* swatch_;
    QFrame* popup_;
    ColorWheel* wheel_;
    ColorState state_;
    std::shared_ptr<zsg::Variant const> present_;
};

} // namespace workbench
