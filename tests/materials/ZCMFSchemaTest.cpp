#include "zsg/materials/ZCMFSchema.h"

#include "materials/CMFText.h"
#include "materials/cmfSchemaText.h"
#include "support/MarkingTranslator.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

using namespace zsg;

namespace {

/// A file with these attributes.
QByteArray file(QByteArray const& attributes) {
    return R"({"version": 1, "schemaName": "Seats", "attributes": [)" + attributes + "]}";
}

QByteArray attribute(QByteArray const& name, QByteArray const& kind = "0",
                     QByteArray const& visible = "true") {
    return "{\"name\": \"" + name + "\", \"kind\": " + kind + ", \"visible\": " + visible + "}";
}

/// "Seats: Name 0 shown, Seam 3 hidden".
std::string text(ZCMFSchema const& schema) {
    QString out = schema.schemaName;
    for (ZCMFAttribute const& a : schema.attributes) {
        out += &a == &schema.attributes[0] ? ": " : ", ";
        out += a.name + ' ' + QString::number(static_cast<int>(a.kind)) +
               (a.visible ? " shown" : " hidden") + a.extra;
    }
    return out.toStdString();
}

/// The same file made with QJsonDocument.
QByteArray savedByQt(ZCMFSchema const& schema) {
    QJsonArray attributes;
    for (ZCMFAttribute const& a : schema.attributes) {
        attributes.append(QJsonObject{
            {"name", a.name}, {"kind", static_cast<int>(a.kind)}, {"visible", a.visible}});
    }
    return QJsonDocument(QJsonObject{{"version", 1},
                                     {"schemaName", schema.schemaName},
                                     {"attributes", attributes}})
        .toJson(QJsonDocument::Indented);
}

constexpr char const* oldVersion = "File format version is too old or unknown";
constexpr char const* badAttributes = "Schema attributes are incorrectly formatted";
constexpr char const* noName = "Schema has no saved name";
constexpr char const* badDisplayName =
    "The display name of an attribute is absent or is not a string.";
constexpr char const* badKind = "The kind of an attribute is absent or is not encoded as a number.";
constexpr char const* badVisible = "The visibility of an attribute is absent or is not a boolean.";

TEST(ZCMFSchema, refusesWithTheFirstFaultAndKeepsNothing) {
    std::string const notJson = "File does not contain a valid json. Error: ";
    struct Row {
        QByteArray text;
        std::string message;
        int warnings = 0; ///< of what was left out before
    };
    std::vector<Row> const rows{
        {"", notJson + "illegal value"},
        {"[]", notJson + "illegal value"},
        {"{} x", notJson + "garbage at the end of the document"},
        {"{\"a\": " + QByteArray(2000, '['), notJson + "too deeply nested document"},
        {"{}", oldVersion},
        {R"({"version": 2})", oldVersion},
        {R"({"version": 1.5})", oldVersion},
        {R"({"version": "1", "attributes": 3})", oldVersion},
        {R"({"version": 1, "attributes": {"0": 1}})", badAttributes},
        {R"({"version": 1, "attributes": []})", badAttributes},
        {R"({"version": 1, "attributes": [3], "schemaName": null})", noName},
        {file("3"), badAttributes},
        {file(R"({"name": 3})"), badDisplayName},
        {file(R"({"name": "A"})"), badKind},
        {file(attribute("A", "\"0\"")), badKind},
        {file(attribute("A", "0", "1")), badVisible},
        {file(attribute("A") + "," + attribute("A")), "Two attributes have identical names: A."},
        {file(attribute("Vendor") + "," + attribute("Vend|or")),
         "Two attributes have identical names: Vendor."},
        // The name is looked at before the kind, and the kind before the visibility.
        {file(attribute("A") + "," + attribute("A", "9")),
         "Two attributes have identical names: A."},
        {file(attribute("A", "null", "null") + "," + "3"), badKind},
        {file(attribute("B", "9") + "," + attribute("A", "0", "null")), badVisible, 1},
    };
    for (Row const& row : rows) {
        ZCMFSchema::LoadInfo const info = load(row.text);
        EXPECT_EQ(info.status, 2) << row.text.toStdString();
        EXPECT_EQ(info.message.toStdString(), row.message) << row.text.toStdString();
        EXPECT_FALSE(info.schema) << row.text.toStdString();
        EXPECT_EQ(info.warnings.size(), row.warnings) << row.text.toStdString();
    }
}

TEST(ZCMFSchema, readsWhatIsGoodAndWarnsOfKindsThatItDoesNotKnow) {
    QByteArray const bom = "\xEF\xBB\xBF";
    QByteArray const a = file(attribute("A"));
    struct Row {
        QByteArray text;
        std::string kept;
        int warnings = 0;
    };
    std::vector<Row> const rows{
        {a, "Seats: A 0 shown"},
        {bom + a, "Seats: A 0 shown"},
        {"// made by hand\n" + a + "\n", "Seats: A 0 shown"},
        {QByteArray("\0\xFF\n", 3) + a, "Seats: A 0 shown"},
        {R"({"version": 1.0, "schemaName": "", "more": [1], "attributes": [)" +
             attribute("A", "3", "false") + "]}",
         ": A 3 hidden"},
        {file(R"({"name": "A|B|", "kind": 1e0, "visible": true, "extra": "x", "unit": 2})"),
         "Seats: AB 1 shown"},
        {file(attribute("a") + "," + attribute("A") + "," + attribute("") + "," +
              attribute("\\u00c4")),
         "Seats: a 0 shown, A 0 shown,  0 shown, \xC3\x84 0 shown"},
        {file(attribute("A", "-1") + "," + attribute("B", "7")), "Seats: A -1 shown, B 7 shown"},
        // What is no whole number, or too large for one, counts as 0.
        {file(attribute("A", "8.5") + "," + attribute("B", "4294967296") + "," +
              attribute("C", "1e300")),
         "Seats: A 0 shown, B 0 shown, C 0 shown"},
        {file(attribute("A", "8") + "," + attribute("A", "0") + "," +
              attribute("B", "2147483647", "null")),
         "Seats: A 0 shown", 2},
        {file(attribute("A", "9")), "Seats", 1},
        {file(attribute("\xC3(", "0")), "Seats: \xEF\xBF\xBD( 0 shown"},
    };
    for (Row const& row : rows) {
        ZCMFSchema::LoadInfo const info = load(row.text);
        EXPECT_EQ(info.status, 0) << row.text.toStdString();
        EXPECT_EQ(info.message, QString()) << row.text.toStdString();
        ASSERT_TRUE(info.schema) << row.text.toStdString();
        EXPECT_EQ(text(*info.schema), row.kept);
        QString const warning = QStringLiteral("Material Information Schema \"Seats\" includes "
                                               "properties with invalid types, properties will be "
                                               "hidden.");
        EXPECT_EQ(info.warnings, QStringList(row.warnings, warning)) << row.text.toStdString();
    }
}

TEST(ZCMFSchema, savesEverythingAsItIs) {
    ZCMFSchema const schema{QStringLiteral("S\u00e4tze"),
                            {{QStringLiteral("A|B"), true, ZCMFAttributeKind::Text, "gone"},
                             {"A|B", false, static_cast<ZCMFAttributeKind>(9)}}};
    EXPECT_EQ(saved(schema), savedByQt(schema));
    EXPECT_EQ(ZCMFSchema::version(), 1);
    EXPECT_EQ(load(saved({})).message, badAttributes);
    EXPECT_EQ(saved({}), savedByQt({}));
    for (int c = 1; c <= 0xFFFF; ++c) {
        ZCMFSchema const one{QString(QChar(c)), {}};
        ASSERT_EQ(saved(one), savedByQt(one)) << c;
    }
}

TEST(ZCMFSchema, comesBackFromAFileAsItWas) {
    std::mt19937 random(20);
    auto const number = [&random](int low, int high) {
        return std::uniform_int_distribution(low, high)(random);
    };
    auto const word = [&number] {
        QString made;
        for (int length = number(0, 12); length > 0; --length) {
            char32_t c = static_cast<char32_t>(number(0, 9) == 0 ? number(0x10000, 0x10FFFF)
                                                                 : number(0, 0xD7FF));
            made += c == U'|' ? QStringLiteral("\"\\") : QString::fromUcs4(&c, 1);
        }
        return made;
    };
    for (int round = 0; round < 200; ++round) {
        ZCMFSchema schema{word(), {}};
        for (int i = number(1, 20); i > 0; --i) {
            QString const name = word() + QString::number(i);
            auto const kind = static_cast<ZCMFAttributeKind>(
                number(0, 4) == 0 ? number(-2147483647, -1) : number(0, 7));
            schema.attributes.push_back({name, number(0, 1) == 0, kind, {}});
        }
        ZCMFSchema::LoadInfo const info = load(saved(schema));
        ASSERT_TRUE(info.schema) << info.message.toStdString();
        ASSERT_EQ(*info.schema, schema) << text(schema);
        ASSERT_EQ(saved(schema), savedByQt(schema));
        QByteArray const compact =
            QJsonDocument::fromJson(saved(schema)).toJson(QJsonDocument::Compact);
        ASSERT_EQ(*load(compact).schema, schema) << text(schema);
    }
}

TEST(ZCMFSchema, readsSavedTextTheFastWayWithoutADifference) {
    auto const outcome = [](QByteArray const& file) {
        ZCMFSchema::LoadInfo const info = load(file);
        return (info.schema ? text(*info.schema) : info.message.toStdString()) +
               info.warnings.join('\n').toStdString();
    };
    ZCMFSchema const schema{"S", {{"A"}, {"B", false, ZCMFAttributeKind::Other7}, {""}}};
    QByteArray const file = saved(schema);
    ZCMFSchema fast;
    EXPECT_TRUE(readCMFSchemaText(QString::fromUtf8(file), fast));
    EXPECT_EQ(fast, schema);
    // One character left out, repeated, or replaced; the blank keeps it from the fast way.
    for (qsizetype at = 0; at < file.size(); ++at) {
        for (char const c : std::string("\0A|\"\\\n8-}, 1", 12)) {
            for (QByteArray changed :
                 {QByteArray(file).replace(at, 1, &c, 1), QByteArray(file).insert(at, c),
                  QByteArray(file).remove(at, 1)}) {
                std::string const read = outcome(changed);
                qsizetype const brace = changed.indexOf('{');
                ASSERT_EQ(outcome(changed.insert(brace < 0 ? 0 : brace + 1, ' ')), read)
                    << changed.toStdString();
            }
        }
    }
}

TEST(ZCMFSchema, translatesWhatItSays) {
    MarkingTranslator const marking;
    EXPECT_EQ(load("{}").message, "QObject:File format version is too old or unknown");
    ZCMFSchema::LoadInfo const info = load(file(attribute("A", "9")));
    EXPECT_TRUE(info.warnings.value(0).startsWith("QObject:Material Information Schema \"Seats\""));
}

TEST(ZCMFSchema, findsNamesAndTellsKindsApart) {
    ZCMFSchema const schema{"S", {{"Seam"}, {"seam"}, {"Seam"}}};
    EXPECT_TRUE(schema.hasAttributeWithName("Seam", -1));
    EXPECT_TRUE(schema.hasAttributeWithName("Seam", 0));
    EXPECT_TRUE(schema.hasAttributeWithName("seam", 0));
    EXPECT_FALSE(schema.hasAttributeWithName("seam", 1));
    EXPECT_FALSE(schema.hasAttributeWithName("SEAM", -1));
    EXPECT_TRUE(ZCMFAttribute().visible && ZCMFAttribute().kind == ZCMFAttributeKind::Text);

    std::string colors;
    std::string exportable;
    for (int kind = -1; kind < 10; ++kind) {
        auto const k = static_cast<ZCMFAttributeKind>(kind);
        colors += ZCMFAttribute::isColorValue(k) ? std::to_string(kind) + ' ' : "";
        exportable += ZCMFAttribute::isExportable(k) ? std::to_string(kind) + ' ' : "";
    }
    EXPECT_EQ(colors, "3 4 5 6 ");
    EXPECT_EQ(exportable, "-1 0 8 9 ");
}

} // namespace
