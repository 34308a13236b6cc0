#pragma once

#include "workbench/values/ValueStore.h"

#include <QString>

namespace workbench {

/// What was read of a file, and what is to be said of it: why there is no value, or what the reader
/// of measurements found odd.
struct LoadedValue {
    ValueStore::Kind kind = ValueStore::Kind::Weave;
    std::shared_ptr<zsg::Variant const> value; ///< null when the file holds none
    QString messages;
};

/// Reads a weave (.json), a measured metal (.nk, .ior, .csv), or the text of a gradient or a curve
/// (any other). Nothing is thrown.
[[nodiscard]] LoadedValue loadValue(QString const& path);

} // namespace workbench
