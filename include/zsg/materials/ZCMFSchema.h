#pragma once

#include "zsg/Export.h"
#include "zsg/materials/ZCMFAttribute.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <vector>

class QTextStream;

namespace zsg {

/// Which CMF attributes a material has, in the order in which they are shown. Schemas are exchanged
/// as small JSON files, which docs/formats.md describes. A plain value.
struct ZSG_EXPORT ZCMFSchema {
    QString schemaName;
    std::vector<ZCMFAttribute> attributes;

    struct LoadInfo;

    /// The only version of the file format, 1.
    [[nodiscard]] static int version() noexcept;

    /// Reads `in` to its end. Whatever stands before the first "{" is skipped. The first fault that
    /// is found ends the reading and is the only one reported; an attribute of a kind that this
    /// version does not know is left out with a warning. Vertical bars are taken out of names.
    /// Numbers are read by QJsonValue::toInt(), so one that is not whole or does not fit counts
    /// as 0. Whether the device behind `in` could be read is the caller's to check. Any thread.
    [[nodiscard]] static LoadInfo load(QTextStream& in);

    /// Writes the schema as an indented JSON document in UTF-8, to which `out` is switched.
    /// Everything is written as it is: load() refuses a schema without attributes or with two of
    /// one name, and skips kinds of 8 and above. `extra` is not written. Whether it arrived is the
    /// caller's to check: flush `out`, then look at its status and at its device.
    void save(QTextStream& out) const;

    /// Whether an attribute has exactly this name, upper and lower case told apart. The attribute
    /// at `exceptIndex` does not count; -1 leaves none out.
    [[nodiscard]] bool hasAttributeWithName(QString const& name, int exceptIndex) const;

    friend bool operator==(ZCMFSchema const&, ZCMFSchema const&) = default;
};

/// What came of loading a schema.
struct ZCMFSchema::LoadInfo {
    static constexpr std::int32_t Loaded = 0;
    static constexpr std::int32_t Failed = 2;

    std::unique_ptr<ZCMFSchema> schema; ///< empty on failure
    std::int32_t status = Loaded;       ///< Loaded or Failed
    QString message;                    ///< translated; empty on success
    /// Translated, one per attribute that was left out; of a file that fails behind them, too.
    QStringList warnings;
};

} // namespace zsg
