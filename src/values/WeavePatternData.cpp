#include "values/WeavePatternData.h"

namespace zsg {

// In a file of their own, so that no compiler inlines them where one cell is set: there they are
// the rare case.
void WeavePattern::Data::replaceGrid(WeavePattern& pattern, WeaveGrid grid) {
    if (pattern.d_->isShared()) {
        Data* const fresh = new Data(std::move(grid), pattern.d_->yarns);
        release(std::exchange(pattern.d_, fresh));
    } else {
        pattern.d_->grid = std::move(grid);
    }
}

void WeavePattern::Data::unshare(WeavePattern& pattern) {
    replaceGrid(pattern, WeaveGrid(pattern.d_->grid));
}

void WeavePattern::Data::setUnshared(WeavePattern& pattern, int x, int y, YarnType type) {
    unshare(pattern);
    pattern.set(x, y, type);
}

} // namespace zsg
