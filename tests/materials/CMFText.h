#pragma once

#include "zsg/materials/ZCMFSchema.h"

#include <QByteArray>
#include <QIODevice>
#include <QTextStream>

inline zsg::ZCMFSchema::LoadInfo load(QByteArray const& file) {
    QTextStream in(file);
    return zsg::ZCMFSchema::load(in);
}

/// The file of a schema.
inline QByteArray saved(zsg::ZCMFSchema const& schema) {
    QByteArray bytes;
    QTextStream out(&bytes, QIODevice::WriteOnly);
    out.setEncoding(QStringConverter::Latin1); // which saving has to change
    schema.save(out);
    out.flush();
    return bytes;
}
