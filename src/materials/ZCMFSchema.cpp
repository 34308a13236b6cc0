#include "zsg/materials/ZCMFSchema.h"

#include "materials/cmfSchemaText.h"

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

/// What was warned of so far is still said.
ZCMFSchema::LoadInfo failure(ZCMFSchema::LoadInfo info, QString message) {
    info.schema.reset();
    info.status = ZCMFSchema::LoadInfo::Failed;
    info.message = std::move(message);
    return info;
}

QString badAttributes() { return QObject::tr("Schema attributes are incorrectly formatted"); }

} // namespace

int ZCMFSchema::version() noexcept { return 1; }

ZCMFSchema::LoadInfo ZCMFSchema::load(QTextStream& in) {
    QString file = in.readAll();
    LoadInfo info;
    info.schema = std::make_unique<ZCMFSchema>();
    if (readCMFSchemaText(file, *info.schema)) {
        return info;
    }
    info.schema->attributes.clear();
    QByteArray text = file.toUtf8();
    file.clear();
    if (!text.startsWith('{')) {
        qsizetype const start = text.indexOf('{');
        text.remove(0, start < 0 ? text.size() : start);
    }
    QJsonParseError error;
    QJsonDocument const document = QJsonDocument::fromJson(text, &error);
    text.clear();
    if (document.isNull()) {
        return failure(
            std::move(info),
            QObject::tr("File does not contain a valid json. Error: %1").arg(error.errorString()));
    }
    if (!document.isObject()) {
        return failure(std::move(info),
                       QObject::tr("File does not contain a json object at the root"));
    }
    QJsonObject const root = document.object();
    if (root.value(QLatin1String("version")).toInt() != version()) {
        return failure(std::move(info), QObject::tr("File format version is too old or unknown"));
    }
    QJsonArray const elements = root.value(QLatin1String("attributes")).toArray();
    if (elements.isEmpty()) {
        return failure(std::move(info), badAttributes());
    }
    QJsonValue const schemaName = root.value(QLatin1String("schemaName"));
    if (!schemaName.isString()) {
        return failure(std::move(info), QObject::tr("Schema has no saved name"));
    }

    info.schema->schemaName = schemaName.toString();
    std::vector<ZCMFAttribute>& accepted = info.schema->attributes;
    accepted.reserve(static_cast<std::size_t>(elements.size()));
    // Of the accepted names. One look-up per attribute: at 100,000 each is a miss of the cache. A
    // string keeps its characters where they are when it is moved.
    QSet<QStringView> names;
    names.reserve(elements.size());
    for (auto const element : elements) {
        if (!element.isObject()) {
            return failure(std::move(info), badAttributes());
        }
        QJsonObject const object = element.toObject();
        auto const nameMember = object.constFind(QLatin1String("name"));
        if (nameMember == object.constEnd() || !nameMember->isString()) {
            return failure(
                std::move(info),
                QObject::tr("The display name of an attribute is absent or is not a string."));
        }
        QString name = nameMember->toString();
        name.remove(QLatin1Char('|'));
        qsizetype const others = names.size();
        names.insert(name);
        if (names.size() == others) {
            return failure(std::move(info),
                           QObject::tr("Two attributes have identical names: %1.").arg(name));
        }
        auto const kind = object.constFind(QLatin1String("kind"));
        if (kind == object.constEnd() || !kind->isDouble()) {
            return failure(
                std::move(info),
                QObject::tr("The kind of an attribute is absent or is not encoded as a number."));
        }
        int const number = kind->toInt();
        if (number >= kindCount) {
            // Its name is free again, and whether it is visible is not looked at.
            names.remove(name);
            info.warnings += QObject::tr("Material Information Schema \"%1\" includes properties "
                                         "with invalid types, properties will be hidden.")
                                 .arg(info.schema->schemaName);
            continue;
        }
        auto const visible = object.constFind(QLatin1String("visible"));
        if (visible == object.constEnd() || !visible->isBool()) {
            return failure(
                std::move(info),
                QObject::tr("The visibility of an attribute is absent or is not a boolean."));
        }
        accepted.push_back(
            {std::move(name), visible->toBool(), static_cast<ZCMFAttributeKind>(number), {}});
    }
    return info;
}

void ZCMFSchema::save(QTextStream& out) const {
    out.setEncoding(QStringConverter::Utf8);
    out << cmfSchemaText(*this);
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
