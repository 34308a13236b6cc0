#include "host/Command.h"
#include "host/NamedValues.h"
#include "host/Picture.h"

#include "zsg/values/AnimationCurve.h"
#include "zsg/values/keyLetters.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <ostream>

namespace app {

namespace {

using zsg::AnimationCurve;

AnimationCurve& take(Host& host, Arguments& arguments) {
    return takeNamed<AnimationCurve>(host, arguments, "a curve");
}

int takeIndex(AnimationCurve const& curve, Arguments& arguments) {
    int const index = arguments.integer("a key");
    if (index < 0 || index >= curve.keyCount()) {
        throw CommandError("the curve has no key " + std::to_string(index));
    }
    return index;
}

void accepted(bool ok) {
    if (!ok) {
        throw CommandError("the curve does not take that, or it is so already");
    }
}

void make(Host& host, Arguments& arguments) {
    std::string const name = arguments.word("a name");
    arguments.done();
    keepNamed(host, name, AnimationCurve());
}

void insert(Host& host, Arguments& arguments) {
    AnimationCurve& curve = take(host, arguments);
    auto const x = static_cast<float>(arguments.real("a place on the x axis"));
    arguments.done();
    int const index = curve.insertKey(x);
    host.out() << "  key " << index << '\n';
}

template <bool (AnimationCurve::*set)(int, nyxVector2f const&)>
void setPoint(Host& host, Arguments& arguments) {
    AnimationCurve& curve = take(host, arguments);
    int const index = takeIndex(curve, arguments);
    nyxVector2f point;
    point.x = static_cast<float>(arguments.real("x"));
    point.y = static_cast<float>(arguments.real("y"));
    arguments.done();
    accepted((curve.*set)(index, point));
}

template <bool (AnimationCurve::*set)(int, float)>
void setWeight(Host& host, Arguments& arguments) {
    AnimationCurve& curve = take(host, arguments);
    int const index = takeIndex(curve, arguments);
    auto const length = static_cast<float>(arguments.real("a length"));
    arguments.done();
    accepted((curve.*set)(index, length));
}

void setType(Host& host, Arguments& arguments) {
    AnimationCurve& curve = take(host, arguments);
    int const index = takeIndex(curve, arguments);
    nyx::AnimationKey key = curve.keyAt(index);
    std::string const letter = arguments.oneOf({"U", "T", "s", "S", "L"});
    arguments.done();
    key.type = zsg::keyTypeOf(letter.front());
    accepted(curve.setKey(index, key));
}

void remove(Host& host, Arguments& arguments) {
    AnimationCurve& curve = take(host, arguments);
    int const index = takeIndex(curve, arguments);
    arguments.done();
    curve.removeKey(index);
}

// The exchange format: letters, then in.x in.y pos.x pos.y out.x out.y of each key.
void load(Host& host, Arguments& arguments) {
    AnimationCurve& curve = take(host, arguments);
    std::string const types = arguments.word("the letters of the keys");
    nyxArray<float> data;
    while (!arguments.empty()) {
        data.push_back(static_cast<float>(arguments.real("a number")));
    }
    if (!curve.load(data, types.c_str())) {
        throw CommandError("expected two or more letters and six numbers for each");
    }
}

void show(Host& host, Arguments& arguments) {
    AnimationCurve const& curve = take(host, arguments);
    arguments.done();
    nyxArray<float> data;
    std::string types;
    curve.store(data, types);
    for (std::size_t i = 0; i < types.size(); ++i) {
        float const* const f = data.data() + 6 * i;
        host.out() << "  " << types[i] << " in " << f[0] << ' ' << f[1] << " pos " << f[2] << ' '
                   << f[3] << " out " << f[4] << ' ' << f[5] << '\n';
    }
}

/// Fits all points of a curve into a picture, y upwards.
class Frame {
public:
    explicit Frame(AnimationCurve const& curve) {
        for (int i = 0; i < curve.keyCount(); ++i) {
            nyx::AnimationKey const& key = curve.keyAt(i);
            for (nyxVector2f const& p : {key.pos, key.in, key.out}) {
                low_ = {std::min(low_.x, p.x), std::min(low_.y, p.y)};
                high_ = {std::max(high_.x, p.x), std::max(high_.y, p.y)};
            }
        }
    }
    [[nodiscard]] Picture::Point at(double x, double y) const {
        auto const part = [](double v, float low, float high) {
            double const range = static_cast<double>(high) - static_cast<double>(low);
            return range > 0 ? (v - static_cast<double>(low)) / range : 0.5;
        };
        return {16 + 480 * part(x, low_.x, high_.x), 304 - 288 * part(y, low_.y, high_.y)};
    }
    [[nodiscard]] Picture::Point at(nyxVector2f const& p) const {
        return at(static_cast<double>(p.x), static_cast<double>(p.y));
    }

private:
    static constexpr float most = std::numeric_limits<float>::max();
    nyxVector2f low_{most, most};
    nyxVector2f high_{-most, -most};
};

std::vector<Picture::Point> segment(Frame const& frame, nyx::AnimationKey const& a,
                                    nyx::AnimationKey const& b) {
    auto const d = [](float v) { return static_cast<double>(v); };
    switch (a.type) {
    case nyx::KeyType::L:
        return {frame.at(a.pos), frame.at(b.pos)};
    case nyx::KeyType::s:
        return {frame.at(a.pos), frame.at(d(b.pos.x), d(a.pos.y)), frame.at(b.pos)};
    case nyx::KeyType::S:
        return {frame.at(a.pos), frame.at(d(a.pos.x), d(b.pos.y)), frame.at(b.pos)};
    default:
        break;
    }
    std::vector<Picture::Point> points;
    constexpr int steps = 48;
    for (int i = 0; i <= steps; ++i) {
        double const t = static_cast<double>(i) / steps;
        double const u = 1 - t;
        auto const mix = [&](float p, float q, float r, float s) {
            return u * u * u * d(p) + 3 * u * u * t * d(q) + 3 * u * t * t * d(r) +
                   t * t * t * d(s);
        };
        points.push_back(frame.at(mix(a.pos.x, a.out.x, b.in.x, b.pos.x),
                                  mix(a.pos.y, a.out.y, b.in.y, b.pos.y)));
    }
    return points;
}

void save(Host& host, Arguments& arguments) {
    AnimationCurve const& curve = take(host, arguments);
    std::string const path = arguments.word("a path");
    arguments.done();
    if (curve.keyCount() == 0) {
        throw CommandError("the curve has no keys");
    }
    nyxArray<float> data;
    std::string types;
    curve.store(data, types);
    if (!std::ranges::all_of(data, [](float f) { return std::isfinite(f); })) {
        throw CommandError("a point of the curve cannot be drawn");
    }
    Frame const frame(curve);
    Picture picture(512, 320);
    for (int i = 0; i < curve.keyCount(); ++i) {
        nyx::AnimationKey const& key = curve.keyAt(i);
        picture.line({frame.at(key.in), frame.at(key.pos), frame.at(key.out)}, ink::grey);
        picture.circle(frame.at(key.in), 3, ink::red);
        picture.circle(frame.at(key.out), 3, ink::green);
    }
    for (int i = 0; i + 1 < curve.keyCount(); ++i) {
        picture.line(segment(frame, curve.keyAt(i), curve.keyAt(i + 1)), ink::blue, 2);
    }
    for (int i = 0; i < curve.keyCount(); ++i) {
        picture.circle(frame.at(curve.keyAt(i).pos), 4, ink::black);
    }
    picture.save(path);
}

constexpr Command table[] = {
    {"curve make", "NAME", "make a curve without keys", make},
    {"curve insert", "CURVE X", "insert a key, keeping the curve's shape", insert},
    {"curve pos", "CURVE KEY X Y", "move a key", setPoint<&AnimationCurve::setPos>},
    {"curve in", "CURVE KEY X Y", "move its incoming handle", setPoint<&AnimationCurve::setIn>},
    {"curve out", "CURVE KEY X Y", "move its outgoing handle", setPoint<&AnimationCurve::setOut>},
    {"curve weight-in", "CURVE KEY LENGTH", "set the length of its incoming handle",
     setWeight<&AnimationCurve::setWeightIn>},
    {"curve weight-out", "CURVE KEY LENGTH", "set the length of its outgoing handle",
     setWeight<&AnimationCurve::setWeightOut>},
    {"curve type", "CURVE KEY U|T|s|S|L", "set how it runs to the next key", setType},
    {"curve remove", "CURVE KEY", "take a key out", remove},
    {"curve load", "CURVE LETTERS NUMBER...", "read the exchange format", load},
    {"curve show", "CURVE", "list the keys", show},
    {"curve save", "CURVE PATH", "draw it (.svg, .png)", save},
};

} // namespace

Family curveFamily() { return {"curves", table}; }

} // namespace app
