#include "require.h"
#include "values/hintParsing.h"

#include <bit>
#include <cstdint>
#include <string>

/// What a hint says must not depend on pieces of another kind, nor on what follows its first
/// pieces.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string const text(reinterpret_cast<char const*>(data), size);
    std::string const hint = text.c_str(); // ends at the first zero byte, as a hint does
    auto const limits = zsg::hintLimits(text.c_str());
    auto const slider = zsg::hintSliderRange(text.c_str());
    require(zsg::hintKelvin(text.c_str()) == (hint.find("-kelvin-") != std::string::npos));
    require(!limits || hint.find("-limits,") != std::string::npos);
    require(!slider || hint.find("-spin,") != std::string::npos ||
            hint.find("-range,") != std::string::npos);

    std::string const more = hint + "\n-limits,1,2-\n-spin,3,4,5-\n-range,6,7-\n-kelvin-";
    auto const same = [](auto const& a, auto const& b) {
        // Bit by bit: a hint may say "nan".
        return a.has_value() == b.has_value() &&
               (!a ||
                (std::bit_cast<std::uint32_t>(a->low) == std::bit_cast<std::uint32_t>(b->low) &&
                 std::bit_cast<std::uint32_t>(a->high) == std::bit_cast<std::uint32_t>(b->high)));
    };
    if (limits) {
        require(same(zsg::hintLimits(more.c_str()), limits));
    }
    if (hint.find("-spin") != std::string::npos) {
        // A malformed piece could be completed by what follows, a sound one not.
        require(!slider || same(zsg::hintSliderRange(more.c_str()), slider));
    }
    require(zsg::hintKelvin(more.c_str()));
    return 0;
}
