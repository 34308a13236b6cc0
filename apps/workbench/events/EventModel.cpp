#include "workbench/events/EventModel.h"

#include "workbench/scene/Scene.h"
#include "zsg/core/ISceneGraph.h"

#include <QDateTime>

#include <algorithm>
#include <iterator>
#include <utility>

namespace workbench {

EventModel::EventModel(Scene& scene, QObject* parent) : QAbstractTableModel(parent), scene_(scene) {
    auto const record = [this] {
        recorder_.emplace(*scene_.root()->eventQueue(), [this] {
            QMetaObject::invokeMethod(this, &EventModel::takeNew, Qt::QueuedConnection);
        });
    };
    connect(&scene, &Scene::rootEnding, this, [this] {
        bool const paused = std::exchange(paused_, false); // or what waits would be lost
        takeNew();
        paused_ = paused;
        recorder_.reset();
    });
    connect(&scene, &Scene::changed, this, [record](Changes const& changes) {
        if (changes.everything) {
            record();
        }
    });
    if (scene.root()) {
        record();
    }
}

EventModel::~EventModel() = default;

int EventModel::rowCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(wanted_.size());
}

int EventModel::columnCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : columns;
}

RecordedEvent const& EventModel::at(int row) const {
    return events_[static_cast<std::size_t>(wanted_[static_cast<std::size_t>(row)] - gone_)];
}

QString EventModel::cell(RecordedEvent const& event, int column) const {
    switch (column) {
    case IdColumn:
        return QString::number(event.id);
    case TypeColumn:
        return event.type;
    case PayloadColumn:
        return event.payload;
    default:
        return QDateTime::fromMSecsSinceEpoch(event.time).toString(QStringLiteral("HH:mm:ss.zzz"));
    }
}

QVariant EventModel::data(QModelIndex const& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return cell(at(index.row()), index.column());
    case Qt::AccessibleTextRole:
        return headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString() + ' ' +
               cell(at(index.row()), index.column());
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(index.column() == IdColumn ? Qt::AlignRight | Qt::AlignVCenter
                                                              : Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant EventModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case IdColumn:
        return tr("Number");
    case TypeColumn:
        return tr("Event");
    case PayloadColumn:
        return tr("Of");
    default:
        return tr("Time");
    }
}

bool EventModel::isWanted(RecordedEvent const& event) const {
    return event.type.contains(filter_, Qt::CaseInsensitive) ||
           event.payload.contains(filter_, Qt::CaseInsensitive);
}

void EventModel::setFilter(QString const& text) {
    beginResetModel();
    filter_ = text;
    wanted_.clear();
    for (std::size_t i = 0; i < events_.size(); ++i) {
        if (isWanted(events_[i])) {
            wanted_.push_back(gone_ + i);
        }
    }
    endResetModel();
    emit counted();
}

void EventModel::setPaused(bool paused) {
    paused_ = paused;
    takeNew();
}

void EventModel::clear() {
    beginResetModel();
    if (recorder_) {
        static_cast<void>(recorder_->take());
    }
    gone_ += events_.size();
    events_.clear();
    wanted_.clear();
    dropped_ = 0;
    endResetModel();
    emit counted();
}

QString EventModel::text(QList<int> const& rows) const {
    QString text;
    for (int const row : rows) {
        for (int column = 0; column < columns; ++column) {
            text += cell(at(row), column) + (column + 1 < columns ? '\t' : '\n');
        }
    }
    return text;
}

void EventModel::takeNew() {
    if (paused_ || !recorder_) {
        return;
    }
    EventRecorder::Taken taken = recorder_->take();
    if (taken.events.empty()) {
        return;
    }
    dropped_ += taken.dropped;
    std::size_t const all = events_.size() + taken.events.size();
    if (all > EventRecorder::mostKept) {
        dropOldest(all - EventRecorder::mostKept);
    }
    std::deque<std::uint64_t> added;
    for (std::size_t i = 0; i < taken.events.size(); ++i) {
        if (isWanted(taken.events[i])) {
            added.push_back(gone_ + events_.size() + i);
        }
    }
    if (!added.empty()) {
        beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(added.size()) - 1);
    }
    std::ranges::move(taken.events, std::back_inserter(events_));
    if (!added.empty()) {
        std::ranges::copy(added, std::back_inserter(wanted_));
        endInsertRows();
    }
    emit counted();
}

void EventModel::dropOldest(std::size_t count) {
    std::uint64_t const first = gone_ + count;
    auto const kept = std::ranges::lower_bound(wanted_, first);
    bool const anyShown = kept != wanted_.begin();
    if (anyShown) {
        beginRemoveRows({}, 0, static_cast<int>(kept - wanted_.begin()) - 1);
    }
    wanted_.erase(wanted_.begin(), kept);
    events_.erase(events_.begin(), events_.begin() + static_cast<std::ptrdiff_t>(count));
    gone_ = first;
    dropped_ += count;
    if (anyShown) {
        endRemoveRows();
    }
}

} // namespace workbench
