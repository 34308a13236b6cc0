#include "workbench/history/HistoryModel.h"

#include "workbench/scene/Scene.h"
#include "workbench/scene/replaceRows.h"

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
    struct Announce {
        HistoryModel& model;
        void removing(int first, int last) { model.beginRemoveRows({}, first, last); }
        void removed() { model.endRemoveRows(); }
        void inserting(int first, int last) { model.beginInsertRows({}, first, last); }
        void inserted() { model.endInsertRows(); }
    } announce{*this};

    updating_ = true;
    ZUndoStack const& stack = scene_.undoStack();
    std::vector<Row> next{rows_.front()};
    next.reserve(static_cast<std::size_t>(stack.count()) + 1);
    for (int i = 0; i < stack.count(); ++i) {
        next.push_back({stack.command(i), {}});
    }
    // A full history loses its oldest entry with every push: those rows go first, or every row
    // would look like another one.
    if (next.size() > 1 && rows_.size() > 1 && next[1] != rows_[1]) {
        auto const kept = std::ranges::find(rows_, next[1]);
        if (kept != rows_.end()) {
            int const gone = static_cast<int>(kept - rows_.begin()) - 1;
            announce.removing(1, gone);
            rows_.erase(rows_.begin() + 1, kept);
            for (int* const row : {&index_, &clean_}) {
                *row = *row > gone ? *row - gone : *row > 0 ? -1 : *row;
            }
            announce.removed();
        }
    }
    replaceRows(rows_, next, announce);

    int const indexBefore = std::exchange(index_, stack.index());
    int const cleanBefore = std::exchange(clean_, stack.cleanIndex());
    // The newest may stand for one edit more than before, and a new entry may lie where one of
    // those lay that it has dropped.
    for (int row = std::max(1, std::min(indexBefore, index_)); row < rowCount(); ++row) {
        Row& changed = rows_[static_cast<std::size_t>(row)];
        if (row <= index_ || changed.text.isNull()) {
            changed.text = stack.text(row - 1);
        }
    }
    // Undone or not, bold, saved; and the text of the newest, which may stand for one edit more.
    auto const [low, high] =
        std::minmax({indexBefore, index_, std::max(cleanBefore, 0), std::max(clean_, 0)});
    int const lastRow = rowCount() - 1;
    emit dataChanged(index(std::min(low, lastRow)), index(std::min(high, lastRow)));
    updating_ = false;
    emit updated();
}

} // namespace workbench
