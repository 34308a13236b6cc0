#pragma once

#include "nyxrender/nyxLayerInfo.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QPixmap>
#include <QString>
#include <QTimer>

#include <cstdint>
#include <optional>
#include <set>
#include <vector>

namespace zsg {
class IPainterSurface;
}

namespace workbench {

class Canvas;
class Scene;
struct Changes;

/// The layers of the canvas's surface that are not deleted, the topmost first. Rows are dragged to
/// other places within it.
class PaintLayerModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { EyeColumn, NameColumn, ModeColumn, BackgroundColumn, columns };

    PaintLayerModel(Scene& scene, Canvas& canvas, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    bool setData(QModelIndex const& index, QVariant const& value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(QModelIndex const& index) const override;
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData* mimeData(QModelIndexList const& indexes) const override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    bool dropMimeData(QMimeData const* mime, Qt::DropAction action, int row, int column,
                      QModelIndex const& parent) override;

    /// The row that is painted on; -1 when there is none.
    [[nodiscard]] int currentRow() const;
    /// Not undoable: it is a choice, no edit.
    void setCurrentRow(int row);
    [[nodiscard]] nyxColor_rgba background(int row) const;

    // Edits, each one entry of the history. Rows that there are not are ignored.

    void add();
    void remove(int row);
    /// Takes a row to another place, which is counted without it.
    void move(int from, int to);
    void setBackground(int row, nyxColor_rgba const& color);
    void setVisible(std::set<int> const& rows, bool visible);

    /// Shows rows as they would be, without an edit; an empty set ends that.
    void previewVisible(std::set<int> const& rows, bool visible);

    /// How a mode is called.
    [[nodiscard]] static QString modeName(nyx::ColorBlendMode mode);
    static constexpr int modes = 14;

signals:
    void updated();

private:
    struct Row {
        unsigned index = 0; ///< in the surface's list, which has the deleted ones as well
        nyxLayerInfo layer;
        QString name;

        friend bool operator==(Row const& a, Row const& b) { return a.layer.id == b.layer.id; }
    };

    [[nodiscard]] Row const* at(int row) const;
    [[nodiscard]] bool isVisible(int row) const;
    [[nodiscard]] QString spoken(int row) const;
    [[nodiscard]] QVariant text(int row, int column) const;
    void follow(Changes const& changes);
    void update();
    void drawThumbnails();

    Scene& scene_;
    Canvas& canvas_;
    std::vector<Row> rows_;
    std::vector<std::uint32_t> order_;        ///< ids of the whole list, as it was last
    unsigned editIndex_ = 0;                  ///< of the layer that is painted on, as it was last
    zsg::IPainterSurface* surface_ = nullptr; ///< only to be compared
    QHash<std::uint32_t, QPixmap> thumbnails_;
    QTimer idle_;
    bool updating_ = false;
    std::set<int> previewed_;
    bool previewedVisible_ = false;
};

} // namespace workbench
