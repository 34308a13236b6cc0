#include "Rows.h"
#include "zsg/materials/ZCMFSchema.h"

#include <QIODevice>
#include <QJsonDocument>
#include <QTextStream>

#include <string>

namespace {

using bench::contestant;
using bench::ours;
using bench::target;
using zsg::ZCMFSchema;

ZCMFSchema schemaOf(int attributes) {
    ZCMFSchema schema{QStringLiteral("Interior Trim"), {}};
    for (int i = 0; i < attributes; ++i) {
        schema.attributes.push_back({QStringLiteral("Attribute number %1").arg(i), i % 3 != 0,
                                     static_cast<ZCMFAttributeKind>(i % 8)});
    }
    return schema;
}

QByteArray saved(ZCMFSchema const& schema) {
    QByteArray bytes;
    QTextStream out(&bytes, QIODevice::WriteOnly);
    schema.save(out);
    out.flush();
    return bytes;
}

bool const registered = [] {
    char const* const peer = "QJsonDocument parses it";
    for (int const count : {10, 1000, 100'000}) {
        std::string const size = std::to_string(count) + " attributes";
        QByteArray const text = saved(schemaOf(count));
        auto const parse = [text](benchmark::State& state) {
            for (auto _ : state) {
                QJsonDocument document = QJsonDocument::fromJson(text);
                benchmark::DoNotOptimize(document);
            }
        };
        auto const load = [](QByteArray const& file) {
            return [file](benchmark::State& state) {
                for (auto _ : state) {
                    QTextStream in(file);
                    ZCMFSchema::LoadInfo info = ZCMFSchema::load(in);
                    benchmark::DoNotOptimize(info.schema);
                }
            };
        };
        contestant("12a", "load, " + size, ours, load(text));
        contestant("12a", "load, " + size, peer, parse);
        target({"12a", "load, " + size, peer, 1.5});

        contestant("12b", "save, " + size, ours, [count](benchmark::State& state) {
            ZCMFSchema const schema = schemaOf(count);
            for (auto _ : state) {
                QByteArray bytes = saved(schema);
                benchmark::DoNotOptimize(bytes);
            }
        });
        contestant("12b", "save, " + size, peer, parse);
        target({"12b", "save, " + size, peer, 1.5});

        // Another layout of the same file.
        QByteArray const compact = QJsonDocument::fromJson(text).toJson(QJsonDocument::Compact);
        contestant("12c", "load compact, " + size, ours, load(compact));
        contestant("12c", "load compact, " + size, peer, [compact](benchmark::State& state) {
            for (auto _ : state) {
                QJsonDocument document = QJsonDocument::fromJson(compact);
                benchmark::DoNotOptimize(document);
            }
        });
        target({"12c", "load compact, " + size, peer, 1.5});
    }
    return true;
}();

} // namespace
