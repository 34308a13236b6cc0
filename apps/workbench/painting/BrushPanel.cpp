#include "workbench/painting/BrushPanel.h"

#include "host/BrushPreset.h"
#include "workbench/painting/Canvas.h"
#include "workbench/scene/Scene.h"
#include "workbench/values/ParameterRows.h"
#include "zsg/painting/IPainterBrush.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QResizeEvent>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

namespace workbench {

namespace {

/// The user's own presets.
QString ownFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/brushes";
}

/// Those that come with the program.
QString sharedFolder() {
    return QCoreApplication::applicationDirPath() + "/../share/zscenegraph/brushes";
}

} // namespace

BrushPanel::BrushPanel(Scene& scene, Canvas& canvas, QWidget* parent)
    : Panel(parent),
      scene_(scene),
      canvas_(canvas),
      presets_(new QComboBox(this)),
      preview_(new QLabel(this)),
      rows_(new ParameterRows(scene, directWriter([this] {
                                  brush_->applyToNode();
                                  soon_.start();
                              }),
                              this)) {
    soon_.setSingleShot(true);
    connect(&soon_, &QTimer::timeout, this, &BrushPanel::drawPreview);
    auto* const bar = new QHBoxLayout;
    makePresets(*bar);
    preview_->setObjectName("brushPreview");
    preview_->setAccessibleName(tr("A stroke of the brush"));
    preview_->setFixedHeight(4 * fontMetrics().height());
    preview_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    // As paper: what a colour looks like must not depend on the palette.
    preview_->setStyleSheet("background: #c8c8c8");
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(bar);
    layout->addWidget(preview_);
    layout->addWidget(rows_, 1);
    setFocusProxy(presets_);
    connect(&canvas, &Canvas::brushChanged, this, &BrushPanel::showBrush);
    connect(&scene, &Scene::rootEnding, this, [this] {
        rows_->clear();
        brush_.reset();
        presets_->setCurrentIndex(-1);
    });
}

BrushPanel::~BrushPanel() { rows_->clear(); }

void BrushPanel::makePresets(QHBoxLayout& bar) {
    presets_->setObjectName("brushPresets");
    presets_->setAccessibleName(tr("Presets"));
    presets_->setPlaceholderText(tr("Presets"));
    bar.addWidget(presets_, 1);
    makeAction(
        tr("Save as Preset"), "savePreset", QKeySequence("Ctrl+Alt+S"), [this] { savePreset(); },
        &bar);
    makeAction(
        tr("Reset"), "resetBrush", {}, [this] { canvas_.resetBrush(); }, &bar)
        ->setToolTip(tr("A new brush"));
    connect(presets_, &QComboBox::activated, this, [this](int row) {
        if (QString const why = canvas_.loadBrush(presets_->itemData(row).toString());
            !why.isEmpty()) {
            scene_.say(why);
        }
    });
    listPresets();
}

void BrushPanel::listPresets() {
    presets_->clear();
    for (QString const& folder : {ownFolder(), sharedFolder()}) {
        for (QFileInfo const& file :
             QDir(folder).entryInfoList({"*.json"}, QDir::Files, QDir::Name)) {
            presets_->addItem(file.completeBaseName(), file.filePath());
        }
    }
    presets_->setCurrentIndex(-1);
}

void BrushPanel::savePreset() {
    bool accepted = false;
    QString const name = QInputDialog::getText(this, tr("Save as Preset"), tr("Name"),
                                               QLineEdit::Normal, {}, &accepted)
                             .trimmed();
    if (!accepted || name.isEmpty()) {
        return;
    }
    if (name.contains('/') || name.contains('\\') || name.startsWith('.')) {
        return scene_.say(tr("The name of a preset cannot have a slash or begin with a dot."));
    }
    QDir().mkpath(ownFolder());
    QString const path = ownFolder() + '/' + name + ".json";
    if (QFileInfo::exists(path) &&
        QMessageBox::question(this, tr("Save as Preset"),
                              tr("There is a preset of that name. Replace it?")) !=
            QMessageBox::Yes) {
        return;
    }
    QString const why = canvas_.saveBrush(path);
    scene_.say(why.isEmpty() ? tr("The preset is kept.") : why);
    listPresets();
    presets_->setCurrentText(name);
}

int BrushPanel::rowCount() const { return rows_->rowCount(); }

bool BrushPanel::select(QString const& text) { return rows_->select(text); }

void BrushPanel::showEvent(QShowEvent* event) {
    showBrush();
    Panel::showEvent(event);
}

void BrushPanel::resizeEvent(QResizeEvent* event) {
    soon_.start();
    Panel::resizeEvent(event);
}

void BrushPanel::showBrush() {
    if (!isVisible() && !brush_) {
        return; // nobody needs one yet, and asking would make it
    }
    auto const brush = canvas_.brush();
    if (brush == brush_) {
        rows_->refresh();
    } else {
        QList<zsg::Parameter> settings;
        if (brush) {
            std::ranges::copy_if(brush->parameters(), std::back_inserter(settings),
                                 app::isBrushSetting);
            std::ranges::sort(settings, {}, &zsg::Parameter::name);
        }
        rows_->setItems(itemsOf(settings));
        brush_ = brush; // the one before ends when no row stands for it any more
    }
    soon_.start();
}

void BrushPanel::drawPreview() {
    if (!brush_ || !isVisible()) {
        return;
    }
    double const ratio = devicePixelRatioF();
    QPixmap pixmap = QPixmap::fromImage(canvas_.brushPreview(preview_->size() * ratio));
    pixmap.setDevicePixelRatio(ratio);
    preview_->setPixmap(pixmap);
}

} // namespace workbench
