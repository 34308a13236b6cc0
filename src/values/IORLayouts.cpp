#include "values/IORLayouts.h"

#include "values/IORLines.h"

#include <optional>
#include <ostream>

namespace zsg {

namespace {

constexpr std::size_t longestTableLine = 99;

/// Takes the next line off a text; false at the end. A last line needs no line feed, and a CR
/// before a line feed is part of the line's end, as it is for a stream in text mode.
bool takeLine(std::string_view& text, std::string_view& line) {
    if (text.empty()) {
        return false;
    }
    std::size_t const end = text.find('\n');
    line = text.substr(0, end);
    if (end == std::string_view::npos) {
        text = {};
        return true;
    }
    text.remove_prefix(end + 1);
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return true;
}

/// How an abscissa becomes a wavelength in nanometres.
struct Unit {
    double scale = 1.0;
    bool reciprocal = false;
};

std::optional<Unit> unitOf(std::int64_t code) {
    switch (code) {
    case 1:
        return Unit{0.000806573, true}; // electronvolts; a fixed constant, kept as published
    case 2:
        return Unit{1000.0, false}; // micrometres
    case 3:
        return Unit{1e-07, true}; // reciprocal centimetres
    case 4:
        return Unit{1.0, false}; // nanometres
    default:
        return {};
    }
}

/// The i-th of the abscissas that divide a range into equal intervals, in nanometres.
double wavelengthOf(IORHeader const& header, Unit const& unit, std::size_t i) {
    auto const intervals = static_cast<double>(header.intervals);
    auto const place = static_cast<double>(i);
    double abscissa = header.end;
    if (header.intervals == 0) {
        abscissa = header.start;
    } else if (place <= intervals) {
        abscissa = header.start + place / intervals * (header.end - header.start);
    }
    double const scaled = abscissa * unit.scale;
    return unit.reciprocal ? 1.0 / scaled : scaled;
}

} // namespace

std::vector<IORSample> readIORPairs(std::string_view text, std::ostream& messages) {
    std::vector<IORSample> samples;
    std::optional<IORHeader> header;
    std::string_view line;
    while (!header && takeLine(text, line)) {
        header = readIORHeader(line);
    }
    if (!header) {
        messages << "Did not find a first line in file?\n";
        return samples;
    }
    std::optional<Unit> const unit = unitOf(header->unit);
    if (!unit) {
        messages << "Unknown unit\n";
    }
    while (takeLine(text, line)) {
        if (auto const pair = readIORPair(line)) {
            double const wavelength = wavelengthOf(*header, unit.value_or(Unit{}), samples.size());
            samples.push_back({pair->n, pair->k, wavelength});
        }
    }
    auto const expected = static_cast<std::uint64_t>(header->intervals) + 1;
    if (samples.size() != expected) {
        messages << "Found " << samples.size() << " samples but expected " << expected << ".\n";
    }
    return samples;
}

std::vector<IORSample> readIORTable(std::string_view text, std::ostream& messages) {
    std::vector<IORSample> samples;
    std::string_view line;
    while (takeLine(text, line) && line.size() <= longestTableLine) {
        auto const columns = readIORColumns(line);
        if (!columns) {
            continue;
        }
        if (columns->n < 0 || columns->k < 0) {
            messages << "Real and imaginary parts of ior must be non-negative. Skipping sample\n";
            continue;
        }
        samples.push_back({columns->n, columns->k, columns->wavelength});
    }
    return samples;
}

} // namespace zsg
