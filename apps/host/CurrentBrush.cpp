#include "host/CurrentBrush.h"

#include "host/Arguments.h"
#include "host/Host.h"

#include "zsg/core/ISceneGraph.h"
#include "zsg/painting/IPainterManager.h"

namespace app {

zsg::IPainterBrush& currentBrush(Host& host) {
    auto const& brush = host.sceneState<CurrentBrush>().brush;
    if (!brush) {
        throw CommandError("there is no brush; \"brush new\" makes one");
    }
    return *brush;
}

std::unique_ptr<zsg::IPainterBrush> freshBrush(Host& host, float size) {
    auto brush = host.root().painterManager()->createBrush(size, {});
    brush->updateFromNode();
    return brush;
}

} // namespace app
