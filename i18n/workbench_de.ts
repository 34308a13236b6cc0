<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Channel</name>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Deckung</translation>
    </message>
</context>
<context>
    <name>KeptValues</name>
    <message>
        <source>The values of the last time could not be read; they are in %1.</source>
        <translation>Die Werte vom letzten Mal ließen sich nicht lesen; sie sind in %1.</translation>
    </message>
</context>
<context>
    <name>NameValue</name>
    <message>
        <source>New Value %1</source>
        <translation>Neuer Wert %1</translation>
    </message>
    <message>
        <source>Delete Value %1</source>
        <translation>Wert %1 löschen</translation>
    </message>
    <message>
        <source>Rename Value</source>
        <translation>Wert umbenennen</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Import a Palette</source>
        <translation>Palette importieren</translation>
    </message>
    <message numerus="yes">
        <source>%n colours of the palette have names that belong to colours of other values here.</source>
        <translation>
            <numerusform>%n Farbe der Palette hat einen Namen, den hier eine Farbe mit anderem Wert trägt.</numerusform>
            <numerusform>%n Farben der Palette haben Namen, die hier Farben mit anderen Werten tragen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Bring Them in Renamed</source>
        <translation>Umbenannt einfügen</translation>
    </message>
    <message>
        <source>Change Those Here</source>
        <translation>Die hiesigen ändern</translation>
    </message>
    <message>
        <source>Keep Those Here</source>
        <translation>Die hiesigen behalten</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Import Palette (%1)</source>
        <translation>Palette importieren (%1)</translation>
    </message>
    <message numerus="yes">
        <source>%n colours brought in. This cannot be undone.</source>
        <translation>
            <numerusform>%n Farbe eingefügt. Das lässt sich nicht rückgängig machen.</numerusform>
            <numerusform>%n Farben eingefügt. Das lässt sich nicht rückgängig machen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n colours changed.</source>
        <translation>
            <numerusform>%n Farbe geändert.</numerusform>
            <numerusform>%n Farben geändert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n colours were there.</source>
        <translation>
            <numerusform>%n Farbe war schon da.</numerusform>
            <numerusform>%n Farben waren schon da.</numerusform>
        </translation>
    </message>
    <message>
        <source>The palette has no colours.</source>
        <translation>Die Palette enthält keine Farben.</translation>
    </message>
    <message numerus="yes">
        <source>%n colours written.</source>
        <translation>
            <numerusform>%n Farbe geschrieben.</numerusform>
            <numerusform>%n Farben geschrieben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them were cut to opaque sRGB.</source>
        <translation>
            <numerusform>%n davon auf deckendes sRGB beschnitten.</numerusform>
            <numerusform>%n davon auf deckendes sRGB beschnitten.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n colours could not be made.</source>
        <translation>
            <numerusform>%n Farbe konnte nicht angelegt werden.</numerusform>
            <numerusform>%n Farben konnten nicht angelegt werden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ParameterEdit</name>
    <message>
        <source>Set %1</source>
        <translation>%1 setzen</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Colour of the same name</source>
        <translation>Farbe gleichen Namens</translation>
    </message>
    <message>
        <source>The scene uses another colour with the name %1.</source>
        <translation>Die Szene verwendet eine andere Farbe mit dem Namen %1.</translation>
    </message>
    <message>
        <source>Use the One That Is There</source>
        <translation>Die vorhandene verwenden</translation>
    </message>
    <message>
        <source>Bring It in Renamed</source>
        <translation>Umbenannt einfügen</translation>
    </message>
    <message>
        <source>A scene has 32 light layers at most, and deleted ones keep their place. Restore one of those instead.</source>
        <translation>Eine Szene hat höchstens 32 Lichtebenen, und gelöschte behalten ihren Platz. Stellen Sie eine von ihnen wieder her.</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>Duplicate Light Layer (%1)</source>
        <translation>Lichtebene duplizieren (%1)</translation>
    </message>
    <message>
        <source>Move Lights to New Layer</source>
        <translation>Lichter in neue Ebene verschieben</translation>
    </message>
    <message>
        <source>New Layer</source>
        <translation>Neue Ebene</translation>
    </message>
    <message>
        <source>%1 cannot be deleted: the lights of deleted layers go there.</source>
        <translation>%1 kann nicht gelöscht werden: Dorthin kommen die Lichter gelöschter Ebenen.</translation>
    </message>
    <message>
        <source>Put a Light into Layer (%1)</source>
        <translation>Licht in Ebene legen (%1)</translation>
    </message>
    <message>
        <source>Put %2 Lights into Layer (%1)</source>
        <translation>%2 Lichter in Ebene legen (%1)</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>An attribute needs a name.</source>
        <translation>Ein Attribut braucht einen Namen.</translation>
    </message>
    <message>
        <source>A name cannot hold vertical bars: schema files lose them.</source>
        <translation>Ein Name darf keine senkrechten Striche haben: Schemadateien verlieren sie.</translation>
    </message>
    <message>
        <source>There is an attribute %1 already.</source>
        <translation>Es gibt schon ein Attribut %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n colours brought in. This cannot be undone.</source>
        <translation>
            <numerusform>%n Farbe eingefügt. Das lässt sich nicht rückgängig machen.</numerusform>
            <numerusform>%n Farben eingefügt. Das lässt sich nicht rückgängig machen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Swatch</name>
    <message>
        <source>unnamed</source>
        <translation>unbenannt</translation>
    </message>
    <message>
        <source>, brighter than the screen</source>
        <translation>, heller als der Bildschirm</translation>
    </message>
    <message>
        <source>, multi-colour</source>
        <translation>, Mehrfachfarbe</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>nicht verwendet</translation>
    </message>
    <message numerus="yes">
        <source>used by %n places</source>
        <translation>
            <numerusform>von %n Stelle verwendet</numerusform>
            <numerusform>von %n Stellen verwendet</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WeaveEditor</name>
    <message>
        <source>Plain</source>
        <translation>Einfache</translation>
    </message>
    <message>
        <source>Twill</source>
        <translation>Köper</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>Band</translation>
    </message>
    <message>
        <source>Satin</source>
        <translation>Atlas</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Basket</source>
        <translation>Panama</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>Herringbone</source>
        <translation>Fischgrat</translation>
    </message>
</context>
<context>
    <name>ZLayerBackgroundCommand</name>
    <message>
        <source>3D Paint change layer background</source>
        <translation>3D-Malen: Ebenenhintergrund ändern</translation>
    </message>
</context>
<context>
    <name>ZMoveLayerCommand</name>
    <message>
        <source>3D Paint move layer</source>
        <translation>3D-Malen: Ebene verschieben</translation>
    </message>
</context>
<context>
    <name>loadValue</name>
    <message>
        <source>%1 holds no samples.</source>
        <translation>%1 enthält keine Messwerte.</translation>
    </message>
    <message>
        <source>%1 holds no weave.</source>
        <translation>%1 enthält keine Bindung.</translation>
    </message>
    <message>
        <source>%1 holds no value.</source>
        <translation>%1 enthält keinen Wert.</translation>
    </message>
</context>
<context>
    <name>workbench::BoundColors</name>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Bind the Copied Colour</source>
        <translation>Kopierte Farbe zuweisen</translation>
    </message>
    <message>
        <source>%1 of node %2</source>
        <translation>%1 des Knotens %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Choose one of the parameters.</source>
        <translation>Wählen Sie einen der Parameter.</translation>
    </message>
    <message>
        <source>One colour of this scene can be bound.</source>
        <translation>Zugewiesen werden kann eine Farbe dieser Szene.</translation>
    </message>
</context>
<context>
    <name>workbench::BrushPanel</name>
    <message>
        <source>A stroke of the brush</source>
        <translation>Ein Strich des Pinsels</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorgaben</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Als Vorgabe sichern</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>A new brush</source>
        <translation>Ein neuer Pinsel</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>The name of a preset cannot have a slash or begin with a dot.</source>
        <translation>Der Name einer Vorgabe darf keinen Schrägstrich haben und nicht mit einem Punkt beginnen.</translation>
    </message>
    <message>
        <source>The preset is kept.</source>
        <translation>Die Vorgabe ist gesichert.</translation>
    </message>
    <message>
        <source>There is a preset of that name. Replace it?</source>
        <translation>Es gibt schon eine Vorgabe mit diesem Namen. Ersetzen?</translation>
    </message>
</context>
<context>
    <name>workbench::CMFForm</name>
    <message>
        <source>&lt;b&gt;Other&lt;/b&gt;</source>
        <translation>&lt;b&gt;Weitere&lt;/b&gt;</translation>
    </message>
    <message>
        <source>What the material stores and the schema does not know</source>
        <translation>Was das Material speichert und das Schema nicht kennt</translation>
    </message>
    <message>
        <source>Shift+Return: several lines</source>
        <translation>Umschalt+Eingabe: mehrere Zeilen</translation>
    </message>
</context>
<context>
    <name>workbench::ChoiceField</name>
    <message>
        <source>none of these</source>
        <translation>keine davon</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>gemischt</translation>
    </message>
</context>
<context>
    <name>workbench::ColorCard</name>
    <message>
        <source>Colours of the scene</source>
        <translation>Farben der Szene</translation>
    </message>
    <message numerus="yes">
        <source>%n colours</source>
        <translation>
            <numerusform>%n Farbe</numerusform>
            <numerusform>%n Farben</numerusform>
        </translation>
    </message>
    <message>
        <source>not used</source>
        <translation>nicht verwendet</translation>
    </message>
    <message numerus="yes">
        <source>used by %n places</source>
        <translation>
            <numerusform>von %n Stelle verwendet</numerusform>
            <numerusform>von %n Stellen verwendet</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>workbench::ColorEditor</name>
    <message>
        <source>HSV</source>
        <translation>HSV</translation>
    </message>
    <message>
        <source>sRGB</source>
        <translation>sRGB</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Hexadecimal value</source>
        <translation>Hexadezimaler Wert</translation>
    </message>
    <message>
        <source>Used by</source>
        <translation>Verwendet von</translation>
    </message>
    <message>
        <source>&amp;Hex</source>
        <translation>&amp;Hex</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>No colour is selected.</source>
        <translation>Keine Farbe ist ausgewählt.</translation>
    </message>
    <message>
        <source>%1, the active colour of %2</source>
        <translation>%1, die aktive Farbe von %2</translation>
    </message>
    <message>
        <source>%1 is no colour; expected #rrggbb or #rrggbbaa.</source>
        <translation>%1 ist keine Farbe; erwartet wird #rrggbb oder #rrggbbaa.</translation>
    </message>
</context>
<context>
    <name>workbench::ColorField</name>
    <message>
        <source>Choose by hue, saturation and brightness</source>
        <translation>Nach Farbton, Sättigung und Helligkeit wählen</translation>
    </message>
    <message>
        <source>Hexadecimal value</source>
        <translation>Hexadezimaler Wert</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>gemischt</translation>
    </message>
    <message>
        <source>%1 is no color; expected #rrggbb or #rrggbbaa.</source>
        <translation>%1 ist keine Farbe; erwartet wird #rrggbb oder #rrggbbaa.</translation>
    </message>
</context>
<context>
    <name>workbench::ColorModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Uses</source>
        <translation>Verwendungen</translation>
    </message>
</context>
<context>
    <name>workbench::ColorWheel</name>
    <message>
        <source>Hue, saturation and brightness</source>
        <translation>Farbton, Sättigung und Helligkeit</translation>
    </message>
    <message>
        <source>Hue %1 degrees, saturation %2 %, brightness %3 %</source>
        <translation>Farbton %1 Grad, Sättigung %2 %, Helligkeit %3 %</translation>
    </message>
</context>
<context>
    <name>workbench::ColorsPanel</name>
    <message>
        <source>find by name</source>
        <translation>nach Namen suchen</translation>
    </message>
    <message>
        <source>Find by name</source>
        <translation>Nach Namen suchen</translation>
    </message>
    <message>
        <source>Which colours</source>
        <translation>Welche Farben</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Einfache</translation>
    </message>
    <message>
        <source>Multi</source>
        <translation>Mehrfache</translation>
    </message>
    <message>
        <source>In Use</source>
        <translation>Verwendete</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Show a list in place of tiles</source>
        <translation>Eine Liste anstelle der Kacheln zeigen</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>&amp;New Colour</source>
        <translation>&amp;Neue Farbe</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Turn into &amp;Multi-Colour or Back</source>
        <translation>In &amp;Mehrfachfarbe umwandeln oder zurück</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>%1 was made. This cannot be undone, because a scene keeps its records.</source>
        <translation>%1 ist angelegt. Das lässt sich nicht rückgängig machen, da eine Szene ihre Einträge behält.</translation>
    </message>
    <message>
        <source>The colour has no name, and the scene has no free one to give it.</source>
        <translation>Die Farbe hat keinen Namen, und die Szene hat keinen freien für sie.</translation>
    </message>
    <message>
        <source>There is no colour on the clipboard.</source>
        <translation>In der Zwischenablage ist keine Farbe.</translation>
    </message>
    <message>
        <source>GIMP palettes (*.gpl)</source>
        <translation>GIMP-Paletten (*.gpl)</translation>
    </message>
    <message>
        <source>&amp;Import Palette…</source>
        <translation>Palette &amp;importieren…</translation>
    </message>
    <message>
        <source>Import a Palette</source>
        <translation>Palette importieren</translation>
    </message>
    <message>
        <source>&amp;Export Palette…</source>
        <translation>Palette &amp;exportieren…</translation>
    </message>
    <message>
        <source>Export a Palette</source>
        <translation>Palette exportieren</translation>
    </message>
</context>
<context>
    <name>workbench::ColorwayModel</name>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
    <message>
        <source>%1 in %2: %3</source>
        <translation>%1 in %2: %3</translation>
    </message>
    <message>
        <source>%1 in %2: stays as it is</source>
        <translation>%1 in %2: bleibt, wie sie ist</translation>
    </message>
    <message>
        <source>, active</source>
        <translation>, aktiv</translation>
    </message>
    <message>
        <source>, deleted</source>
        <translation>, gelöscht</translation>
    </message>
</context>
<context>
    <name>workbench::ColorwaysPanel</name>
    <message>
        <source>Colorways</source>
        <translation>Farbvarianten</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Delete or Restore</source>
        <translation>Löschen / Zurückholen</translation>
    </message>
    <message>
        <source>Show Deleted</source>
        <translation>Gelöschte</translation>
    </message>
    <message>
        <source>Leave It as It Is</source>
        <translation>So lassen, wie sie ist</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 Kopie</translation>
    </message>
    <message>
        <source>Colorway</source>
        <translation>Farbvariante</translation>
    </message>
    <message>
        <source>Rename the Colorway</source>
        <translation>Farbvariante umbenennen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Switch back (%1)</source>
        <translation>Zurückschalten (%1)</translation>
    </message>
    <message>
        <source>It lists a multi-colour that is gone. Nothing was switched.</source>
        <translation>Sie führt eine Mehrfachfarbe auf, die es nicht mehr gibt. Nichts wurde umgeschaltet.</translation>
    </message>
</context>
<context>
    <name>workbench::ConsolePanel</name>
    <message>
        <source>What the commands have printed</source>
        <translation>Was die Befehle ausgegeben haben</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>a command; &quot;help&quot; lists them</source>
        <translation>ein Befehl; „help“ zählt sie auf</translation>
    </message>
</context>
<context>
    <name>workbench::CurveEditor</name>
    <message>
        <source>How the curve goes on from the key</source>
        <translation>Wie die Kurve nach dem Schlüssel weitergeht</translation>
    </message>
    <message>
        <source>U: smooth</source>
        <translation>U: glatt</translation>
    </message>
    <message>
        <source>T: smooth</source>
        <translation>T: glatt</translation>
    </message>
    <message>
        <source>s: step at the next key</source>
        <translation>s: Stufe am nächsten Schlüssel</translation>
    </message>
    <message>
        <source>S: step at this key</source>
        <translation>S: Stufe an diesem Schlüssel</translation>
    </message>
    <message>
        <source>L: straight</source>
        <translation>L: gerade</translation>
    </message>
    <message>
        <source>&amp;X</source>
        <translation>&amp;X</translation>
    </message>
    <message>
        <source>&amp;Y</source>
        <translation>&amp;Y</translation>
    </message>
    <message>
        <source>Add Key</source>
        <translation>Schlüssel hinzufügen</translation>
    </message>
    <message>
        <source>A double click in the plot makes one, too</source>
        <translation>Ein Doppelklick in die Zeichnung legt auch einen an</translation>
    </message>
    <message>
        <source>Remove Key</source>
        <translation>Schlüssel entfernen</translation>
    </message>
</context>
<context>
    <name>workbench::CurvePlot</name>
    <message>
        <source>Keys of the curve</source>
        <translation>Schlüssel der Kurve</translation>
    </message>
    <message>
        <source>incoming handle</source>
        <translation>eingehender Griff</translation>
    </message>
    <message>
        <source>key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>outgoing handle</source>
        <translation>ausgehender Griff</translation>
    </message>
    <message>
        <source>No keys</source>
        <translation>Keine Schlüssel</translation>
    </message>
    <message>
        <source>Key %1 of %2, %3, x %4, y %5</source>
        <translation>Schlüssel %1 von %2, %3, x %4, y %5</translation>
    </message>
    <message>
        <source>A handle has to stay on its side of the key.</source>
        <translation>Ein Griff muss auf seiner Seite des Schlüssels bleiben.</translation>
    </message>
    <message>
        <source>A key has to stay between its neighbors.</source>
        <translation>Ein Schlüssel muss zwischen seinen Nachbarn bleiben.</translation>
    </message>
</context>
<context>
    <name>workbench::DeleteLightLayer</name>
    <message>
        <source>Delete Light Layer (%1)</source>
        <translation>Lichtebene löschen (%1)</translation>
    </message>
    <message>
        <source>Restore Light Layer (%1)</source>
        <translation>Lichtebene wiederherstellen (%1)</translation>
    </message>
</context>
<context>
    <name>workbench::Document</name>
    <message>
        <source>%1 (recovered)</source>
        <translation>%1 (wiederhergestellt)</translation>
    </message>
    <message>
        <source>unnamed</source>
        <translation>unbenannt</translation>
    </message>
    <message>
        <source>No copy for after a crash could be written: %1</source>
        <translation>Es konnte keine Sicherungskopie geschrieben werden: %1</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>der Speicher reicht nicht</translation>
    </message>
    <message>
        <source>This failed: %1</source>
        <translation>Das ist fehlgeschlagen: %1</translation>
    </message>
</context>
<context>
    <name>workbench::EventModel</name>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Of</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
</context>
<context>
    <name>workbench::EventsPanel</name>
    <message>
        <source>find by event or number</source>
        <translation>nach Ereignis oder Nummer suchen</translation>
    </message>
    <message>
        <source>Find by event or number</source>
        <translation>Nach Ereignis oder Nummer suchen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Hold the list still; what comes meanwhile is shown afterwards</source>
        <translation>Die Liste anhalten; was inzwischen kommt, wird danach gezeigt</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the selected rows, or all of them</source>
        <translation>Die ausgewählten Zeilen kopieren oder alle</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Events: %1</source>
        <translation>Ereignisse: %1</translation>
    </message>
    <message>
        <source>Events: %1, older ones dropped: %2</source>
        <translation>Ereignisse: %1, ältere weggelassen: %2</translation>
    </message>
</context>
<context>
    <name>workbench::ExpressionSpin</name>
    <message>
        <source>%1 is not from %2 to %3.</source>
        <translation>%1 liegt nicht zwischen %2 und %3.</translation>
    </message>
    <message>
        <source>%1 is no number and no calculation.</source>
        <translation>%1 ist keine Zahl und keine Rechnung.</translation>
    </message>
</context>
<context>
    <name>workbench::FileActions</name>
    <message>
        <source>Scenes (*.json);;All files (*)</source>
        <translation>Szenen (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Öffnen …</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Sichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Sichern &amp;als …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>The scene cannot be opened.</source>
        <translation>Die Szene lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>The scene cannot be saved; it is as it was.</source>
        <translation>Die Szene lässt sich nicht sichern; sie ist, wie sie war.</translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <translation>%1 ist gesichert.</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Ungesicherte Änderungen</translation>
    </message>
    <message>
        <source>%1 has changes that are not saved.</source>
        <translation>%1 hat Änderungen, die nicht gesichert sind.</translation>
    </message>
    <message>
        <source>a scene without a file</source>
        <translation>eine Szene ohne Datei</translation>
    </message>
    <message>
        <source>Unsaved work was found</source>
        <translation>Ungesicherte Arbeit gefunden</translation>
    </message>
    <message>
        <source>The program ended without saving %1. A copy of %2 is there.</source>
        <translation>Das Programm endete, ohne %1 zu sichern. Eine Kopie von %2 ist da.</translation>
    </message>
    <message>
        <source>Open the Copy</source>
        <translation>Die Kopie öffnen</translation>
    </message>
    <message>
        <source>Keep It for Later</source>
        <translation>Für später behalten</translation>
    </message>
    <message>
        <source>Delete It</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>The copy cannot be opened.</source>
        <translation>Die Kopie lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Sichern als</translation>
    </message>
    <message>
        <source>The file has changed</source>
        <translation>Die Datei hat sich geändert</translation>
    </message>
    <message>
        <source>Another program has changed %1. Load it, and lose what is not saved here?</source>
        <translation>Ein anderes Programm hat %1 geändert. Laden und verlieren, was hier nicht gesichert ist?</translation>
    </message>
    <message>
        <source>Another program has changed %1. Load it?</source>
        <translation>Ein anderes Programm hat %1 geändert. Laden?</translation>
    </message>
    <message>
        <source>Another program has changed %1. Write over it?</source>
        <translation>Ein anderes Programm hat %1 geändert. Überschreiben?</translation>
    </message>
</context>
<context>
    <name>workbench::GradientEditor</name>
    <message>
        <source>&amp;Blend between stops</source>
        <translation>Zwischen Stützfarben &amp;mischen</translation>
    </message>
    <message>
        <source>Add Stop</source>
        <translation>Stützfarbe hinzufügen</translation>
    </message>
    <message>
        <source>Remove Stop</source>
        <translation>Stützfarbe entfernen</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Ort</translation>
    </message>
    <message>
        <source>&amp;Color</source>
        <translation>&amp;Farbe</translation>
    </message>
    <message>
        <source>Slope on the l&amp;eft</source>
        <translation>Steigung &amp;links</translation>
    </message>
    <message>
        <source>Slope on the &amp;right</source>
        <translation>Steigung &amp;rechts</translation>
    </message>
</context>
<context>
    <name>workbench::GradientStrip</name>
    <message>
        <source>Stops of the gradient</source>
        <translation>Stützfarben des Verlaufs</translation>
    </message>
    <message>
        <source>No stops</source>
        <translation>Keine Stützfarben</translation>
    </message>
    <message>
        <source>Stop %1 of %2 at %3</source>
        <translation>Stützfarbe %1 von %2 bei %3</translation>
    </message>
</context>
<context>
    <name>workbench::HistoryModel</name>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>%1 – saved</source>
        <translation>%1 – gesichert</translation>
    </message>
    <message>
        <source>%1, undone</source>
        <translation>%1, rückgängig gemacht</translation>
    </message>
    <message>
        <source>%1, saved</source>
        <translation>%1, gesichert</translation>
    </message>
</context>
<context>
    <name>workbench::HistoryPanel</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
</context>
<context>
    <name>workbench::HostCanvas</name>
    <message>
        <source>Surface %1</source>
        <translation>Fläche %1</translation>
    </message>
    <message>
        <source>There is no surface to paint on.</source>
        <translation>Es gibt keine Fläche zum Malen.</translation>
    </message>
    <message>
        <source>Choose a layer to paint on.</source>
        <translation>Wählen Sie eine Ebene zum Malen.</translation>
    </message>
    <message>
        <source>The layer to paint on is hidden.</source>
        <translation>Die Ebene zum Malen ist ausgeblendet.</translation>
    </message>
    <message>
        <source>The renderer has no brush to paint with.</source>
        <translation>Der Renderer hat keinen Pinsel zum Malen.</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Radieren</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>Malen</translation>
    </message>
    <message>
        <source>The stroke could not be kept.</source>
        <translation>Der Strich konnte nicht behalten werden.</translation>
    </message>
    <message>
        <source>The oldest steps can no longer be undone: what strokes keep for it has a limit of %1 MB.</source>
        <translation>Die ältesten Schritte lassen sich nicht mehr rückgängig machen: Was Striche dafür behalten, ist auf %1 MB begrenzt.</translation>
    </message>
</context>
<context>
    <name>workbench::ImageField</name>
    <message>
        <source>…</source>
        <translation>…</translation>
    </message>
    <message>
        <source>Choose a picture</source>
        <translation>Ein Bild wählen</translation>
    </message>
    <message>
        <source>Drop a picture here</source>
        <translation>Ein Bild hierher ziehen</translation>
    </message>
    <message>
        <source>%1: no picture</source>
        <translation>%1: kein Bild</translation>
    </message>
    <message>
        <source>Choose a Picture</source>
        <translation>Bild wählen</translation>
    </message>
</context>
<context>
    <name>workbench::LayersPanel</name>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hinauf</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Hinunter</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Paint Layers</source>
        <translation>Malebenen</translation>
    </message>
    <message>
        <source>Background of the Layer</source>
        <translation>Hintergrund der Ebene</translation>
    </message>
</context>
<context>
    <name>workbench::LightLayerModel</name>
    <message>
        <source>%1, lights: %2</source>
        <translation>%1, Lichter: %2</translation>
    </message>
    <message>
        <source>, inverted</source>
        <translation>, umgekehrt</translation>
    </message>
    <message>
        <source>, deleted</source>
        <translation>, gelöscht</translation>
    </message>
    <message>
        <source>The layer is edited by what it leaves out</source>
        <translation>Die Ebene wird durch das bearbeitet, was sie auslässt</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>Umgekehrt</translation>
    </message>
    <message>
        <source>Lights</source>
        <translation>Lichter</translation>
    </message>
</context>
<context>
    <name>workbench::LightLayersPanel</name>
    <message>
        <source>Light Layers</source>
        <translation>Lichtebenen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Delete or Restore</source>
        <translation>Löschen / Zurückholen</translation>
    </message>
    <message>
        <source>Put Selected Lights Here</source>
        <translation>Ausgewählte Lichter hierher</translation>
    </message>
    <message>
        <source>Show Deleted</source>
        <translation>Gelöschte</translation>
    </message>
</context>
<context>
    <name>workbench::LightMatrixModel</name>
    <message>
        <source>A light is always in a layer. Put it into another one.</source>
        <translation>Ein Licht ist immer in einer Ebene. Legen Sie es in eine andere.</translation>
    </message>
    <message>
        <source>%1 is in %2</source>
        <translation>%1 ist in %2</translation>
    </message>
    <message>
        <source>%1 is partly in %2</source>
        <translation>%1 ist teilweise in %2</translation>
    </message>
    <message>
        <source>%1 is not in %2</source>
        <translation>%1 ist nicht in %2</translation>
    </message>
    <message>
        <source>%1 (inverted)</source>
        <translation>%1 (umgekehrt)</translation>
    </message>
    <message>
        <source>%1: the renderer leaves this light out of lists, so it stays in its layer.</source>
        <translation>%1: Der Renderer lässt dieses Licht in Listen aus, daher bleibt es in seiner Ebene.</translation>
    </message>
</context>
<context>
    <name>workbench::LightMatrixPanel</name>
    <message>
        <source>find by name</source>
        <translation>nach Namen suchen</translation>
    </message>
    <message>
        <source>Find by name</source>
        <translation>Nach Namen suchen</translation>
    </message>
    <message>
        <source>In or Out</source>
        <translation>Hinein oder hinaus</translation>
    </message>
    <message>
        <source>Put the selected lights into the layer, or take them out (Space)</source>
        <translation>Die ausgewählten Lichter in die Ebene legen oder herausnehmen (Leertaste)</translation>
    </message>
    <message>
        <source>Move to New Layer</source>
        <translation>In neue Ebene</translation>
    </message>
    <message>
        <source>Lights and Layers</source>
        <translation>Lichter und Ebenen</translation>
    </message>
    <message>
        <source>No light is selected in the matrix.</source>
        <translation>In der Matrix ist kein Licht ausgewählt.</translation>
    </message>
</context>
<context>
    <name>workbench::MainWindow</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Colour</source>
        <translation>&amp;Farbe</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Colours of the &amp;System</source>
        <translation>Farben des &amp;Systems</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>&amp;Anordnung zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Next Panel</source>
        <translation>&amp;Nächste Tafel</translation>
    </message>
    <message>
        <source>&amp;Previous Panel</source>
        <translation>&amp;Vorige Tafel</translation>
    </message>
    <message>
        <source>&amp;Find in Panel</source>
        <translation>In der Tafel &amp;suchen</translation>
    </message>
    <message>
        <source>%1[*] – zsg-workbench</source>
        <translation>%1[*] – zsg-workbench</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Matrix</source>
        <translation>Matrix</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Multi-Colour</source>
        <translation>Mehrfachfarbe</translation>
    </message>
    <message>
        <source>Light Layers</source>
        <translation>Lichtebenen</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pinsel</translation>
    </message>
    <message>
        <source>Colour Editor</source>
        <translation>Farbeditor</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Paint Layers</source>
        <translation>Malebenen</translation>
    </message>
    <message>
        <source>Colorways</source>
        <translation>Farbvarianten</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Konsole</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Demonstration</source>
        <translation>Vorführung</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
</context>
<context>
    <name>workbench::MaterialPanel</name>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadaten</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>&amp;Load Schema…</source>
        <translation>Schema &amp;laden …</translation>
    </message>
    <message>
        <source>Load a CMF Schema</source>
        <translation>CMF-Schema laden</translation>
    </message>
    <message>
        <source>CMF schemas (*.json)</source>
        <translation>CMF-Schemata (*.json)</translation>
    </message>
    <message>
        <source>&amp;Save Schema…</source>
        <translation>Schema &amp;sichern …</translation>
    </message>
    <message>
        <source>&amp;Add Attribute…</source>
        <translation>Attribut &amp;hinzufügen …</translation>
    </message>
    <message>
        <source>&amp;Rename Attribute…</source>
        <translation>Attribut &amp;umbenennen …</translation>
    </message>
    <message>
        <source>Move Attribute &amp;Up</source>
        <translation>Attribut h&amp;inauf</translation>
    </message>
    <message>
        <source>Move Attribute &amp;Down</source>
        <translation>Attribut hin&amp;unter</translation>
    </message>
    <message>
        <source>&amp;Take Attribute Out</source>
        <translation>Attribut &amp;herausnehmen</translation>
    </message>
    <message>
        <source>Add &amp;Metadata…</source>
        <translation>&amp;Metadaten hinzufügen …</translation>
    </message>
    <message>
        <source>Add Metadata</source>
        <translation>Metadaten hinzufügen</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Take M&amp;etadata Out</source>
        <translation>M&amp;etadaten herausnehmen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>CMF Schema</source>
        <translation>CMF-Schema</translation>
    </message>
    <message>
        <source>Save the CMF Schema</source>
        <translation>CMF-Schema sichern</translation>
    </message>
    <message>
        <source>Add an Attribute</source>
        <translation>Attribut hinzufügen</translation>
    </message>
    <message>
        <source>Rename the Attribute</source>
        <translation>Attribut umbenennen</translation>
    </message>
    <message>
        <source>Choose the field of an attribute first.</source>
        <translation>Wählen Sie zuerst das Feld eines Attributs.</translation>
    </message>
    <message>
        <source>A schema needs an attribute.</source>
        <translation>Ein Schema braucht ein Attribut.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
</context>
<context>
    <name>workbench::MetadataTree</name>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>(all of it)</source>
        <translation>(alles)</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>workbench::MetalPlot</name>
    <message>
        <source>n, k and the reflectance over the wavelength</source>
        <translation>n, k und der Reflexionsgrad über der Wellenlänge</translation>
    </message>
    <message>
        <source>No samples</source>
        <translation>Keine Messwerte</translation>
    </message>
    <message>
        <source>Samples: %1, from %2 to %3 nm</source>
        <translation>Messwerte: %1, von %2 bis %3 nm</translation>
    </message>
    <message>
        <source>There is nothing to draw.</source>
        <translation>Es gibt nichts zu zeichnen.</translation>
    </message>
    <message>
        <source>%1 nm</source>
        <translation>%1 nm</translation>
    </message>
</context>
<context>
    <name>workbench::MetalView</name>
    <message>
        <source>Samples</source>
        <translation>Messwerte</translation>
    </message>
    <message>
        <source>nm</source>
        <translation>nm</translation>
    </message>
    <message>
        <source>What was said of the file</source>
        <translation>Was zur Datei gesagt wurde</translation>
    </message>
</context>
<context>
    <name>workbench::MultiColorPanel</name>
    <message>
        <source>Sub-colours</source>
        <translation>Unterfarben</translation>
    </message>
    <message>
        <source>Activate</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hinauf</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Hinunter</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>Keep the order and the list as they are</source>
        <translation>Reihenfolge und Liste lassen, wie sie sind</translation>
    </message>
    <message>
        <source>Select a multi-colour to see what it holds.</source>
        <translation>Wählen Sie eine Mehrfachfarbe, um zu sehen, was sie enthält.</translation>
    </message>
    <message>
        <source>The multi-colour is locked.</source>
        <translation>Die Mehrfachfarbe ist gesperrt.</translation>
    </message>
</context>
<context>
    <name>workbench::NumberField</name>
    <message>
        <source> K</source>
        <translation> K</translation>
    </message>
    <message>
        <source> units</source>
        <translation> Einheiten</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
</context>
<context>
    <name>workbench::NumberSpin</name>
    <message>
        <source>mixed</source>
        <translation>gemischt</translation>
    </message>
</context>
<context>
    <name>workbench::NumbersField</name>
    <message>
        <source>Row %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
</context>
<context>
    <name>workbench::PaintLayerModel</name>
    <message>
        <source>Blend</source>
        <translation>Füllmethode</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplizieren</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Negativ multiplizieren</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Überlagern</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Addieren</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>Subtrahieren</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Abdunkeln</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Aufhellen</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>Farbig abwedeln</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>Farbig nachbelichten</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>Hartes Licht</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>Weiches Licht</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Ausschluss</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(ohne Namen)</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>visible</source>
        <translation>sichtbar</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>ausgeblendet</translation>
    </message>
    <message>
        <source>%1, painted on</source>
        <translation>%1, wird bemalt</translation>
    </message>
    <message>
        <source>Background %1</source>
        <translation>Hintergrund %1</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Show Layers</source>
        <translation>Ebenen einblenden</translation>
    </message>
    <message>
        <source>Hide Layers</source>
        <translation>Ebenen ausblenden</translation>
    </message>
</context>
<context>
    <name>workbench::PaintView</name>
    <message>
        <source>Painted surface</source>
        <translation>Bemalte Fläche</translation>
    </message>
    <message>
        <source>There is not enough memory to show this surface.</source>
        <translation>Der Speicher reicht nicht, um diese Fläche zu zeigen.</translation>
    </message>
    <message>
        <source>Plus and minus zoom, 0 shows all, arrow keys move the picture; Ctrl and arrow keys move a pen, Return sets it down and lifts it</source>
        <translation>Plus und Minus ändern den Maßstab, 0 zeigt alles, Pfeiltasten verschieben das Bild; Strg und Pfeiltasten bewegen einen Stift, Eingabe setzt ihn auf und hebt ihn ab</translation>
    </message>
</context>
<context>
    <name>workbench::ParameterRow</name>
    <message>
        <source>%L1 to %L2; other numbers can be typed</source>
        <translation>%L1 bis %L2; andere Zahlen lassen sich eintippen</translation>
    </message>
    <message>
        <source>no value to edit</source>
        <translation>kein Wert zum Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Copy Value</source>
        <translation>Wert &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste Value</source>
        <translation>Wert &amp;einfügen</translation>
    </message>
    <message>
        <source>Copy &amp;Name</source>
        <translation>&amp;Namen kopieren</translation>
    </message>
    <message>
        <source>The clipboard holds no value for %1.</source>
        <translation>Die Zwischenablage hat keinen Wert für %1.</translation>
    </message>
</context>
<context>
    <name>workbench::ParametersPanel</name>
    <message>
        <source>Whose parameters</source>
        <translation>Wessen Parameter</translation>
    </message>
</context>
<context>
    <name>workbench::PicturePanel</name>
    <message>
        <source>Surface</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>New Surface</source>
        <translation>Neue Fläche</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Radierer</translation>
    </message>
    <message>
        <source>Take paint away; the other end of a pen does so as well</source>
        <translation>Farbe wegnehmen; das andere Ende eines Stifts tut das auch</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Show the whole surface (0)</source>
        <translation>Die ganze Fläche zeigen (0)</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>A dot of the screen for every texel (1)</source>
        <translation>Ein Bildpunkt für jedes Texel (1)</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Texels along an edge</source>
        <translation>Texel entlang einer Kante</translation>
    </message>
    <message>
        <source>A new surface cannot be undone.</source>
        <translation>Eine neue Fläche lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>The renderer makes no surface of this size.</source>
        <translation>Der Renderer legt keine Fläche dieser Größe an.</translation>
    </message>
    <message>
        <source>Nothing is painted in this scene yet; these are its colours. &quot;New Surface&quot; makes something to paint on.</source>
        <translation>In dieser Szene ist noch nichts gemalt; dies sind ihre Farben. „Neue Fläche“ legt etwas zum Malen an.</translation>
    </message>
    <message>
        <source>Colours of the scene</source>
        <translation>Farben der Szene</translation>
    </message>
</context>
<context>
    <name>workbench::RenameLightLayer</name>
    <message>
        <source>Rename Light Layer (%1)</source>
        <translation>Lichtebene umbenennen (%1)</translation>
    </message>
</context>
<context>
    <name>workbench::ReplaceSchema</name>
    <message>
        <source>CMF Schema (%1)</source>
        <translation>CMF-Schema (%1)</translation>
    </message>
</context>
<context>
    <name>workbench::Scene</name>
    <message>
        <source>A step of the history could not be carried out.</source>
        <translation>Ein Schritt des Verlaufs konnte nicht ausgeführt werden.</translation>
    </message>
</context>
<context>
    <name>workbench::SetLightLayerFlags</name>
    <message>
        <source>Set Light Layer Flags (%1)</source>
        <translation>Merkmale der Lichtebene setzen (%1)</translation>
    </message>
</context>
<context>
    <name>workbench::SubColorModel</name>
    <message>
        <source>%1, active</source>
        <translation>%1, aktiv</translation>
    </message>
    <message>
        <source>The multi-colour is locked against changes of its order.</source>
        <translation>Die Reihenfolge der Mehrfachfarbe ist gesperrt.</translation>
    </message>
    <message>
        <source>Add Sub Colors</source>
        <translation>Unterfarben hinzufügen</translation>
    </message>
    <message>
        <source>A multi-colour cannot be part of another one.</source>
        <translation>Eine Mehrfachfarbe kann nicht Teil einer anderen sein.</translation>
    </message>
</context>
<context>
    <name>workbench::SummaryField</name>
    <message>
        <source>mixed</source>
        <translation>gemischt</translation>
    </message>
    <message>
        <source>%1 × %2 crossings</source>
        <translation>%1 × %2 Kreuzungen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>stops: %1</source>
        <translation>Stützfarben: %1</translation>
    </message>
    <message>
        <source>keys: %1</source>
        <translation>Schlüssel: %1</translation>
    </message>
</context>
<context>
    <name>workbench::SwatchView</name>
    <message>
        <source>%1, brighter than the screen</source>
        <translation>%1, heller als der Bildschirm</translation>
    </message>
</context>
<context>
    <name>workbench::TextField</name>
    <message>
        <source>One text a line</source>
        <translation>Ein Text je Zeile</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Eine Datei wählen</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>gemischt</translation>
    </message>
    <message>
        <source>This cannot be read as a %1: %2</source>
        <translation>Das lässt sich nicht als %1 lesen: %2</translation>
    </message>
    <message>
        <source>Choose a File</source>
        <translation>Datei wählen</translation>
    </message>
</context>
<context>
    <name>workbench::ToggleField</name>
    <message>
        <source>mixed</source>
        <translation>gemischt</translation>
    </message>
</context>
<context>
    <name>workbench::ValuesPanel</name>
    <message>
        <source>weave</source>
        <translation>Bindung</translation>
    </message>
    <message>
        <source>gradient</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>curve</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>metal</source>
        <translation>Metall</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Make a value, or select one.</source>
        <translation>Legen Sie einen Wert an, oder wählen Sie einen aus.</translation>
    </message>
    <message>
        <source>New %1</source>
        <translation>Neu: %1</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>There is a %1 of that name already, or the name is empty.</source>
        <translation>Etwas dieses Namens (%1) gibt es schon, oder der Name ist leer.</translation>
    </message>
    <message>
        <source>The clipboard holds no %1.</source>
        <translation>Die Zwischenablage enthält nichts dieser Art (%1).</translation>
    </message>
    <message>
        <source>Load a Value</source>
        <translation>Wert laden</translation>
    </message>
    <message>
        <source>Values (*.json *.nk *.ior *.csv *.txt);;All files (*)</source>
        <translation>Werte (*.json *.nk *.ior *.csv *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save the Value</source>
        <translation>Wert sichern</translation>
    </message>
</context>
<context>
    <name>workbench::WeaveEditor</name>
    <message>
        <source>Three repeats each way</source>
        <translation>Drei Rapporte in jeder Richtung</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Tension</source>
        <translation>Spannung</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Querschnitt</translation>
    </message>
    <message>
        <source>Left button: weft on top. Right button: warp on top.</source>
        <translation>Linke Taste: Schuss oben. Rechte Taste: Kette oben.</translation>
    </message>
    <message>
        <source>Kind of weave</source>
        <translation>Art der Bindung</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Warps</source>
        <translation>Kettfäden</translation>
    </message>
    <message>
        <source>Wefts</source>
        <translation>Schussfäden</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Umkehren</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Größe</translation>
    </message>
    <message>
        <source>Warp</source>
        <translation>Kette</translation>
    </message>
    <message>
        <source>Weft</source>
        <translation>Schuss</translation>
    </message>
    <message>
        <source>Ribbon</source>
        <translation>Band</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>Rund</translation>
    </message>
    <message>
        <source>%1: width</source>
        <translation>%1: Breite</translation>
    </message>
    <message>
        <source>%1: tension</source>
        <translation>%1: Spannung</translation>
    </message>
    <message>
        <source>%1: section</source>
        <translation>%1: Querschnitt</translation>
    </message>
</context>
<context>
    <name>workbench::WeaveGrid</name>
    <message>
        <source>Crossings</source>
        <translation>Kreuzungen</translation>
    </message>
    <message>
        <source>Column %1, row %2: %3 on top</source>
        <translation>Spalte %1, Zeile %2: %3 oben</translation>
    </message>
    <message>
        <source>warp</source>
        <translation>Kette</translation>
    </message>
    <message>
        <source>weft</source>
        <translation>Schuss</translation>
    </message>
</context>
</TS>
