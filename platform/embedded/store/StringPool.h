#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_set>

namespace nyx::embedded {

/// Texts that live as long as the scene. They outlive the records that they came from and a newly
/// loaded scene, because parameter blocks on loan keep pointing to them. Any thread.
class StringPool {
public:
    /// A copy of its own, to be written to if need be.
    [[nodiscard]] char* duplicate(std::string_view text);
    /// One copy per distinct text, so that handing out the same record again and again costs no
    /// memory. To be read only. Null for the empty text.
    [[nodiscard]] char* intern(std::string const& text);
    [[nodiscard]] std::size_t count() const;

private:
    mutable std::mutex mutex_;
    std::deque<std::unique_ptr<char[]>> duplicates_;
    std::unordered_set<std::string> interned_;
};

} // namespace nyx::embedded
