#include "workbench/colors/ColorwayModel.h"

#include "workbench/colors/swatch.h"
#include "workbench/scene/Scene.h"
#include "zsg/colors/ColorDB.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <utility>

namespace workbench {

ColorwayModel::ColorwayModel(Scene& scene, QObject* parent)
    : QAbstractTableModel(parent), scene_(scene) {
    connect(&scene, &Scene::changed, this, &ColorwayModel::follow);
    connect(&scene, &Scene::rootEnding, this, [this] {
        beginResetModel();
        multis_.clear();
        colorways_.clear();
        endResetModel();
    });
    read();
}

void ColorwayModel::setShowDeleted(bool on) {
    showDeleted_ = on;
    read();
}

nyx::ColorId ColorwayModel::multiAt(int row) const {
    return row >= 0 && row < rowCount() ? multis_[static_cast<std::size_t>(row)] : nyx::ColorId();
}

nyx::ColorwayId ColorwayModel::colorwayAt(int column) const {
    return column >= 0 && column < columnCount() ? colorways_[static_cast<std::size_t>(column)]
                                                 : nyx::ColorwayId();
}

nyx::ColorId ColorwayModel::subAt(QModelIndex const& index) const {
    zsg::ColorDB* const db = scene_.colorDB();
    auto const* const edit =
        db && index.isValid() ? db->getColorwayParameters(colorwayAt(index.column())) : nullptr;
    return edit ? edit->activeSubOf(multiAt(index.row())) : nyx::ColorId();
}

bool ColorwayModel::isDeleted(int column) const {
    zsg::ColorDB* const db = scene_.colorDB();
    auto const* const edit = db ? db->getColorwayParameters(colorwayAt(column)) : nullptr;
    return edit && edit->isDeleted();
}

int ColorwayModel::rowCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(multis_.size());
}

int ColorwayModel::columnCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(colorways_.size());
}

QVariant ColorwayModel::data(QModelIndex const& index, int role) const {
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole && role != Qt::AccessibleTextRole) {
        return {};
    }
    nyx::ColorId const sub = subAt(index);
    if (role == Qt::DisplayRole) {
        return sub.isValid() ? shownName(swatchOf(scene_.colorDB(), sub).name) : tr("–");
    }
    QString const multi = headerData(index.row(), Qt::Vertical, Qt::DisplayRole).toString();
    QString const colorway = headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString();
    return sub.isValid()
               ? tr("%1 in %2: %3").arg(multi, colorway, describe(swatchOf(scene_.colorDB(), sub)))
               : tr("%1 in %2: stays as it is").arg(multi, colorway);
}

QVariant ColorwayModel::headerData(int section, Qt::Orientation orientation, int role) const {
    zsg::ColorDB* const db = scene_.colorDB();
    if (!db) {
        return {};
    }
    if (orientation == Qt::Vertical) {
        return role == Qt::DisplayRole
                   ? QVariant(shownName(QString::fromStdString(db->colorName(multiAt(section)))))
                   : QVariant();
    }
    auto const* const edit = db->getColorwayParameters(colorwayAt(section));
    if (!edit) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return shownName(QString::fromStdString(edit->displayName()));
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole:
        return shownName(QString::fromStdString(edit->displayName())) +
               (edit->isActive() ? tr(", active") : QString()) +
               (edit->isDeleted() ? tr(", deleted") : QString());
    case Qt::FontRole: {
        QFont font;
        font.setBold(edit->isActive());
        font.setStrikeOut(edit->isDeleted());
        return font;
    }
    case Qt::ForegroundRole:
        return edit->isDeleted()
                   ? QVariant(QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text))
                   : QVariant();
    default:
        return {};
    }
}

void ColorwayModel::follow(Changes const& changes) {
    if (changes.everything || !changes.colors.empty() || !changes.colorways.empty()) {
        read();
    }
    if (!changes.colorways.empty() && columnCount() > 0) {
        emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    }
    if (rowCount() > 0 && columnCount() > 0 && !changes.isEmpty()) {
        // Any colour may be a cell somewhere; only the cells that are seen are asked again.
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        emit headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
    }
}

void ColorwayModel::read() {
    std::vector<nyx::ColorId> multis;
    std::vector<nyx::ColorwayId> colorways;
    if (zsg::ColorDB* const db = scene_.colorDB()) {
        auto const all = db->multiColors();
        multis.assign(all.begin(), all.end());
        auto const listed = db->colorways();
        // Reading a colorway for the first time may post events, so that the list is copied.
        std::vector<nyx::ColorwayId> const ids(listed.begin(), listed.end());
        for (nyx::ColorwayId const id : ids) {
            auto const* const edit = db->getColorwayParameters(id);
            if (edit && (showDeleted_ || !edit->isDeleted())) {
                colorways.push_back(id);
            }
        }
    }
    if (multis != multis_ || colorways != colorways_) {
        beginResetModel();
        multis_ = std::move(multis);
        colorways_ = std::move(colorways);
        endResetModel();
    }
}

} // namespace workbench
