#include "zsg/core/ISceneGraph.h"

#include "core/ZSceneGraph.h"

namespace zsg {

ISceneGraph::ISceneGraph() = default;

ISceneGraph::~ISceneGraph() = default;

std::unique_ptr<ISceneGraph> ISceneGraph::create(SceneGraphPars const& pars) {
    return std::make_unique<ZSceneGraph>(pars);
}

} // namespace zsg
