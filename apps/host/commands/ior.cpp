#include "host/Command.h"
#include "host/IORLint.h"
#include "host/InputFile.h"
#include "host/NamedValues.h"
#include "host/Picture.h"

#include "zsg/values/FloatArray.h"
#include "zsg/values/loadIORFile.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <iomanip>
#include <ostream>
#include <sstream>

namespace app {

namespace {

using zsg::FloatArray;

struct Sample {
    double wavelength = 0;
    double n = 0;
    double k = 0;

    /// The part of the light that a surface in air reflects when it falls on it straight.
    [[nodiscard]] double reflectance() const {
        return ((n - 1) * (n - 1) + k * k) / ((n + 1) * (n + 1) + k * k);
    }
};

FloatArray& take(Host& host, Arguments& arguments) {
    return takeNamed<FloatArray>(host, arguments, "a loaded file");
}

std::vector<Sample> samples(FloatArray const& triples) {
    std::vector<Sample> list;
    for (qsizetype i = 0; i + 2 < triples.size(); i += 3) {
        list.push_back({static_cast<double>(triples[i]), static_cast<double>(triples[i + 1]),
                        static_cast<double>(triples[i + 2])});
    }
    std::ranges::stable_sort(list, {}, &Sample::wavelength);
    return list;
}

void load(Host& host, Arguments& arguments) {
    FloatArray triples;
    std::string const name = arguments.word("a name");
    std::string const path = arguments.word("a path");
    arguments.done();
    checkInputFile(path, largestMeasurement);
    if (!zsg::loadIORFile(path, triples)) {
        throw CommandError(path + ": holds no samples");
    }
    keepNamed(host, name, triples);
    host.out() << "  " << triples.size() / 3 << " samples\n";
}

void show(Host& host, Arguments& arguments) {
    FloatArray const& triples = take(host, arguments);
    arguments.done();
    for (Sample const& s : samples(triples)) {
        host.out() << "  " << s.wavelength << " nm  n " << s.n << "  k " << s.k << "  R "
                   << std::fixed << std::setprecision(2) << s.reflectance() << std::defaultfloat
                   << std::setprecision(6) << '\n';
    }
}

void reflectance(Host& host, Arguments& arguments) {
    std::vector<Sample> const list = samples(take(host, arguments));
    double const wavelength = arguments.real("a wavelength in nanometres");
    arguments.done();
    auto const next = std::ranges::lower_bound(list, wavelength, {}, &Sample::wavelength);
    if (next == list.end() || (next == list.begin() && next->wavelength != wavelength)) {
        throw CommandError("the file has no figures there");
    }
    Sample s = *next;
    if (next->wavelength != wavelength) {
        Sample const& before = *std::prev(next);
        double const t = (wavelength - before.wavelength) / (next->wavelength - before.wavelength);
        s.n = before.n + (next->n - before.n) * t;
        s.k = before.k + (next->k - before.k) * t;
    }
    host.out() << std::fixed << std::setprecision(2) << s.reflectance() << std::defaultfloat
               << std::setprecision(6) << '\n';
}

// A picture for a terminal: columns of equal width in wavelength, n and k to one scale and R to its
// own.
void plot(Host& host, Arguments& arguments) {
    std::vector<Sample> const list = samples(take(host, arguments));
    arguments.done();
    constexpr int columns = 72;
    constexpr int rows = 18;
    double const from = list.front().wavelength;
    double const to = list.back().wavelength;
    double top = 1;
    for (Sample const& s : list) {
        top = std::max({top, s.n, s.k});
    }
    if (!(to > from) || !std::isfinite(to) || !std::isfinite(top)) {
        throw CommandError("there is nothing to draw");
    }
    std::vector<std::string> picture(rows, std::string(columns, ' '));
    auto const mark = [&](Sample const& s, double part, char letter) {
        if (part >= 0 && part <= 1) {
            auto const x =
                static_cast<std::size_t>((s.wavelength - from) / (to - from) * (columns - 1));
            auto const y = static_cast<std::size_t>((1 - part) * (rows - 1));
            picture[y][x] = letter;
        }
    };
    for (Sample const& s : list) {
        mark(s, s.n / top, 'n');
        mark(s, s.k / top, 'k');
        mark(s, s.reflectance(), 'R');
    }
    for (std::string const& line : picture) {
        host.out() << "  |" << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
    }
    host.out() << "  +" << std::string(columns, '-') << "\n   " << from << " to " << to
               << " nm; n and k from 0 to " << top << ", R from 0 to 1\n";
}

void save(Host& host, Arguments& arguments) {
    std::vector<Sample> const list = samples(take(host, arguments));
    std::string const path = arguments.word("a path");
    arguments.done();
    double const from = list.front().wavelength;
    double const to = list.back().wavelength;
    double top = 1;
    for (Sample const& s : list) {
        if (std::isfinite(s.n) && std::isfinite(s.k)) {
            top = std::max({top, s.n, s.k});
        }
    }
    if (!(to > from) || !std::isfinite(to)) {
        throw CommandError("there is nothing to draw");
    }
    auto const at = [&](double wavelength, double value, double range) {
        return Picture::Point{48 + 560 * (wavelength - from) / (to - from),
                              320 - 300 * value / range};
    };
    Picture picture(640, 360);
    for (int i = 0; i <= 8; ++i) {
        double const wavelength = from + (to - from) * i / 8;
        picture.line({at(wavelength, 0, 1), at(wavelength, 1, 1)}, ink::grey, 0.5);
        Picture::Point const label = at(wavelength, 0, 1);
        picture.text({label.x - 12, label.y + 18}, std::to_string(std::lround(wavelength)));
        double const value = top * i / 8;
        picture.line({at(from, value, top), at(to, value, top)}, ink::grey, 0.5);
        std::ostringstream text;
        text << std::setprecision(3) << value;
        picture.text({8, at(from, value, top).y + 4}, text.str());
    }
    auto const plot = [&](double (*value)(Sample const&), double range, nyxColor_rgba const& color,
                          char const* label, double y) {
        std::vector<Picture::Point> points;
        for (Sample const& s : list) {
            if (std::isfinite(value(s))) {
                points.push_back(at(s.wavelength, value(s), range));
            }
        }
        picture.line(std::move(points), color, 2);
        picture.line({{64, y - 4}, {88, y - 4}}, color, 2);
        picture.text({94, y}, label);
    };
    plot([](Sample const& s) { return s.n; }, top, ink::blue, "n", 36);
    plot([](Sample const& s) { return s.k; }, top, ink::red, "k", 54);
    plot([](Sample const& s) { return s.reflectance(); }, 1, ink::green, "reflectance, 0 to 1", 72);
    picture.text({270, 354}, "wavelength in nm");
    picture.save(path);
}

void lint(Host& host, Arguments& arguments) {
    std::string const path = arguments.word("a path");
    arguments.done();
    std::string const text = readInputFile(path, largestMeasurement);
    std::size_t const dot = path.find_last_of('.');
    std::string extension = dot == std::string::npos ? "" : path.substr(dot + 1);
    std::ranges::transform(extension, extension.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (extension != "nk" && extension != "ior" && extension != "csv") {
        throw CommandError(path + ": has none of the extensions nk, ior, csv; nothing is read");
    }
    auto const findings = lintIOR(text, extension);
    for (std::string const& finding : findings) {
        host.out() << "  " << finding << '\n';
    }
    host.out() << (findings.empty() ? "  nothing to complain of\n" : "");
}

constexpr Command table[] = {
    {"ior load", "NAME PATH", "load a measured index of refraction (.nk, .ior, .csv)", load},
    {"ior show", "NAME", "list n, k and the reflectance", show},
    {"ior reflectance", "NAME NM", "the reflectance at a wavelength", reflectance},
    {"ior plot", "NAME", "draw n, k and the reflectance R as text", plot},
    {"ior save", "NAME PATH", "plot n, k and the reflectance (.svg, .png)", save},
    {"ior lint", "PATH", "say what is suspicious about a file", lint},
};

} // namespace

Family iorFamily() { return {"measured metals", table}; }

} // namespace app
