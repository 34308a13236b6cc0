#pragma once

#include "workbench/values/ValueField.h"
#include "zsg/values/WeavePattern.h"

#include <array>

class QComboBox;
class QGridLayout;
class QToolButton;

namespace workbench {

class ExpressionSpin;
class NumberSpin;
class WeaveGrid;
class WeavePreview;

/// A weave: its crossings, what makes new ones, its size, its two yarns, and how it repeats.
class WeaveEditor final : public ValueField {
    Q_OBJECT

public:
    explicit WeaveEditor(QWidget* parent = nullptr);

    void showValue(zsg::Variant const& value) override;
    [[nodiscard]] std::unique_ptr<zsg::Variant> wanted() const override;

private:
    struct YarnRow {
        NumberSpin* width = nullptr;
        NumberSpin* tension = nullptr;
        QComboBox* kind = nullptr;
    };

    [[nodiscard]] QWidget* makeSide();
    void makeGenerator(QGridLayout& layout);
    void makeSize(QGridLayout& layout);
    void makeYarn(QGridLayout& layout, zsg::WeavePattern::YarnType type);
    void showWeave(zsg::WeavePattern const& weave);
    /// One whole edit.
    void give(zsg::WeavePattern const& weave);
    void generate();

    WeaveGrid* grid_;
    WeavePreview* preview_;
    QComboBox* generator_;
    ExpressionSpin* first_;
    ExpressionSpin* second_;
    ExpressionSpin* warps_;
    ExpressionSpin* wefts_;
    std::array<YarnRow, 2> yarns_;
};

} // namespace workbench
