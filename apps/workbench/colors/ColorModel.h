#pragma once

#include "workbench/scene/Changes.h"

#include "nyxrender/Ids.h"

#include <QAbstractTableModel>
#include <QString>
#include <QTimer>

#include <string>
#include <unordered_map>
#include <vector>

namespace zsg {
class ColorDB;
}

namespace workbench {

class Scene;

/// The colours of a scene as rows: plain ones, then multi-colours, each in creation order, or those
/// of them that a filter lets through. It holds ids and, while names are searched, the names;
/// everything else is asked when it is shown.
class ColorModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { NameColumn, ValueColumn, UsesColumn, ColumnCount };
    enum Role { IdRole = Qt::UserRole };
    enum class Kind { All, Plain, Multi, InUse };

    explicit ColorModel(Scene& scene, QObject* parent = nullptr);

    /// Shows colours of that kind whose names hold the text, in any case. A large scene is searched
    /// in slices between other events, and the rows come as they are found.
    void setFilter(QString const& text, Kind kind);
    [[nodiscard]] bool isSearching() const { return searched_ < all_.size(); }

    [[nodiscard]] nyx::ColorId idAt(QModelIndex const& index) const;
    /// The row of a colour in the first column; invalid when it is not shown.
    [[nodiscard]] QModelIndex indexOf(nyx::ColorId id) const;

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(QModelIndex const& index) const override;
    /// Renames: one undoable edit, none when the name is the same.
    bool setData(QModelIndex const& index, QVariant const& value, int role) override;
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData* mimeData(QModelIndexList const& indexes) const override;
    [[nodiscard]] Qt::DropActions supportedDragActions() const override;

private:
    void follow(Changes const& changes);
    void readAll();
    void startSearch();
    void searchSlice();
    [[nodiscard]] bool isFiltering() const { return !text_.isEmpty() || kind_ != Kind::All; }
    [[nodiscard]] bool isListed(zsg::ColorDB& db) const;
    [[nodiscard]] bool matches(std::size_t place);
    void indexRows();
    void setRows(std::vector<nyx::ColorId> const& next);

    Scene& scene_;
    std::vector<nyx::ColorId> all_; ///< the first plainCount_ of them are plain
    std::size_t plainCount_ = 0;
    std::vector<nyx::ColorId> rows_;
    std::unordered_map<nyx::ColorId, int> rowOf_;
    std::unordered_map<nyx::ColorId, QString> names_; ///< folded, of those searched so far
    QString text_;
    Kind kind_ = Kind::All;
    std::size_t searched_ = 0; ///< so many of all_ are decided
    QTimer slice_;
};

} // namespace workbench
