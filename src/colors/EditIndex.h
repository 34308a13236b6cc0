#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

namespace zsg {

/// The edits of a database, owned and found by the id of their record. The renderer gives ids out
/// ascending from 1, so they index pages of pointers: among a million records an edit is found
/// several times faster than by hashing. Ids beyond `paged`, which such a renderer does not reach,
/// are hashed, so that no stray id costs more than a node.
template <class Id, class Edit>
class EditIndex {
public:
    /// Null when there is none.
    [[nodiscard]] Edit* find(Id id) const {
        std::size_t const page = id.toUint() / pageSize;
        if (page < pages_.size()) {
            return pages_[page] ? (*pages_[page])[id.toUint() % pageSize].get() : nullptr;
        }
        if (id.toUint() < paged || others_.empty()) {
            return nullptr;
        }
        auto const found = others_.find(id);
        return found == others_.end() ? nullptr : found->second.get();
    }

    /// Takes an edit over in place of the one that there was. When memory runs out nothing has
    /// changed, and the edit is gone.
    Edit* set(Id id, std::unique_ptr<Edit> edit) {
        Edit* const kept = edit.get();
        place(id).swap(edit);
        edit.reset(); // before the new one is used
        return kept;
    }

    void erase(Id id) {
        if (find(id)) {
            place(id).reset();
        }
    }

private:
    static constexpr std::size_t pageSize = 128;
    static constexpr std::uint32_t paged = 1u << 24;
    using Page = std::array<std::unique_ptr<Edit>, pageSize>;

    std::unique_ptr<Edit>& place(Id id) {
        if (id.toUint() >= paged) {
            return others_[id];
        }
        std::size_t const page = id.toUint() / pageSize;
        if (page >= pages_.size()) {
            pages_.resize(page + 1);
        }
        if (!pages_[page]) {
            pages_[page] = std::make_unique<Page>();
        }
        return (*pages_[page])[id.toUint() % pageSize];
    }

    std::vector<std::unique_ptr<Page>> pages_;
    std::unordered_map<Id, std::unique_ptr<Edit>> others_;
};

} // namespace zsg
