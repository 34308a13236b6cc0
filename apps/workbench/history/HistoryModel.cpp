#include "workbench/history/HistoryModel.h"

#include "workbench/scene/Scene.h"

#include "zcore/ZUndoStack.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <utility>

namespace workbench {

HistoryModel::HistoryModel(Scene& scene, QObject* parent)
    : QAbstractListModel(parent), scene_(scene), rows_{{nullptr, tr("Start")}} {
    connect(&scene, &Scene::historyChanged, this, &HistoryModel::update);
    update();
}

int HistoryModel::rowCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant HistoryModel::data(QModelIndex const& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    int const row = index.row();
    bool const undone = row > index_;
    bool const saved = row == clean_;
    QString const& text = rows_[static_cast<std::size_t>(row)].text;
    switch (role) {
    case Qt::DisplayRole:
        return saved ? tr("%1 – saved").arg(text) : text;
    case Qt::ToolTipRole:
        return text;
    case Qt::AccessibleTextRole: {
        QString spoken = text;
        if (undone) {
            spoken = tr("%1, undone").arg(spoken);
        }
        return saved ? tr("%1, saved").arg(spoken) : spoken;
    }
    case Qt::FontRole: {
        QFont font;
        font.setItalic(undone);
        font.setBold(row == index_);
        return font;
    }
    case Qt::ForegroundRole:
        return undone ? QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text)
                      : QVariant();
    case UndoneRole:
        return undone;
    case SavedRole:
        return saved;
    default:
        return {};
    }
}

void HistoryModel::update() {
    updating_ = true;
    ZUndoStack const& stack = scene_.undoStack();
    int const entries = stack.count();
    auto const isAt = [&](int row, int entry) {
        return rows_[static_cast<std::size_t>(row)].entry == stack.command(entry);
    };
    // Of the entries that were there, a stack loses some of the oldest and some of the newest, and
    // gains new ones at the end: whatever its depth, only those are looked at.
    int gone = 0;
    while (gone < rowCount() - 1 && !isAt(gone + 1, 0)) {
        ++gone;
    }
    takeRows(1, gone);
    int kept = std::min(rowCount() - 1, entries);
    while (kept > 0 && !isAt(kept, kept - 1)) {
        --kept;
    }
    takeRows(kept + 1, rowCount() - 1 - kept);
    if (entries > kept) {
        beginInsertRows({}, kept + 1, entries);
        for (int i = kept; i < entries; ++i) {
            rows_.push_back({stack.command(i), stack.text(i)});
        }
        endInsertRows();
    }

    int const indexBefore = std::exchange(index_, stack.index());
    int const cleanBefore = std::exchange(clean_, stack.cleanIndex());
    // The newest may stand for one edit more than before, and a new entry may lie where one of
    // those lay that it has dropped.
    for (int row = std::max(1, std::min(indexBefore, index_)); row <= index_; ++row) {
        rows_[static_cast<std::size_t>(row)].text = stack.text(row - 1);
    }
    emitChanged(std::min(indexBefore, index_), std::max(indexBefore, index_));
    if (clean_ != cleanBefore) {
        emitChanged(cleanBefore, cleanBefore);
        emitChanged(clean_, clean_);
    }
    updating_ = false;
    emit updated();
}

void HistoryModel::takeRows(int first, int count) {
    if (count == 0) {
        return;
    }
    beginRemoveRows({}, first, first + count - 1);
    rows_.erase(rows_.begin() + first, rows_.begin() + first + count);
    for (int* const row : {&index_, &clean_}) {
        *row = *row >= first + count ? *row - count : *row >= first ? -1 : *row;
    }
    endRemoveRows();
}

void HistoryModel::emitChanged(int first, int last) {
    first = std::max(first, 0);
    last = std::min(last, rowCount() - 1);
    if (first <= last) {
        emit dataChanged(index(first), index(last));
    }
}

} // namespace workbench
