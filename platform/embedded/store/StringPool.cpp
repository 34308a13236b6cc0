#include "store/StringPool.h"

namespace nyx::embedded {

char* StringPool::duplicate(std::string_view text) {
    auto copy = std::make_unique<char[]>(text.size() + 1);
    text.copy(copy.get(), text.size());
    std::lock_guard const guard(mutex_);
    return duplicates_.emplace_back(std::move(copy)).get();
}

char* StringPool::intern(std::string const& text) {
    if (text.empty()) {
        return nullptr;
    }
    std::lock_guard const guard(mutex_);
    // A block's text pointer is not const, but whoever changes a text puts a new one there.
    return const_cast<char*>(interned_.insert(text).first->c_str());
}

std::size_t StringPool::count() const {
    std::lock_guard const guard(mutex_);
    return duplicates_.size() + interned_.size();
}

} // namespace nyx::embedded
