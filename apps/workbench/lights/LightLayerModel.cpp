#include "workbench/lights/LightLayerModel.h"

#include "workbench/lights/lightEdits.h"
#include "workbench/scene/Scene.h"
#include "workbench/scene/replaceRows.h"
#include "zsg/lightlayers/ILightLayerApi.h"
#include "zsg/lightlayers/ILightLayerController.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <utility>

namespace workbench {

LightLayerModel::LightLayerModel(Scene& scene, QObject* parent)
    : QAbstractTableModel(parent), scene_(scene) {
    connect(&scene, &Scene::changed, this, &LightLayerModel::follow);
    connect(&scene, &Scene::rootEnding, this, [this] {
        beginResetModel();
        rows_.clear();
        endResetModel();
    });
    read();
}

void LightLayerModel::setShowDeleted(bool on) {
    showDeleted_ = on;
    read();
}

nyx::LightLayerId LightLayerModel::layerAt(int row) const {
    return row >= 0 && row < rowCount() ? rows_[static_cast<std::size_t>(row)].id
                                        : nyx::LightLayerId();
}

int LightLayerModel::rowOf(nyx::LightLayerId layer) const {
    auto const found = std::ranges::find(rows_, layer, &Row::id);
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

int LightLayerModel::rowCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int LightLayerModel::columnCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant LightLayerModel::data(QModelIndex const& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    Row const& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        if (index.column() == LightsColumn) {
            return row.lights;
        }
        [[fallthrough]];
    case Qt::EditRole:
        return index.column() == NameColumn ? row.name : QVariant();
    case Qt::CheckStateRole:
        return index.column() == InvertedColumn
                   ? QVariant(row.inverted ? Qt::Checked : Qt::Unchecked)
                   : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == LightsColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                              : QVariant();
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return tr("%1, lights: %2").arg(row.name, QString::number(row.lights)) +
               (row.inverted ? tr(", inverted") : QString()) +
               (row.deleted ? tr(", deleted") : QString());
    case Qt::FontRole: {
        QFont font;
        font.setStrikeOut(row.deleted);
        return font;
    }
    case Qt::ForegroundRole:
        return row.deleted
                   ? QVariant(QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text))
                   : QVariant();
    default:
        return {};
    }
}

bool LightLayerModel::setData(QModelIndex const& index, QVariant const& value, int role) {
    nyx::LightLayerId const layer = layerAt(index.row());
    if (!layer.isValid()) {
        return false;
    }
    if (role == Qt::EditRole && index.column() == NameColumn) {
        renameLightLayer(scene_, layer, value.toString());
    } else if (role == Qt::CheckStateRole && index.column() == InvertedColumn) {
        setLightLayerFlag(scene_, layer, layerFlags::Inverted, value.toInt() == Qt::Checked);
    } else {
        return false;
    }
    scene_.flush();
    return true;
}

QVariant LightLayerModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) {
        return {};
    }
    if (role == Qt::ToolTipRole && section == InvertedColumn) {
        return tr("The layer is edited by what it leaves out");
    }
    QString const titles[ColumnCount] = {tr("Name"), tr("Inverted"), tr("Lights")};
    return role == Qt::DisplayRole && section < ColumnCount ? titles[section] : QVariant();
}

Qt::ItemFlags LightLayerModel::flags(QModelIndex const& index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    flags.setFlag(Qt::ItemIsEditable, index.column() == NameColumn);
    flags.setFlag(Qt::ItemIsUserCheckable, index.column() == InvertedColumn);
    return flags;
}

void LightLayerModel::follow(Changes const& changes) {
    if (changes.everything || changes.lightLayers) {
        read();
    }
}

void LightLayerModel::read() {
    struct Announce {
        LightLayerModel& model;
        void removing(int first, int last) { model.beginRemoveRows({}, first, last); }
        void removed() { model.endRemoveRows(); }
        void inserting(int first, int last) { model.beginInsertRows({}, first, last); }
        void inserted() { model.endInsertRows(); }
    };

    std::vector<Row> next;
    for (nyx::LightLayerId const id : allLightLayers(scene_)) {
        zsg::ILightLayerApi const& api = *scene_.lightLayers()->lightLayerApi();
        bool const deleted = isDeleted(scene_, id);
        if (showDeleted_ || !deleted) {
            next.push_back({id, QString::fromStdString(api.layerName(id)),
                            api.flags(id).test(static_cast<std::uint32_t>(layerFlags::Inverted)),
                            deleted, static_cast<qsizetype>(api.lights(id).size())});
        }
    }
    replaceRows(rows_, next, Announce{*this});
    rows_ = std::move(next); // the same layers, with what has become of them
    if (!rows_.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

} // namespace workbench
