#pragma once

#include "zsg/materials/ZCMFSchema.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace workbench {

class Scene;

/// A schema file as a person is told of it.
struct SchemaFile {
    std::optional<zsg::ZCMFSchema> schema;
    QString message;      ///< why there is no schema, in the words of the loader
    QStringList findings; ///< everything wrong or odd, with lines
};

[[nodiscard]] SchemaFile readSchemaFile(QString const& path);
/// The message when it could not be written, else empty.
[[nodiscard]] QString writeSchemaFile(QString const& path, zsg::ZCMFSchema const& schema);

/// Puts a schema in force as one entry of the history; none when it is in force already.
void replaceSchema(Scene& scene, zsg::ZCMFSchema schema);

/// Why an attribute cannot have a name; nothing when it can. `exceptIndex` is the attribute itself,
/// or -1.
[[nodiscard]] std::optional<QString> whyNoAttributeName(zsg::ZCMFSchema const& schema,
                                                        QString const& name, int exceptIndex);

} // namespace workbench
