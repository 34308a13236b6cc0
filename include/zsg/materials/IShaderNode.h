#pragma once

#include "zsg/Export.h"
#include "zsg/core/Ids.h"

#include <QString>

#include <string>
#include <vector>

namespace zsg {

class IShaderNodeType;
class Variant;

/// A node of a material's shader graph. Implemented by the application; the library neither makes
/// nor calls it.
class ZSG_EXPORT IShaderNode {
public:
    virtual ~IShaderNode();

    [[nodiscard]] virtual ShaderNodeId id() const = 0;
    /// Borrowed; never null.
    [[nodiscard]] virtual IShaderNodeType const* type() const = 0;
    [[nodiscard]] virtual QString displayName() const = 0;
    virtual void setDisplayName(QString const& name) = 0;
    [[nodiscard]] virtual std::vector<std::string> outputNames() const = 0;
    /// What an input holds where nothing is connected to it, borrowed; null for an unknown input.
    [[nodiscard]] virtual Variant const* value(std::string const& input) const = 0;
    /// False when the input is unknown, is of another type, or has this value already.
    virtual bool setValue(std::string const& input, Variant const& value) = 0;
    /// The connections that end and that begin at the node.
    [[nodiscard]] virtual std::vector<ShaderEdgeId> incomingEdges() const = 0;
    [[nodiscard]] virtual std::vector<ShaderEdgeId> outgoingEdges() const = 0;
    /// Whether the graph's result depends on the node.
    [[nodiscard]] virtual bool isUsed() const = 0;
};

} // namespace zsg
