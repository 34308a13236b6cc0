#include "host/installTranslation.h"

#include <QCoreApplication>
#include <QDir>
#include <QTranslator>

#include <algorithm>
#include <memory>

namespace app {

namespace {

QString folder() {
    return QCoreApplication::applicationDirPath() +
           QStringLiteral("/../share/zscenegraph/translations");
}

/// So that no path can be made of it.
bool isLanguage(QString const& text) {
    return std::ranges::all_of(text, [](QChar c) { return c.isLetter() || c == u'_'; });
}

} // namespace

std::string installTranslation(std::string const& language, std::string const& catalogue) {
    auto const wanted = QString::fromStdString(language);
    QString const prefix = QString::fromStdString(catalogue) + u'_';
    bool const isEnglish = wanted == u"en" || wanted.startsWith(u"en_");
    auto translator = std::make_unique<QTranslator>();
    if (isLanguage(wanted) && translator->load(prefix + wanted, folder())) {
        translator->setParent(QCoreApplication::instance());
        QCoreApplication::installTranslator(translator.release());
        return {};
    }
    if (isEnglish) {
        return {}; // the texts themselves; a catalogue has their plurals only
    }
    QStringList known{QStringLiteral("en")};
    for (QString const& file : QDir(folder()).entryList({prefix + u'*'}, QDir::Files)) {
        if (QString const there = file.chopped(3).mid(prefix.size()); there != u"en") {
            known.prepend(there);
        }
    }
    QString text = QStringLiteral("--lang %1: there is no such translation; there are: %2")
                       .arg(wanted, known.join(u", "));
    if (known.size() == 1) {
        text += u" (lrelease was missing when this program was built)";
    }
    return text.toStdString();
}

} // namespace app
