<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>DescribeMaterialCommand</name>
    <message>
        <source>Describe Material (%1)</source>
        <translation>Material beschreiben (%1)</translation>
    </message>
</context>
<context>
    <name>PaintCommand</name>
    <message>
        <source>Erase</source>
        <translation>Radieren</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>Malen</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Load Palette (%1)</source>
        <translation>Palette laden (%1)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Multi-Color</source>
        <translation>Mehrfachfarbe</translation>
    </message>
    <message>
        <source>Enable Multi Color (%1)</source>
        <translation>In Mehrfachfarbe umwandeln (%1)</translation>
    </message>
    <message>
        <source>Disable Multi Color (%1)</source>
        <translation>In einfache Farbe umwandeln (%1)</translation>
    </message>
    <message>
        <source>Link Color (%1) To (%2)</source>
        <translation>Farbe (%1) mit (%2) verknüpfen</translation>
    </message>
    <message>
        <source>Schema attributes are incorrectly formatted</source>
        <translation>Die Attribute des Schemas sind falsch aufgebaut</translation>
    </message>
    <message>
        <source>File does not contain a valid json. Error: %1</source>
        <translation>Die Datei enthält kein gültiges JSON. Fehler: %1</translation>
    </message>
    <message>
        <source>File does not contain a json object at the root</source>
        <translation>Die Datei enthält auf oberster Ebene kein JSON-Objekt</translation>
    </message>
    <message>
        <source>File format version is too old or unknown</source>
        <translation>Die Version des Dateiformats ist zu alt oder unbekannt</translation>
    </message>
    <message>
        <source>Schema has no saved name</source>
        <translation>In der Datei fehlt der Name des Schemas</translation>
    </message>
    <message>
        <source>The display name of an attribute is absent or is not a string.</source>
        <translation>Der Anzeigename eines Attributs fehlt oder ist kein Text.</translation>
    </message>
    <message>
        <source>Two attributes have identical names: %1.</source>
        <translation>Zwei Attribute haben denselben Namen: %1.</translation>
    </message>
    <message>
        <source>The kind of an attribute is absent or is not encoded as a number.</source>
        <translation>Die Art eines Attributs fehlt oder ist nicht als Zahl angegeben.</translation>
    </message>
    <message>
        <source>Material Information Schema &quot;%1&quot; includes properties with invalid types, properties will be hidden.</source>
        <translation>Das Materialinformationsschema „%1“ enthält Eigenschaften mit ungültigem Typ; sie werden ausgeblendet.</translation>
    </message>
    <message>
        <source>The visibility of an attribute is absent or is not a boolean.</source>
        <translation>Die Sichtbarkeit eines Attributs fehlt oder ist kein Wahrheitswert.</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Ebene</translation>
    </message>
</context>
<context>
    <name>ZActivateColorwayCommand</name>
    <message>
        <source>Switch Colorway (%1)</source>
        <translation>Farbvariante wechseln (%1)</translation>
    </message>
</context>
<context>
    <name>ZAddLayerCommand</name>
    <message>
        <source>3D Paint add layer</source>
        <translation>3D-Malen: Ebene hinzufügen</translation>
    </message>
</context>
<context>
    <name>ZCreateColorwayCommand</name>
    <message>
        <source>Create Colorway</source>
        <translation>Farbvariante anlegen</translation>
    </message>
</context>
<context>
    <name>ZDeleteLayerCommand</name>
    <message>
        <source>3D Paint delete layer</source>
        <translation>3D-Malen: Ebene löschen</translation>
    </message>
</context>
<context>
    <name>ZEditColorCommand</name>
    <message>
        <source>Set Color name %1</source>
        <translation>Farbe umbenennen %1</translation>
    </message>
    <message>
        <source>Set Color</source>
        <translation>Farbe ändern</translation>
    </message>
    <message>
        <source>Remove Sub Color %1</source>
        <translation>Teilfarbe entfernen %1</translation>
    </message>
    <message>
        <source>Switch Sub Color %1</source>
        <translation>Teilfarbe wechseln %1</translation>
    </message>
    <message>
        <source>Add Sub Color %1</source>
        <translation>Teilfarbe hinzufügen %1</translation>
    </message>
    <message>
        <source>Unlink Sub Color %1</source>
        <translation>Verknüpfung der Teilfarbe lösen %1</translation>
    </message>
    <message>
        <source>Move Sub Color %1</source>
        <translation>Teilfarbe verschieben %1</translation>
    </message>
    <message>
        <source>Modify Color %1</source>
        <translation>Farbe bearbeiten %1</translation>
    </message>
    <message>
        <source>Clear Color name</source>
        <translation>Namen der Farbe entfernen</translation>
    </message>
</context>
<context>
    <name>ZEditColorWayCommand</name>
    <message>
        <source>Set Colorway name %1</source>
        <translation>Farbvariante umbenennen %1</translation>
    </message>
    <message>
        <source>Edit Colorway %1</source>
        <translation>Farbvariante bearbeiten %1</translation>
    </message>
    <message>
        <source>Delete Colorway %1</source>
        <translation>Farbvariante löschen %1</translation>
    </message>
    <message>
        <source>Clear Colorway name</source>
        <translation>Namen der Farbvariante entfernen</translation>
    </message>
</context>
<context>
    <name>ZEditMaterialCommand</name>
    <message>
        <source>Edit Material %1</source>
        <translation>Material bearbeiten %1</translation>
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
    <name>ZLayerBlendCommand</name>
    <message>
        <source>3D Paint change layer blend mode</source>
        <translation>3D-Malen: Füllmethode der Ebene ändern</translation>
    </message>
</context>
<context>
    <name>ZLayerNameCommand</name>
    <message>
        <source>3D Paint change layer name</source>
        <translation>3D-Malen: Ebene umbenennen</translation>
    </message>
</context>
<context>
    <name>ZLayerVisibilityCommand</name>
    <message>
        <source>3D Paint change layer visibility</source>
        <translation>3D-Malen: Sichtbarkeit der Ebene ändern</translation>
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
    <name>ZPainterBrush</name>
    <message>
        <source>Brush Color</source>
        <translation>Pinselfarbe</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Rotate the brush</source>
        <translation>Dreht den Pinsel</translation>
    </message>
    <message>
        <source>Angle Jitter</source>
        <translation>Winkel-Jitter</translation>
    </message>
    <message>
        <source>Angle Jitter can be used to create variance in the brush stroke</source>
        <translation>Mit Winkel-Jitter wird der Strich im Winkel unregelmäßig</translation>
    </message>
    <message>
        <source>Use pen pressure to control size.
Requires a pressure sensitive tablet.</source>
        <translation>Der Stiftdruck steuert die Größe.
Erfordert ein druckempfindliches Grafiktablett.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Adjust the size of the brush</source>
        <translation>Stellt die Größe des Pinsels ein</translation>
    </message>
    <message>
        <source>Size Jitter</source>
        <translation>Größen-Jitter</translation>
    </message>
    <message>
        <source>Size Jitter can be used to create variance in the brush stroke</source>
        <translation>Mit Größen-Jitter wird der Strich in der Größe unregelmäßig</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Adjust the spacing of the brush</source>
        <translation>Stellt den Abstand der Pinselabdrücke ein</translation>
    </message>
    <message>
        <source>Use pen pressure to control flow.
Requires a pressure sensitive tablet.</source>
        <translation>Der Stiftdruck steuert den Fluss.
Erfordert ein druckempfindliches Grafiktablett.</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Fluss</translation>
    </message>
    <message>
        <source>Adjust the flow of the brush</source>
        <translation>Stellt den Farbfluss des Pinsels ein</translation>
    </message>
    <message>
        <source>Flow Jitter</source>
        <translation>Fluss-Jitter</translation>
    </message>
    <message>
        <source>Flow Jitter can be used to create variance in the brush stroke</source>
        <translation>Mit Fluss-Jitter wird der Strich im Farbfluss unregelmäßig</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Adjust the opacity of the brush</source>
        <translation>Stellt die Deckkraft des Pinsels ein</translation>
    </message>
    <message>
        <source>Use pen pressure to control opacity.
Requires a pressure sensitive tablet.</source>
        <translation>Der Stiftdruck steuert die Deckkraft.
Erfordert ein druckempfindliches Grafiktablett.</translation>
    </message>
    <message>
        <source>Hardness</source>
        <translation>Härte</translation>
    </message>
    <message>
        <source>Adjust the hardness of the brush</source>
        <translation>Stellt die Kantenschärfe des Pinsels ein</translation>
    </message>
    <message>
        <source>Follow Path</source>
        <translation>Dem Pfad folgen</translation>
    </message>
    <message>
        <source>Rotate the brush with the direction of the stroke</source>
        <translation>Dreht den Pinsel mit der Richtung des Strichs</translation>
    </message>
    <message>
        <source>Brush Shape</source>
        <translation>Pinselform</translation>
    </message>
    <message>
        <source>Use alpha</source>
        <translation>Alpha verwenden</translation>
    </message>
    <message>
        <source>Use Camera Projection</source>
        <translation>Kameraprojektion verwenden</translation>
    </message>
    <message>
        <source>Projects the brush from the camera instead of normal to the object</source>
        <translation>Projiziert den Pinsel von der Kamera aus statt senkrecht auf das Objekt</translation>
    </message>
    <message>
        <source>Only Draw on Plane</source>
        <translation>Nur in einer Fläche malen</translation>
    </message>
    <message>
        <source>Picks a plane from the starting point, to paint in</source>
        <translation>Legt durch den Anfangspunkt eine Fläche, in der gemalt wird</translation>
    </message>
    <message>
        <source>Scale with size</source>
        <translation>Mit der Größe skalieren</translation>
    </message>
    <message>
        <source>Space Unit</source>
        <translation>Maßeinheit</translation>
    </message>
    <message>
        <source>Scene Units</source>
        <translation>Szeneneinheiten</translation>
    </message>
    <message>
        <source>Pixel</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Color Selection</source>
        <translation>Farbquelle</translation>
    </message>
    <message>
        <source>Solid Color</source>
        <translation>Einfarbig</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Textur</translation>
    </message>
    <message>
        <source>Shader</source>
        <translation>Shader</translation>
    </message>
    <message>
        <source>Paint Mode</source>
        <translation>Malmodus</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>Strich</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Stempel</translation>
    </message>
</context>
<context>
    <name>ZUndoCommand</name>
    <message>
        <source>Delete Light Layer (%1)</source>
        <translation>Lichtebene löschen (%1)</translation>
    </message>
    <message>
        <source>Create light layer</source>
        <translation>Lichtebene anlegen</translation>
    </message>
    <message>
        <source>Create Light Layer (%1)</source>
        <translation>Lichtebene anlegen (%1)</translation>
    </message>
    <message>
        <source>Update light layer</source>
        <translation>Lichtebene ändern</translation>
    </message>
</context>
</TS>
