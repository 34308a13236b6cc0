#pragma once

#include <QAbstractListModel>
#include <QString>

#include <vector>

class ZUndoCommand;

namespace workbench {

class Scene;

/// The history as rows: the state at the beginning, then each entry, done or undone. The row of
/// the present state is currentRow().
class HistoryModel final : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { UndoneRole = Qt::UserRole, SavedRole };

    explicit HistoryModel(Scene& scene, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;

    [[nodiscard]] int currentRow() const { return index_; }
    /// Whether rows come and go at this moment, so that a view may move its current row by itself.
    [[nodiscard]] bool isUpdating() const { return updating_; }

signals:
    void updated();

private:
    /// Texts are kept, because a row that is about to go has no entry to ask any more.
    struct Row {
        ZUndoCommand const* entry = nullptr; ///< only to tell rows apart: it may be gone
        QString text;
    };

    void update();
    void takeRows(int first, int count);
    void emitChanged(int first, int last);

    Scene& scene_;
    std::vector<Row> rows_; ///< the first stands for no entry
    int index_ = 0;
    int clean_ = 0;
    bool updating_ = false;
};

} // namespace workbench
