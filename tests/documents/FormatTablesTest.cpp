#include "documents/documentText.h"
#include "support/sourceDir.h"
#include "zsg/materials/ZCMFSchema.h"
#include "zsg/values/AnimationCurve.h"
#include "zsg/values/FloatArray.h"
#include "zsg/values/Parameter.h"
#include "zsg/values/WeavePattern.h"
#include "zsg/values/loadIORFile.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTextStream>
#include <gtest/gtest.h>

using namespace documents;
using namespace zsg;

namespace {

class FormatTables : public testing::Test {
protected:
    QString const document = read("docs/formats.md");
    QTemporaryDir folder;
};

QStringList sorted(QStringList list) {
    list.removeDuplicates();
    list.sort();
    return list;
}

TEST_F(FormatTables, NameEveryKeyOfASceneFile) {
    QStringList wanted;
    QStringList found;
    for (char const* const file : {"SceneReader", "SurfaceSection"}) {
        QString const source = read(QString("platform/embedded/scenefile/%1.cpp").arg(file));
        for (QString const& keys : firstOf(R"(checkObject\(\{([^}]+)\})", source)) {
            wanted += firstOf("\"(\\w+)\"", keys);
        }
    }
    for (QStringList const& row : rowsOf(document, "Scene file")) {
        found += firstOf("\"(\\w+)\"", row[0].startsWith('"') ? row[0] : row[1]);
        if (row[0] == "\"nextIds\"" || row[0] == "\"settings\"") {
            found += firstOf("\"(\\w+)\"", row[2]);
        } else if (row[1] == "\"places\"") {
            found += firstOf("\"(\\w+)\"", row[3]);
        }
    }
    wanted.removeAll("id"); // which every record has
    EXPECT_EQ(sorted(found).join(' ').toStdString(), sorted(wanted).join(' ').toStdString());
}

TEST_F(FormatTables, NameWhatASchemaFileHoldsAndWhatIsWrongWithOne) {
    auto const table = rowsOf(document, "CMF schema");
    ZCMFSchema schema;
    schema.attributes.resize(1);
    QString saved;
    QTextStream out(&saved);
    schema.save(out);
    out.flush();
    QStringList keys;
    QStringList messages;
    for (QStringList const& row : table) {
        (row[0].startsWith('"') ? keys : messages) += row[0];
    }
    EXPECT_EQ(sorted(firstOf("\"(\\w+)\":", saved)), sorted(firstOf("\"(\\w+)\"", keys.join(' '))));
    messages.removeOne("Message");
    QStringList never = messages;
    for (QDirIterator file(QString::fromStdString(sourceDir()) + "/examples/cmf/bad", {"*.json"});
         file.hasNext();) {
        QFile in(file.next());
        ASSERT_TRUE(in.open(QIODevice::ReadOnly));
        QTextStream text(&in);
        QString const message = ZCMFSchema::load(text).message;
        bool listed = false;
        for (QString const& row : messages) {
            if (QRegularExpression(QRegularExpression::escape(row).replace("\\%1", ".+"))
                    .match(message)
                    .hasMatch()) {
                listed = true;
                never.removeOne(row);
            }
        }
        EXPECT_TRUE(listed) << in.fileName().toStdString() << ": " << message.toStdString();
    }
    // What stands before the first brace is skipped, so the root is an object or no JSON.
    EXPECT_EQ(never.join('|').toStdString(), "File does not contain a json object at the root");
}

TEST_F(FormatTables, NameTheMembersOfAWeave) {
    QStringList found;
    for (QStringList const& row : rowsOf(document, "Weave pattern (JSON text)")) {
        found += firstOf("`(\\w+)`", row[0]);
    }
    EXPECT_EQ(sorted(found), sorted(firstOf("\"(\\w+)\":", WeavePattern().toJson())));
}

TEST_F(FormatTables, SayWhatTheUnitsOfMeasuredDataAre) {
    QString const path = folder.filePath("units.nk");
    for (QStringList const& row : rowsOf(document, "Index of refraction (text)")) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write((row[0] + " 2 4 1\n1 1\n1 1\n").toUtf8());
        file.close();
        FloatArray samples;
        ASSERT_TRUE(loadIORFile(path.toStdString(), samples));
        QString const factor = firstOf(R"(([\d.e-]+) x)", row[2]).value(0, "1");
        float const x = factor.toFloat() * 2;
        EXPECT_FLOAT_EQ(samples[0], row[2].startsWith("1 /") ? 1 / x : x) << row[2].toStdString();
    }
}

TEST_F(FormatTables, SayWhichLetterEveryKindOfKeyHas) {
    int known = 0;
    for (QStringList const& row : rowsOf(document, "Animation curve exchange")) {
        QString const letter = firstOf("^`(\\w)`", row[1]).value(0);
        if (letter.isEmpty()) {
            continue; // the places of the six numbers
        }
        auto const type = static_cast<nyx::KeyType>(row[0] == "any other" ? 77 : row[0].toInt());
        AnimationCurve curve{{{}, {}, {}, type}, {{}, {}, {}, type}};
        nyxArray<float> numbers;
        std::string letters;
        curve.store(numbers, letters);
        EXPECT_EQ(letters, (letter + letter).toStdString());
        ASSERT_TRUE(curve.load(numbers, letters.c_str()));
        EXPECT_EQ(curve.keyAt(0).type, row[0] == "any other" ? nyx::KeyType::U : type);
        ++known;
    }
    EXPECT_EQ(known, 6);
}

TEST_F(FormatTables, SayWhoReadsWhichPieceOfAHint) {
    for (QStringList const& row : rowsOf(document, "Parameter hints")) {
        QString piece = firstOf("`(.+)`", row[0]).value(0);
        piece.replace("LOW", "1").replace("HIGH", "2").replace("STEP", "0.5");
        QByteArray const hint = piece.toUtf8();
        Parameter const parameter(
            Parameter::Builder("p", "P").setType(Type::Float).setHint(hint.constData()));
        float low = 0;
        float high = 0;
        EXPECT_EQ(parameter.limits(low, high), row[1].contains("builder")) << hint.constData();
        EXPECT_EQ(parameter.sliderRange(low, high), row[1].contains("sliderRange"));
        EXPECT_EQ(parameter.useKelvin(), row[1].contains("useKelvin"));
    }
}

} // namespace
