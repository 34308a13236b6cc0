#pragma once

#include "workbench/events/EventRecorder.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <deque>
#include <optional>

namespace workbench {

class Scene;

/// The events of a scene as rows, the oldest first, at most as many as a recorder keeps. They are
/// those that contain the text to look for, in their type or payload. New ones come once per turn
/// of the event loop; while the model is paused they wait.
class EventModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { IdColumn, TypeColumn, PayloadColumn, TimeColumn, columns };

    explicit EventModel(Scene& scene, QObject* parent = nullptr);
    ~EventModel() override;

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

    void setFilter(QString const& text);
    void setPaused(bool paused);
    /// Forgets everything, also what waits and the count of those dropped.
    void clear();
    /// How many events were let go because there were too many.
    [[nodiscard]] std::size_t dropped() const { return dropped_; }
    /// The rows as text: cells separated by tabs, a line each.
    [[nodiscard]] QString text(QList<int> const& rows) const;

signals:
    /// The number of rows or of those dropped.
    void counted();

private:
    [[nodiscard]] RecordedEvent const& at(int row) const;
    [[nodiscard]] QString cell(RecordedEvent const& event, int column) const;
    [[nodiscard]] bool isWanted(RecordedEvent const& event) const;
    void takeNew();
    void dropOldest(std::size_t count);

    Scene& scene_;
    std::deque<RecordedEvent> events_;
    std::uint64_t gone_ = 0;           ///< so many stood before the first of events_
    std::deque<std::uint64_t> wanted_; ///< what passes the filter, counted from the first ever
    QString filter_;
    std::size_t dropped_ = 0;
    bool paused_ = false;
    std::optional<EventRecorder> recorder_;
};

} // namespace workbench
