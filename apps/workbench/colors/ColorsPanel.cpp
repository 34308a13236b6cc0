#include "workbench/colors/ColorsPanel.h"

#include "workbench/colors/ColorDelegate.h"
#include "workbench/colors/ColorModel.h"
#include "workbench/colors/colorMime.h"
#include "workbench/colors/importColors.h"
#include "workbench/colors/paletteFiles.h"
#include "workbench/colors/swatch.h"
#include "workbench/scene/Scene.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QStackedWidget>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <optional>
#include <set>

namespace workbench {

ColorsPanel::ColorsPanel(Scene& scene, QWidget* parent)
    : Panel(parent),
      scene_(scene),
      model_(new ColorModel(scene, this)),
      filter_(new QLineEdit(this)),
      kind_(new QComboBox(this)),
      views_(new QStackedWidget(this)),
      grid_(new QListView),
      list_(new QTreeView) {
    filter_->setObjectName("colourFilter");
    filter_->setPlaceholderText(tr("find by name"));
    filter_->setAccessibleName(tr("Find by name"));
    filter_->setClearButtonEnabled(true);
    kind_->setObjectName("colourKind");
    kind_->setAccessibleName(tr("Which colours"));
    kind_->addItems({tr("All"), tr("Plain"), tr("Multi"), tr("In Use")});
    auto const search = [this] {
        model_->setFilter(filter_->text(), static_cast<ColorModel::Kind>(kind_->currentIndex()));
    };
    connect(filter_, &QLineEdit::textChanged, this, search);
    connect(kind_, &QComboBox::currentIndexChanged, this, search);
    makeViews();
    makeActions();
    auto* const asList = new QToolButton(this);
    asList->setObjectName("coloursAsList");
    asList->setCheckable(true);
    asList->setText(tr("List"));
    asList->setToolTip(tr("Show a list in place of tiles"));
    connect(asList, &QToolButton::toggled, this, [this](bool on) {
        views_->setCurrentIndex(on ? 1 : 0);
        setFocusProxy(view());
    });
    auto* const bar = new QHBoxLayout;
    bar->addWidget(filter_, 1);
    bar->addWidget(kind_);
    bar->addWidget(asList);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(bar);
    layout->addWidget(views_, 1);
    setFocusProxy(grid_);
}

void ColorsPanel::makeViews() {
    // Before the selection hears of it: where its row goes it takes another one, whatever that is.
    connect(model_, &QAbstractItemModel::rowsAboutToBeRemoved, this, [this] { rowsGo_ = true; });
    auto const idOf = [this](QModelIndex const& index) { return model_->idAt(index); };
    grid_->setObjectName("colourGrid");
    grid_->setViewMode(QListView::IconMode);
    grid_->setMovement(QListView::Static);
    grid_->setResizeMode(QListView::Adjust);
    grid_->setUniformItemSizes(true);
    grid_->setLayoutMode(QListView::Batched);
    grid_->setBatchSize(1000);
    grid_->setItemDelegate(new ColorDelegate(scene_, ColorDelegate::Form::Tile, idOf, grid_));
    list_->setObjectName("colourList");
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setItemDelegateForColumn(
        0, new ColorDelegate(scene_, ColorDelegate::Form::Row, idOf, list_));
    for (QAbstractItemView* const view :
         {static_cast<QAbstractItemView*>(grid_), static_cast<QAbstractItemView*>(list_)}) {
        view->setAccessibleName(tr("Colours"));
        view->setModel(model_);
        view->setSelectionMode(QAbstractItemView::ExtendedSelection);
        view->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::DoubleClicked);
        view->setDragEnabled(true);
        view->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(view, &QWidget::customContextMenuRequested, this, [this, view](QPoint const& at) {
            QMenu menu;
            menu.addActions(actions());
            menu.exec(view->viewport()->mapToGlobal(at));
        });
        views_->addWidget(view);
    }
    list_->setSelectionBehavior(QAbstractItemView::SelectRows);
    list_->header()->setSectionResizeMode(ColorModel::NameColumn, QHeaderView::Stretch);
    list_->header()->setStretchLastSection(false);
    selection_ = grid_->selectionModel();
    auto* const second = list_->selectionModel();
    list_->setSelectionModel(selection_);
    delete second;
    connect(selection_, &QItemSelectionModel::currentChanged, this,
            [this](QModelIndex const& index) {
                // A search takes rows away; the colour stays the one to work on.
                nyx::ColorId const id = rowsGo_ ? nyx::ColorId() : model_->idAt(index);
                if (id.isValid() && id != current_) {
                    current_ = id;
                    emit currentChanged(id);
                }
            });
    connect(model_, &QAbstractItemModel::rowsRemoved, this, [this] {
        rowsGo_ = false;
        showCurrent();
    });
    connect(model_, &QAbstractItemModel::rowsInserted, this, &ColorsPanel::showCurrent);
    connect(&scene_, &Scene::changed, this, &ColorsPanel::keepCurrent);
    connect(&scene_, &Scene::rootEnding, this, [this] { // its ids mean nothing in another scene
        current_ = {};
        header_ = {};
        emit currentChanged(current_);
    });
}

void ColorsPanel::makeActions() {
    makeAction(tr("&New Colour"), "newColour", QKeySequence("Ctrl+N"), [this] { addColor(); });
    makeAction(tr("&Duplicate"), "duplicateColour", QKeySequence("Ctrl+D"),
               [this] { duplicate(); });
    makeAction(tr("&Rename"), "renameColour", QKeySequence("F2"), [this] {
        if (QModelIndex const index = model_->indexOf(current_); index.isValid()) {
            view()->setCurrentIndex(index);
            view()->edit(index);
        }
    });
    makeAction(tr("Turn into &Multi-Colour or Back"), "toggleMulti", QKeySequence("Ctrl+M"),
               [this] { toggleMulti(); });
    makeAction(tr("&Copy"), "copyColour", QKeySequence::Copy, [this] { copy(); });
    makeAction(tr("&Paste"), "pasteColour", QKeySequence::Paste, [this] { paste(); });
    QString const palettes = tr("GIMP palettes (*.gpl)");
    makeAction(tr("&Import Palette…"), "importPalette", QKeySequence("Ctrl+Shift+I"),
               [this, palettes] {
                   QString const path =
                       QFileDialog::getOpenFileName(this, tr("Import a Palette"), {}, palettes);
                   if (!path.isEmpty()) {
                       importFrom(path);
                   }
               });
    makeAction(
        tr("&Export Palette…"), "exportPalette", QKeySequence("Ctrl+Shift+E"), [this, palettes] {
            QString const path =
                QFileDialog::getSaveFileName(this, tr("Export a Palette"), "colours.gpl", palettes);
            if (!path.isEmpty()) {
                exportTo(path);
            }
        });
}

QAbstractItemView* ColorsPanel::view() const {
    return views_->currentIndex() == 0 ? static_cast<QAbstractItemView*>(grid_) : list_;
}

nyx::ColorId ColorsPanel::current() const { return current_; }

void ColorsPanel::setCurrent(nyx::ColorId id) {
    if (QModelIndex const index = model_->indexOf(id); index.isValid()) {
        selection_->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect |
                                               QItemSelectionModel::Rows);
        grid_->scrollTo(index);
        list_->scrollTo(index);
    } else if (id != current_) {
        current_ = id;
        emit currentChanged(id);
    }
}

void ColorsPanel::keepCurrent() {
    if (!scene_.colorDB() || !scene_.colorDB()->getColorParameters(current_)) {
        current_ = {};
        emit currentChanged(current_);
    }
}

/// Marks the colour to work on as far as it is among those that are found.
void ColorsPanel::showCurrent() {
    QModelIndex const index = model_->indexOf(current_);
    if (selection_->currentIndex() != index) {
        bool const isOnly = index.isValid() && !selection_->hasSelection();
        selection_->setCurrentIndex(index, isOnly ? QItemSelectionModel::ClearAndSelect |
                                                        QItemSelectionModel::Rows
                                                  : QItemSelectionModel::NoUpdate);
    }
}

int ColorsPanel::rowCount() const { return model_->rowCount(); }

bool ColorsPanel::select(QString const& text) {
    for (int row = 0; row < model_->rowCount(); ++row) {
        QModelIndex const index = model_->index(row, 0);
        if (index.data(Qt::EditRole).toString() == text) {
            setCurrent(model_->idAt(index));
            return true;
        }
    }
    return false;
}

QWidget* ColorsPanel::filterField() { return filter_; }

std::vector<nyx::ColorId> ColorsPanel::selected() const {
    std::set<int> rows;
    for (QModelIndex const& index : selection_->selectedIndexes()) {
        rows.insert(index.row());
    }
    std::vector<nyx::ColorId> ids;
    ids.reserve(rows.size());
    for (int const row : rows) {
        ids.push_back(model_->idAt(model_->index(row, 0)));
    }
    return ids;
}

void ColorsPanel::addColor() {
    if (!scene_.colorDB()) {
        return;
    }
    ZColorExt color(ZColor(0.5F, 0.5F, 0.5F, 1.0F, tr("Colour").toStdString()));
    scene_.colorDB()->pushColor(color);
    scene_.noteUnrecordedChange();
    scene_.flush();
    setCurrent(color.getId());
    scene_.say(tr("%1 was made. This cannot be undone, because a scene keeps its records.")
                   .arg(QString::fromStdString(color.getColorName())));
}

void ColorsPanel::duplicate() {
    for (nyx::ColorId const id : selected()) {
        nyx::ColorId const copy = scene_.colorDB()->clone(id);
        scene_.noteUnrecordedChange();
        scene_.flush();
        setCurrent(copy);
    }
}

void ColorsPanel::toggleMulti() {
    if (!scene_.colorController() || !current_.isValid()) {
        return;
    }
    scene_.endDrags();
    try {
        nyx::ColorId const id = scene_.colorController()->toggleMultiColor(current_);
        scene_.flush();
        setCurrent(id);
    } catch (std::bad_optional_access const&) {
        scene_.say(tr("The colour has no name, and the scene has no free one to give it."));
    }
}

void ColorsPanel::copy() {
    if (auto const ids = selected(); !ids.empty()) {
        QApplication::clipboard()->setMimeData(makeColorMime(scene_, ids).release());
    }
}

void ColorsPanel::paste() {
    QMimeData const* const copied = QApplication::clipboard()->mimeData();
    auto const read = copied ? readColorMime(scene_, *copied) : ColorMime();
    if (read.values.empty()) {
        scene_.say(tr("There is no colour on the clipboard."));
        return;
    }
    auto const ids = importColors(scene_, read.values, this);
    scene_.flush();
    if (!ids.empty()) {
        setCurrent(ids.back());
    }
}

void ColorsPanel::importFrom(QString const& path) { importPalette(scene_, path, header_, this); }

void ColorsPanel::exportTo(QString const& path) {
    if (scene_.colorDB()) {
        auto const all = scene_.colorDB()->colors();
        auto const some = selected();
        exportPalette(scene_, some.size() > 1 ? some : std::vector(all.begin(), all.end()), path,
                      header_, this);
    }
}

} // namespace workbench
