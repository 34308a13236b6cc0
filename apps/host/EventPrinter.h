#pragma once

#include "host/EventLog.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace app {

/// Prints events as they arrive: "event 12 ColorUpdated 30". Several of one type in a row become
/// one line with their number and payloads: "42 events ColorSynced 1, 2, 3, 4, 5, 6, ... 42".
class EventPrinter {
public:
    enum class Show { Nothing, Runs, Each };

    void show(Show what) { show_ = what; }
    [[nodiscard]] Show shown() const { return show_; }

    void add(EventLog::Entry const& entry, std::ostream& out);
    /// Prints the run that may still grow. Whoever prints something else calls it before.
    void flush(std::ostream& out);

private:
    Show show_ = Show::Runs;
    EventLog::Entry first_;
    std::size_t count_ = 0;
    std::vector<std::string> payloads_; ///< the first ones
    std::string last_;
};

/// The line of one event, without a line end.
[[nodiscard]] std::string eventLine(EventLog::Entry const& entry);

} // namespace app
