#include "values/hintParsing.h"

#include <clocale>
#include <cstdio>
#include <cstring>

#if defined(_WIN32)
    #include <string>
#else
    #include <locale.h>
#endif

namespace zsg {
namespace {

/// While it lives, this thread reads numbers with a decimal point whatever locale the application
/// has set.
class CNumbers {
public:
    CNumbers(CNumbers const&) = delete;
    CNumbers& operator=(CNumbers const&) = delete;

#if defined(_WIN32)
    CNumbers()
        : mode_(_configthreadlocale(_ENABLE_PER_THREAD_LOCALE)),
          previous_(std::setlocale(LC_NUMERIC, nullptr)) {
        std::setlocale(LC_NUMERIC, "C");
    }
    ~CNumbers() {
        std::setlocale(LC_NUMERIC, previous_.c_str());
        _configthreadlocale(mode_);
    }

private:
    int mode_;
    std::string previous_;
#else
    CNumbers() : previous_(uselocale(cLocale())) {}
    ~CNumbers() { uselocale(previous_); }

private:
    static locale_t cLocale() {
        static locale_t const locale = newlocale(LC_ALL_MASK, "C", locale_t{});
        return locale;
    }

    locale_t previous_;
#endif
};

char const* find(char const* hint, char const* piece) {
    return hint ? std::strstr(hint, piece) : nullptr;
}

} // namespace

std::optional<HintRange> hintLimits(char const* hint) {
    char const* const limits = find(hint, "-limits");
    if (!limits) {
        return std::nullopt;
    }
    CNumbers const cNumbers;
    HintRange range{};
    if (std::sscanf(limits, "-limits,%g,%g-\n", &range.low, &range.high) != 2) {
        return std::nullopt;
    }
    return range;
}

std::optional<HintRange> hintSliderRange(char const* hint) {
    HintRange range{};
    if (char const* const spin = find(hint, "-spin")) {
        CNumbers const cNumbers;
        float step = 0;
        if (std::sscanf(spin, "-spin,%g,%g,%g-\n", &range.low, &range.high, &step) != 3) {
            return std::nullopt;
        }
        return range;
    }
    if (char const* const slider = find(hint, "-range")) {
        CNumbers const cNumbers;
        if (std::sscanf(slider, "-range,%g,%g-\n", &range.low, &range.high) != 2) {
            return std::nullopt;
        }
        return range;
    }
    return std::nullopt;
}

bool hintKelvin(char const* hint) { return find(hint, "-kelvin-") != nullptr; }

} // namespace zsg
