#include "workbench/materials/schemaEdits.h"

#include "host/Arguments.h"
#include "host/CMFLint.h"
#include "host/InputFile.h"
#include "host/OutputFile.h"
#include "workbench/materials/ReplaceSchema.h"
#include "workbench/scene/Scene.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/materials/ICMFManager.h"

#include "zcore/ZUndoStack.h"

#include <QByteArray>
#include <QIODevice>
#include <QObject>
#include <QTextStream>

#include <memory>
#include <utility>

namespace workbench {

SchemaFile readSchemaFile(QString const& path) {
    SchemaFile file;
    try {
        auto const bytes = QByteArray::fromStdString(
            app::readInputFile(path.toStdString(), app::largestCMFSchema));
        QTextStream in(bytes);
        zsg::ZCMFSchema::LoadInfo const info = zsg::ZCMFSchema::load(in);
        if (info.schema) {
            file.schema = *info.schema;
        }
        file.message = info.message;
        for (app::CMFFinding const& finding : app::lintCMF(bytes)) {
            QString const place = QString::fromStdString(finding.place);
            file.findings +=
                QObject::tr("line %1: %2")
                    .arg(QString::number(finding.line),
                         place.isEmpty() ? QString::fromStdString(finding.text)
                                         : place + ": " + QString::fromStdString(finding.text));
        }
    } catch (app::CommandError const& error) {
        file.message = QString::fromUtf8(error.what());
    }
    return file;
}

QString writeSchemaFile(QString const& path, zsg::ZCMFSchema const& schema) {
    QByteArray bytes;
    QTextStream out(&bytes, QIODevice::WriteOnly);
    schema.save(out);
    out.flush();
    try {
        app::writeOutputFile(path.toStdString(),
                             {bytes.constData(), static_cast<std::size_t>(bytes.size())});
    } catch (app::CommandError const& error) {
        return QString::fromUtf8(error.what());
    }
    return {};
}

void replaceSchema(Scene& scene, zsg::ZCMFSchema schema) {
    scene.endDrags();
    if (scene.root() && scene.root()->cmfManager()->schema() != schema) {
        scene.undoStack().push(
            std::make_unique<ReplaceSchema>(*scene.root()->cmfManager(), std::move(schema))
                .release());
        scene.flush();
    }
}

std::optional<QString> whyNoAttributeName(zsg::ZCMFSchema const& schema, QString const& name,
                                          int exceptIndex) {
    if (name.isEmpty()) {
        return QObject::tr("An attribute needs a name.");
    }
    if (name.contains('|')) {
        return QObject::tr("A name cannot hold vertical bars: schema files lose them.");
    }
    if (schema.hasAttributeWithName(name, exceptIndex)) {
        return QObject::tr("There is an attribute %1 already.").arg(name);
    }
    return std::nullopt;
}

} // namespace workbench
