#pragma once

#include <QIdentityProxyModel>

/// Counts what a view asks for: data of cells, and rows at all, as when it lays them out.
class CountingProxy final : public QIdentityProxyModel {
public:
    CountingProxy(QAbstractItemModel* source, QObject* parent) : QIdentityProxyModel(parent) {
        setSourceModel(source);
    }

    QVariant data(QModelIndex const& index, int role) const override {
        ++cells;
        return QIdentityProxyModel::data(index, role);
    }
    QModelIndex index(int row, int column, QModelIndex const& parent) const override {
        ++rows;
        return QIdentityProxyModel::index(row, column, parent);
    }
    mutable int cells = 0;
    mutable int rows = 0;
};
