#include "zsg/values/AnimationCurve.h"

#include "values/BezierSegment.h"
#include "zsg/values/keyLetters.h"

#include "nyxrender/nyx_warning.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string_view>
#include <utility>

namespace zsg {

namespace {

constexpr std::size_t floatsPerKey = 6;

nyx::AnimationKey keyWithoutHandles(nyxVector2f const& pos, nyx::KeyType type) {
    return {pos, pos, pos, type};
}

nyxVector2f weighted(nyxVector2f const& handle, nyxVector2f const& pos, float weight) {
    double dx = double{handle.x} - double{pos.x};
    double dy = double{handle.y} - double{pos.y};
    double length = std::hypot(dx, dy);
    if (length == 0) {
        // Outgoing handles point backwards, too.
        dx = -1;
        dy = 0;
        length = 1;
    }
    double const scale = std::max(0.0f, weight) / length;
    return {static_cast<float>(pos.x + dx * scale), static_cast<float>(pos.y + dy * scale)};
}

/// An infinite one would give a handle coordinates that no later weight can repair.
bool isWeight(float weight) { return weight != std::numeric_limits<float>::infinity(); }

/// The point on the way from the key at `pos` to its neighbour where the key's handle lies.
nyxVector2f thirdOfWay(nyxVector2f const& pos, nyxVector2f const& neighbour) {
    auto const third = [](double from, double to) {
        return static_cast<float>(from + (to - from) / 3);
    };
    return {third(pos.x, neighbour.x), third(pos.y, neighbour.y)};
}

nyx::AnimationKey keyOnLine(nyx::AnimationKey const& start, nyx::AnimationKey const& end, float x) {
    double const part = (double{x} - start.pos.x) / (double{end.pos.x} - start.pos.x);
    double const y = start.pos.y + (double{end.pos.y} - start.pos.y) * part;
    nyxVector2f const pos{x, static_cast<float>(y)};
    return {pos, thirdOfWay(pos, start.pos), thirdOfWay(pos, end.pos), start.type};
}

nyx::AnimationKey keyOnStep(nyx::AnimationKey const& start, nyx::AnimationKey const& end, float x) {
    nyxVector2f const pos{x, start.type == nyx::KeyType::s ? start.pos.y : end.pos.y};
    return {pos, thirdOfWay(pos, {start.pos.x, pos.y}), thirdOfWay(pos, {end.pos.x, pos.y}),
            start.type};
}

/// Moves the handles of the two keys that face each other, to keep the shape.
nyx::AnimationKey splitBezier(nyx::AnimationKey& start, nyx::AnimationKey& end, float x) {
    BezierSegment const segment{start.pos, start.out, end.in, end.pos};
    BezierSplit halves = split(segment, segment.parameterAt(x));
    start.out = halves.startOut;
    end.in = halves.endIn;
    // Rounding, or a curve that runs backwards here, must not push a handle past its key.
    halves.in.x = std::min(halves.in.x, x);
    halves.out.x = std::max(halves.out.x, x);
    return {{x, halves.pos.y}, halves.in, halves.out, nyx::KeyType::U};
}

} // namespace

AnimationCurve::AnimationCurve(std::vector<nyx::AnimationKey> keys) : keys_(std::move(keys)) {}

AnimationCurve::AnimationCurve(std::initializer_list<nyx::AnimationKey> keys) : keys_(keys) {}

AnimationCurve::AnimationCurve(nyxVector2f const* points, nyx::KeyType const* types, int count) {
    for (int i = 0; i < count; ++i) {
        keys_.push_back(keyWithoutHandles(points[i], types[i]));
    }
}

void AnimationCurve::setCurve(AnimationCurve const& other) { keys_ = other.keys_; }

int AnimationCurve::keyCount() const noexcept { return static_cast<int>(keys_.size()); }

nyx::AnimationKey const& AnimationCurve::keyAt(int index) const {
    return keys_[static_cast<std::size_t>(index)];
}

bool AnimationCurve::setKey(int index, nyx::AnimationKey key) {
    if (!hasKey(index)) {
        return false;
    }
    if (hasKey(index + 1)) {
        nyx::AnimationKey const& next = keyAt(index + 1);
        if (key.pos.x > next.pos.x || key.pos.x > key.out.x || !(next.pos.x >= next.in.x)) {
            return false;
        }
    }
    if (hasKey(index - 1)) {
        nyx::AnimationKey const& prev = keyAt(index - 1);
        if (prev.pos.x > key.pos.x || prev.pos.x > prev.out.x || !(key.pos.x >= key.in.x)) {
            return false;
        }
    }
    nyx::AnimationKey& stored = keys_[static_cast<std::size_t>(index)];
    if (key == stored) {
        return false;
    }
    stored = key;
    return true;
}

bool AnimationCurve::setPos(int index, nyxVector2f const& pos) {
    if (!hasKey(index)) {
        return false;
    }
    nyx::AnimationKey key = keyAt(index);
    key.pos = pos;
    return setKey(index, key);
}

bool AnimationCurve::setIn(int index, nyxVector2f const& in) {
    if (!hasKey(index)) {
        return false;
    }
    nyx::AnimationKey key = keyAt(index);
    key.in = in;
    return setKey(index, key);
}

bool AnimationCurve::setOut(int index, nyxVector2f const& out) {
    if (!hasKey(index)) {
        return false;
    }
    nyx::AnimationKey key = keyAt(index);
    key.out = out;
    return setKey(index, key);
}

bool AnimationCurve::setWeightIn(int index, float weight) {
    return hasKey(index) && isWeight(weight) &&
           setIn(index, weighted(keyAt(index).in, keyAt(index).pos, weight));
}

bool AnimationCurve::setWeightOut(int index, float weight) {
    return hasKey(index) && isWeight(weight) &&
           setOut(index, weighted(keyAt(index).out, keyAt(index).pos, weight));
}

bool AnimationCurve::removeKey(int index) {
    if (!hasKey(index)) {
        return false;
    }
    keys_.erase(keys_.begin() + index);
    return true;
}

int AnimationCurve::insertKey(float x) {
    if (keys_.empty()) {
        keys_.push_back(keyWithoutHandles({x, 0}, nyx::KeyType::U));
        return 0;
    }
    // By hand: loaded keys may be out of order or NaN, which the standard searches do not allow.
    std::size_t after = 0;
    for (std::size_t end = keys_.size(); after < end;) {
        std::size_t const middle = after + (end - after) / 2;
        if (keys_[middle].pos.x > x) {
            end = middle;
        } else {
            after = middle + 1;
        }
    }
    keys_.insert(keys_.begin() + static_cast<std::ptrdiff_t>(after), nyx::AnimationKey());
    nyx::AnimationKey& key = keys_[after];
    if (after == 0) {
        key = keyWithoutHandles({x, keys_[1].pos.y}, nyx::KeyType::U);
    } else if (after + 1 == keys_.size()) {
        key = keyWithoutHandles({x, keys_[after - 1].pos.y}, nyx::KeyType::U);
    } else {
        nyx::AnimationKey& start = keys_[after - 1];
        nyx::AnimationKey& end = keys_[after + 1];
        switch (start.type) {
        case nyx::KeyType::L:
            key = keyOnLine(start, end, x);
            break;
        case nyx::KeyType::s:
        case nyx::KeyType::S:
            key = keyOnStep(start, end, x);
            break;
        default:
            key = splitBezier(start, end, x);
        }
    }
    return static_cast<int>(after);
}

bool AnimationCurve::load(nyxArray<float> const& data, char const* types) {
    if (!types) {
        return false;
    }
    std::string_view const letters = types;
    if (letters.size() < 2 || data.size() != floatsPerKey * letters.size()) {
        nyx_warning("Invalid animation curve, got %d keys but %d control points\n",
                    static_cast<int>(letters.size()), static_cast<int>(data.size() / 2));
        return false;
    }
    std::vector<nyx::AnimationKey> keys;
    keys.reserve(letters.size());
    float const* f = data.data();
    for (char const letter : letters) {
        keys.push_back({{f[2], f[3]}, {f[0], f[1]}, {f[4], f[5]}, keyTypeOf(letter)});
        f += floatsPerKey;
    }
    keys_ = std::move(keys);
    return true;
}

void AnimationCurve::store(nyxArray<float>& data, std::string& types) const {
    data.clear();
    data.reserve(floatsPerKey * keys_.size());
    types.clear();
    for (nyx::AnimationKey const& key : keys_) {
        data.insert(data.end(), {key.in.x, key.in.y, key.pos.x, key.pos.y, key.out.x, key.out.y});
        types.push_back(letterOf(key.type));
    }
}

bool AnimationCurve::operator==(AnimationCurve const& other) const noexcept {
    return keys_ == other.keys_;
}

bool AnimationCurve::hasKey(int index) const noexcept {
    return index >= 0 && static_cast<std::size_t>(index) < keys_.size();
}

} // namespace zsg
