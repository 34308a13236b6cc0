#pragma once

#include "nyxrender/Ids.h"

#include <QAbstractListModel>

#include <vector>

namespace workbench {

struct Changes;
class Scene;

/// The sub-colours of one multi-colour, in its order. Colours that are dropped between them are
/// added, its own ones are moved; with the copy action new colours of the same values are made.
class SubColorModel final : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { ActiveRole = Qt::UserRole };

    explicit SubColorModel(Scene& scene, QObject* parent = nullptr);

    /// The invalid id for none.
    void setMulti(nyx::ColorId multi);
    [[nodiscard]] nyx::ColorId multi() const { return multi_; }
    [[nodiscard]] nyx::ColorId idAt(QModelIndex const& index) const;
    [[nodiscard]] int activeRow() const;

    /// A locked list refuses drops, and says so.
    void setLocked(bool locked) { locked_ = locked; }
    [[nodiscard]] bool isLocked() const { return locked_; }

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(QModelIndex const& index) const override;
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData* mimeData(QModelIndexList const& indexes) const override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override;
    bool canDropMimeData(QMimeData const* mime, Qt::DropAction action, int row, int column,
                         QModelIndex const& parent) const override;
    bool dropMimeData(QMimeData const* mime, Qt::DropAction action, int row, int column,
                      QModelIndex const& parent) override;

private:
    void follow(Changes const& changes);
    [[nodiscard]] std::vector<nyx::ColorId> readSubs() const;
    void update();

    Scene& scene_;
    nyx::ColorId multi_;
    std::vector<nyx::ColorId> subs_;
    bool locked_ = false;
};

} // namespace workbench
