#include "workbench/values/valueText.h"

#include "host/sRGB.h"
#include "workbench/values/parameterValue.h"
#include "zsg/values/keyLetters.h"

#include "nyxrender/nyxArray.h"

#include <QStringList>

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

namespace workbench {

using zsg::Type;

namespace {

using Value = std::unique_ptr<zsg::Variant>;

constexpr QLatin1String noKeys("none"); // the text of a curve without keys

template <class Number>
void append(QString& text, Number number) {
    char digits[64];
    auto const end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    if (!text.isEmpty() && !text.endsWith('\n')) {
        text += ' ';
    }
    text += QLatin1String(digits, end - digits);
}

template <class... Numbers>
QString numbersText(Numbers... numbers) {
    QString text;
    (append(text, numbers), ...);
    return text;
}

QString colorText(nyxColor_rgba const& c) {
    auto const hex = app::hexColorWithAlpha(c);
    return app::colorFromHex(hex) == c ? QString::fromStdString(hex)
                                       : numbersText(c.r, c.g, c.b, c.a);
}

QString curveText(zsg::AnimationCurve const& curve) {
    nyxArray<float> numbers;
    std::string letters;
    curve.store(numbers, letters);
    QString text = letters.empty() ? QString(noKeys) : QString::fromStdString(letters);
    for (float const number : numbers) {
        append(text, number);
    }
    return text;
}

QString gradientText(zsg::ColorGradient const& gradient) {
    QString text = gradient.blend() ? "blend on" : "blend off";
    for (zsg::ColorGradientStop const& stop : gradient.getStops()) {
        nyxColor_rgba const& c = stop.getColor();
        text += '\n' + numbersText(stop.getLocation(), c.r, c.g, c.b, c.a, stop.getSlopeLeft(),
                                   stop.getSlopeRight());
    }
    return text;
}

/// The numbers of a text, separated by blanks, commas or semicolons; nothing when it has others.
std::optional<std::vector<double>> numbersOf(QString const& text) {
    std::vector<double> numbers;
    QString plain = text;
    plain.replace(',', ' ').replace(';', ' ');
    for (QString const& word : plain.simplified().split(' ', Qt::SkipEmptyParts)) {
        bool ok = false;
        numbers.push_back(word.toDouble(&ok));
        if (!ok) {
            return std::nullopt;
        }
    }
    return numbers;
}

std::optional<nyxColor_rgba> colorOf(QString const& text, nyxColor_rgba const& present) {
    if (text.startsWith('#')) {
        auto color = app::colorFromHex(text.toLower().toStdString());
        if (color && text.size() < 8) {
            color->a = present.a;
        }
        return color;
    }
    auto const n = numbersOf(text);
    if (!n || (n->size() != 3 && n->size() != 4)) {
        return std::nullopt;
    }
    return nyxColor_rgba{float((*n)[0]), float((*n)[1]), float((*n)[2]),
                         n->size() == 4 ? float((*n)[3]) : present.a};
}

template <class Color>
Value colorValue(QString const& text, zsg::Variant const& present) {
    Color color = *zsg::tryGet<Color>(present);
    auto const rgba = colorOf(text, color.rgba());
    if (!rgba) {
        return nullptr;
    }
    color.setColor(ZColor(*rgba), ZColorExt::NameOp::Keep);
    return makeValue(color);
}

Value choiceValue(QString const& text, zsg::Variant const& present) {
    auto choice = *zsg::tryGet<zsg::Enumerable>(present);
    bool isId = false;
    int const wanted = text.toInt(&isId);
    for (auto const& [id, label] : choice) {
        if ((isId && id == wanted) || label == text) {
            choice.setSelection(id);
            return makeValue(choice);
        }
    }
    return nullptr;
}

Value weaveValue(QString const& text) {
    zsg::WeavePattern weave;
    try {
        return weave.setFromJson(text) ? makeValue(weave) : nullptr;
    } catch (std::exception const&) {
        return nullptr; // no JSON at all
    }
}

/// Also of fewer keys than the renderer takes.
Value curveValue(QString const& text) {
    auto const space = text.indexOf(' ');
    QString const letters = text == noKeys ? QString() : text.left(space);
    auto const numbers = numbersOf(text == noKeys ? QString() : text.mid(space + 1));
    auto const count = static_cast<std::size_t>(letters.size());
    if ((space < 1 && text != noKeys) || !numbers || numbers->size() != 6 * count) {
        return nullptr;
    }
    std::vector<nyx::AnimationKey> keys;
    for (std::size_t i = 0; i < count; ++i) {
        auto const at = [&](std::size_t place) {
            return static_cast<float>((*numbers)[6 * i + place]);
        };
        keys.push_back({{at(2), at(3)},
                        {at(0), at(1)},
                        {at(4), at(5)},
                        zsg::keyTypeOf(letters[static_cast<qsizetype>(i)].toLatin1())});
    }
    return makeValue(zsg::AnimationCurve(std::move(keys)));
}

Value gradientValue(QString const& text) {
    QStringList lines = text.split('\n', Qt::SkipEmptyParts);
    if (lines.isEmpty() || !lines.front().startsWith("blend ")) {
        return nullptr;
    }
    zsg::ColorGradient gradient;
    gradient.setBlend(lines.takeFirst().trimmed() == "blend on");
    for (QString const& line : lines) {
        auto const n = numbersOf(line);
        if (!n || n->size() != 7) {
            return nullptr;
        }
        auto const at = [&n](std::size_t i) { return static_cast<float>((*n)[i]); };
        gradient.addColorStop({at(1), at(2), at(3), at(4)}, at(0), at(5), at(6));
    }
    return makeValue(gradient);
}

bool fitsInt(double number) {
    return number == std::floor(number) && number >= std::numeric_limits<int>::min() &&
           number <= std::numeric_limits<int>::max();
}

/// Of the types that are numbers and nothing else; null for a wrong number of them.
Value numbersValue(Type type, std::vector<double> const& n) {
    auto const at = [&n](std::size_t i) { return static_cast<float>(n[i]); };
    switch (type) {
    case Type::Integer:
        return n.size() == 1 && fitsInt(n[0]) ? makeValue(static_cast<int>(n[0])) : nullptr;
    case Type::IntegerList: {
        QList<int> list;
        for (double const number : n) {
            if (!fitsInt(number)) {
                return nullptr;
            }
            list += static_cast<int>(number);
        }
        return makeValue(list);
    }
    case Type::Float:
        return n.size() == 1 ? makeValue(at(0)) : nullptr;
    case Type::Float2:
        return n.size() == 2 ? makeValue(nyxVector2f{at(0), at(1)}) : nullptr;
    case Type::Float3:
        return n.size() == 3 ? makeValue(nyxVectorf{at(0), at(1), at(2)}) : nullptr;
    case Type::Double:
        return n.size() == 1 ? makeValue(n[0]) : nullptr;
    case Type::Double3:
        return n.size() == 3 ? makeValue(nyxVector{n[0], n[1], n[2]}) : nullptr;
    case Type::Matrix: {
        nyxMatrix matrix{};
        if (n.size() != std::size(matrix.m)) {
            return nullptr;
        }
        std::copy(n.begin(), n.end(), std::begin(matrix.m));
        return makeValue(matrix);
    }
    case Type::FloatArray: {
        zsg::FloatArray list;
        for (double const number : n) {
            list += static_cast<float>(number);
        }
        return makeValue(list);
    }
    case Type::AxaltaColor:
        return n.size() == 9
                   ? makeValue(zsg::AxaltaColor({at(0), at(1), at(2)}, {at(3), at(4), at(5)},
                                                {at(6), at(7), at(8)}))
                   : nullptr;
    default:
        return nullptr;
    }
}

template <class List>
QString listText(List const& list) {
    QString text;
    for (auto const number : list) {
        append(text, number);
    }
    return text;
}

} // namespace

QString valueText(zsg::Variant const& value) {
    switch (value.type()) {
    case Type::Boolean:
        return *zsg::tryGet<bool>(value) ? "on" : "off";
    case Type::Integer:
        return numbersText(*zsg::tryGet<int>(value));
    case Type::IntegerList:
        return listText(*zsg::tryGet<QList<int>>(value));
    case Type::Float:
        return numbersText(*zsg::tryGet<float>(value));
    case Type::Float2: {
        auto const v = *zsg::tryGet<nyxVector2f>(value);
        return numbersText(v.x, v.y);
    }
    case Type::Float3: {
        auto const v = *zsg::tryGet<nyxVectorf>(value);
        return numbersText(v.x, v.y, v.z);
    }
    case Type::Double:
        return numbersText(*zsg::tryGet<double>(value));
    case Type::Double3: {
        auto const v = *zsg::tryGet<nyxVector>(value);
        return numbersText(v.x, v.y, v.z);
    }
    case Type::String:
        return *zsg::tryGet<QString>(value);
    case Type::StringList:
        return zsg::tryGet<QList<QString>>(value)->join('\n');
    case Type::FilePath:
        return zsg::tryGet<zsg::FilePath>(value)->toString();
    case Type::Matrix: {
        auto const matrix = *zsg::tryGet<nyxMatrix>(value);
        return listText(std::vector<double>(std::begin(matrix.m), std::end(matrix.m)));
    }
    case Type::Color:
        return colorText(zsg::tryGet<ZColorExt>(value)->rgba());
    case Type::ColorAlpha:
        return colorText(zsg::tryGet<ZColorExtAlpha>(value)->rgba());
    case Type::FloatArray:
        return listText(*zsg::tryGet<zsg::FloatArray>(value));
    case Type::ColorGradient:
        return gradientText(*zsg::tryGet<zsg::ColorGradient>(value));
    case Type::AnimationCurve:
        return curveText(*zsg::tryGet<zsg::AnimationCurve>(value));
    case Type::AxaltaColor: {
        auto const paint = *zsg::tryGet<zsg::AxaltaColor>(value);
        nyxColor const a = paint.getA();
        nyxColor const b = paint.getB();
        nyxColor const c = paint.getC();
        return numbersText(a.r, a.g, a.b, b.r, b.g, b.b, c.r, c.g, c.b);
    }
    case Type::WeavePattern:
        return zsg::tryGet<zsg::WeavePattern>(value)->toJson();
    case Type::Enumerable:
        return QString::number(zsg::tryGet<zsg::Enumerable>(value)->getSelection());
        // No default: the compiler asks for the text of a new type.
#define WORKBENCH_BARE(member, number, T) case Type::member:
        ZSG_BARE_TYPES(WORKBENCH_BARE)
#undef WORKBENCH_BARE
        break;
    }
    return {};
}

std::unique_ptr<zsg::Variant> valueFromText(QString const& text, zsg::Variant const& present) {
    QString const bare = text.trimmed();
    switch (present.type()) {
    case Type::Boolean:
        return bare == "on" || bare == "off" ? makeValue(bare == "on") : nullptr;
    case Type::String:
        return makeValue(text);
    case Type::StringList:
        return makeValue(QList<QString>(text.isEmpty() ? QStringList() : text.split('\n')));
    case Type::FilePath:
        return makeValue(zsg::FilePath(text));
    case Type::Color:
        return colorValue<ZColorExt>(bare, present);
    case Type::ColorAlpha:
        return colorValue<ZColorExtAlpha>(bare, present);
    case Type::Enumerable:
        return choiceValue(bare, present);
    case Type::WeavePattern:
        return weaveValue(text);
    case Type::ColorGradient:
        return gradientValue(bare);
    case Type::AnimationCurve:
        return curveValue(bare);
    default: {
        auto const numbers = numbersOf(bare);
        return numbers ? numbersValue(present.type(), *numbers) : nullptr;
    }
    }
}

} // namespace workbench
