// The destructors of the renderer's interfaces: their virtual tables live in this library.

#include "nyxrender/nyxBrush_node.h"
#include "nyxrender/nyxCustomSurface.h"
#include "nyxrender/nyxGroup_item.h"
#include "nyxrender/nyxPainter.h"
#include "nyxrender/nyxRT_api.h"
#include "nyxrender/nyxScene_api.h"
#include "nyxrender/nyxScene_hierarchy.h"
#include "nyxrender/nyxShader.h"

nyxRT_api::~nyxRT_api() = default;
nyxScene_api::~nyxScene_api() = default;
nyxShader::~nyxShader() = default;
nyxGroup_item::~nyxGroup_item() = default;
nyxScene_hierarchy::~nyxScene_hierarchy() = default;
nyxCustomSurface::~nyxCustomSurface() = default;
nyxPainter::~nyxPainter() = default;
nyxPainter_factory::~nyxPainter_factory() = default;
nyx::painter::nyxBrush_node::~nyxBrush_node() = default;
