#pragma once

#include "values/WeavePatternData.h"

#include <QString>
#include <QStringView>

#include <optional>

/// The mask of a pattern's JSON text without the JSON library: a grid of a million cells is read
/// and written in the time in which the library does a few thousand. Only the form that toJson()
/// writes is known here; everything else is the library's.
namespace zsg {

/// Where a mask in that form stands in a text.
struct PlainMask {
    qsizetype first = 0; ///< its first digit
    qsizetype length = 0;

    [[nodiscard]] std::size_t count() const { return static_cast<std::size_t>(length + 1) / 2; }
};

/// Finds the only mask of a text. Nothing when it is not certain that there is just this one, and
/// in this form.
[[nodiscard]] std::optional<PlainMask> findPlainMask(QStringView text);

/// Reads the digits of a mask into a grid of as many cells.
void readPlainMask(QStringView mask, WeaveGrid& grid);

/// Appends the cells, separated by commas.
void appendMask(QString& text, WeaveGrid const& grid);

} // namespace zsg
