#include "painting/LayerCommands.h"

#include "painting/ZPaintSurface.h"
#include "painting/layerIndex.h"

#include "zcore/splitTrailingNumber.h"

#include <QCoreApplication>
#include <QObject>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace zsg {

namespace {

/// The number of a name that ends in a blank and digits behind the prefix (with a minus sign it
/// counts as little as none); nothing for any other text, and for a number that no int holds.
std::optional<int> numberAfterPrefix(char const* rest) {
    int number = 0;
    char const* const end = rest + std::strlen(rest);
    if (rest[0] != ' ') {
        return std::nullopt;
    }
    auto const [behind, error] = std::from_chars(rest + 1, end, number);
    return error == std::errc() && behind == end ? std::optional(number) : std::nullopt;
}

/// The prefix with the number after the largest in use. No QString is made of a name that does not
/// begin with the prefix's bytes, nor of one that this gave itself: a surface may have thousands.
std::string defaultName(std::vector<nyxLayerInfo> const& layers) {
    QString const prefix = QObject::tr("Layer");
    QByteArray const bytes = prefix.toUtf8();
    auto const prefixLength = static_cast<std::size_t>(bytes.size());
    int largest = 0;
    for (nyxLayerInfo const& layer : layers) {
        char const* const name = layer.name ? layer.name : "";
        if (std::strncmp(name, bytes.constData(), prefixLength) != 0) {
            continue;
        }
        if (auto const number = numberAfterPrefix(name + prefixLength)) {
            largest = std::max(largest, *number);
            continue;
        }
        auto const [text, number] = splitTrailingNumber(QString::fromUtf8(name));
        if (text == prefix) {
            largest = std::max(largest, number);
        }
    }
    // Wider than the largest number that a name can have.
    qint64 const next = qint64{largest} + 1;
    return QStringLiteral("%1 %2").arg(prefix).arg(next).toStdString();
}

} // namespace

ZAddLayerCommand::ZAddLayerCommand(unsigned int index, ZPaintSurface* surface)
    : ZUndoCommand(ZCommandId::AddDeletePaintLayer,
                   QCoreApplication::translate("ZAddLayerCommand", "3D Paint add layer")),
      layerId_(surface->addLayerInternal(index, defaultName(surface->layerList()))),
      surface_(surface) {}

bool ZAddLayerCommand::undo() {
    surface_->setLayerDeletedInternal(layerId_, true);
    return true;
}

bool ZAddLayerCommand::redo() {
    surface_->setLayerDeletedInternal(layerId_, false);
    return true;
}

ZDeleteLayerCommand::ZDeleteLayerCommand(std::uint32_t layerId, ZPaintSurface* surface)
    : ZUndoCommand(ZCommandId::AddDeletePaintLayer,
                   QCoreApplication::translate("ZDeleteLayerCommand", "3D Paint delete layer")),
      layerId_(layerId),
      surface_(surface) {}

bool ZDeleteLayerCommand::undo() {
    surface_->setLayerDeletedInternal(layerId_, false);
    return true;
}

bool ZDeleteLayerCommand::redo() {
    surface_->setLayerDeletedInternal(layerId_, true);
    return true;
}

ZLayerBlendCommand::ZLayerBlendCommand(nyx::ColorBlendMode mode, nyx::ColorBlendMode oldMode,
                                       std::uint32_t layerId, ZPaintSurface* surface)
    : ZUndoCommand(
          ZCommandId::PaintLayerBlend,
          QCoreApplication::translate("ZLayerBlendCommand", "3D Paint change layer blend mode")),
      mode_(mode),
      oldMode_(oldMode),
      layerId_(layerId),
      surface_(surface) {}

bool ZLayerBlendCommand::undo() {
    surface_->setLayerBlendInternal(layerId_, oldMode_);
    return true;
}

bool ZLayerBlendCommand::redo() {
    surface_->setLayerBlendInternal(layerId_, mode_);
    return true;
}

ZLayerVisibilityCommand::ZLayerVisibilityCommand(bool visible, std::uint32_t layerId,
                                                 ZPaintSurface* surface)
    : ZUndoCommand(ZCommandId::PaintLayerVisibility,
                   QCoreApplication::translate("ZLayerVisibilityCommand",
                                               "3D Paint change layer visibility")),
      visible_(visible),
      layerId_(layerId),
      surface_(surface) {}

bool ZLayerVisibilityCommand::undo() {
    surface_->setLayerVisibilityInternal(layerId_, !visible_);
    return true;
}

bool ZLayerVisibilityCommand::redo() {
    surface_->setLayerVisibilityInternal(layerId_, visible_);
    return true;
}

ZLayerNameCommand::ZLayerNameCommand(QString name, QString oldName, std::uint32_t layerId,
                                     ZPaintSurface* surface)
    : ZUndoCommand(ZCommandId::PaintLayerName,
                   QCoreApplication::translate("ZLayerNameCommand", "3D Paint change layer name")),
      name_(std::move(name)),
      oldName_(std::move(oldName)),
      layerId_(layerId),
      surface_(surface) {}

bool ZLayerNameCommand::undo() {
    surface_->setLayerNameInternal(layerId_, oldName_);
    return true;
}

bool ZLayerNameCommand::redo() {
    surface_->setLayerNameInternal(layerId_, name_);
    return true;
}

ZLayerBackgroundCommand::ZLayerBackgroundCommand(nyxColor_rgba const& color,
                                                 nyxColor_rgba const& oldColor,
                                                 std::uint32_t layerId, ZPaintSurface* surface)
    : ZUndoCommand(ZCommandId::PaintLayerBackgroundOrMove,
                   QCoreApplication::translate("ZLayerBackgroundCommand",
                                               "3D Paint change layer background")),
      color_(color),
      oldColor_(oldColor),
      layerId_(layerId),
      surface_(surface) {}

bool ZLayerBackgroundCommand::undo() {
    surface_->setLayerBackgroundColorInternal(layerId_, oldColor_);
    return true;
}

bool ZLayerBackgroundCommand::redo() {
    surface_->setLayerBackgroundColorInternal(layerId_, color_);
    return true;
}

bool ZLayerBackgroundCommand::mergeWith(ZUndoCommand const* other) {
    if (!other || other->id() != id()) {
        return false;
    }
    auto const* const later = dynamic_cast<ZLayerBackgroundCommand const*>(other);
    if (!later) {
        return false;
    }
    color_ = later->color_;
    return true;
}

ZMoveLayerCommand::ZMoveLayerCommand(std::uint32_t layerId, std::uint32_t previousId,
                                     std::uint32_t targetId, ZPaintSurface* surface)
    : ZUndoCommand(ZCommandId::PaintLayerBackgroundOrMove,
                   QCoreApplication::translate("ZMoveLayerCommand", "3D Paint move layer")),
      layerId_(layerId),
      previousId_(previousId),
      targetId_(targetId),
      surface_(surface) {}

bool ZMoveLayerCommand::undo() {
    auto const origin = std::exchange(origin_, std::nullopt);
    surface_->moveLayerInternal(layerId_,
                                origin ? layerIdAt(surface_->layerList(), *origin) : previousId_);
    return true;
}

bool ZMoveLayerCommand::redo() {
    origin_ = layerIndexOf(surface_->layerList(), layerId_);
    surface_->moveLayerInternal(layerId_, targetId_);
    origin_.reset();
    return true;
}

} // namespace zsg
