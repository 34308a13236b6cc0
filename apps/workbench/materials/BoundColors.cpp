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

/// Asks for its colour when it is looked at: a material may have thousands of places.
class Row final : public QTreeWidgetItem {
public:
    Row(Scene& scene, SceneContents::Place const& place) : scene_(scene), color_(place.color) {
        setText(0, place.parameter);
        setToolTip(
            0, BoundColors::tr("%1 of node %2").arg(place.parameter, QString::number(place.node)));
        setData(0, nodeRole, place.node);
        setData(1, colorRole, place.color.toUint());
    }

    [[nodiscard]] QVariant data(int column, int role) const override {
        bool const isOfColor = role == Qt::DisplayRole || role == Qt::DecorationRole ||
                               role == Qt::ToolTipRole || role == Qt::AccessibleTextRole;
        if (column != 1 || !isOfColor) {
            return QTreeWidgetItem::data(column, role);
        }
        Swatch const swatch = swatchOf(scene_.colorDB(), color_);
        if (!swatch.id.isValid()) {
            return role == Qt::DisplayRole ? BoundColors::tr("none") : QVariant();
        }
        switch (role) {
        case Qt::DisplayRole:
            return shownName(swatch.name);
        case Qt::DecorationRole:
            return swatchIcon(swatch, treeWidget() ? treeWidget()->fontMetrics().height() : 16);
        default:
            return describe(swatch);
        }
    }

private:
    Scene& scene_;
    nyx::ColorId color_;
};

} // namespace

BoundColors::BoundColors(Scene& scene, QWidget* parent) : QTreeWidget(parent), scene_(scene) {
    setObjectName("boundColours");
    setAccessibleName(tr("Colours"));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
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
    auto places = scene_.contents() ? scene_.contents()->places(material)
                                    : std::vector<SceneContents::Place>();
    if (material == material_ && places == places_) {
        viewport()->update(); // the colours themselves may have changed
        return;
    }
    int const current = material == material_ ? indexOfTopLevelItem(currentItem()) : -1;
    material_ = material;
    places_ = std::move(places);
    clear();
    QList<QTreeWidgetItem*> rows;
    for (SceneContents::Place const& place : places_) {
        rows.append(new Row(scene_, place));
    }
    addTopLevelItems(rows);
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
