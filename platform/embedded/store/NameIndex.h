#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace nyx::embedded {

/// Which colours have which name, and which numbered forms of a name are taken. Pure bookkeeping:
/// the scene says who takes and drops a name. Taking and dropping do not grow with the number of
/// names, nor but for a logarithm with that of the holders of one.
class NameIndex {
public:
    /// The empty name is ignored.
    void add(std::string const& name, nyx::ColorId id);
    void remove(std::string const& name, nyx::ColorId id);
    /// Ascending.
    [[nodiscard]] std::vector<nyx::ColorId> holders(std::string const& name) const;

    /// `name` when it is empty or held by nobody but `ignored`. Otherwise a trailing blank and
    /// number are split off and the smallest free " 1", " 2", … is put on. `nameOf` tells the names
    /// of the ignored colours, which may hold low numbers that thereby are free.
    [[nodiscard]] std::string
    unique(std::string const& name, nyx::Span<nyx::ColorId> ignored,
           std::function<std::string const*(nyx::ColorId)> const& nameOf) const;

    /// The text before a trailing " <digits>", and the number. The whole text and 0 when there are
    /// no digits, no blank, nothing before the blank, or the number does not fit an int. The number
    /// is 0 also when it is not written as the scheme writes it ("007", "0").
    struct Split {
        std::string_view base;
        std::uint32_t number = 0;
    };
    [[nodiscard]] static Split split(std::string_view name);

private:
    /// Taken numbers of one base as runs (first to last), so the smallest free one is at hand
    /// however many are taken.
    using Runs = std::map<std::uint32_t, std::uint32_t>;
    static void take(Runs& runs, std::uint32_t number);
    static void drop(Runs& runs, std::uint32_t number);
    /// True for a name that nobody has.
    [[nodiscard]] bool isHeldOnlyBy(std::string const& name,
                                    std::vector<nyx::ColorId> const& sorted) const;

    /// Most names have one holder, so there is no set before the second comes.
    struct Holders {
        nyx::ColorId only;                           ///< valid while there is no set
        std::unique_ptr<std::set<nyx::ColorId>> all; ///< two at first, not empty
    };

    std::unordered_map<std::string, Holders> holders_;
    std::unordered_map<std::string, Runs> numbers_;
};

} // namespace nyx::embedded
