#include "workbench/app/KeptValues.h"

#include "host/Arguments.h"
#include "host/OutputFile.h"
#include "workbench/values/valueText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <utility>

namespace workbench {

using Key = ValueStore::Key;

namespace {

struct Kept {
    char const* name;
    zsg::Type type;
};

/// In the order of ValueStore::Kind.
constexpr std::array<Kept, 4> kinds{{
    {"weave", zsg::Type::WeavePattern},
    {"gradient", zsg::Type::ColorGradient},
    {"curve", zsg::Type::AnimationCurve},
    {"metal", zsg::Type::FloatArray},
}};

using Values = std::map<Key, QString>; // as text

QByteArray written(Values const& values) {
    QJsonArray list;
    for (auto const& [key, text] : values) {
        list += QJsonObject{{"kind", kinds[static_cast<std::size_t>(key.kind)].name},
                            {"name", QString::fromStdString(key.name)},
                            {"value", text}};
    }
    return QJsonDocument(QJsonObject{{"version", 1}, {"values", list}}).toJson();
}

/// Nothing for a text that is no such file.
std::optional<Values> read(QByteArray const& bytes) {
    QJsonObject const root = QJsonDocument::fromJson(bytes).object();
    if (root.value("version").toInt() != 1 || !root.value("values").isArray()) {
        return std::nullopt;
    }
    Values values;
    for (QJsonValue const entry : root.value("values").toArray()) {
        QString const kind = entry["kind"].toString();
        for (std::size_t i = 0; i < kinds.size(); ++i) {
            if (kind == kinds[i].name) {
                values[{static_cast<ValueStore::Kind>(i), entry["name"].toString().toStdString()}] =
                    entry["value"].toString();
            }
        }
    }
    return values;
}

QByteArray contents(QString const& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

KeptValues::KeptValues(ValueStore& store, QString path) : store_(store), path_(std::move(path)) {}

std::string KeptValues::load() {
    if (!QFileInfo::exists(path_)) {
        return {};
    }
    auto const values = read(contents(path_));
    if (!values) {
        QString aside = path_ + ".bad";
        for (int number = 2; QFile::exists(aside); ++number) {
            aside = path_ + ".bad" + QString::number(number);
        }
        isInTheWay_ = !QFile::rename(path_, aside);
        return QCoreApplication::translate(
                   "KeptValues", "The values of the last time could not be read; they are in %1.")
            .arg(isInTheWay_ ? path_ : aside)
            .toStdString();
    }
    for (auto const& [key, text] : *values) {
        std::unique_ptr<zsg::Variant> const present(
            zsg::makeVariant(kinds[static_cast<std::size_t>(key.kind)].type));
        if (auto const value = valueFromText(text, *present)) {
            store_.put(key, *value);
            known_.insert(key);
        }
    }
    written_ = written(*values);
    return {};
}

std::string KeptValues::save() {
    Values values;
    for (Key const& key : store_.keys()) {
        if (key.kind != ValueStore::Kind::Other) {
            values[key] = valueText(*valueOf(store_.item(key).parameter));
        }
    }
    if (isInTheWay_ || (values.empty() && known_.empty())) {
        return {};
    }
    std::set<Key> own;
    for (auto const& entry : values) {
        own.insert(entry.first);
    }
    for (auto const& [key, text] : read(contents(path_)).value_or(Values())) {
        if (!known_.contains(key)) { // another program's
            values.try_emplace(key, text);
        }
    }
    QByteArray const bytes = written(values);
    if (bytes == written_) {
        return {};
    }
    try {
        QDir().mkpath(QFileInfo(path_).path());
        app::writeOutputFile(path_.toStdString(), {bytes.constData(), std::size_t(bytes.size())});
    } catch (app::CommandError const& error) {
        return error.what();
    }
    known_ = std::move(own);
    written_ = bytes;
    return {};
}

} // namespace workbench
