#include "host/Command.h"
#include "host/IORLint.h"
#include "host/InputFile.h"
#include "host/NamedValues.h"
#include "host/counted.h"
#include "host/metalSamples.h"
#include "host/pictures/PictureFile.h"
#include "host/pictures/metalPlot.h"
#include "zsg/values/FloatArray.h"
#include "zsg/values/loadIORFile.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <iomanip>
#include <ostream>

namespace app {

namespace {

using zsg::FloatArray;

FloatArray& take(Host& host, Arguments& arguments) {
    return takeNamed<FloatArray>(host, arguments, "a loaded file");
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
    host.out() << "  " << counted(static_cast<std::size_t>(triples.size()) / 3, "sample", "samples")
               << '\n';
}

void show(Host& host, Arguments& arguments) {
    FloatArray const& triples = take(host, arguments);
    arguments.done();
    beginResultList(host);
    for (MetalSample const& s : metalSamples(triples)) {
        addResult(host, [&] {
            return nlohmann::ordered_json{{"wavelength", s.wavelength},
                                          {"n", s.n},
                                          {"k", s.k},
                                          {"reflectance", s.reflectance()}};
        });
        host.out() << "  " << s.wavelength << " nm  n " << s.n << "  k " << s.k << "  R "
                   << std::fixed << std::setprecision(2) << s.reflectance() << std::defaultfloat
                   << std::setprecision(6) << '\n';
    }
}

void reflectance(Host& host, Arguments& arguments) {
    std::vector<MetalSample> const list = metalSamples(take(host, arguments));
    double const wavelength = arguments.real("a wavelength in nanometres");
    arguments.done();
    auto const next = std::ranges::lower_bound(list, wavelength, {}, &MetalSample::wavelength);
    if (next == list.end() || (next == list.begin() && next->wavelength != wavelength)) {
        throw CommandError("the file has no figures there");
    }
    MetalSample s = *next;
    if (next->wavelength != wavelength) {
        MetalSample const& before = *std::prev(next);
        double const t = (wavelength - before.wavelength) / (next->wavelength - before.wavelength);
        s.n = before.n + (next->n - before.n) * t;
        s.k = before.k + (next->k - before.k) * t;
    }
    host.out() << std::fixed << std::setprecision(2) << s.reflectance() << std::defaultfloat
               << std::setprecision(6) << '\n';
}

/// A picture for a terminal: columns of equal width in wavelength, n and k to one scale and R to
/// its own.
void plot(Host& host, Arguments& arguments) {
    std::vector<MetalSample> const list = metalSamples(take(host, arguments));
    arguments.done();
    constexpr int columns = 72;
    constexpr int rows = 18;
    double const from = list.front().wavelength;
    double const to = list.back().wavelength;
    double top = 1;
    for (MetalSample const& s : list) {
        top = std::max({top, s.n, s.k});
    }
    if (!(to > from) || !std::isfinite(to) || !std::isfinite(top)) {
        throw CommandError("there is nothing to draw");
    }
    std::vector<std::string> picture(rows, std::string(columns, ' '));
    auto const mark = [&](MetalSample const& s, double part, char letter) {
        if (part >= 0 && part <= 1) {
            auto const x =
                static_cast<std::size_t>((s.wavelength - from) / (to - from) * (columns - 1));
            auto const y = static_cast<std::size_t>((1 - part) * (rows - 1));
            picture[y][x] = letter;
        }
    };
    for (MetalSample const& s : list) {
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
    std::vector<MetalSample> const list = metalSamples(take(host, arguments));
    PictureFile const file = PictureFile::take(host, arguments);
    arguments.done();
    file.write(metalPlot(list));
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
    auto findings = lintIOR(text, extension);
    FloatArray triples;
    if (!zsg::loadIORFile(path, triples)) {
        findings.emplace_back("it holds no samples and does not load");
    }
    for (std::string const& finding : findings) {
        host.out() << "  " << finding << '\n';
    }
    host.out() << (findings.empty() ? "  nothing to complain of\n" : "");
}

constexpr Command table[] = {
    {"ior list", "", "list the names", "ior list", listNamed<FloatArray>},
    {"ior load", "NAME PATH", "load a measured index of refraction (.nk, .ior, .csv)",
     "ior load gold examples/data/gold.csv", load},
    {"ior show", "NAME", "list n, k and the reflectance", "ior show gold", show},
    {"ior reflectance", "NAME NM", "the reflectance at a wavelength", "ior reflectance gold 589",
     reflectance},
    {"ior plot", "NAME", "draw n, k and the reflectance R as text", "ior plot gold", plot},
    {"ior save", "NAME PATH [dark]", "plot n, k and the reflectance (.svg, .png)",
     "ior save gold gold.svg", save},
    {"ior lint", "PATH", "say what is suspicious about a file", "ior lint examples/data/silver.nk",
     lint},
    {"ior delete", "NAME", "forget it", "ior delete gold", deleteNamed<FloatArray>},
};

} // namespace

Family iorFamily() { return {"measured metals", table}; }

} // namespace app
