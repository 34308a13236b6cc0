#include "workbench/materials/MetadataTree.h"

#include "host/parseJson.h"

#include <QHeaderView>
#include <nlohmann/json.hpp>

#include <utility>

namespace workbench {

namespace {

using Pointer = nlohmann::json::json_pointer;

enum Column { KeyColumn, ValueColumn };
constexpr int placeRole = Qt::UserRole;

Pointer placeOf(QTreeWidgetItem const& item) {
    return Pointer(item.data(KeyColumn, placeRole).toString().toStdString());
}

/// Bytes that are no UTF-8 are shown as such, not thrown about.
QString textOf(nlohmann::json const& value) {
    return QString::fromStdString(
        value.is_string() ? value.get_ref<std::string const&>()
                          : value.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
}

void fill(QTreeWidgetItem& parent, nlohmann::json const& value, Pointer const& place) {
    for (auto const& [key, member] : value.items()) {
        Pointer const below =
            value.is_array() ? place / static_cast<std::size_t>(std::stoull(key)) : place / key;
        auto* const item = new QTreeWidgetItem(&parent);
        item->setText(KeyColumn, QString::fromStdString(key));
        item->setData(KeyColumn, placeRole, QString::fromStdString(below.to_string()));
        if (member.is_structured() && !member.empty()) {
            fill(*item, member, below);
        } else {
            item->setText(ValueColumn, textOf(member));
            item->setToolTip(ValueColumn, textOf(member));
            item->setFlags(item->flags() | Qt::ItemIsEditable);
        }
    }
}

} // namespace

MetadataTree::MetadataTree(QWidget* parent)
    : QTreeWidget(parent), metadata_(std::make_unique<nlohmann::json>()) {
    setColumnCount(2);
    setHeaderLabels({tr("Key"), tr("Value")});
    setUniformRowHeights(true);
    setEditTriggers(NoEditTriggers);
    header()->setSectionResizeMode(KeyColumn, QHeaderView::ResizeToContents);
    // Keys stay as they are: only values are edited in place.
    connect(this, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        if (item->childCount() == 0) {
            editItem(item, ValueColumn);
        }
    });
    connect(this, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item, int column) {
        if (!filling_ && column == ValueColumn) {
            take(item);
        }
    });
}

MetadataTree::~MetadataTree() = default;

void MetadataTree::show(nlohmann::json const& metadata) {
    if (metadata == *metadata_) {
        return;
    }
    filling_ = true;
    clear();
    *metadata_ = metadata;
    if (metadata.is_structured()) {
        fill(*invisibleRootItem(), metadata, Pointer());
    } else if (!metadata.is_null()) {
        nlohmann::json const whole = {{tr("(all of it)").toStdString(), metadata}};
        fill(*invisibleRootItem(), whole, Pointer());
        topLevelItem(0)->setData(KeyColumn, placeRole, QString());
    }
    expandToDepth(1);
    filling_ = false;
}

void MetadataTree::take(QTreeWidgetItem* item) {
    nlohmann::json changed = *metadata_;
    nlohmann::json& value = changed[placeOf(*item)];
    std::string const text = item->text(ValueColumn).toStdString();
    if (value.is_string()) {
        value = text;
    } else {
        try {
            auto const read = app::parseJson<nlohmann::json>(text);
            value = read.is_discarded() ? nlohmann::json(text) : read;
        } catch (app::CommandError const&) {
            value = text;
        }
    }
    if (changed != *metadata_) {
        emit edited(changed);
    }
}

void MetadataTree::add(QString const& key) {
    nlohmann::json changed = metadata_->is_null() ? nlohmann::json::object() : *metadata_;
    std::string const name = key.toStdString();
    if (changed.is_object() && !changed.contains(name)) {
        changed[name] = "";
        emit edited(changed);
    }
}

void MetadataTree::removeCurrent() {
    QTreeWidgetItem const* const item = currentItem();
    if (!item) {
        return;
    }
    nlohmann::json changed = *metadata_;
    Pointer const place = placeOf(*item);
    if (place.empty()) {
        changed = nullptr;
    } else if (nlohmann::json& parent = changed[place.parent_pointer()]; parent.is_array()) {
        parent.erase(std::stoull(place.back()));
    } else {
        parent.erase(place.back());
    }
    emit edited(changed);
}

} // namespace workbench
