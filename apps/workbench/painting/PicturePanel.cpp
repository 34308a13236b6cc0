#include "workbench/painting/PicturePanel.h"

#include "workbench/colors/ColorCard.h"
#include "workbench/painting/Canvas.h"
#include "workbench/painting/PaintView.h"
#include "workbench/scene/Scene.h"
#include "zsg/painting/IPainterSurface.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLocale>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <cmath>

namespace workbench {

PicturePanel::PicturePanel(Scene& scene, Canvas& canvas, QWidget* parent)
    : Panel(parent),
      scene_(scene),
      canvas_(canvas),
      surfaces_(new QComboBox(this)),
      pages_(new QStackedWidget(this)),
      view_(new PaintView(scene, canvas)),
      zoom_(new QLabel(this)) {
    surfaces_->setObjectName("surfaces");
    surfaces_->setAccessibleName(tr("Surface"));
    surfaces_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    auto* const nothing = new QLabel(
        tr("Nothing is painted in this scene yet; these are its colours. \"New Surface\" "
           "makes something to paint on."));
    nothing->setAlignment(Qt::AlignCenter);
    nothing->setWordWrap(true);
    auto* const scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(new ColorCard(scene));
    scroll->setAccessibleName(tr("Colours of the scene"));
    auto* const empty = new QWidget;
    auto* const page = new QVBoxLayout(empty);
    page->addWidget(nothing);
    page->addWidget(scroll, 1);
    pages_->addWidget(empty);
    pages_->addWidget(view_);
    auto* const bar = new QHBoxLayout;
    bar->addWidget(surfaces_);
    makeActions(*bar);
    bar->addStretch();
    zoom_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    zoom_->setMinimumWidth(fontMetrics().horizontalAdvance("88888 %"));
    bar->addWidget(zoom_);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(bar);
    layout->addWidget(pages_, 1);
    setFocusProxy(view_);

    connect(surfaces_, &QComboBox::activated, this, [this](int row) {
        canvas_.setSurface(nyx::SurfaceId(surfaces_->itemData(row).toUInt()));
    });
    connect(&canvas, &Canvas::surfaceChanged, this, &PicturePanel::showSurfaces);
    connect(view_, &PaintView::zoomChanged, this, [this] {
        double const percent = 100 * view_->zoom() * devicePixelRatioF();
        zoom_->setText(tr("%1 %").arg(QLocale().toString(percent, 'f', percent < 10 ? 1 : 0)));
    });
    showSurfaces();
}

void PicturePanel::makeActions(QHBoxLayout& bar) {
    makeAction(
        tr("New Surface"), "newSurface", QKeySequence("Ctrl+N"), [this] { makeSurface(); }, &bar);
    QAction* const eraser = makeAction(
        tr("Eraser"), "eraser", QKeySequence("E"), [] {}, &bar);
    eraser->setToolTip(tr("Take paint away; the other end of a pen does so as well"));
    eraser->setCheckable(true);
    connect(eraser, &QAction::toggled, view_, &PaintView::setErasing);
    makeAction(
        tr("Fit"), "fitPicture", {}, [this] { view_->fit(); }, &bar)
        ->setToolTip(tr("Show the whole surface (0)"));
    makeAction(
        tr("Actual Size"), "actualSize", {}, [this] { view_->showActualSize(); }, &bar)
        ->setToolTip(tr("A dot of the screen for every texel (1)"));
    makeAction(
        tr("Larger"), "zoomIn", QKeySequence::ZoomIn, [this] { view_->zoomBy(std::exp2(0.5)); },
        &bar);
    makeAction(
        tr("Smaller"), "zoomOut", QKeySequence::ZoomOut, [this] { view_->zoomBy(std::exp2(-0.5)); },
        &bar);
}

int PicturePanel::rowCount() const { return surfaces_->count(); }

bool PicturePanel::select(QString const& text) {
    int const row = surfaces_->findText(text);
    if (row >= 0) {
        canvas_.setSurface(nyx::SurfaceId(surfaces_->itemData(row).toUInt()));
    }
    return row >= 0;
}

void PicturePanel::showSurfaces() {
    surfaces_->clear();
    zsg::IPainterSurface* const shown = canvas_.surface();
    for (Canvas::Surface const& surface : canvas_.surfaces()) {
        surfaces_->addItem(surface.name, surface.id.toUint());
        if (shown && surface.id == shown->id()) {
            surfaces_->setCurrentIndex(surfaces_->count() - 1);
        }
    }
    surfaces_->setEnabled(surfaces_->count() > 0);
    pages_->setCurrentIndex(shown ? 1 : 0);
    zoom_->setVisible(shown);
}

void PicturePanel::makeSurface() {
    QStringList const sizes{"512", "1024", "2048", "4096", "8192"};
    bool accepted = false;
    QString const size = QInputDialog::getItem(this, tr("New Surface"), tr("Texels along an edge"),
                                               sizes, 2, true, &accepted);
    if (!accepted) {
        return;
    }
    if (canvas_.createSurface(size.toInt())) {
        scene_.say(tr("A new surface cannot be undone."));
    } else {
        scene_.say(tr("The renderer makes no surface of this size."));
    }
}

} // namespace workbench
