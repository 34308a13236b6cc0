#include "workbench/colors/SubColorModel.h"

#include "workbench/colors/colorMime.h"
#include "workbench/colors/swatch.h"
#include "workbench/scene/Scene.h"
#include "workbench/scene/replaceRows.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"

#include <QFont>
#include <QMimeData>

#include <algorithm>

namespace workbench {

SubColorModel::SubColorModel(Scene& scene, QObject* parent)
    : QAbstractListModel(parent), scene_(scene) {
    connect(&scene, &Scene::changed, this, &SubColorModel::follow);
    connect(&scene, &Scene::rootEnding, this, [this] { setMulti({}); });
}

void SubColorModel::setMulti(nyx::ColorId multi) {
    if (multi != multi_) {
        beginResetModel();
        multi_ = multi;
        subs_ = readSubs();
        endResetModel();
    }
}

nyx::ColorId SubColorModel::idAt(QModelIndex const& index) const {
    auto const row = static_cast<std::size_t>(index.row());
    return index.isValid() && row < subs_.size() ? subs_[row] : nyx::ColorId();
}

int SubColorModel::activeRow() const {
    zsg::ColorDB* const db = scene_.colorDB();
    auto const* const edit = db ? db->getColorParameters(multi_) : nullptr;
    auto const found = edit ? std::ranges::find(subs_, edit->activeSub()) : subs_.end();
    return found == subs_.end() ? -1 : static_cast<int>(found - subs_.begin());
}

int SubColorModel::rowCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(subs_.size());
}

QVariant SubColorModel::data(QModelIndex const& index, int role) const {
    nyx::ColorId const id = idAt(index);
    if (!id.isValid()) {
        return {};
    }
    bool const active = index.row() == activeRow();
    switch (role) {
    case Qt::DisplayRole:
        return shownName(swatchOf(scene_.colorDB(), id).name);
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole: {
        QString const text = describe(swatchOf(scene_.colorDB(), id));
        return active ? tr("%1, active").arg(text) : text;
    }
    case Qt::FontRole: {
        QFont font;
        font.setBold(active);
        return font;
    }
    case ActiveRole:
        return active;
    default:
        return {};
    }
}

Qt::ItemFlags SubColorModel::flags(QModelIndex const& index) const {
    Qt::ItemFlags const flags = QAbstractListModel::flags(index);
    // Between the rows, not on them: a drop has a place in the order.
    return index.isValid() ? flags | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren
                           : flags | Qt::ItemIsDropEnabled;
}

QStringList SubColorModel::mimeTypes() const { return {colorMimeType()}; }

QMimeData* SubColorModel::mimeData(QModelIndexList const& indexes) const {
    std::vector<int> rows;
    for (QModelIndex const& index : indexes) {
        rows.push_back(index.row());
    }
    std::ranges::sort(rows);
    std::vector<nyx::ColorId> ids;
    ids.reserve(rows.size());
    for (int const row : rows) {
        ids.push_back(subs_[static_cast<std::size_t>(row)]);
    }
    return makeColorMime(scene_, ids, multi_).release();
}

Qt::DropActions SubColorModel::supportedDropActions() const {
    return Qt::MoveAction | Qt::CopyAction | Qt::LinkAction;
}

bool SubColorModel::canDropMimeData(QMimeData const* mime, Qt::DropAction, int, int,
                                    QModelIndex const&) const {
    return mime && mime->hasFormat(colorMimeType()) && multi_.isValid();
}

bool SubColorModel::dropMimeData(QMimeData const* mime, Qt::DropAction action, int row, int column,
                                 QModelIndex const& parent) {
    if (!canDropMimeData(mime, action, row, column, parent) || !scene_.colorController()) {
        return false;
    }
    if (locked_) {
        scene_.say(tr("The multi-colour is locked against changes of its order."));
        return false;
    }
    scene_.endDrags();
    zsg::ColorController& controller = *scene_.colorController();
    ColorMime const read = readColorMime(scene_, *mime);
    int const place = row < 0 ? -1 : row;
    bool const isCopy = action == Qt::CopyAction && read.multi.isValid();
    if (isCopy || read.ids.empty()) {
        // Of another scene, or with Ctrl: new colours of these values.
        auto const macro = controller.getScopedMacro(tr("Add Sub Colors"));
        int at = place;
        for (ZColorExt const& value : read.values) {
            controller.addSubColor(multi_, ZColor(value.rgba(), value.getColorName()), at);
            at += at < 0 ? 0 : 1;
        }
    } else if (read.multi == multi_) {
        controller.moveSubColors(multi_, read.ids, place, {});
    } else {
        // A multi-colour lists plain colours only.
        std::vector<nyx::ColorId> plain;
        std::ranges::copy_if(read.ids, std::back_inserter(plain), [&](nyx::ColorId id) {
            return !swatchOf(scene_.colorDB(), id).isMulti;
        });
        if (plain.size() != read.ids.size()) {
            scene_.say(tr("A multi-colour cannot be part of another one."));
        }
        if (!plain.empty()) {
            controller.addSubColors(multi_, plain, place, {});
        }
    }
    return true;
}

void SubColorModel::follow(Changes const& changes) {
    if (changes.colors.empty() || !multi_.isValid()) {
        return;
    }
    update();
    if (std::ranges::binary_search(changes.colors, multi_)) { // another one may be active
        emit dataChanged(index(0), index(rowCount() - 1));
        return;
    }
    for (int row = 0; row < rowCount(); ++row) {
        if (std::ranges::binary_search(changes.colors, subs_[static_cast<std::size_t>(row)])) {
            emit dataChanged(index(row), index(row));
        }
    }
}

std::vector<nyx::ColorId> SubColorModel::readSubs() const {
    zsg::ColorDB* const db = scene_.colorDB();
    auto const* const edit = db ? db->getColorParameters(multi_) : nullptr;
    if (!edit || !edit->hasFlag(zsg::ColorFlags::MultiColor)) {
        return {};
    }
    auto const subs = edit->subColors();
    return {subs.begin(), subs.end()};
}

void SubColorModel::update() {
    struct Announce {
        SubColorModel& model;
        void removing(int first, int last) { model.beginRemoveRows({}, first, last); }
        void removed() { model.endRemoveRows(); }
        void inserting(int first, int last) { model.beginInsertRows({}, first, last); }
        void inserted() { model.endInsertRows(); }
    };
    replaceRows(subs_, readSubs(), Announce{*this});
}

} // namespace workbench
