#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// Reading the documents and the headers of the project, to hold one against the other.
namespace documents {

/// A file, by its path in the project.
QString read(QString const& path);

/// All files of such names below some folders of the project, one after the other.
QString sources(QStringList const& folders, QStringList const& names);

/// All headers below some folders of the project, one after the other.
QString headers(QStringList const& folders);

/// The groups of each place where a regular expression fits.
std::vector<QStringList> all(QString const& pattern, QString const& text);

/// The first of them of each place.
QStringList firstOf(QString const& pattern, QString const& text);

/// The cells of the rows of all tables of a document.
std::vector<QStringList> rows(QString const& document);

/// Those of the table of one part, by its title, without the head.
std::vector<QStringList> rowsOf(QString const& document, char const* part);

} // namespace documents
