#include "workbench/colors/ColorModel.h"

#include "host/sRGB.h"
#include "workbench/colors/colorMime.h"
#include "workbench/colors/swatch.h"
#include "workbench/scene/Scene.h"
#include "workbench/scene/replaceRows.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"

#include <QMimeData>

#include <algorithm>

namespace workbench {

namespace {

/// Names looked at between two other events: less than a frame's time.
constexpr std::size_t sliceSize = 2000;

} // namespace

ColorModel::ColorModel(Scene& scene, QObject* parent) : QAbstractTableModel(parent), scene_(scene) {
    slice_.setInterval(0);
    connect(&slice_, &QTimer::timeout, this, &ColorModel::searchSlice);
    connect(&scene, &Scene::changed, this, &ColorModel::follow);
    connect(&scene, &Scene::rootEnding, this, [this] {
        all_.clear();
        plainCount_ = 0;
        names_.clear();
        startSearch();
    });
    readAll();
    startSearch();
}

void ColorModel::setFilter(QString const& text, Kind kind) {
    QString const folded = text.toCaseFolded();
    if (folded != text_ || kind != kind_) {
        text_ = folded;
        kind_ = kind;
        startSearch();
    }
}

nyx::ColorId ColorModel::idAt(QModelIndex const& index) const {
    auto const row = static_cast<std::size_t>(index.row());
    return index.isValid() && row < rows_.size() ? rows_[row] : nyx::ColorId();
}

QModelIndex ColorModel::indexOf(nyx::ColorId id) const {
    auto const found = rowOf_.find(id);
    return found == rowOf_.end() ? QModelIndex() : index(found->second, NameColumn);
}

int ColorModel::rowCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ColorModel::columnCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ColorModel::data(QModelIndex const& index, int role) const {
    nyx::ColorId const id = idAt(index);
    if (!id.isValid()) {
        return {};
    }
    switch (role) {
    case IdRole:
        return id.toUint();
    case Qt::EditRole:
        return scene_.colorDB() ? QString::fromStdString(scene_.colorDB()->colorName(id))
                                : QString();
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return describe(swatchOf(scene_.colorDB(), id));
    case Qt::TextAlignmentRole:
        return index.column() == UsesColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                            : QVariant();
    case Qt::DisplayRole: {
        Swatch const swatch = swatchOf(scene_.colorDB(), id);
        return index.column() == NameColumn ? QVariant(shownName(swatch.name))
               : index.column() == ValueColumn
                   ? QVariant(QString::fromStdString(app::hexColorWithAlpha(swatch.value)))
                   : QVariant(swatch.uses);
    }
    default:
        return {};
    }
}

QVariant ColorModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return section == NameColumn ? tr("Name") : section == ValueColumn ? tr("Value") : tr("Uses");
}

Qt::ItemFlags ColorModel::flags(QModelIndex const& index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (!index.isValid()) {
        return flags;
    }
    flags.setFlag(Qt::ItemIsDragEnabled);
    flags.setFlag(Qt::ItemIsEditable, index.column() == NameColumn);
    flags.setFlag(Qt::ItemNeverHasChildren);
    return flags;
}

bool ColorModel::setData(QModelIndex const& index, QVariant const& value, int role) {
    nyx::ColorId const id = idAt(index);
    if (role != Qt::EditRole || !id.isValid() || !scene_.colorController()) {
        return false;
    }
    std::string const name = value.toString().toStdString();
    if (name == scene_.colorDB()->colorName(id)) {
        return false;
    }
    scene_.endDrags();
    scene_.colorController()->setDisplayName(id, name);
    return true;
}

QStringList ColorModel::mimeTypes() const { return {colorMimeType()}; }

QMimeData* ColorModel::mimeData(QModelIndexList const& indexes) const {
    std::vector<nyx::ColorId> ids;
    for (QModelIndex const& index : indexes) {
        if (index.column() == NameColumn) {
            ids.push_back(idAt(index));
        }
    }
    return makeColorMime(scene_, ids).release();
}

Qt::DropActions ColorModel::supportedDragActions() const { return Qt::CopyAction | Qt::LinkAction; }

void ColorModel::follow(Changes const& changes) {
    if (changes.everything) {
        names_.clear();
        readAll();
        startSearch();
        return;
    }
    zsg::ColorDB& db = *scene_.colorDB();
    if (changes.colors.empty()) {
        return;
    }
    // A name may have changed with any of them.
    for (nyx::ColorId const id : changes.colors) {
        if (auto const found = names_.find(id); found != names_.end()) {
            found->second = QString::fromStdString(db.colorName(id)).toCaseFolded();
        }
    }
    if (!isListed(db) || isFiltering()) {
        bool const wasSearching = isSearching();
        readAll();
        if (wasSearching || !isFiltering()) {
            startSearch();
        } else {
            // The rows that stay keep their place and their selection.
            std::vector<nyx::ColorId> next;
            for (std::size_t i = 0; i < all_.size(); ++i) {
                if (matches(i)) {
                    next.push_back(all_[i]);
                }
            }
            searched_ = all_.size();
            setRows(next);
        }
    }
    for (nyx::ColorId const id : changes.colors) {
        if (QModelIndex const first = indexOf(id); first.isValid()) {
            emit dataChanged(first, index(first.row(), ColumnCount - 1));
        }
    }
}

bool ColorModel::isListed(zsg::ColorDB& db) const {
    auto const plain = db.colors();
    auto const multi = db.multiColors();
    return plain.size() == plainCount_ && multi.size() == all_.size() - plainCount_ &&
           std::equal(plain.begin(), plain.end(), all_.begin()) &&
           std::equal(multi.begin(), multi.end(), all_.begin() + std::ptrdiff_t(plainCount_));
}

void ColorModel::readAll() {
    all_.clear();
    if (zsg::ColorDB* const db = scene_.colorDB()) {
        auto const plain = db->colors();
        all_.assign(plain.begin(), plain.end());
        plainCount_ = all_.size();
        auto const multi = db->multiColors();
        all_.insert(all_.end(), multi.begin(), multi.end());
    }
}

void ColorModel::startSearch() {
    slice_.stop();
    if (!isFiltering()) {
        searched_ = all_.size();
        setRows(all_);
        return;
    }
    searched_ = 0;
    setRows({});
    searchSlice();
}

void ColorModel::searchSlice() {
    std::size_t const end = std::min(searched_ + sliceSize, all_.size());
    std::vector<nyx::ColorId> found;
    for (; searched_ < end; ++searched_) {
        if (matches(searched_)) {
            found.push_back(all_[searched_]);
        }
    }
    if (!found.empty()) {
        int const first = rowCount();
        beginInsertRows({}, first, first + static_cast<int>(found.size()) - 1);
        for (nyx::ColorId const id : found) {
            rowOf_[id] = static_cast<int>(rows_.size());
            rows_.push_back(id);
        }
        endInsertRows();
    }
    if (!isSearching()) {
        slice_.stop();
    } else if (!slice_.isActive()) {
        slice_.start();
    }
}

bool ColorModel::matches(std::size_t place) {
    nyx::ColorId const id = all_[place];
    zsg::ColorDB const& db = *scene_.colorDB();
    bool const kindFits = kind_ == Kind::Plain   ? place < plainCount_
                          : kind_ == Kind::Multi ? place >= plainCount_
                          : kind_ == Kind::InUse ? db.totalSceneReferenceCount(id) != 0
                                                 : true;
    if (!kindFits || text_.isEmpty()) {
        return kindFits;
    }
    auto found = names_.find(id);
    if (found == names_.end()) {
        found = names_.emplace(id, QString::fromStdString(db.colorName(id)).toCaseFolded()).first;
    }
    return found->second.contains(text_);
}

void ColorModel::indexRows() {
    rowOf_.clear();
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        rowOf_[rows_[i]] = static_cast<int>(i);
    }
}

void ColorModel::setRows(std::vector<nyx::ColorId> const& next) {
    struct Announce {
        ColorModel& model;
        void removing(int first, int last) { model.beginRemoveRows({}, first, last); }
        void removed() {
            model.indexRows();
            model.endRemoveRows();
        }
        void inserting(int first, int last) { model.beginInsertRows({}, first, last); }
        void inserted() {
            model.indexRows();
            model.endInsertRows();
        }
    };
    replaceRows(rows_, next, Announce{*this});
}

} // namespace workbench
