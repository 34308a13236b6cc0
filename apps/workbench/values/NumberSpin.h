#pragma once

#include "workbench/scene/ExpressionSpin.h"

namespace workbench {

/// A number as it is stored: no digit more and none less than it takes to get it back, and no
/// limits but the type's own.
class NumberSpin final : public ExpressionSpin {
    Q_OBJECT

public:
    enum class Kind { Whole, Single, Double };

    explicit NumberSpin(Kind kind, QWidget* parent = nullptr);

    /// Shows a number without a signal; mixed shows a word in its place.
    void showNumber(double number, bool mixed = false);

    [[nodiscard]] QString textFromValue(double number) const override;
    [[nodiscard]] double valueFromText(QString const& text) const override;
    [[nodiscard]] QValidator::State validate(QString& text, int& at) const override;
    void stepBy(int steps) override;

private:
    Kind kind_;
    double first_ = 0; ///< of mixed ones
};

} // namespace workbench
