#include "workbench/values/loadValue.h"

#include "host/Arguments.h"
#include "host/IORLint.h"
#include "host/InputFile.h"
#include "host/printedBy.h"
#include "workbench/values/valueText.h"
#include "zsg/values/loadIORFile.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <iostream>

namespace workbench {

using Kind = ValueStore::Kind;

namespace {

LoadedValue loadMetal(std::string const& path, std::string const& suffix) {
    LoadedValue loaded{Kind::Metal, nullptr, {}};
    std::string const text = app::readInputFile(path, app::largestMeasurement);
    zsg::FloatArray triples;
    bool isRead = false;
    std::string const said =
        app::printedBy([&] { isRead = zsg::loadIORFile(path, triples); }, std::cerr);
    QStringList messages;
    if (isRead) {
        loaded.value = makeValue(triples);
    } else {
        messages += QCoreApplication::translate("loadValue", "%1 holds no samples.")
                        .arg(QString::fromStdString(path));
    }
    messages += QString::fromStdString(said).trimmed();
    for (std::string const& finding : app::lintIOR(text, suffix)) {
        messages += QString::fromStdString(finding);
    }
    messages.removeAll(QString());
    loaded.messages = messages.join('\n');
    return loaded;
}

LoadedValue loadText(std::string const& path, bool isWeave) {
    QString const text = QString::fromStdString(app::readInputFile(path, app::largestWeave));
    std::pair<Kind, zsg::Type> const kinds[] = {
        {Kind::Gradient, zsg::Type::ColorGradient},
        {Kind::Curve, zsg::Type::AnimationCurve},
    };
    LoadedValue loaded;
    if (isWeave) {
        loaded.value = valueFromText(text, *makeValue(zsg::WeavePattern()));
    } else {
        for (auto const& [kind, type] : kinds) {
            std::unique_ptr<zsg::Variant> const present(zsg::makeVariant(type));
            if (auto value = valueFromText(text, *present)) {
                return {kind, std::move(value), {}};
            }
        }
    }
    if (!loaded.value) {
        loaded.messages = (isWeave ? QCoreApplication::translate("loadValue", "%1 holds no weave.")
                                   : QCoreApplication::translate("loadValue", "%1 holds no value."))
                              .arg(QString::fromStdString(path));
    }
    return loaded;
}

} // namespace

LoadedValue loadValue(QString const& path) {
    std::string const suffix = QFileInfo(path).suffix().toLower().toStdString();
    try {
        if (suffix == "nk" || suffix == "ior" || suffix == "csv") {
            return loadMetal(path.toStdString(), suffix);
        }
        return loadText(path.toStdString(), suffix == "json");
    } catch (app::CommandError const& error) {
        return {Kind::Weave, nullptr, QString::fromStdString(error.what())};
    }
}

} // namespace workbench
