#pragma once

#include "zsg/Export.h"

#include "nyxrender/AnimationKey.h"
#include "nyxrender/nyxArray.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace zsg {

/// The keys of a curve along the x axis, in ascending order of their x, each with an incoming and
/// an outgoing handle in absolute coordinates. A value.
///
/// Only the edits below keep the order: constructors and load() take keys as they come.
class ZSG_EXPORT AnimationCurve {
public:
    AnimationCurve() = default;
    explicit AnimationCurve(std::vector<nyx::AnimationKey> keys);
    AnimationCurve(std::initializer_list<nyx::AnimationKey> keys);
    /// Both arrays hold `count` elements. The handles lie on the points.
    AnimationCurve(nyxVector2f const* points, nyx::KeyType const* types, int count);

    /// Replaces all keys.
    void setCurve(AnimationCurve const& other);

    [[nodiscard]] int keyCount() const noexcept;
    /// The index is not checked. The reference lives until the next edit.
    [[nodiscard]] nyx::AnimationKey const& keyAt(int index) const;

    /// Replaces a key if that leaves the x order around it: its position between those of its
    /// neighbours, and each handle on its own side of its position, where there is a neighbour on
    /// that side. Handles may reach past a neighbour. Returns false, changing nothing, for a key
    /// that does not qualify, that equals the present one, or an index that does not exist.
    bool setKey(int index, nyx::AnimationKey key);

    /// setKey() with one point replaced.
    bool setPos(int index, nyxVector2f const& pos);
    bool setIn(int index, nyxVector2f const& in);
    bool setOut(int index, nyxVector2f const& out);

    /// setKey() with one handle at the distance `weight` from the position, in the direction in
    /// which it lies. Weights below 0 and NaN count as 0; infinity is refused. A handle that lies
    /// on the position is given the direction (-1, 0), the outgoing one too.
    bool setWeightIn(int index, float weight);
    bool setWeightOut(int index, float weight);

    /// Returns false for an index that does not exist.
    bool removeKey(int index);

    /// Adds a key at `x`, behind those that are there already, and returns its index. Between two
    /// keys it lies on the curve, whose shape is kept: the handles that face it are moved. Before
    /// the first key and behind the last it takes their y.
    int insertKey(float x);

    /// Reads six floats per key (in, position, out) and one letter per key (keyLetters), other
    /// letters being U. Returns false and leaves the curve as it was when `types` is null or, with
    /// a message on the renderer's warning channel, when there are fewer than two keys or the
    /// counts do not match.
    bool load(nyxArray<float> const& data, char const* types);
    /// Writes what load() reads; a type without a letter becomes '0'.
    void store(nyxArray<float>& data, std::string& types) const;

    /// Exact, all six numbers and the type of every key.
    bool operator==(AnimationCurve const& other) const noexcept;

private:
    [[nodiscard]] bool hasKey(int index) const noexcept;

    std::vector<nyx::AnimationKey> keys_;
};

} // namespace zsg
