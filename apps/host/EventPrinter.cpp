#include "host/EventPrinter.h"

#include <ostream>

namespace app {

namespace {

/// So many payloads are printed of a run, and its last.
constexpr std::size_t mostPayloads = 8;

} // namespace

std::string eventLine(EventLog::Entry const& entry) {
    return "event " + std::to_string(entry.id) + ' ' + entry.typeText +
           (entry.payload.empty() ? "" : " ") + entry.payload;
}

void EventPrinter::add(EventLog::Entry const& entry, std::ostream& out) {
    if (show_ == Show::Nothing) {
        return;
    }
    if (show_ == Show::Each) {
        out << eventLine(entry) << '\n';
        return;
    }
    if (count_ > 0 && first_.type != entry.type) {
        flush(out);
    }
    if (count_ == 0) {
        first_ = entry;
    }
    ++count_;
    if (payloads_.size() < mostPayloads) {
        payloads_.push_back(entry.payload);
    }
    last_ = entry.payload;
}

void EventPrinter::flush(std::ostream& out) {
    if (count_ == 0) {
        return;
    }
    if (count_ == 1) {
        out << eventLine(first_) << '\n';
    } else {
        out << count_ << " events " << first_.typeText;
        std::size_t const listed = first_.payload.empty() ? 0 : payloads_.size();
        for (std::size_t i = 0; i < listed; ++i) {
            out << (i == 0 ? " " : ", ") << payloads_[i];
        }
        if (listed > 0 && count_ > listed) {
            out << (count_ > listed + 1 ? ", ... " : ", ") << last_;
        }
        out << '\n';
    }
    count_ = 0;
    payloads_.clear();
}

} // namespace app
