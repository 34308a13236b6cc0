#include "require.h"
#include "zsg/values/AnimationCurve.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace {

/// Takes numbers off the front of the input; zeros when it is used up.
class Input {
public:
    Input(std::uint8_t const* data, std::size_t size) : data_(data), size_(size) {}

    template <class Number>
    Number take() {
        Number number{};
        if (sizeof number <= size_) {
            std::memcpy(&number, data_, sizeof number);
            data_ += sizeof number;
            size_ -= sizeof number;
        } else {
            size_ = 0;
        }
        return number;
    }
    bool empty() const { return size_ == 0; }

private:
    std::uint8_t const* data_;
    std::size_t size_;
};

} // namespace

/// The number of keys, their letters, six floats each, then edits to the end: a byte that names the
/// edit, a byte for the index, two floats.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    std::string letters(input.take<std::uint8_t>() % 16, 'U');
    for (char& letter : letters) {
        letter = input.take<char>();
    }
    nyxArray<float> numbers(6 * std::strlen(letters.c_str()));
    for (float& number : numbers) {
        number = input.take<float>();
    }
    zsg::AnimationCurve curve;
    bool const loaded = curve.load(numbers, letters.c_str());
    require(loaded == (numbers.size() >= 12));
    while (!input.empty()) {
        auto const edit = input.take<std::uint8_t>();
        int const index = input.take<std::int8_t>();
        nyxVector2f const point{input.take<float>(), input.take<float>()};
        int const count = curve.keyCount();
        switch (edit % 7) {
        case 0:
            curve.setPos(index, point);
            break;
        case 1:
            curve.setIn(index, point);
            break;
        case 2:
            curve.setOut(index, point);
            break;
        case 3:
            curve.setWeightIn(index, point.x);
            break;
        case 4:
            curve.setWeightOut(index, point.x);
            break;
        case 5: {
            bool const removed = curve.removeKey(index);
            require(curve.keyCount() == count - (removed ? 1 : 0));
            break;
        }
        default:
            int const place = curve.insertKey(point.x);
            require(place >= 0 && place <= count && curve.keyCount() == count + 1);
            require(curve.keyAt(place).pos.x == point.x || std::isnan(point.x));
        }
    }
    nyxArray<float> stored;
    std::string types;
    curve.store(stored, types);
    zsg::AnimationCurve again;
    require(again.load(stored, types.c_str()) == (curve.keyCount() >= 2));
    if (curve.keyCount() >= 2) {
        nyxArray<float> storedAgain;
        std::string typesAgain;
        again.store(storedAgain, typesAgain);
        // Byte by byte: the numbers may be NaN.
        require(typesAgain == types && storedAgain.size() == stored.size() &&
                std::memcmp(storedAgain.data(), stored.data(), 4 * stored.size()) == 0);
    }
    return 0;
}
