#pragma once

#include "nyxrender/Ids.h"

#include <QAbstractTableModel>

#include <vector>

namespace workbench {

struct Changes;
class Scene;

/// What each colorway makes of each multi-colour: a row for every multi-colour, a column for every
/// colorway, in creation order.
class ColorwayModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit ColorwayModel(Scene& scene, QObject* parent = nullptr);

    /// Whether the columns of deleted colorways are there.
    void setShowDeleted(bool on);

    [[nodiscard]] nyx::ColorId multiAt(int row) const;
    [[nodiscard]] nyx::ColorwayId colorwayAt(int column) const;
    /// The sub-colour of a cell; invalid when the colorway leaves the multi-colour as it is.
    [[nodiscard]] nyx::ColorId subAt(QModelIndex const& index) const;
    [[nodiscard]] bool isDeleted(int column) const;

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    void follow(Changes const& changes);
    void read();

    Scene& scene_;
    std::vector<nyx::ColorId> multis_;
    std::vector<nyx::ColorwayId> colorways_;
    bool showDeleted_ = false;
};

} // namespace workbench
