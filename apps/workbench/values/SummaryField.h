#pragma once

#include "workbench/values/ValueField.h"

class QDialog;
class QLabel;
class QToolButton;

namespace workbench {

/// A value that a row has no room for: what it is in a few words, and a button that opens its
/// editor where there is one.
class SummaryField final : public ValueField {
    Q_OBJECT

public:
    explicit SummaryField(QWidget* parent = nullptr);

    void showValue(zsg::Variant const& value) override;
    void showMixed(zsg::Variant const& one) override;
    [[nodiscard]] std::unique_ptr<zsg::Variant> wanted() const override;

private:
    void openEditor();

    QLabel* text_;
    QToolButton* edit_;
    QDialog* dialog_ = nullptr; ///< made when it is first asked for
    ValueField* editor_ = nullptr;
    std::unique_ptr<zsg::Variant> value_;
};

/// "4 x 4 crossings", "3 stops", or the name of the type.
[[nodiscard]] QString summaryOf(zsg::Variant const& value);

} // namespace workbench
