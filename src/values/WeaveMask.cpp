#include "values/WeaveMask.h"

#include <algorithm>
#include <charconv>

namespace zsg {

namespace {

constexpr QStringView maskKey = u"\"pattern_mask\"";

/// True for single digits 0 and 1, separated by commas alone.
bool isPlain(QStringView mask) {
    if (mask.size() % 2 == 0) {
        return false;
    }
    char16_t const* const text = mask.utf16();
    auto const last = static_cast<std::size_t>(mask.size() - 1);
    unsigned odd = (text[last] & ~1u) ^ u'0';
    for (std::size_t i = 0; i < last; i += 2) {
        odd |= ((text[i] & ~1u) ^ u'0') | (static_cast<unsigned>(text[i + 1]) ^ u',');
    }
    return odd == 0;
}

} // namespace

// A backslash could spell the key, or hide quotes inside a string, so then nothing is found.
std::optional<PlainMask> findPlainMask(QStringView text) {
    qsizetype const key = text.indexOf(maskKey);
    if (key < 0) {
        return {};
    }
    qsizetype const open = key + maskKey.size();
    if (!text.sliced(open).startsWith(u":[")) {
        return {};
    }
    qsizetype const first = open + 2;
    qsizetype const close = text.indexOf(u']', first);
    if (close < 0 || text.first(key).contains(u'\\') || text.sliced(close).contains(u'\\') ||
        text.sliced(close).contains(maskKey) || !isPlain(text.sliced(first, close - first))) {
        return {};
    }
    return PlainMask{first, close - first};
}

void readPlainMask(QStringView mask, WeaveGrid& grid) {
    char16_t const* const digits = mask.utf16();
    WeaveGrid::Cell* const cells = grid.cells();
    std::size_t const count = grid.count();
    for (std::size_t i = 0; i < count; ++i) {
        cells[i] = digits[2 * i] & 1;
    }
}

void appendMask(QString& text, WeaveGrid const& grid) {
    WeaveGrid::Cell const* const cells = grid.cells();
    std::size_t const count = grid.count();
    std::uint32_t largest = 0;
    for (std::size_t i = 0; i < count; ++i) {
        largest = std::max(largest, static_cast<std::uint32_t>(cells[i]));
    }
    if (largest > 9) {
        for (std::size_t i = 0; i < count; ++i) {
            char digits[16];
            auto const end = std::to_chars(digits, digits + sizeof digits, cells[i]).ptr;
            text += QLatin1StringView(i == 0 ? "" : ",");
            text += QLatin1StringView(digits, end - digits);
        }
        return;
    }
    qsizetype const start = text.size();
    text.resize(start + static_cast<qsizetype>(2 * count));
    char16_t* const out = reinterpret_cast<char16_t*>(text.data()) + start;
    for (std::size_t i = 0; i < count; ++i) {
        out[2 * i] = static_cast<char16_t>(u'0' + cells[i]);
        out[2 * i + 1] = u',';
    }
    text.chop(1);
}

} // namespace zsg
