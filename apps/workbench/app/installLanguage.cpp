#include "workbench/app/installLanguage.h"

#include "host/installTranslation.h"
#include "workbench/app/CommandLine.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace workbench {

std::string installLanguage(CommandLine const& line) {
    bool const isAsked = !line.language.isEmpty();
    if (!isAsked && (line.isBatch() || !line.script.isEmpty())) {
        static_cast<void>(
            app::installTranslation("en", "workbench")); // "1 colour", where it is there
        return {};
    }
    QLocale const locale = isAsked ? QLocale(line.language) : QLocale::system();
    std::string const language =
        isAsked ? line.language.toStdString() : locale.name().section('_', 0, 0).toStdString();
    for (char const* const catalogue : {"workbench", "zscenegraph"}) {
        std::string const why = app::installTranslation(language, catalogue);
        if (!why.empty()) {
            return isAsked ? why : std::string(); // the system's language is a wish
        }
    }
    QLocale::setDefault(locale); // numbers as well
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(locale, "qtbase", "_",
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        translator->setParent(QCoreApplication::instance());
        QCoreApplication::installTranslator(translator.release());
    }
    return {};
}

} // namespace workbench
