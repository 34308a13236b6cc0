#include "host/Command.h"
#include "host/NamedValues.h"
#include "host/pictures/PictureFile.h"
#include "host/pictures/curvePlot.h"
#include "host/valueResult.h"
#include "zsg/values/AnimationCurve.h"
#include "zsg/values/keyLetters.h"

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

/// The exchange format: letters, then in.x in.y pos.x pos.y out.x out.y of each key.
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
    giveResult(host, [&] { return valueResult(curve); });
    for (std::size_t i = 0; i < types.size(); ++i) {
        float const* const f = data.data() + 6 * i;
        host.out() << "  " << types[i] << " in " << f[0] << ' ' << f[1] << " pos " << f[2] << ' '
                   << f[3] << " out " << f[4] << ' ' << f[5] << '\n';
    }
}

void save(Host& host, Arguments& arguments) {
    AnimationCurve const& curve = take(host, arguments);
    PictureFile const file = PictureFile::take(host, arguments);
    arguments.done();
    file.write(curvePlot(curve));
}

constexpr Command table[] = {
    {"curve list", "", "list the names", "curve list", listNamed<AnimationCurve>},
    {"curve new", "NAME", "make a curve without keys", "curve new ease", make},
    {"curve set", "CURVE LETTERS NUMBER...", "read the exchange format",
     "curve set ease UU 0 0 0 0 0.3 0 0.7 1 1 1 1 1", load},
    {"curve add", "CURVE X", "insert a key, keeping the curve's shape", "curve add ease 0.5",
     insert},
    {"curve pos", "CURVE KEY X Y", "move a key", "curve pos ease 1 0.5 0.6",
     setPoint<&AnimationCurve::setPos>},
    {"curve in", "CURVE KEY X Y", "move its incoming handle", "curve in ease 1 0.4 0.6",
     setPoint<&AnimationCurve::setIn>},
    {"curve out", "CURVE KEY X Y", "move its outgoing handle", "curve out ease 1 0.6 0.6",
     setPoint<&AnimationCurve::setOut>},
    {"curve weight-in", "CURVE KEY LENGTH", "set the length of its incoming handle",
     "curve weight-in ease 1 0.2", setWeight<&AnimationCurve::setWeightIn>},
    {"curve weight-out", "CURVE KEY LENGTH", "set the length of its outgoing handle",
     "curve weight-out ease 1 0.2", setWeight<&AnimationCurve::setWeightOut>},
    {"curve type", "CURVE KEY U|T|s|S|L", "set how it runs to the next key", "curve type ease 0 L",
     setType},
    {"curve remove", "CURVE KEY", "take a key out", "curve remove ease 1", remove},
    {"curve show", "CURVE", "list the keys", "curve show ease", show},
    {"curve save", "CURVE PATH [dark]", "draw it (.svg, .png)", "curve save ease ease.svg", save},
    {"curve delete", "CURVE", "forget it", "curve delete ease", deleteNamed<AnimationCurve>},
};

} // namespace

Family curveFamily() { return {"curves", table}; }

} // namespace app
