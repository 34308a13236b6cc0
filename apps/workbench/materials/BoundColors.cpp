#include "workbench/materials/BoundColors.h"

#include "workbench/colors/colorMime.h"
#include "workbench/colors/swatch.h"
#include "workbench/scene/Scene.h"
#include "workbench/scene/SceneContents.h"
#include "zsg/materials/ISceneMaterialManager.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QMimeData>

namespace workbench {

namespace {

constexpr int colorRole = Qt::UserRole; // in the second column
constexpr int nodeRole = Qt::UserRole;  // in the first one

} // namespace

BoundColors::BoundColors(Scene& scene, QWidget* parent) : QTreeWidget(parent), scene_(scene) {
    setObjectName("boundColours");
    setAccessibleName(tr("Colours"));
    setRootIsDecorated(false);
    setHeaderLabels({tr("Parameter"), tr("Colour")});
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    setDragDropMode(QAbstractItemView::DropOnly);
    auto* const paste = new QAction(tr("Bind the Copied Colour"), this);
    paste->setObjectName("bindCopied");
    paste->setShortcut(QKeySequence::Paste);
    paste->setShortcutContext(Qt::WidgetShortcut);
    connect(paste, &QAction::triggered, this,
            [this] { bind(currentItem(), QApplication::clipboard()->mimeData()); });
    addAction(paste);
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void BoundColors::show(nyx::MaterialId material) {
    int const current = material == material_ ? indexOfTopLevelItem(currentItem()) : -1;
    material_ = material;
    clear();
    if (!scene_.contents()) {
        return;
    }
    for (SceneContents::Place const& place : scene_.contents()->places(material)) {
        Swatch const swatch = swatchOf(scene_.colorDB(), place.color);
        auto* const item = new QTreeWidgetItem(this);
        item->setText(0, place.parameter);
        item->setToolTip(0, tr("%1 of node %2").arg(place.parameter, QString::number(place.node)));
        item->setData(0, nodeRole, place.node);
        item->setData(1, colorRole, place.color.toUint());
        if (!swatch.id.isValid()) {
            item->setText(1, tr("none"));
            continue;
        }
        item->setText(1, shownName(swatch.name));
        item->setIcon(1, swatchIcon(swatch, fontMetrics().height()));
        item->setToolTip(1, describe(swatch));
        item->setData(1, Qt::AccessibleTextRole, describe(swatch));
    }
    setCurrentItem(topLevelItem(current));
}

QStringList BoundColors::mimeTypes() const { return {colorMimeType()}; }

Qt::DropActions BoundColors::supportedDropActions() const {
    return Qt::CopyAction | Qt::LinkAction | Qt::MoveAction;
}

bool BoundColors::dropMimeData(QTreeWidgetItem* parent, int index, QMimeData const* mime,
                               Qt::DropAction /*action*/) {
    return bind(parent ? parent : topLevelItem(index), mime);
}

bool BoundColors::bind(QTreeWidgetItem const* item, QMimeData const* mime) {
    ColorMime const colors = mime ? readColorMime(scene_, *mime) : ColorMime();
    zsg::IMaterialEdit* const edit =
        scene_.contents() ? scene_.contents()->materialEdit(material_) : nullptr;
    if (!item || !edit) {
        scene_.say(tr("Choose one of the parameters."));
        return false;
    }
    if (colors.ids.size() != 1) {
        scene_.say(tr("One colour of this scene can be bound."));
        return false;
    }
    scene_.endDrags();
    edit->beginEdit();
    edit->bindColor({item->data(0, nodeRole).toUInt(), item->text(0).toStdString()},
                    colors.ids.front());
    edit->endEdit();
    return true;
}

} // namespace workbench
