#include "values/WeaveJson.h"

#include "values/WeaveMask.h"

#include <QByteArray>
#include <QStringView>
#include <nlohmann/json.hpp>

#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace zsg {

namespace {

using Json = nlohmann::json;
using Members = Json::object_t;

void append(QString& text, std::string_view ascii) {
    text += QLatin1StringView(ascii.data(), static_cast<qsizetype>(ascii.size()));
}

/// A number as an int in the library's own way. False for one beyond the range of an int: the
/// library would let integers wrap around, so that an absurd size looks sound.
bool readInt(Json const& value, int& out) {
    if (value.is_number()) {
        double const number = std::trunc(value.get<double>());
        if (!(number >= std::numeric_limits<int>::min() &&
              number <= std::numeric_limits<int>::max())) {
            return false;
        }
    }
    out = value.get<int>();
    return true;
}

bool readSize(Members const& members, char const* key, int& out) {
    auto const found = members.find(key);
    int size = 0;
    if (found != members.end() && !readInt(found->second, size)) {
        return false;
    }
    out = std::max(size, 1);
    return true;
}

/// The elements of an array; none when the member is missing.
Json::array_t const& readArray(Members const& members, char const* key) {
    static Json::array_t const none;
    auto const found = members.find(key);
    return found == members.end() ? none : found->second.get_ref<Json::array_t const&>();
}

/// Sets `out` when all four arrays have two elements. False when a kind that counts is no int.
bool readYarns(Members const& members, std::optional<WeaveYarns>& out) {
    WeaveYarns yarns;
    bool complete = true;
    auto const readFloats = [&](char const* key, float(&to)[2]) {
        Json::array_t const& values = readArray(members, key);
        complete = complete && values.size() == 2;
        for (std::size_t i = 0; i < values.size(); ++i) {
            to[i & 1] = values[i].get<float>(); // throws for what is no number, whatever the count
        }
    };
    readFloats("tension", yarns.tension);
    readFloats("width", yarns.width);
    readFloats("modulus", yarns.modulus);
    Json::array_t const& kinds = readArray(members, "kind");
    complete = complete && kinds.size() == 2;
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        int kind = 0;
        if (!readInt(kinds[i], kind) && complete) {
            return false;
        }
        yarns.kind[i & 1] = static_cast<WeavePattern::YarnKind>(kind);
    }
    if (complete) {
        out = yarns;
    }
    return true;
}

/// Reads a pattern whose mask has `count` elements. `fill` puts them into a grid of that many
/// cells; it returns false when it cannot.
template <class Fill>
std::optional<WeaveText> readPattern(Members const& members, std::size_t count, Fill fill) {
    int warps = 0;
    int wefts = 0;
    if (!readSize(members, "pattern_warps", warps) || !readSize(members, "pattern_wefts", wefts) ||
        !WeaveGrid::isValidSize(warps, wefts) ||
        static_cast<std::size_t>(warps) * static_cast<std::size_t>(wefts) != count) {
        return {};
    }
    WeaveText read{WeaveGrid(warps, wefts), {}};
    fill(read.grid);
    if (!readYarns(members, read.yarns)) {
        return {};
    }
    return read;
}

/// Reads a text whose mask has the plain form: the JSON library sees the text with that mask taken
/// out. Nothing whenever it is not certain that reading the whole text gives the same.
std::optional<WeaveText> readAroundMask(QStringView text) {
    auto const mask = findPlainMask(text);
    if (!mask) {
        return {};
    }
    QByteArray rest = text.first(mask->first).toUtf8();
    rest += text.sliced(mask->first + mask->length).toUtf8();
    Json const json = Json::parse(rest.constData(), rest.constData() + rest.size(), nullptr, false);
    if (!json.is_object() || !json.contains("pattern_mask")) {
        return {}; // not JSON, or the mask is that of an inner object
    }
    return readPattern(json.get_ref<Members const&>(), mask->count(), [&](WeaveGrid& grid) {
        readPlainMask(text.sliced(mask->first, mask->length), grid);
    });
}

} // namespace

QString weaveToJson(WeaveGrid const& grid, WeaveYarns const& yarns) {
    // One dump of all floats gives the JSON library's own spelling without a document for the rest.
    Json const floats = {yarns.modulus[0], yarns.modulus[1], yarns.tension[0],
                         yarns.tension[1], yarns.width[0],   yarns.width[1]};
    std::string const spelled = floats.dump();
    std::string_view rest(spelled);
    auto const pair = [&rest] {
        std::size_t const middle = rest.find(',', 1);
        std::size_t const end = rest.find_first_of(",]", middle + 1);
        std::string_view const both = rest.substr(1, end - 1);
        rest.remove_prefix(end);
        return both;
    };
    std::string head = "{\"kind\":[" + std::to_string(yarns.kind[0]) + ',' +
                       std::to_string(yarns.kind[1]) + "],\"modulus\":[";
    head += pair();
    head += "],\"pattern_mask\":[";
    std::string tail = "],\"pattern_warps\":" + std::to_string(grid.record().numWarp) +
                       ",\"pattern_wefts\":" + std::to_string(grid.record().numWeft) +
                       ",\"tension\":[";
    tail += pair();
    tail += "],\"width\":[";
    tail += pair();
    tail += "]}";

    QString text;
    std::size_t const length = head.size() + 2 * grid.count() + tail.size();
    text.reserve(static_cast<qsizetype>(length));
    append(text, head);
    appendMask(text, grid);
    append(text, tail);
    return text;
}

std::optional<WeaveText> weaveFromJson(QString const& text) {
    if (text.isEmpty()) {
        return {};
    }
    if (auto read = readAroundMask(text)) {
        return read;
    }
    QByteArray const utf8 = text.toUtf8();
    Json const json = Json::parse(utf8.constData(), utf8.constData() + utf8.size());
    auto const& members = json.get_ref<Members const&>();
    Json::array_t const& mask = readArray(members, "pattern_mask");
    std::vector<WeaveGrid::Cell> cells; // read before counting: a wrong type throws in any case
    cells.reserve(mask.size());
    for (Json const& value : mask) {
        // Beyond the range of an int the library would let integers wrap around, to 0 for instance.
        int cell = 0;
        bool const fits = readInt(value, cell);
        cells.push_back(!fits || cell != 0 ? WeavePattern::Weft : WeavePattern::Warp);
    }
    return readPattern(members, cells.size(), [&cells](WeaveGrid& grid) {
        std::copy(cells.begin(), cells.end(), grid.cells());
    });
}

} // namespace zsg
