#include "zsg/values/loadIORFile.h"

#include "values/IORLayouts.h"
#include "zsg/values/pathFromUtf8.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace zsg {

namespace {

/// What follows the last dot, in small letters; empty when there is no dot.
std::string extensionOf(std::string const& path) {
    std::size_t const dot = path.find_last_of('.');
    std::string extension = dot == std::string::npos ? "" : path.substr(dot + 1);
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return extension;
}

/// The bytes of a file; nothing when it cannot be opened or read, as with a folder.
std::optional<std::string> contentsOf(std::string const& path) {
    std::ifstream file(pathFromUtf8(path), std::ios::binary);
    std::string contents;
    std::string block(std::size_t{1} << 16, '\0');
    while (file.read(block.data(), static_cast<std::streamsize>(block.size())) ||
           file.gcount() > 0) {
        contents.append(block, 0, static_cast<std::size_t>(file.gcount()));
    }
    if (!file.is_open() || file.bad()) {
        return {};
    }
    return contents;
}

std::vector<IORSample> samplesOf(std::string const& path) {
    std::string const extension = extensionOf(path);
    bool const isTable = extension == "csv";
    if (!isTable && extension != "nk" && extension != "ior") {
        return {};
    }
    auto const contents = contentsOf(path);
    if (!contents) {
        return {};
    }
    return isTable ? readIORTable(*contents, std::cerr) : readIORPairs(*contents, std::cerr);
}

} // namespace

bool loadIORFile(std::string const& path, FloatArray& out) noexcept {
    try {
        std::vector<IORSample> const samples = samplesOf(path);
        if (samples.empty()) {
            return false;
        }
        FloatArray triples(static_cast<qsizetype>(3 * samples.size()));
        float* to = triples.data();
        for (IORSample const& sample : samples) {
            *to++ = static_cast<float>(sample.wavelength);
            *to++ = static_cast<float>(sample.n);
            *to++ = static_cast<float>(sample.k);
        }
        out = std::move(triples);
        return true;
    } catch (...) {
        return false; // such as memory running out
    }
}

} // namespace zsg
