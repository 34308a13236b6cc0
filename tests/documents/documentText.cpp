#include "documents/documentText.h"

#include "support/sourceDir.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace documents {

QString read(QString const& path) {
    QFile file(QString::fromStdString(sourceDir()) + '/' + path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

QString sources(QStringList const& folders, QStringList const& names) {
    QString text;
    for (QString const& folder : folders) {
        QDirIterator file(QString::fromStdString(sourceDir()) + '/' + folder, names, QDir::Files,
                          QDirIterator::Subdirectories);
        while (file.hasNext()) {
            text += read(file.next().mid(static_cast<qsizetype>(sourceDir().size()) + 1));
        }
    }
    return text;
}

QString headers(QStringList const& folders) { return sources(folders, {"*.h"}); }

std::vector<QStringList> all(QString const& pattern, QString const& text) {
    std::vector<QStringList> found;
    for (auto match = QRegularExpression(pattern).globalMatch(text); match.hasNext();) {
        found.push_back(match.next().capturedTexts().mid(1));
    }
    return found;
}

std::vector<QStringList> rows(QString const& document) {
    std::vector<QStringList> found;
    for (QString const& line : document.split('\n')) {
        if (line.startsWith("| ")) {
            QStringList cells;
            for (QString const& cell : line.split('|').mid(1)) {
                cells += cell.trimmed();
            }
            found.push_back(cells);
        }
    }
    return found;
}

std::vector<QStringList> rowsOf(QString const& document, char const* part) {
    auto found = rows(document.section(QString("\n## %1\n").arg(part), 1).section("\n## ", 0, 0));
    EXPECT_GT(found.size(), 1u) << part;
    return {found.begin() + 1, found.end()};
}

QStringList firstOf(QString const& pattern, QString const& text) {
    QStringList found;
    for (QStringList const& groups : all(pattern, text)) {
        found += groups[0];
    }
    return found;
}

} // namespace documents
