#include "workbench/painting/LayersPanel.h"

#include "host/sRGB.h"
#include "workbench/colors/swatch.h"
#include "workbench/painting/PaintLayerModel.h"
#include "workbench/scene/FlowLayout.h"
#include "workbench/scene/NameDelegate.h"
#include "workbench/scene/PointerDrag.h"
#include "workbench/scene/Scene.h"

#include <QAction>
#include <QColorDialog>
#include <QComboBox>
#include <QHeaderView>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdlib>

namespace workbench {

namespace {

/// Chooses a blend mode in place.
class ModeDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, QStyleOptionViewItem const& /*option*/,
                          QModelIndex const& /*index*/) const override {
        auto* const box = new QComboBox(parent);
        box->setAccessibleName(PaintLayerModel::tr("Blend"));
        for (int mode = 0; mode < PaintLayerModel::modes; ++mode) {
            box->addItem(PaintLayerModel::modeName(static_cast<nyx::ColorBlendMode>(mode)));
        }
        // What is seen chosen counts, before anything else is done.
        connect(box, &QComboBox::activated, this, [self = const_cast<ModeDelegate*>(this), box] {
            emit self->commitData(box);
            emit self->closeEditor(box);
        });
        return box;
    }
    void setEditorData(QWidget* editor, QModelIndex const& index) const override {
        static_cast<QComboBox*>(editor)->setCurrentIndex(index.data(Qt::EditRole).toInt());
    }
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      QModelIndex const& index) const override {
        model->setData(index, static_cast<QComboBox*>(editor)->currentIndex(), Qt::EditRole);
    }
};

} // namespace

LayersPanel::LayersPanel(Scene& scene, Canvas& canvas, QWidget* parent)
    : Panel(parent), model_(new PaintLayerModel(scene, canvas, this)), view_(new QTreeView(this)) {
    makeView();
    makeEyes(scene);
    auto* const bar = new FlowLayout;
    makeAction(
        tr("New"), "newLayer", QKeySequence("Ctrl+N"), [this] { model_->add(); }, bar);
    makeAction(
        tr("Delete"), "deleteLayer", QKeySequence::Delete, [this] { model_->remove(row()); }, bar);
    makeAction(
        tr("Up"), "raiseLayer", QKeySequence("Alt+Up"), [this] { model_->move(row(), row() - 1); },
        bar);
    makeAction(
        tr("Down"), "lowerLayer", QKeySequence("Alt+Down"),
        [this] { model_->move(row(), row() + 1); }, bar);
    makeAction(
        tr("Background"), "layerBackground", QKeySequence("Ctrl+B"), [this] { chooseBackground(); },
        bar);
    view_->addActions(actions());
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(bar);
    layout->addWidget(view_, 1);
    setFocusProxy(view_);
    showCurrent();
}

void LayersPanel::makeView() {
    view_->setObjectName("layerList");
    view_->setAccessibleName(tr("Paint Layers"));
    view_->setModel(model_);
    view_->setRootIsDecorated(false);
    view_->setUniformRowHeights(true);
    view_->setIconSize(QSize(2, 2) * fontMetrics().height());
    view_->setItemDelegate(new NameDelegate(view_));
    view_->setItemDelegateForColumn(PaintLayerModel::ModeColumn, new ModeDelegate(view_));
    view_->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::DoubleClicked);
    view_->setDragDropMode(QAbstractItemView::InternalMove);
    view_->setDragDropOverwriteMode(false);
    view_->setAllColumnsShowFocus(true);
    view_->setContextMenuPolicy(Qt::ActionsContextMenu);
    QHeaderView* const header = view_->header();
    header->setStretchLastSection(false);
    header->setSectionsMovable(false);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(PaintLayerModel::NameColumn, QHeaderView::Stretch);
    connect(view_, &QAbstractItemView::doubleClicked, this, [this](QModelIndex const& index) {
        if (index.column() == PaintLayerModel::BackgroundColumn) {
            chooseBackground();
        }
    });
    connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](QModelIndex const& index) {
                if (!following_) {
                    model_->setCurrentRow(index.row());
                }
            });
    connect(model_, &PaintLayerModel::updated, this, &LayersPanel::showCurrent);
}

/// Dragging over eyes does to all what the first one does.
void LayersPanel::makeEyes(Scene& scene) {
    auto const eyeAt = [this](QPointF const& at) {
        QModelIndex const index = view_->indexAt(at.toPoint());
        return index.column() == PaintLayerModel::EyeColumn ? index : QModelIndex();
    };
    auto* const drag = new PointerDrag(*view_->viewport(), [this, eyeAt](QPointF const& at) {
        QModelIndex const eye = eyeAt(at);
        if (eye.isValid()) {
            shows_ = eye.data(Qt::CheckStateRole).toInt() != Qt::Checked;
            crossed_ = {eye.row()};
        }
        return eye.isValid();
    });
    auto const preview = [this] { model_->previewVisible(crossed_, shows_); };
    connect(drag, &PointerDrag::pressed, this, preview);
    connect(drag, &PointerDrag::moved, this, [this, preview](QPointF const& at) {
        // Beside the column as well: a hand does not keep to it. A fast one skips rows.
        int const row = view_->indexAt(QPoint(0, at.toPoint().y())).row();
        if (row >= 0) {
            int const near = std::abs(*crossed_.begin() - row) < std::abs(*crossed_.rbegin() - row)
                                 ? *crossed_.begin()
                                 : *crossed_.rbegin();
            for (int i = std::min(near, row); i <= std::max(near, row); ++i) {
                crossed_.insert(i);
            }
            preview();
        }
    });
    connect(drag, &PointerDrag::released, this, [this] {
        model_->previewVisible({}, shows_);
        model_->setVisible(crossed_, shows_);
    });
    connect(drag, &PointerDrag::cancelled, this, [this] { model_->previewVisible({}, shows_); });
    connect(&scene, &Scene::dragsEnding, drag, &PointerDrag::finish);
}

int LayersPanel::row() const { return view_->currentIndex().row(); }

int LayersPanel::rowCount() const { return model_->rowCount(); }

bool LayersPanel::select(QString const& text) {
    QModelIndexList const found = model_->match(model_->index(0, PaintLayerModel::NameColumn),
                                                Qt::EditRole, text, 1, Qt::MatchExactly);
    if (!found.isEmpty()) {
        view_->setCurrentIndex(found.front());
    }
    return !found.isEmpty();
}

void LayersPanel::showCurrent() {
    following_ = true;
    int const column = std::max(view_->currentIndex().column(), 0);
    view_->setCurrentIndex(model_->index(model_->currentRow(), column));
    following_ = false;
}

void LayersPanel::chooseBackground() {
    int const chosen = row();
    if (chosen < 0) {
        return;
    }
    QColor const before = screenColor(model_->background(chosen));
    QColor const color =
        QColorDialog::getColor(before, this, tr("Background of the Layer"),
                               QColorDialog::ShowAlphaChannel | QColorDialog::DontUseNativeDialog);
    // The same colour is no edit: what the screen shows is coarser than the value.
    if (color.isValid() && color != before) {
        auto const byte = [](int value) { return static_cast<std::uint8_t>(value); };
        model_->setBackground(chosen,
                              app::linearFromSRGB({byte(color.red()), byte(color.green()),
                                                   byte(color.blue()), byte(color.alpha())}));
    }
}

} // namespace workbench
