#pragma once

#include "zsg/Export.h"
#include "zsg/core/Ids.h"

#include <string>

namespace zsg {

/// A connection of a material's shader graph, from an output of one node to an input of another.
/// Implemented by the application; the library neither makes nor calls it.
class ZSG_EXPORT IShaderEdge {
public:
    virtual ~IShaderEdge();

    [[nodiscard]] virtual ShaderEdgeId id() const = 0;
    [[nodiscard]] virtual ShaderNodeId sourceNode() const = 0;
    [[nodiscard]] virtual std::string sourceOutput() const = 0;
    [[nodiscard]] virtual ShaderNodeId targetNode() const = 0;
    [[nodiscard]] virtual std::string targetInput() const = 0;
};

} // namespace zsg
