#include "workbench/painting/PaintLayerModel.h"

#include "workbench/colors/swatch.h"
#include "workbench/painting/Canvas.h"
#include "workbench/scene/Scene.h"
#include "workbench/scene/ScopedMacro.h"
#include "workbench/scene/replaceRows.h"
#include "zsg/painting/IPainterSurface.h"

#include <QCoreApplication>
#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

namespace workbench {

using namespace std::chrono_literals;

namespace {

constexpr auto quiet = 300ms; ///< in a stroke, before small pictures are drawn again
QString const rowMime = QStringLiteral("application/x-zscenegraph-paint-layer-row");

/// In the order of the enumeration.
constexpr std::array<char const*, PaintLayerModel::modes> modeNames = {
    QT_TRANSLATE_NOOP("workbench::PaintLayerModel", "Normal"),
    QT_TRANSLATE_NOOP("workbench::PaintLayerModel", "Multiply"),
    QT_TRANSLATE_NOOP("workbench::PaintLayerModel", "Screen"),
    QT_TRANSLATE_NOOP("workbench::PaintLayerModel", "Overlay"),
    QT_TRANSLATE_NOOP("workbench::PaintLayerModel", "Add"),
    QT_TRANSLATE_NOOP("workbench::PaintLayerModel", "Subtract"),
    QT_TRANSLATE_NOOP("workbench::PaintLayerModel", "Darken"),
    QT_TRANSLATE_NOOP("workbench::PaintLayerModel", "Lighten"),
    QT_TRANSLATE_NOOP("workbench::PaintLayerModel", "Color Dodge"),
    QT_TRANSLATE_NOOP("workbench::PaintLayerModel", "Color Burn"),
    QT_TRANSLATE_NOOP("workbench::PaintLayerModel", "Hard Light"),
    QT_TRANSLATE_NOOP("workbench::PaintLayerModel", "Soft Light"),
    QT_TRANSLATE_NOOP("workbench::PaintLayerModel", "Difference"),
    QT_TRANSLATE_NOOP("workbench::PaintLayerModel", "Exclusion"),
};

int thumbnailSide() { return 2 * QFontMetrics(QGuiApplication::font()).height(); }

} // namespace

PaintLayerModel::PaintLayerModel(Scene& scene, Canvas& canvas, QObject* parent)
    : QAbstractTableModel(parent), scene_(scene), canvas_(canvas) {
    idle_.setSingleShot(true);
    connect(&idle_, &QTimer::timeout, this, &PaintLayerModel::drawThumbnails);
    connect(&scene, &Scene::changed, this, &PaintLayerModel::follow);
    connect(&scene, &Scene::rootEnding, this, [this] {
        beginResetModel();
        rows_.clear();
        thumbnails_.clear();
        surface_ = nullptr;
        endResetModel();
    });
    connect(&canvas, &Canvas::surfaceChanged, this, &PaintLayerModel::update);
    connect(&canvas, &Canvas::pictureChanged, this, [this](Canvas::Picture const& picture) {
        if (!picture.parts.empty()) {
            idle_.start(canvas_.isStroking() ? quiet : 0ms);
        }
    });
    update();
}

int PaintLayerModel::rowCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int PaintLayerModel::columnCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : columns;
}

PaintLayerModel::Row const* PaintLayerModel::at(int row) const {
    return row >= 0 && row < rowCount() ? &rows_[static_cast<std::size_t>(row)] : nullptr;
}

bool PaintLayerModel::isVisible(int row) const {
    return previewed_.contains(row) ? previewedVisible_ : at(row)->layer.visible;
}

QString PaintLayerModel::modeName(nyx::ColorBlendMode mode) {
    auto const number = static_cast<std::size_t>(mode);
    return number < modeNames.size() ? tr(modeNames[number]) : QString::number(number);
}

QVariant PaintLayerModel::text(int row, int column) const {
    switch (column) {
    case NameColumn:
        return at(row)->name.isEmpty() ? tr("(no name)") : at(row)->name;
    case ModeColumn:
        return modeName(at(row)->layer.blend_mode);
    default:
        return {};
    }
}

QString PaintLayerModel::spoken(int row) const {
    QString const text = tr("%1, %2, %3")
                             .arg(this->text(row, NameColumn).toString(),
                                  isVisible(row) ? tr("visible") : tr("hidden"),
                                  modeName(at(row)->layer.blend_mode));
    return row == currentRow() ? tr("%1, painted on").arg(text) : text;
}

QVariant PaintLayerModel::data(QModelIndex const& index, int role) const {
    Row const* const row = at(index.row());
    if (!index.isValid() || !row) {
        return {};
    }
    int const column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        return text(index.row(), column);
    case Qt::EditRole:
        return column == ModeColumn ? QVariant(static_cast<int>(row->layer.blend_mode))
                                    : QVariant(row->name);
    case Qt::CheckStateRole:
        return column == EyeColumn ? QVariant(isVisible(index.row()) ? Qt::Checked : Qt::Unchecked)
                                   : QVariant();
    case Qt::DecorationRole:
        if (column == NameColumn) {
            return thumbnails_.value(row->layer.id);
        }
        return column == BackgroundColumn ? QVariant(screenColor(row->layer.background))
                                          : QVariant();
    case Qt::FontRole: {
        QFont font;
        font.setBold(index.row() == currentRow());
        return font;
    }
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        if (column == BackgroundColumn) {
            return tr("Background %1").arg(screenColor(row->layer.background).name());
        }
        return spoken(index.row());
    default:
        return {};
    }
}

QVariant PaintLayerModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case EyeColumn:
        return tr("Show");
    case NameColumn:
        return tr("Layer");
    case ModeColumn:
        return tr("Blend");
    default:
        return tr("Background");
    }
}

Qt::ItemFlags PaintLayerModel::flags(QModelIndex const& index) const {
    if (!index.isValid()) {
        return Qt::ItemIsDropEnabled; // between rows, not on them
    }
    Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    flags |= Qt::ItemIsDragEnabled;
    if (index.column() == EyeColumn) {
        flags |= Qt::ItemIsUserCheckable;
    } else if (index.column() != BackgroundColumn) {
        flags |= Qt::ItemIsEditable;
    }
    return flags;
}

bool PaintLayerModel::setData(QModelIndex const& index, QVariant const& value, int role) {
    Row const* const row = at(index.row());
    zsg::IPainterSurface* const surface = canvas_.surface();
    if (!row || !surface) {
        return false;
    }
    scene_.endDrags();
    if (index.column() == EyeColumn && role == Qt::CheckStateRole) {
        setVisible({index.row()}, value.toInt() == Qt::Checked);
        return true;
    }
    if (role != Qt::EditRole) {
        return false;
    }
    if (index.column() == ModeColumn) {
        surface->setLayerBlend(row->index, static_cast<nyx::ColorBlendMode>(value.toInt()));
    } else if (value.toString() != row->name) { // an equal name would be an entry too
        // The renderer is told at once, and so has to have the layer where the list has it.
        canvas_.waitForRenderer();
        surface->setLayerName(row->index, value.toString());
    }
    return true;
}

QStringList PaintLayerModel::mimeTypes() const { return {rowMime}; }

QMimeData* PaintLayerModel::mimeData(QModelIndexList const& indexes) const {
    auto* const mime = new QMimeData;
    if (!indexes.isEmpty()) {
        mime->setData(rowMime, QByteArray::number(indexes.front().row()));
    }
    return mime;
}

bool PaintLayerModel::dropMimeData(QMimeData const* mime, Qt::DropAction action, int row,
                                   int /*column*/, QModelIndex const& /*parent*/) {
    if (!mime || !mime->hasFormat(rowMime) || action != Qt::MoveAction) {
        return false;
    }
    int const from = mime->data(rowMime).toInt();
    int const before = row < 0 ? rowCount() : row;
    move(from, before > from ? before - 1 : before);
    // The rows have moved by themselves: false, or the view would remove what was dragged.
    return false;
}

int PaintLayerModel::currentRow() const {
    zsg::IPainterSurface const* const surface = canvas_.surface();
    auto const found = std::ranges::find_if(
        rows_, [&](Row const& row) { return surface && row.index == surface->editLayer(); });
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

void PaintLayerModel::setCurrentRow(int row) {
    zsg::IPainterSurface* const surface = canvas_.surface();
    // A view moves its current row by itself when the one before goes: nobody has chosen then.
    if (!updating_ && at(row) && surface && surface->editLayer() != at(row)->index) {
        scene_.endDrags();
        surface->setEditLayer(at(row)->index);
        update();
    }
}

nyxColor_rgba PaintLayerModel::background(int row) const {
    return at(row) ? at(row)->layer.background : nyxColor_rgba{};
}

void PaintLayerModel::add() {
    if (zsg::IPainterSurface* const surface = canvas_.surface()) {
        scene_.endDrags();
        surface->addLayer(static_cast<int>(surface->editLayer()));
    }
}

void PaintLayerModel::remove(int row) {
    zsg::IPainterSurface* const surface = canvas_.surface();
    if (at(row) && surface) {
        scene_.endDrags();
        surface->setLayerDeleted(at(row)->index, true);
    }
}

void PaintLayerModel::move(int from, int to) {
    zsg::IPainterSurface* const surface = canvas_.surface();
    if (!surface || !at(from) || !at(to) || from == to) {
        return;
    }
    scene_.endDrags();
    unsigned const first = at(from)->index;
    unsigned const last = at(to)->index;
    if (first > last) {
        surface->moveLayer(first, last);
        return;
    }
    // The undo of a move downwards would end one place too high, that of a move upwards ends where
    // it began: so those that lie between are taken up, one after the other.
    std::optional<ScopedMacro> macro;
    if (last - first > 1) {
        macro.emplace(scene_,
                      QCoreApplication::translate("ZMoveLayerCommand", "3D Paint move layer"));
    }
    for (unsigned i = first; i < last; ++i) {
        surface->moveLayer(i + 1, i);
    }
}

void PaintLayerModel::setBackground(int row, nyxColor_rgba const& color) {
    zsg::IPainterSurface* const surface = canvas_.surface();
    if (!surface || !at(row) || at(row)->layer.background == color) {
        return;
    }
    scene_.endDrags();
    // Entries of backgrounds in a row become one, also those of two layers, and its undo brings
    // back one of them only. A macro of its own keeps each.
    ScopedMacro const macro(
        scene_,
        QCoreApplication::translate("ZLayerBackgroundCommand", "3D Paint change layer background"));
    surface->setLayerBackgroundColor(at(row)->index, color, true);
}

void PaintLayerModel::setVisible(std::set<int> const& rows, bool visible) {
    zsg::IPainterSurface* const surface = canvas_.surface();
    std::vector<unsigned> changed;
    for (int const row : rows) {
        if (at(row) && at(row)->layer.visible != visible) {
            changed.push_back(at(row)->index);
        }
    }
    if (!surface || changed.empty()) {
        return;
    }
    scene_.endDrags();
    std::optional<ScopedMacro> macro;
    if (changed.size() > 1) {
        macro.emplace(scene_, visible ? tr("Show Layers") : tr("Hide Layers"));
    }
    for (unsigned const index : changed) {
        surface->setLayerVisibility(index, visible);
    }
}

void PaintLayerModel::previewVisible(std::set<int> const& rows, bool visible) {
    previewed_ = rows;
    previewedVisible_ = visible;
    if (!rows_.empty()) {
        emit dataChanged(index(0, EyeColumn), index(rowCount() - 1, EyeColumn),
                         {Qt::CheckStateRole});
    }
}

void PaintLayerModel::follow(Changes const& changes) {
    if (changes.everything || !changes.surfaces.empty()) {
        update();
    }
}

void PaintLayerModel::update() {
    struct Announce {
        PaintLayerModel& model;
        void removing(int first, int last) { model.beginRemoveRows({}, first, last); }
        void removed() { model.endRemoveRows(); }
        void inserting(int first, int last) { model.beginInsertRows({}, first, last); }
        void inserted() { model.endInsertRows(); }
    };

    zsg::IPainterSurface* const surface = canvas_.surface();
    std::vector<nyxLayerInfo> const layers =
        surface ? surface->layers() : std::vector<nyxLayerInfo>();
    std::vector<std::uint32_t> order;
    std::vector<Row> next;
    for (unsigned i = 0; i < layers.size(); ++i) {
        order.push_back(layers[i].id);
        if (!layers[i].deleted) {
            next.push_back({i, layers[i], QString::fromUtf8(layers[i].name)});
        }
    }
    if (surface && surface == surface_ && order != order_ && order.size() == order_.size() &&
        surface->editLayer() == editIndex_ && editIndex_ < order_.size()) {
        // Layers have changed places, and the library goes on with the place. A person means the
        // layer.
        auto const moved = std::ranges::find(order, order_[editIndex_]);
        if (moved != order.end()) {
            surface->setEditLayer(static_cast<unsigned>(moved - order.begin()));
        }
    }
    surface_ = surface;
    order_ = std::move(order);
    editIndex_ = surface ? surface->editLayer() : 0;
    updating_ = true;
    replaceRows(rows_, next, Announce{*this});
    updating_ = false;
    rows_ = std::move(next); // the same rows with what they are now
    if (!rows_.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, columns - 1));
    }
    idle_.start(0ms);
    emit updated();
}

void PaintLayerModel::drawThumbnails() {
    QHash<std::uint32_t, QPixmap> drawn;
    double const ratio = qGuiApp->devicePixelRatio();
    for (Row const& row : rows_) {
        QPixmap pixmap = QPixmap::fromImage(
            canvas_.thumbnail(row.layer.id, static_cast<int>(thumbnailSide() * ratio)));
        pixmap.setDevicePixelRatio(ratio);
        drawn.insert(row.layer.id, pixmap);
    }
    thumbnails_ = std::move(drawn);
    if (!rows_.empty()) {
        emit dataChanged(index(0, NameColumn), index(rowCount() - 1, NameColumn),
                         {Qt::DecorationRole});
    }
}

} // namespace workbench
