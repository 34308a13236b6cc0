#pragma once

#include "workbench/values/ValueField.h"

#include <set>
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
    [[nodiscard]] std::unique_ptr<zsg::Variant>
    wantedFor(zsg::Variant const& before) const override;

private:
    [[nodiscard]] std::unique_ptr<zsg::Variant> valueOf(std::vector<double> const& numbers) const;
    void showNumbers(zsg::Variant const& value, bool mixed);

    zsg::Type type_;
    std::vector<double> numbers_;
    std::set<std::size_t> touched_; ///< since numbers were shown
    std::vector<NumberSpin*> spins_;
};

} // namespace workbench
