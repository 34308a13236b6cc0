#include "materials/cmfSchemaText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>
#include <utility>

namespace zsg {

namespace {

/// The pieces of the text between its values.
constexpr QLatin1String opening("{\n    \"attributes\": [\n");
constexpr QLatin1String beforeKind("        {\n            \"kind\": ");
constexpr QLatin1String beforeName(",\n            \"name\": ");
constexpr QLatin1String beforeVisible(",\n            \"visible\": ");
constexpr QLatin1String afterVisible("\n        }");
constexpr QLatin1String betweenAttributes(",\n");
constexpr QLatin1String afterAttributes("\n");
constexpr QLatin1String beforeSchemaName("    ],\n    \"schemaName\": ");
constexpr QLatin1String beforeVersion(",\n    \"version\": ");
constexpr QLatin1String closing("\n}\n");

/// Whether a JSON string holds a character as it is.
bool isPlain(QChar c) {
    return c >= QLatin1Char(' ') && c != QLatin1Char('"') && c != QLatin1Char('\\') &&
           c != QChar(0x7F) && !c.isSurrogate();
}

void appendQuoted(QString& out, QString const& text) {
    if (std::all_of(text.begin(), text.end(), isPlain)) {
        out += QLatin1Char('"');
        out += text;
        out += QLatin1Char('"');
        return;
    }
    QByteArray const array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    out += QString::fromUtf8(array.mid(1, array.size() - 2)); // without the brackets
}

/// Takes a text apart from its beginning. A piece that is not there leaves it unchanged.
class Pieces {
public:
    explicit Pieces(QStringView text) : rest_(text) {}

    [[nodiscard]] bool atEnd() const { return rest_.isEmpty(); }

    bool take(QLatin1String piece) {
        bool const isThere = rest_.startsWith(piece);
        rest_ = rest_.mid(isThere ? piece.size() : 0);
        return isThere;
    }

    bool takeName(QString& name) {
        qsizetype const end = rest_.indexOf(QLatin1Char('"'), 1);
        if (!rest_.startsWith(QLatin1Char('"')) || end < 0) {
            return false;
        }
        QStringView const inside = rest_.mid(1, end - 1);
        if (!std::all_of(inside.begin(), inside.end(), isPlain)) {
            return false;
        }
        name = inside.toString();
        rest_ = rest_.mid(end + 1);
        return true;
    }

    bool takeKind(ZCMFAttributeKind& kind) {
        int const digit = rest_.isEmpty() ? -1 : rest_.front().unicode() - u'0';
        if (digit < 0 || digit > 7) {
            return false;
        }
        kind = static_cast<ZCMFAttributeKind>(digit);
        rest_ = rest_.mid(1);
        return true;
    }

    bool takeBool(bool& value) {
        value = take(QLatin1String("true"));
        return value || take(QLatin1String("false"));
    }

    bool takeAttribute(ZCMFAttribute& attribute) {
        return take(beforeKind) && takeKind(attribute.kind) && take(beforeName) &&
               takeName(attribute.name) && take(beforeVisible) && takeBool(attribute.visible) &&
               take(afterVisible);
    }

private:
    QStringView rest_;
};

} // namespace

QString cmfSchemaText(ZCMFSchema const& schema) {
    QString text = opening;
    for (ZCMFAttribute const& attribute : schema.attributes) {
        text += beforeKind;
        text += QString::number(static_cast<int>(attribute.kind));
        text += beforeName;
        appendQuoted(text, attribute.name);
        text += beforeVisible;
        text += attribute.visible ? QLatin1String("true") : QLatin1String("false");
        text += afterVisible;
        text += &attribute == &schema.attributes.back() ? afterAttributes : betweenAttributes;
    }
    text += beforeSchemaName;
    appendQuoted(text, schema.schemaName);
    text += beforeVersion;
    text += QString::number(ZCMFSchema::version());
    text += closing;
    return text;
}

bool readCMFSchemaText(QStringView text, ZCMFSchema& schema) {
    Pieces pieces(text);
    if (!pieces.take(opening)) {
        return false;
    }
    // A string keeps its characters where they are when it is moved.
    QSet<QStringView> names;
    do {
        ZCMFAttribute attribute;
        qsizetype const others = names.size();
        if (!pieces.takeAttribute(attribute) || attribute.name.contains(QLatin1Char('|'))) {
            return false;
        }
        names.insert(attribute.name);
        if (names.size() == others) {
            return false;
        }
        schema.attributes.push_back(std::move(attribute));
    } while (pieces.take(betweenAttributes));
    return pieces.take(afterAttributes) && pieces.take(beforeSchemaName) &&
           pieces.takeName(schema.schemaName) && pieces.take(beforeVersion) &&
           pieces.take(QLatin1String("1")) && pieces.take(closing) && pieces.atEnd();
}

} // namespace zsg
