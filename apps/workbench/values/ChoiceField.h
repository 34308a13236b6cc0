#pragma once

#include "workbench/values/ValueField.h"
#include "zsg/values/Enumerable.h"

class QComboBox;

namespace workbench {

/// One of the options of an Enumerable. A selection that is none of them stays until another one
/// is chosen.
class ChoiceField final : public ValueField {
    Q_OBJECT

public:
    explicit ChoiceField(QWidget* parent = nullptr);

    void showValue(zsg::Variant const& value) override;
    void showMixed(zsg::Variant const& one) override;
    [[nodiscard]] std::unique_ptr<zsg::Variant> wanted() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QComboBox* box_;
    zsg::Enumerable options_;
};

} // namespace workbench
