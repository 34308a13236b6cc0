#include "zsg/values/WeavePattern.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

namespace {

/// What reading a text leads to: the pattern as it then writes itself, or which failure.
QString outcome(QString const& text) {
    zsg::WeavePattern pattern;
    try {
        return pattern.setFromJson(text) ? pattern.toJson() : QString("refused");
    } catch (nlohmann::json::parse_error const&) {
        return "not JSON";
    } catch (nlohmann::json::exception const&) {
        return "wrong types";
    }
}

} // namespace

/// A blank keeps the mask from being read the fast way, which must make no difference; and what was
/// written reads as itself.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    QString const text =
        QString::fromUtf8(reinterpret_cast<char const*>(data), static_cast<qsizetype>(size));
    QString const read = outcome(text);
    QString spaced = text;
    spaced.replace("\"pattern_mask\":[", "\"pattern_mask\": [");
    if (outcome(spaced) != read) {
        std::abort();
    }
    // A float beyond its range is written as null, which is no number.
    if (read.startsWith('{') && !read.contains("null") && outcome(read) != read) {
        std::abort();
    }
    return 0;
}
