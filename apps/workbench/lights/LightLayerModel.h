#pragma once

#include "nyxrender/Ids.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <vector>

namespace workbench {

struct Changes;
class Scene;

/// The light layers of the scene, a row each: name, whether it is inverted, how many lights are in
/// it. Names and marks may be edited.
class LightLayerModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { NameColumn, InvertedColumn, LightsColumn, ColumnCount };

    explicit LightLayerModel(Scene& scene, QObject* parent = nullptr);

    /// Whether deleted layers have rows.
    void setShowDeleted(bool on);

    [[nodiscard]] nyx::LightLayerId layerAt(int row) const;
    /// -1 when there is none.
    [[nodiscard]] int rowOf(nyx::LightLayerId layer) const;

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    bool setData(QModelIndex const& index, QVariant const& value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(QModelIndex const& index) const override;

private:
    struct Row {
        nyx::LightLayerId id;
        QString name;
        bool inverted = false;
        bool deleted = false;
        qsizetype lights = 0;

        friend bool operator==(Row const& a, Row const& b) { return a.id == b.id; }
    };

    void follow(Changes const& changes);
    void read();

    Scene& scene_;
    std::vector<Row> rows_;
    bool showDeleted_ = false;
};

} // namespace workbench
