#include "zsg/materials/ZCMFSchema.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QJsonValue>
#include <QObject>
#include <QSet>
#include <QTextStream>

#include <utility>

namespace zsg {

namespace {

constexpr int kindCount = 8;

ZCMFSchema::LoadInfo failure(QString message) {
    ZCMFSchema::LoadInfo info;
    info.status = ZCMFSchema::LoadInfo::Failed;
    info.message = std::move(message);
    return info;
}

QString badAttributes() { return QObject::tr("Schema attributes are incorrectly formatted"); }

} // namespace

int ZCMFSchema::version() noexcept { return 1; }

ZCMFSchema::LoadInfo ZCMFSchema::load(QTextStream& in) {
    QByteArray text = in.readAll().toUtf8();
    if (!text.startsWith('{')) {
        qsizetype const start = text.indexOf('{');
        text.remove(0, start < 0 ? text.size() : start);
    }
    QJsonParseError error;
    QJsonDocument const document = QJsonDocument::fromJson(text, &error);
    text.clear();
    if (document.isNull()) {
        return failure(
            QObject::tr("File does not contain a valid json. Error: %1").arg(error.errorString()));
    }
    if (!document.isObject()) {
        return failure(QObject::tr("File does not contain a json object at the root"));
    }
    QJsonObject const root = document.object();
    if (root.value(QLatin1String("version")).toInt() != version()) {
        return failure(QObject::tr("File format version is too old or unknown"));
    }
    QJsonArray const elements = root.value(QLatin1String("attributes")).toArray();
    if (elements.isEmpty()) {
        return failure(badAttributes());
    }
    QJsonValue const schemaName = root.value(QLatin1String("schemaName"));
    if (!schemaName.isString()) {
        return failure(QObject::tr("Schema has no saved name"));
    }

    LoadInfo info;
    info.schema = std::make_unique<ZCMFSchema>();
    info.schema->schemaName = schemaName.toString();
    info.schema->attributes.reserve(static_cast<std::size_t>(elements.size()));
    QSet<QString> names;
    names.reserve(elements.size());
    for (QJsonValue const element : elements) {
        if (!element.isObject()) {
            return failure(badAttributes());
        }
        QJsonObject const object = element.toObject();
        QJsonValue const nameValue = object.value(QLatin1String("name"));
        if (!nameValue.isString()) {
            return failure(
                QObject::tr("The display name of an attribute is absent or is not a string."));
        }
        QString name = nameValue.toString().remove(QLatin1Char('|'));
        if (names.contains(name)) {
            return failure(QObject::tr("Two attributes have identical names: %1.").arg(name));
        }
        QJsonValue const kind = object.value(QLatin1String("kind"));
        if (!kind.isDouble()) {
            return failure(
                QObject::tr("The kind of an attribute is absent or is not encoded as a number."));
        }
        int const number = kind.toInt();
        if (number >= kindCount) {
            // Its name stays free, and whether it is visible is not looked at.
            info.warnings += QObject::tr("Material Information Schema \"%1\" includes properties "
                                         "with invalid types, properties will be hidden.")
                                 .arg(info.schema->schemaName);
            continue;
        }
        QJsonValue const visible = object.value(QLatin1String("visible"));
        if (!visible.isBool()) {
            return failure(
                QObject::tr("The visibility of an attribute is absent or is not a boolean."));
        }
        names.insert(name);
        info.schema->attributes.push_back(
            {std::move(name), visible.toBool(), static_cast<ZCMFAttributeKind>(number), {}});
    }
    return info;
}

void ZCMFSchema::save(QTextStream& out) const {
    QJsonArray elements;
    for (ZCMFAttribute const& attribute : attributes) {
        elements.append(QJsonObject{
            {QLatin1String("name"), attribute.name},
            {QLatin1String("kind"), static_cast<int>(attribute.kind)},
            {QLatin1String("visible"), attribute.visible},
        });
    }
    QJsonObject const root{
        {QLatin1String("version"), version()},
        {QLatin1String("schemaName"), schemaName},
        {QLatin1String("attributes"), elements},
    };
    out.setEncoding(QStringConverter::Utf8);
    out << QString::fromUtf8(QJsonDocument(root).toJson(QJsonDocument::Indented));
}

bool ZCMFSchema::hasAttributeWithName(QString const& name, int exceptIndex) const {
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        if (static_cast<long long>(i) != exceptIndex && attributes[i].name == name) {
            return true;
        }
    }
    return false;
}

} // namespace zsg
