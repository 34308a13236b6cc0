#include "zsg/materials/IMaterialGraph.h"

namespace zsg {

IMaterialGraph::~IMaterialGraph() = default;

} // namespace zsg
