#pragma once

#include "workbench/values/ValueField.h"

#include <vector>

namespace workbench {

class NumberSpin;

/// The numbers of a Float2, Float3, Double3, or of a Matrix in its four rows.
class NumbersField final : public ValueField {
    Q_OBJECT

public:
    explicit NumbersField(zsg::Type type, QWidget* parent = nullptr);

    void showValue(zsg::Variant const& value) override;
    void showMixed(zsg::Variant const& one) override;
    [[nodiscard]] std::unique_ptr<zsg::Variant> wanted() const override;

private:
    void showNumbers(zsg::Variant const& value, bool mixed);

    zsg::Type type_;
    std::vector<double> numbers_;
    std::vector<NumberSpin*> spins_;
};

} // namespace workbench
