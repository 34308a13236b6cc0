#include "host/CurrentBrush.h"

#include "host/Arguments.h"
#include "host/BrushPreset.h"
#include "host/Host.h"
#include "host/InputFile.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/painting/IPainterManager.h"

#include <QFileInfo>

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

std::unique_ptr<zsg::IPainterBrush> presetBrush(Host& host, std::string const& path) {
    std::string const text = readInputFile(path, largestPreset);
    auto brush = freshBrush(host);
    try {
        std::string const folder = QFileInfo(QString::fromStdString(path)).path().toStdString();
        setBrushPreset(*brush, text, folder);
    } catch (CommandError const& error) {
        throw CommandError(path + ": " + error.what());
    }
    brush->applyToNode();
    return brush;
}

} // namespace app
