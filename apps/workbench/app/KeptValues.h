#pragma once

#include "workbench/values/ValueStore.h"

#include <QString>

#include <set>
#include <string>

namespace workbench {

/// Keeps the weaves, gradients, curves and metals of a store in a file between two runs of the
/// program, because a scene has no place for them. Messages are empty on success.
class KeptValues {
public:
    /// The store is borrowed. Nothing is read yet.
    KeptValues(ValueStore& store, QString path);

    /// Adds what the file holds. A file that cannot be read is put aside, as PATH.bad or
    /// PATH.bad2, and said.
    [[nodiscard]] std::string load();
    /// Writes the values, unless they are those that were read or written last. What another
    /// program has added to the file meanwhile stays in it.
    [[nodiscard]] std::string save();

private:
    ValueStore& store_;
    QString path_;
    std::set<ValueStore::Key> known_; ///< as of the last load or save
    QByteArray written_;
    bool isInTheWay_ =
        false; ///< the file can be neither read nor moved: nothing is written over it
};

} // namespace workbench
