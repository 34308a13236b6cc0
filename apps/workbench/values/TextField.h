#pragma once

#include "workbench/values/ValueField.h"

class QLineEdit;
class QPlainTextEdit;

namespace workbench {

/// A value that is typed: a text, a path, a list, the numbers of a paint. A list of texts has a
/// line for each. What cannot be read is said, and the field shows the value again.
class TextField final : public ValueField {
    Q_OBJECT

public:
    explicit TextField(zsg::Type type, QWidget* parent = nullptr);

    void showValue(zsg::Variant const& value) override;
    void showMixed(zsg::Variant const& one) override;
    [[nodiscard]] std::unique_ptr<zsg::Variant> wanted() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QString text() const;
    void setText(QString const& text);
    void commit();
    void browse();

    QLineEdit* line_ = nullptr;
    QPlainTextEdit* lines_ = nullptr; ///< one of the two
    std::shared_ptr<zsg::Variant const> present_;
    std::unique_ptr<zsg::Variant> wanted_;
    bool isMixed_ = false;
};

} // namespace workbench
