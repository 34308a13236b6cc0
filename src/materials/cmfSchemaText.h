#pragma once

#include "zsg/materials/ZCMFSchema.h"

#include <QString>
#include <QStringView>

namespace zsg {

// The text of a saved schema file. It is, to the letter, what QJsonDocument writes in its indented
// form.

[[nodiscard]] QString cmfSchemaText(ZCMFSchema const& schema);

/// Reads a text that is laid out like that. False, and `schema` is to be thrown away, for every
/// other text, for names with escapes or vertical bars, for repeated names, and for kinds other
/// than 0 to 7: those are the JSON parser's to read or to refuse.
[[nodiscard]] bool readCMFSchemaText(QStringView text, ZCMFSchema& schema);

} // namespace zsg
