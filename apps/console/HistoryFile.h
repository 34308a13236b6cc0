#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// The lines that were typed in earlier sessions, in zsg-console/history of the user's folder for
/// states: XDG_STATE_HOME when that is an absolute path, else ~/.local/state. One line each, for
/// this user's eyes only. Where it cannot be read or written, there is no history, and nobody is
/// told.
class HistoryFile {
public:
    static constexpr std::size_t mostLines = 1000;

    HistoryFile();

    /// The last `mostLines`, oldest first. A file of twice as many is cut to them.
    [[nodiscard]] std::vector<std::string> lines() const;
    /// At once, so that a session that ends badly is remembered too; what other sessions add
    /// meanwhile stays.
    void append(std::string const& line) const;

private:
    std::string path_; ///< empty when there is no place for it
};
