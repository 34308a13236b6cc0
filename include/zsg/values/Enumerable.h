#pragma once

#include <QList>
#include <QString>

#include <utility>

namespace zsg {

/// A list of options, each an id and a label, of which one is selected. The options are shared
/// until written.
class Enumerable : public QList<std::pair<int, QString>> {
public:
    using QList<std::pair<int, QString>>::QList;

    /// 0 until it is set. Copies carry it; comparing two values leaves it out.
    [[nodiscard]] int getSelection() const noexcept { return selection_; }
    /// Takes any number: neither the ids nor the count of options are looked at.
    void setSelection(int selection) noexcept { selection_ = selection; }

private:
    int selection_ = 0;
};

} // namespace zsg
