#pragma once

#include "painting/BrushFields.h"
#include "painting/BrushNodeIndex.h"
#include "zsg/painting/IPainterBrush.h"

#include "nyxrender/nyxBrush_node.h"

#include <QHash>

#include <string_view>

class nyxRT_api;

namespace zsg {

/// The parameters of brushTable.h over one graph of nodes. The graph is trusted: the values of its
/// records are of the types that the table gives their keys. Neither copied nor moved, because its
/// parameters point into it.
class ZPainterBrush final : public IPainterBrush {
public:
    /// Indexes the graph and makes the parameters; does not read the nodes. `root` may be null.
    ZPainterBrush(nyx::painter::nyxBrush_node* root, nyxRT_api* rtApi, nyx::MaterialId material);
    ~ZPainterBrush() override;

    [[nodiscard]] Parameter parameter(QString const& name) const override;
    void updateFromNode() override;
    void applyToNode() override;
    [[nodiscard]] nyx::painter::nyxBrush_node* brushNode() const override;
    [[nodiscard]] QString stencilFilePath() const override;
    [[nodiscard]] float rotation() const override;
    [[nodiscard]] QList<Parameter> parameters() const override;
    [[nodiscard]] nyx::MaterialId materialId() const override;

    /// Takes a parameter under its name, in place of one of the same name, and returns it. One that
    /// is flagged Invalid is not taken: a debug message, and an invalid parameter comes back.
    Parameter addParameter(Parameter const& parameter);

private:
    void addTable();
    /// A node's value; null when the graph lacks the key.
    template <class T>
    T* nodeValue(std::string_view key, T nyx::painter::nyxBrush_param::Value::*member) const;
    void loadFile(std::string_view key, QString const& path);

    nyx::painter::nyxBrush_node* root_;
    nyxRT_api* rtApi_;
    BrushNodeIndex nodes_;
    QHash<QString, Parameter> parameters_;
    BrushFields fields_;
    nyx::MaterialId material_;
};

} // namespace zsg
