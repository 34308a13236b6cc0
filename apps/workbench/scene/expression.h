#pragma once

#include <QLocale>
#include <QString>

#include <optional>

namespace workbench {

/// The value of what is typed into a number field: a number as `locale` or as files write it, or
/// a calculation with such numbers, + - * / and parentheses. Nothing when it is none, or has no
/// finite value.
[[nodiscard]] std::optional<double> evaluate(QString const& text, QLocale const& locale);

/// Whether a character can be part of what evaluate() takes.
[[nodiscard]] bool isOfExpression(QChar c, QLocale const& locale);

} // namespace workbench
