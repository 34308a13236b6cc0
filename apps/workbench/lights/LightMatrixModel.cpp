#include "workbench/lights/LightMatrixModel.h"

#include "workbench/lights/lightEdits.h"
#include "workbench/scene/Scene.h"
#include "workbench/scene/SceneContents.h"
#include "workbench/scene/updateById.h"
#include "zsg/lightlayers/ILightLayerApi.h"
#include "zsg/lightlayers/ILightLayerController.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <cstdint>
#include <functional>
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
        return row.layer == layerAt(index.column()) ? Qt::Checked : Qt::Unchecked;
    }
    auto const found = row.in.find(layerAt(index.column()));
    int const in = found == row.in.end() ? 0 : found->second;
    return in == 0 ? Qt::Unchecked : in == row.lights ? Qt::Checked : Qt::PartiallyChecked;
}

std::vector<nyx::ObjectId> LightMatrixModel::lightsOf(std::vector<int> rows) const {
    std::ranges::sort(rows);
    std::vector<nyx::ObjectId> lights;
    int next = 0;
    for (int const row : rows) {
        int const end = at(row).isLight ? row + 1 : endOf(row);
        for (int i = std::max(row, next); i < end; ++i) {
            if (at(i).isLight && !at(i).isUnlisted) {
                lights.emplace_back(at(i).id.toUint());
            }
        }
        next = std::max(next, end);
    }
    return lights;
}

int LightMatrixModel::endOf(int row) const {
    int end = row + 1;
    while (end < rowCount() && at(end).depth > at(row).depth) {
        ++end;
    }
    return end;
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

std::vector<LightMatrixModel::Row>
LightMatrixModel::readRows(std::vector<nyx::LightLayerId> const& layers) const {
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
    std::map<std::uint32_t, nyx::LightLayerId> layerOf; // a light
    for (nyx::LightLayerId const layer : layers) {
        for (nyx::ObjectId const light : scene_.lightLayers()->lightLayerApi()->lights(layer)) {
            layerOf.emplace(light.toUint(), layer);
        }
    }
    std::vector<Row> rows;
    std::vector<std::size_t> parents;
    constexpr auto none = static_cast<std::size_t>(-1);
    std::map<nyx::GroupItemId, std::size_t> places;
    for (SceneContents::Item const& item : items) {
        if (!isWanted(item) && !leading.contains(item.id)) {
            continue;
        }
        auto const above = places.find(item.parent);
        parents.push_back(above == places.end() ? none : above->second);
        places.emplace(item.id, rows.size());
        int const depth = above == places.end() ? 0 : rows[above->second].depth + 1;
        Row& row = rows.emplace_back(
            Row{item.id, item.name, depth, isWanted(item), item.isUnlisted, {}, 0, {}});
        auto const found = row.isLight ? layerOf.find(row.id.toUint()) : layerOf.end();
        if (found != layerOf.end()) {
            row.layer = found->second;
        }
        if (row.isLight && !row.isUnlisted) {
            row.lights = 1;
            row.in[row.layer] = 1;
        }
    }
    for (std::size_t i = rows.size(); i-- > 0;) {
        if (parents[i] != none) {
            Row& parent = rows[parents[i]];
            parent.lights += rows[i].lights;
            for (auto const& [layer, count] : rows[i].in) {
                parent.in[layer] += count;
            }
        }
    }
    return rows;
}

template <Qt::Orientation orientation>
struct LightMatrixModel::Announce {
    static constexpr bool isRows = orientation == Qt::Vertical;

    LightMatrixModel& model;

    void removing(int first, int last) {
        isRows ? model.beginRemoveRows({}, first, last) : model.beginRemoveColumns({}, first, last);
    }
    void removed() { isRows ? model.endRemoveRows() : model.endRemoveColumns(); }
    void inserting(int first, int last) {
        isRows ? model.beginInsertRows({}, first, last) : model.beginInsertColumns({}, first, last);
    }
    void inserted() { isRows ? model.endInsertRows() : model.endInsertColumns(); }
};

void LightMatrixModel::read() {
    std::vector<nyx::LightLayerId> layers;
    if (scene_.lightLayers()) {
        auto const listed = scene_.lightLayers()->lightLayerApi()->layers();
        layers.assign(listed.begin(), listed.end());
    }
    updateById(rows_, readRows(layers), &Row::id, Announce<Qt::Vertical>{*this});
    updateById(layers_, layers, std::identity(), Announce<Qt::Horizontal>{*this});
    if (!layers_.empty()) {
        emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    }
    if (!rows_.empty()) {
        emit headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
    }
    if (!rows_.empty() && !layers_.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
}

} // namespace workbench
