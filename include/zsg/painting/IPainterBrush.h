#pragma once

#include "zsg/Export.h"
#include "zsg/values/Parameter.h"

#include "nyxrender/Ids.h"

#include <QList>
#include <QString>

namespace nyx::painter {
class nyxBrush_node;
}

namespace zsg {

/// A brush as the user interface sees it: a flat list of named parameters over the renderer's graph
/// of brush nodes. IPainterManager makes brushes. Main thread.
///
/// Some parameters are bound to the nodes: setting one changes the node at once, though the
/// renderer paints with it only after applyToNode(). The others are bound to fields of the brush,
/// which applyToNode() writes into the nodes and updateFromNode() reads from them. A new brush has
/// not read its nodes: until updateFromNode() its fields hold the defaults (black, 60 % hardness,
/// 100 % opacity and flow, no pen pressure, first option of each choice, no files), and
/// applyToNode() writes those over what the nodes say.
///
/// Opacity, hardness and flow have a parameter of both sorts. applyToNode() writes the percent
/// field last, so it wins.
///
/// Nothing is undoable and nothing is announced. Parameters point into the brush and its nodes and
/// must not be used after either is gone; their limits are for the interface, no setter enforces
/// them.
class ZSG_EXPORT IPainterBrush {
public:
    virtual ~IPainterBrush();

    /// The parameter of that name; an invalid one when the brush has none, which is so for each
    /// node parameter that the graph lacks.
    [[nodiscard]] virtual Parameter parameter(QString const& name) const = 0;

    /// Copies the node values into the fields: colour, space, colour selection and mode, the three
    /// percentages, pen pressure, the file paths. A field whose node parameter is missing stays.
    virtual void updateFromNode() = 0;

    /// Writes the fields into the nodes, has the renderer load both image files (an empty path
    /// too), and tells it that each node has changed. The colour selection is decided here: shader
    /// when there is one, else texture when there is a texture path, else the solid colour,
    /// whatever was chosen. Missing node parameters are skipped.
    virtual void applyToNode() = 0;

    /// The root of the graph, owned by the renderer's scene; null when it could not be made.
    [[nodiscard]] virtual nyx::painter::nyxBrush_node* brushNode() const = 0;

    /// The value of "basic_stencil_filepath".
    [[nodiscard]] virtual QString stencilFilePath() const = 0;

    /// The value of "basic_rotation", degrees; 0 when the graph has none.
    [[nodiscard]] virtual float rotation() const = 0;

    /// All parameters, in no order that means anything.
    [[nodiscard]] virtual QList<Parameter> parameters() const = 0;

    /// The material that the brush paints for, as it was given.
    [[nodiscard]] virtual nyx::MaterialId materialId() const = 0;

protected:
    IPainterBrush();
    IPainterBrush(IPainterBrush const&) = delete;
    IPainterBrush& operator=(IPainterBrush const&) = delete;
};

} // namespace zsg
