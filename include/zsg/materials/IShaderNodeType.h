#pragma once

#include "zsg/Export.h"

#include <string>
#include <vector>

namespace zsg {

/// A kind of shader node. Implemented by the application; the library neither makes nor calls it.
class ZSG_EXPORT IShaderNodeType {
public:
    virtual ~IShaderNodeType();

    /// The renderer's name of the kind.
    [[nodiscard]] virtual std::string name() const = 0;
    /// The inputs that a node of this kind has, in the order in which they are shown.
    [[nodiscard]] virtual std::vector<std::string> inputNames() const = 0;
};

} // namespace zsg
