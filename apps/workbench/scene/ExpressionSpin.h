#pragma once

#include <QDoubleSpinBox>

#include <optional>

namespace workbench {

/// A number field that calculates: "255/3", "1,5*(2+4)". What is no number when it is confirmed is
/// told of in the window's status bar, and the number before comes back. The wheel works only with
/// the focus, and a change is told once for a number that was typed.
class ExpressionSpin : public QDoubleSpinBox {
    Q_OBJECT

public:
    explicit ExpressionSpin(QWidget* parent = nullptr);

    [[nodiscard]] double valueFromText(QString const& text) const override;
    [[nodiscard]] QValidator::State validate(QString& text, int& at) const override;
    void fixup(QString& text) const override;

protected:
    void wheelEvent(QWheelEvent* event) override;

    /// Without the suffix and blanks around it.
    [[nodiscard]] QString bare(QString text) const;
    /// The number that is typed, the nearest whole one without decimals; nothing when it is none.
    [[nodiscard]] std::optional<double> typed(QString const& text) const;
};

} // namespace workbench
