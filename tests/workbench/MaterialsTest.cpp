#include "support/sourceDir.h"
#include "workbench/WindowScene.h"
#include "workbench/colors/colorMime.h"
#include "workbench/materials/BoundColors.h"
#include "workbench/materials/CMFForm.h"
#include "workbench/materials/ImageField.h"
#include "workbench/materials/MaterialPanel.h"
#include "workbench/materials/MetadataTree.h"
#include "workbench/materials/schemaEdits.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/materials/ICMFManager.h"

#include "nyxrender/nyxRT_api.h"
#include "nyxrender/nyx_material.h"

#include <QAction>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTest>
#include <QTreeWidget>
#include <QUrl>

#include <stdexcept>

using namespace workbench;

namespace {

class MaterialsTest : public WindowScene {
protected:
    [[nodiscard]] MaterialPanel& panel() {
        return static_cast<MaterialPanel&>(*window.panel("material"));
    }
    /// Those of the form's present page.
    template <class Field>
    [[nodiscard]] QList<Field*> fields() {
        settle();
        auto* const form = panel().findChild<CMFForm*>();
        QList<Field*> found = form->findChildren<Field*>();
        found.removeIf([form](Field* field) { return !field->isVisibleTo(form); });
        return found;
    }
    [[nodiscard]] QLineEdit& field(QString const& label) {
        for (QLineEdit* const line : fields<QLineEdit>()) {
            if (line->accessibleName() == label) {
                return *line;
            }
        }
        throw std::runtime_error("there is no field " + label.toStdString());
    }
    /// "Label=value" of every field.
    [[nodiscard]] std::string form() {
        std::string text;
        for (QLineEdit const* const line : fields<QLineEdit>()) {
            text += line->accessibleName().toStdString() + '=' + line->text().toStdString() + ';';
        }
        return text;
    }
    void type(QString const& label, QString const& text, Qt::Key end = Qt::Key_Return) {
        QLineEdit& line = field(label);
        line.setFocus();
        line.selectAll();
        QTest::keyClicks(&line, text);
        QTest::keyClick(&line, end);
        settle();
    }
    [[nodiscard]] std::string colors() {
        settle();
        std::string text;
        auto const& tree = find<QTreeWidget>("boundColours");
        for (int i = 0; i < tree.topLevelItemCount(); ++i) {
            text += tree.topLevelItem(i)->text(0).toStdString() + '=' +
                    tree.topLevelItem(i)->text(1).toStdString() + ';';
        }
        return text;
    }
    [[nodiscard]] QString example(char const* name) {
        return QString::fromStdString(sourceDir() + "/examples/cmf/" + name);
    }
};

} // namespace

TEST_F(MaterialsTest, AFormBySchemaWhoseEditsCanBeUndone) {
    window.showPanel("material");
    ASSERT_TRUE(panel().select("Piping"));
    run("material set Piping Shelf \"B 7\"");
    run("material apply Piping");
    std::string const first = "Name=Piping;Color=Dark slate;Finish=Matt;Material=Polyester cord;"
                              "Vendor=Norrland Textiles;Reference Image=;Notes=;Shelf=B 7;";
    EXPECT_EQ(form(), first);
    int const entries = stack().count();
    type("Finish", "Matt"); // the same again, and only looked at
    EXPECT_EQ(stack().count(), entries);
    field("Vendor").selectAll();
    QTest::keyClick(&field("Vendor"), Qt::Key_Delete);
    QTest::keyClick(&field("Vendor"), Qt::Key_Return);
    EXPECT_EQ(stack().count(), entries + 1) << "emptied: the value is taken out";
    EXPECT_EQ(field("Vendor").text(), "");
    type("Shelf", QString(1, ' '));
    QTest::keyClick(&field("Shelf"), Qt::Key_Backspace);
    QTest::keyClick(&field("Shelf"), Qt::Key_Return); // the key goes, and its field with it
    EXPECT_EQ(form().find("Shelf"), std::string::npos);
    EXPECT_EQ(stack().text(stack().count() - 1).toStdString(), "Describe Material (Piping)");

    // What is typed and not confirmed: left it counts, and undo takes it back first.
    QTest::keyClicks(&field("Notes"), "soft");
    scene().undo();
    EXPECT_EQ(field("Notes").text(), "");
    stack().goTo(1);
    EXPECT_EQ(form(), first);

    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(example("good/furniture.json"))});
    ImageField& image = *fields<ImageField>().front();
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&image, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&image, &drop);
    settle();
    EXPECT_EQ(field("Reference Image").text(), example("good/furniture.json"));
    EXPECT_TRUE(field("Reference Image").toolTip().contains("no picture"));

    ASSERT_TRUE(panel().select("Armrest Leather"));
    auto& tree = find<MetadataTree>("metadata");
    settle();
    ASSERT_EQ(tree.topLevelItemCount(), 2);
    tree.topLevelItem(1)->setText(1, "1.5");
    settle();
    tree.topLevelItem(0)->setText(1, "77"); // was a text and stays one
    settle();
    tree.add("list");
    settle();
    tree.topLevelItem(1)->setText(1, "[1, {\"a/b\": null}]");
    settle();
    EXPECT_NE(run("material metadata \"Armrest Leather\"")
                  .find(R"({"article":"77","list":"[1, {\"a/b\": null}]","thickness_mm":1.5})"),
              std::string::npos);
    tree.topLevelItem(2)->setText(1, R"([1, {"a/b": null}])");
    settle();
    tree.topLevelItem(2)->child(1)->child(0)->setText(1, "x");
    settle();
    tree.setCurrentItem(tree.topLevelItem(2)->child(0));
    tree.removeCurrent();
    EXPECT_NE(run("material metadata \"Armrest Leather\" thickness_mm").find(R"([{"a/b":"x"}])"),
              std::string::npos);
}

TEST_F(MaterialsTest, UndoBringsMetadataBackAsItWasSpelt) {
    scratch = true; // such texts come from other programs
    auto& seat = *nyx_material_from_id(scene().root()->rtApi()->scene(), nyx::MaterialId(1));
    ASSERT_TRUE(window.panel("material")->select("Seat Fabric"));
    for (char const* const text : {R"({ "b": 1.0, "a": 2 })", "article NT-2040"}) {
        nyx_material_set_metadata(seat, text);
        std::string const before = dump();
        find<MetadataTree>("metadata").add("note");
        EXPECT_NE(dump(), before);
        stack().undo();
        EXPECT_EQ(dump(), before);
    }
}

TEST_F(MaterialsTest, BoundColoursFollowAndLeadToTheirColour) {
    scratch = true; // a multi-colour is a new record
    window.panel("material")->select("Armrest Leather");
    EXPECT_EQ(colors(), "diffuse_color=Tan;specular_tint=AntiqueWhite;");
    window.panel("colours")->select("Tan");
    find<QAction>("toggleMulti").trigger();
    EXPECT_EQ(colors(), "diffuse_color=Tan 1;specular_tint=AntiqueWhite;");
    find<QAction>("toggleMulti").trigger();
    EXPECT_EQ(colors(), "diffuse_color=Tan;specular_tint=AntiqueWhite;");
    run("color name Tan Sand");
    EXPECT_EQ(colors(), "diffuse_color=Sand;specular_tint=AntiqueWhite;");

    // A colour that is dropped on a place, or pasted there, is bound to it and to no other.
    window.showPanel("material");
    auto& tree = find<BoundColors>("boundColours");
    window.panel("colours")->select("Gold");
    find<QAction>("copyColour").trigger();
    int const entries = stack().count();
    find<QAction>("bindCopied").trigger();
    EXPECT_EQ(stack().count(), entries) << "no place was chosen";
    tree.setCurrentItem(tree.topLevelItem(1));
    find<QAction>("bindCopied").trigger();
    EXPECT_EQ(colors(), "diffuse_color=Sand;specular_tint=Gold;");
    EXPECT_EQ(stack().count(), entries + 1);
    auto const plum = scene().colorDB()->colors()[1];
    auto const dragged = makeColorMime(scene(), {plum});
    tree.model()->dropMimeData(dragged.get(), Qt::CopyAction, -1, -1, tree.model()->index(0, 0));
    QString const name = QString::fromStdString(scene().colorDB()->colorName(plum));
    EXPECT_EQ(colors(), "diffuse_color=" + name.toStdString() + ";specular_tint=Gold;");
    stack().undo();
    stack().undo();
    EXPECT_EQ(colors(), "diffuse_color=Sand;specular_tint=AntiqueWhite;");
}

TEST_F(MaterialsTest, AValueMayHaveLines) {
    window.showPanel("material");
    panel().select("Piping");
    field("Vendor").setFocus();
    QTest::keyClicks(&field("Vendor"), " &");
    field("Notes").setFocus();
    QTest::keyClicks(&field("Notes"), "soft");
    QTest::keyClick(&field("Notes"), Qt::Key_Return, Qt::ShiftModifier);
    ASSERT_EQ(fields<QPlainTextEdit>().size(), 1);
    QTest::keyClicks(fields<QPlainTextEdit>()[0], "grey");
    scene().endDrags();
    settle();
    EXPECT_NE(run("material show Piping").find("soft\\ngrey"), std::string::npos);
    EXPECT_EQ(field("Vendor").text(), " &Norrland Textiles");
    EXPECT_EQ(stack().count(), 2);
    panel().select("Armrest Leather");
    panel().select("Piping");
    EXPECT_EQ(fields<QPlainTextEdit>()[0]->toPlainText(), "soft\ngrey");
}

TEST_F(MaterialsTest, AnotherSchemaRearrangesTheFormAndKeepsWhatIsTyped) {
    window.showPanel("material");
    panel().select("Piping");
    std::string const before = form();
    field("Vendor").setFocus();
    field("Vendor").selectAll();
    QTest::keyClicks(&field("Vendor"), "Mill");
    panel().loadSchema(example("good/every-kind.json"));
    EXPECT_TRUE(form().starts_with("Text=;Image=;Other 2=;Colour 3=;Colour 4=;Colour 5=;Colour 6=;"
                                   "Other 7=;CMF::TEXT::COLOR=Dark slate;"));
    EXPECT_NE(form().find("CMF::TEXT::VENDOR=Mill;"), std::string::npos);
    panel().loadSchema(example("good/every-kind.json"));
    EXPECT_EQ(history(), "Describe Material (Piping);CMF Schema (Every Kind);|");
    panel().findChild<CMFForm*>()->focus("Image");
    find<QComboBox>("material").setFocus(); // as the button of the menu takes it
    find<QAction>("attributeUp").trigger();
    EXPECT_EQ(form().substr(0, 12), "Image=;Text=");
    stack().goTo(1);
    settle();
    stack().goTo(0);
    EXPECT_EQ(form(), before);

    // A file without a schema says all there is to say, with lines.
    answer("OK");
    panel().loadSchema(example("bad/many-faults.json"));
    EXPECT_TRUE(asked.contains("many-faults.json\n"));
    EXPECT_GE(readSchemaFile(example("bad/many-faults.json")).findings.size(), 3);
    EXPECT_TRUE(readSchemaFile(example("bad/many-faults.json")).findings[0].startsWith("line "));
    answer("OK");
    panel().loadSchema("/dev/zero");
    EXPECT_TRUE(asked.contains("/dev/zero"));
    EXPECT_EQ(stack().index(), 0);
    auto const& schema = scene().root()->cmfManager()->schema();
    EXPECT_TRUE(whyNoAttributeName(schema, "a|b", -1)->contains("vertical bars"));
    EXPECT_TRUE(whyNoAttributeName(schema, "Finish", -1).has_value());
    EXPECT_FALSE(whyNoAttributeName(schema, "Finish", 2).has_value());
}
