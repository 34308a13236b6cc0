#pragma once

#include "workbench/values/ValueField.h"

class QCheckBox;

namespace workbench {

/// A Boolean.
class ToggleField final : public ValueField {
    Q_OBJECT

public:
    explicit ToggleField(QWidget* parent = nullptr);

    void showValue(zsg::Variant const& value) override;
    void showMixed(zsg::Variant const& one) override;
    [[nodiscard]] std::unique_ptr<zsg::Variant> wanted() const override;

private:
    QCheckBox* box_;
};

} // namespace workbench
