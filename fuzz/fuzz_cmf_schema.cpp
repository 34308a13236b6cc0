#include "zsg/materials/ZCMFSchema.h"

#include <QByteArray>
#include <QIODevice>
#include <QJsonDocument>
#include <QTextStream>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

namespace {

zsg::ZCMFSchema::LoadInfo load(QByteArray const& file) {
    QTextStream in(file);
    return zsg::ZCMFSchema::load(in);
}

QByteArray saved(zsg::ZCMFSchema const& schema) {
    QByteArray bytes;
    QTextStream out(&bytes, QIODevice::WriteOnly);
    schema.save(out);
    out.flush();
    return bytes;
}

} // namespace

/// What was loaded loads as itself when it is saved, and another layout of that file means the
/// same.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    auto const first = load({reinterpret_cast<char const*>(data), static_cast<qsizetype>(size)});
    if ((first.status == 0) != (first.schema != nullptr) ||
        (first.status == 0) != first.message.isEmpty()) {
        std::abort();
    }
    if (!first.schema || first.schema->attributes.empty()) {
        return 0; // all attributes may have been left out
    }
    QByteArray const file = saved(*first.schema);
    auto const second = load(file);
    // Half a surrogate pair, which only an escape can bring in, is written as U+FFFD.
    bool const isText = !file.contains("\xEF\xBF\xBD") && !file.contains("\\u");
    if (isText &&
        (!second.schema || *second.schema != *first.schema || !second.warnings.isEmpty())) {
        std::abort();
    }
    auto const third = load(QJsonDocument::fromJson(file).toJson(QJsonDocument::Compact));
    if (second.message != third.message || (second.schema && *second.schema != *third.schema)) {
        std::abort();
    }
    return 0;
}
