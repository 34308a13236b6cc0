#pragma once

#include <QLayout>
#include <QList>

#include <memory>
#include <vector>

namespace workbench {

/// Puts its items beside each other, each as large as it likes to be, and goes on in a next row
/// where the width ends, as words do: a panel's buttons fit a narrow dock in every language.
class FlowLayout final : public QLayout {
public:
    using QLayout::QLayout;

    void addItem(QLayoutItem* item) override; ///< takes ownership
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override; ///< hands ownership over
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    /// All in one row.
    [[nodiscard]] QSize sizeHint() const override;
    /// The largest item: with less room nothing would be whole.
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(QRect const& area) override;

private:
    [[nodiscard]] bool holds(int index) const;
    /// Where the items stand in `area`, those that are hidden nowhere.
    [[nodiscard]] QList<QRect> places(QRect const& area) const;

    std::vector<std::unique_ptr<QLayoutItem>> items_;
};

} // namespace workbench
