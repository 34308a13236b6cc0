#pragma once

#include "nyxrender/Ids.h"

#include <QAbstractTableModel>

#include <map>
#include <vector>

namespace workbench {

struct Changes;
class Scene;

/// Which light is in which layer: a row for each light, below the groups that lead to it, and a
/// column for each layer. A group's cell stands for the lights below it that have a row. Lights
/// that the renderer leaves out of lists are shown but not changed, because undo would not find
/// them.
class LightMatrixModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit LightMatrixModel(Scene& scene, QObject* parent = nullptr);

    /// Rows only for lights with this in their name, whatever the case; empty: for all.
    void setFilter(QString const& text);

    [[nodiscard]] nyx::LightLayerId layerAt(int column) const;
    [[nodiscard]] Qt::CheckState state(QModelIndex const& index) const;
    /// The lights of some rows, each once, in the order of the rows.
    [[nodiscard]] std::vector<nyx::ObjectId> lightsOf(std::vector<int> rows) const;
    /// Puts the lights of some cells into the layer of the current one, or, when those of the
    /// current one are in it already, all that are in the layers of their cells into the first
    /// layer. One entry of the history.
    void toggle(QModelIndexList const& cells, QModelIndex const& current);

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    bool setData(QModelIndex const& index, QVariant const& value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(QModelIndex const& index) const override;

private:
    struct Row {
        nyx::GroupItemId id;
        QString name;
        int depth = 0;
        bool isLight = false;
        bool isUnlisted = false;
        nyx::LightLayerId layer;             ///< of a light; invalid: none
        int lights = 0;                      ///< itself and below, unless they are unlisted
        std::map<nyx::LightLayerId, int> in; ///< so many of these are in a layer
    };
    /// Announces other rows, or other columns.
    template <Qt::Orientation orientation>
    struct Announce;

    void follow(Changes const& changes);
    void read();
    [[nodiscard]] std::vector<Row> readRows(std::vector<nyx::LightLayerId> const& layers) const;
    [[nodiscard]] Row const& at(int row) const { return rows_[static_cast<std::size_t>(row)]; }
    /// Behind the last row below one.
    [[nodiscard]] int endOf(int row) const;

    Scene& scene_;
    QString filter_;
    std::vector<Row> rows_;
    std::vector<nyx::LightLayerId> layers_; ///< the columns
};

} // namespace workbench
