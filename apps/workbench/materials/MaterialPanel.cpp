#include "workbench/materials/MaterialPanel.h"

#include "host/DescribeMaterialCommand.h"
#include "workbench/materials/BoundColors.h"
#include "workbench/materials/CMFForm.h"
#include "workbench/materials/MetadataTree.h"
#include "workbench/materials/schemaEdits.h"
#include "workbench/scene/Changes.h"
#include "workbench/scene/Scene.h"
#include "workbench/scene/SceneContents.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/materials/ICMFManager.h"
#include "zsg/materials/IMaterialDescriptor.h"
#include "zsg/materials/IMaterialHandler.h"

#include "zcore/ZUndoStack.h"

#include <QAction>
#include <QComboBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QScrollArea>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <nlohmann/json.hpp>

#include <utility>

namespace workbench {

MaterialPanel::MaterialPanel(Scene& scene, QWidget* parent)
    : Panel(parent),
      scene_(scene),
      material_(new QComboBox(this)),
      tabs_(new QTabWidget(this)),
      form_(new CMFForm),
      metadata_(new MetadataTree),
      colors_(new BoundColors(scene)) {
    material_->setObjectName("material");
    material_->setAccessibleName(tr("Material"));
    material_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setFocusProxy(material_);
    auto* const bar = new QHBoxLayout;
    bar->addWidget(material_, 1);
    makeActions(*bar);
    makeTabs();
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(bar);
    layout->addWidget(tabs_, 1);
    connect(material_, &QComboBox::currentIndexChanged, this, &MaterialPanel::read);
    connect(&scene, &Scene::changed, this, &MaterialPanel::follow);
    // No event tells of a place that was bound.
    connect(
        &scene, &Scene::historyChanged, colors_, [this] { colors_->show(current()); },
        Qt::QueuedConnection);
    connect(&scene, &Scene::dragsEnding, form_, qOverload<>(&CMFForm::commit));
    connect(&scene, &Scene::rootEnding, form_, &CMFForm::drop);
    readMaterials();
}

void MaterialPanel::makeTabs() {
    tabs_->setUsesScrollButtons(false);
    auto* const scroll = new QScrollArea;
    scroll->setAccessibleName(tr("Description"));
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(form_);
    connect(form_, &CMFForm::edited, this, [this](std::string const& key, std::string const& text) {
        changeDescription([&](zsg::IMaterialDescriptor& description) {
            if (text.empty()) {
                description.removeValue(key);
            } else {
                description.setValue(key, text);
            }
        });
    });
    metadata_->setObjectName("metadata");
    metadata_->setAccessibleName(tr("Metadata"));
    connect(metadata_, &MetadataTree::edited, this, [this](nlohmann::json const& metadata) {
        changeDescription(
            [&](zsg::IMaterialDescriptor& description) { description.setMetadata(metadata); });
    });
    connect(colors_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem const* item) {
        emit colorWanted(nyx::ColorId(item->data(1, Qt::UserRole).toUInt()));
    });
    tabs_->addTab(scroll, tr("Description"));
    tabs_->addTab(colors_, tr("Colours"));
    tabs_->addTab(metadata_, tr("Metadata"));
}

void MaterialPanel::makeActions(QBoxLayout& bar) {
    auto* const menu = new QMenu(this);
    auto const add = [&](QString const& text, char const* name, QKeySequence const& keys,
                         std::function<void()> const& act) {
        menu->addAction(makeAction(text, name, keys, act));
    };
    add(tr("&Load Schema…"), "loadSchema", {}, [this] {
        QString const path = QFileDialog::getOpenFileName(this, tr("Load a CMF Schema"), {},
                                                          tr("CMF schemas (*.json)"));
        if (!path.isEmpty()) {
            loadSchema(path);
        }
    });
    add(tr("&Save Schema…"), "saveSchema", {}, [this] { saveSchema(); });
    menu->addSeparator();
    add(tr("&Add Attribute…"), "addAttribute", {}, [this] { nameAttribute(-1); });
    add(tr("&Rename Attribute…"), "renameAttribute", QKeySequence("F2"), [this] {
        if (form_->currentAttribute() >= 0) {
            nameAttribute(form_->currentAttribute());
        }
    });
    add(tr("Move Attribute &Up"), "attributeUp", QKeySequence("Alt+Up"), [this] {
        editAttributes([](auto& attributes, int at) {
            if (at > 0) {
                std::swap(attributes[static_cast<std::size_t>(at)],
                          attributes[static_cast<std::size_t>(at) - 1]);
            }
        });
    });
    add(tr("Move Attribute &Down"), "attributeDown", QKeySequence("Alt+Down"), [this] {
        editAttributes([](auto& attributes, int at) {
            if (static_cast<std::size_t>(at) + 1 < attributes.size()) {
                std::swap(attributes[static_cast<std::size_t>(at)],
                          attributes[static_cast<std::size_t>(at) + 1]);
            }
        });
    });
    add(tr("&Take Attribute Out"), "removeAttribute", {}, [this] {
        editAttributes([](auto& attributes, int at) { attributes.erase(attributes.begin() + at); });
    });
    menu->addSeparator();
    add(tr("Add &Metadata…"), "addMetadata", {}, [this] {
        QString const key = QInputDialog::getText(this, tr("Add Metadata"), tr("Key"));
        if (!key.isEmpty()) {
            metadata_->add(key);
        }
    });
    add(tr("Take M&etadata Out"), "removeMetadata", {}, [this] { metadata_->removeCurrent(); });
    auto* const button = new QToolButton(this);
    button->setText(tr("Edit"));
    button->setFocusPolicy(Qt::StrongFocus);
    button->setMenu(menu);
    button->setPopupMode(QToolButton::InstantPopup);
    bar.addWidget(button);
}

nyx::MaterialId MaterialPanel::current() const {
    return nyx::MaterialId(material_->currentData().toUInt());
}

int MaterialPanel::rowCount() const { return form_->rowCount(); }

bool MaterialPanel::select(QString const& text) {
    int const found = material_->findText(text, Qt::MatchExactly);
    if (found >= 0) {
        material_->setCurrentIndex(found);
    }
    return found >= 0;
}

void MaterialPanel::follow(Changes const& changes) {
    if (changes.everything) {
        shown_ = {};
        readMaterials();
    } else if (changes.materials) {
        read();
    } else if (!changes.colors.empty()) {
        colors_->show(current());
    }
}

void MaterialPanel::readMaterials() {
    QSignalBlocker const quiet(material_);
    material_->clear();
    if (SceneContents const* const contents = scene_.contents()) {
        for (nyx::MaterialId const id : contents->materials()) {
            material_->addItem(scene_.root()->materialHandler()->materialName(id), id.toUint());
        }
    }
    read();
}

void MaterialPanel::read() {
    bool const sameMaterial = shown_ == current();
    if (!sameMaterial) {
        form_->drop();
    }
    shown_ = current();
    auto const description = scene_.root() && shown_.isValid()
                                 ? scene_.root()->materialHandler()->descriptor(shown_)
                                 : nullptr;
    tabs_->setEnabled(description != nullptr);
    if (scene_.root()) {
        form_->show(scene_.root()->cmfManager()->schema(),
                    description ? std::as_const(*description).values() : CMFForm::Values(),
                    sameMaterial);
    }
    metadata_->show(description ? description->metadata() : nlohmann::json());
    colors_->show(current());
}

void MaterialPanel::changeDescription(
    std::function<void(zsg::IMaterialDescriptor&)> const& change) {
    zsg::IMaterialHandler* const handler =
        scene_.root() ? scene_.root()->materialHandler() : nullptr;
    auto before = handler ? handler->descriptor(shown_) : nullptr;
    auto after = handler ? handler->descriptor(shown_) : nullptr;
    if (!before || !after) {
        return;
    }
    change(*after);
    if (std::as_const(*after).values() == std::as_const(*before).values() &&
        after->metadata() == before->metadata()) {
        return;
    }
    scene_.undoStack().push(std::make_unique<app::DescribeMaterialCommand>(
                                *scene_.root(), std::move(before), std::move(after))
                                .release());
}

void MaterialPanel::loadSchema(QString const& path) {
    SchemaFile const file = readSchemaFile(path);
    if (!file.schema) {
        QMessageBox box(QMessageBox::Warning, tr("CMF Schema"), path + '\n' + file.message,
                        QMessageBox::Ok, this);
        box.setTextFormat(Qt::PlainText);
        box.setInformativeText(file.findings.mid(0, 20).join('\n'));
        box.setDetailedText(file.findings.join('\n'));
        box.exec();
        return;
    }
    replaceSchema(scene_, *file.schema);
    if (!file.findings.isEmpty()) {
        scene_.say(file.findings.join("; "));
    }
}

void MaterialPanel::saveSchema() {
    if (!scene_.root()) {
        return;
    }
    QString const path = QFileDialog::getSaveFileName(this, tr("Save the CMF Schema"),
                                                      "schema.json", tr("CMF schemas (*.json)"));
    QString const error =
        path.isEmpty() ? QString() : writeSchemaFile(path, scene_.root()->cmfManager()->schema());
    if (!error.isEmpty()) {
        QMessageBox::warning(this, tr("CMF Schema"), error);
    }
}

void MaterialPanel::nameAttribute(int attribute) {
    if (!scene_.root()) {
        return;
    }
    zsg::ZCMFSchema schema = scene_.root()->cmfManager()->schema();
    auto const at = static_cast<std::size_t>(attribute);
    QString const before = attribute < 0 ? QString() : schema.attributes[at].name;
    bool accepted = false;
    QString const name = QInputDialog::getText(
        this, attribute < 0 ? tr("Add an Attribute") : tr("Rename the Attribute"), tr("Name"),
        QLineEdit::Normal, before, &accepted);
    if (!accepted || name == before) {
        return;
    }
    if (auto const reason = whyNoAttributeName(schema, name, attribute)) {
        scene_.say(*reason);
        return;
    }
    if (attribute < 0) {
        schema.attributes.push_back({name});
    } else {
        schema.attributes[at].name = name;
    }
    replaceSchema(scene_, schema);
}

void MaterialPanel::editAttributes(
    std::function<void(std::vector<zsg::ZCMFAttribute>&, int)> const& change) {
    int const attribute = form_->currentAttribute();
    if (!scene_.root() || attribute < 0) {
        scene_.say(tr("Choose the field of an attribute first."));
        return;
    }
    zsg::ZCMFSchema schema = scene_.root()->cmfManager()->schema();
    QString const name = schema.attributes[static_cast<std::size_t>(attribute)].name;
    change(schema.attributes, attribute);
    if (schema.attributes.empty()) {
        scene_.say(tr("A schema needs an attribute."));
        return;
    }
    replaceSchema(scene_, schema);
    form_->focus(name);
}

} // namespace workbench
