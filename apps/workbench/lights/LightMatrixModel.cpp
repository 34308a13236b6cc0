#include "workbench/lights/LightMatrixModel.h"

#include "workbench/lights/lightEdits.h"
#include "workbench/scene/Scene.h"
#include "workbench/scene/SceneContents.h"
#include "zsg/lightlayers/ILightLayerApi.h"
#include "zsg/lightlayers/ILightLayerController.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace workbench {

LightMatrixModel::LightMatrixModel(Scene& scene, QObject* parent)
    : QAbstractTableModel(parent), scene_(scene) {
    connect(&scene, &Scene::changed, this, &LightMatrixModel::follow);
    connect(&scene, &Scene::rootEnding, this, [this] {
        beginResetModel();
        rows_.clear();
        layers_.clear();
        counts_.clear();
        endResetModel();
    });
    read();
}

void LightMatrixModel::setFilter(QString const& text) {
    filter_ = text;
    read();
}

nyx::LightLayerId LightMatrixModel::layerAt(int column) const {
    return column >= 0 && column < columnCount() ? layers_[static_cast<std::size_t>(column)]
                                                 : nyx::LightLayerId();
}

Qt::CheckState LightMatrixModel::state(QModelIndex const& index) const {
    if (!index.isValid()) {
        return Qt::Unchecked;
    }
    Row const& row = at(index.row());
    if (row.isLight) {
        return row.column == index.column() ? Qt::Checked : Qt::Unchecked;
    }
    int const in = counts_[place(index.row(), index.column())];
    return in == 0 ? Qt::Unchecked : in == row.lights ? Qt::Checked : Qt::PartiallyChecked;
}

std::vector<nyx::ObjectId> LightMatrixModel::lightsOf(std::vector<int> rows) const {
    std::ranges::sort(rows);
    std::vector<nyx::ObjectId> lights;
    int next = 0;
    for (int const row : rows) {
        int const end = at(row).isLight ? row + 1 : at(row).end;
        for (int i = std::max(row, next); i < end; ++i) {
            if (at(i).isLight && !at(i).isUnlisted) {
                lights.emplace_back(at(i).id.toUint());
            }
        }
        next = std::max(next, end);
    }
    return lights;
}

void LightMatrixModel::toggle(QModelIndexList const& cells, QModelIndex const& current) {
    if (!current.isValid()) {
        return;
    }
    if (state(current) != Qt::Checked) {
        std::vector<int> rows;
        for (QModelIndex const& cell : cells) {
            rows.push_back(cell.row());
        }
        moveLights(scene_, lightsOf(std::move(rows)), layerAt(current.column()));
        return;
    }
    std::set<std::pair<int, nyx::ObjectId>> taken; // by column and light
    for (QModelIndex const& cell : cells) {
        for (nyx::ObjectId const light : lightsOf({cell.row()})) {
            taken.emplace(cell.column(), light);
        }
    }
    zsg::ILightLayerApi const& api = *scene_.lightLayers()->lightLayerApi();
    std::vector<nyx::ObjectId> lights;
    for (auto const& [column, light] : taken) {
        if (layerAt(column) != firstLightLayer && api.contains(layerAt(column), light)) {
            lights.push_back(light);
        }
    }
    if (lights.empty()) {
        scene_.say(tr("A light is always in a layer. Put it into another one."));
    }
    moveLights(scene_, lights, firstLightLayer);
}

int LightMatrixModel::rowCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int LightMatrixModel::columnCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(layers_.size());
}

QVariant LightMatrixModel::data(QModelIndex const& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= columnCount()) {
        return {};
    }
    switch (role) {
    case Qt::CheckStateRole:
        return state(index);
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole: {
        QString const layer =
            headerData(index.column(), Qt::Horizontal, Qt::AccessibleTextRole).toString();
        QString const text = state(index) == Qt::Checked            ? tr("%1 is in %2")
                             : state(index) == Qt::PartiallyChecked ? tr("%1 is partly in %2")
                                                                    : tr("%1 is not in %2");
        return text.arg(at(index.row()).name, layer);
    }
    default:
        return {};
    }
}

bool LightMatrixModel::setData(QModelIndex const& index, QVariant const& /*value*/, int role) {
    if (role != Qt::CheckStateRole) {
        return false;
    }
    if ((flags(index) & Qt::ItemIsEnabled) == 0) {
        return false;
    }
    toggle({index}, index);
    scene_.flush();
    return true;
}

QVariant LightMatrixModel::headerData(int section, Qt::Orientation orientation, int role) const {
    bool const isText = role == Qt::DisplayRole || role == Qt::AccessibleTextRole;
    if (section < 0 || !scene_.lightLayers()) {
        return {};
    }
    if (orientation == Qt::Horizontal) {
        nyx::LightLayerId const layer = layerAt(section);
        zsg::ILightLayerApi const& api = *scene_.lightLayers()->lightLayerApi();
        QString const name = QString::fromStdString(api.layerName(layer));
        bool const inverted =
            api.flags(layer).test(static_cast<std::uint32_t>(layerFlags::Inverted));
        return !isText && role != Qt::ToolTipRole ? QVariant()
               : inverted                         ? tr("%1 (inverted)").arg(name)
                                                  : name;
    }
    if (section >= rowCount()) {
        return {};
    }
    Row const& row = at(section);
    if (role == Qt::FontRole) {
        QFont font;
        font.setBold(!row.isLight);
        return font;
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    }
    if (role == Qt::ToolTipRole) {
        return row.isUnlisted ? tr("%1: the renderer leaves this light out of lists, so it stays "
                                   "in its layer.")
                                    .arg(row.name)
                              : row.name;
    }
    if (role == Qt::ForegroundRole && row.isUnlisted) {
        return QGuiApplication::palette().brush(QPalette::Disabled, QPalette::ButtonText);
    }
    constexpr int deepest = 8;
    return role == Qt::DisplayRole
               ? QString(qsizetype{2} * std::min(row.depth, deepest), ' ') + row.name
           : isText ? row.name
                    : QVariant();
}

Qt::ItemFlags LightMatrixModel::flags(QModelIndex const& index) const {
    Qt::ItemFlags const flags = QAbstractTableModel::flags(index);
    if (!index.isValid()) {
        return flags;
    }
    return at(index.row()).isUnlisted ? flags & ~Qt::ItemIsEnabled
                                      : flags | Qt::ItemIsUserCheckable;
}

void LightMatrixModel::follow(Changes const& changes) {
    if (changes.everything || changes.lightLayers) {
        read();
    }
}

std::vector<LightMatrixModel::Row> LightMatrixModel::readRows() const {
    auto const items =
        scene_.contents() ? scene_.contents()->items() : std::vector<SceneContents::Item>();
    auto const isWanted = [this](SceneContents::Item const& item) {
        return item.isLight &&
               (filter_.isEmpty() || item.name.contains(filter_, Qt::CaseInsensitive));
    };
    std::set<nyx::GroupItemId> leading; // to a light
    for (auto item = items.rbegin(); item != items.rend(); ++item) {
        if (isWanted(*item) || leading.contains(item->id)) {
            leading.insert(item->parent);
        }
    }
    std::vector<Row> rows;
    std::map<nyx::GroupItemId, int> places;
    for (SceneContents::Item const& item : items) {
        if (isWanted(item) || leading.contains(item.id)) {
            auto const above = places.find(item.parent);
            int const parent = above == places.end() ? -1 : above->second;
            int const place = static_cast<int>(rows.size());
            places.emplace(item.id, place);
            int const depth = parent < 0 ? 0 : rows[static_cast<std::size_t>(parent)].depth + 1;
            rows.push_back(
                {item.id, item.name, parent, depth, place + 1, isWanted(item), item.isUnlisted});
        }
    }
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        row->lights += row->isLight && !row->isUnlisted ? 1 : 0;
        if (row->parent >= 0) {
            Row& parent = rows[static_cast<std::size_t>(row->parent)];
            parent.end = std::max(parent.end, row->end);
            parent.lights += row->lights;
        }
    }
    return rows;
}

void LightMatrixModel::read() {
    std::vector<Row> rows = readRows();
    std::vector<nyx::LightLayerId> layers;
    if (scene_.lightLayers()) {
        auto const listed = scene_.lightLayers()->lightLayerApi()->layers();
        layers.assign(listed.begin(), listed.end());
    }
    bool const sameShape = rows == rows_ && layers == layers_;
    if (!sameShape) {
        beginResetModel();
        rows_ = std::move(rows);
        layers_ = std::move(layers);
    }
    readMembership();
    if (!sameShape) {
        endResetModel();
    } else if (!rows_.empty() && !layers_.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                         {Qt::CheckStateRole});
        emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    }
}

void LightMatrixModel::readMembership() {
    std::map<std::uint32_t, int> columns; // by light
    for (int column = 0; column < columnCount(); ++column) {
        for (nyx::ObjectId const light :
             scene_.lightLayers()->lightLayerApi()->lights(layerAt(column))) {
            columns.emplace(light.toUint(), column);
        }
    }
    counts_.assign(rows_.size() * layers_.size(), 0);
    for (int i = rowCount() - 1; i >= 0; --i) {
        Row& row = rows_[static_cast<std::size_t>(i)];
        auto const found = row.isLight ? columns.find(row.id.toUint()) : columns.end();
        row.column = found == columns.end() ? -1 : found->second;
        if (row.column >= 0 && !row.isUnlisted) {
            ++counts_[place(i, row.column)];
        }
        for (int column = 0; row.parent >= 0 && column < columnCount(); ++column) {
            counts_[place(row.parent, column)] += counts_[place(i, column)];
        }
    }
}

} // namespace workbench
