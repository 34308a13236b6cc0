#pragma once

#include <QList>

namespace zsg {

/// A list of floats as a value of its own type, with everything that the list offers; its storage
/// is shared until written. The list's own operator== may compare bytes; values are compared with
/// equals(), number by number.
class FloatArray : public QList<float> {
public:
    using QList<float>::QList;
};

} // namespace zsg
