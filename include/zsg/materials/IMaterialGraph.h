#pragma once

#include "zsg/Export.h"
#include "zsg/core/Ids.h"

#include <QString>

#include <string>
#include <vector>

namespace zsg {

class IShaderEdge;
class IShaderNode;
class IShaderNodeType;

/// The shader graph of one material: nodes, and connections from their outputs to inputs of others.
/// It never forms a cycle, and an input has one connection at most. Implemented by the application;
/// the library neither makes nor calls it.
///
/// What is returned by pointer is borrowed and valid until it is removed; null stands for an
/// unknown id. An unknown id makes an operation fail: false, or the invalid id.
class ZSG_EXPORT IMaterialGraph {
public:
    virtual ~IMaterialGraph();

    [[nodiscard]] virtual MaterialId materialId() const = 0;
    /// The kinds of nodes that can be added.
    [[nodiscard]] virtual std::vector<IShaderNodeType const*> nodeTypes() const = 0;

    /// In the order of their making.
    [[nodiscard]] virtual std::vector<ShaderNodeId> nodes() const = 0;
    [[nodiscard]] virtual IShaderNode* node(ShaderNodeId id) = 0;
    [[nodiscard]] virtual IShaderNode const* node(ShaderNodeId id) const = 0;
    /// The first node of a display name.
    [[nodiscard]] virtual ShaderNodeId findNode(QString const& displayName) const = 0;
    /// The node whose output is the material's look.
    [[nodiscard]] virtual ShaderNodeId rootNode() const = 0;
    virtual bool setRootNode(ShaderNodeId id) = 0;

    virtual ShaderNodeId addNode(IShaderNodeType const& type) = 0;
    /// A node with the same values, without connections.
    virtual ShaderNodeId duplicateNode(ShaderNodeId id) = 0;
    /// Takes out a node with its connections; the root node cannot be removed.
    virtual bool removeNode(ShaderNodeId id) = 0;
    /// Takes out all nodes on which the root node does not depend; how many they were.
    virtual int removeUnusedNodes() = 0;

    /// In the order of their making.
    [[nodiscard]] virtual std::vector<ShaderEdgeId> edges() const = 0;
    [[nodiscard]] virtual IShaderEdge const* edge(ShaderEdgeId id) const = 0;
    /// The connection that ends at an input.
    [[nodiscard]] virtual ShaderEdgeId edgeInto(ShaderNodeId target,
                                                std::string const& input) const = 0;
    /// Whether connect() would succeed.
    [[nodiscard]] virtual bool canConnect(ShaderNodeId source, std::string const& output,
                                          ShaderNodeId target, std::string const& input) const = 0;
    /// Connects an output to an input in place of what was connected to it. Fails when the types do
    /// not fit or a cycle would arise.
    virtual ShaderEdgeId connect(ShaderNodeId source, std::string const& output,
                                 ShaderNodeId target, std::string const& input) = 0;
    virtual bool disconnect(ShaderEdgeId id) = 0;

    /// Changes between the two reach the renderer together. They nest.
    virtual void beginChanges() = 0;
    virtual void endChanges() = 0;
};

} // namespace zsg
