#pragma once

#include "nyxrender/Export.h"
#include "nyxrender/Span.h"

class nyxShader;

namespace nyx::painter {

class nyxBrush_node;

/// A parameter of a brush node. Its address is stable for the life of the node.
struct nyxBrush_param {
    char const* name = nullptr;
    int type = 0; ///< a type code of nyxScene_api
    union Value {
        float f;
        int i;
        bool b;
        float c[3];
        char const* file;
        nyxShader* shader;
        nyxBrush_node* node;

        Value() : node(nullptr) {}
    } value;
    char const* hint = nullptr; ///< limits and ranges for the user interface, may be null
};

/// A node of a brush's graph, owned by the scene.
class NYXRENDER_EXPORT nyxBrush_node {
public:
    virtual ~nyxBrush_node();
    [[nodiscard]] virtual char const* kind() const = 0;
    /// The parameters, in the order of the kind.
    [[nodiscard]] virtual nyx::Span<nyxBrush_param*> params() const = 0;
};

} // namespace nyx::painter
