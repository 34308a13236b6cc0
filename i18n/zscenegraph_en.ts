<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>DescribeMaterialCommand</name>
    <message>
        <source>Describe Material (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaintCommand</name>
    <message>
        <source>Erase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paint</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Load Palette (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Multi-Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable Multi Color (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable Multi Color (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link Color (%1) To (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Schema attributes are incorrectly formatted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File does not contain a valid json. Error: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File does not contain a json object at the root</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File format version is too old or unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Schema has no saved name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The display name of an attribute is absent or is not a string.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two attributes have identical names: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The kind of an attribute is absent or is not encoded as a number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Material Information Schema &quot;%1&quot; includes properties with invalid types, properties will be hidden.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The visibility of an attribute is absent or is not a boolean.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZActivateColorwayCommand</name>
    <message>
        <source>Switch Colorway (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZAddLayerCommand</name>
    <message>
        <source>3D Paint add layer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZCreateColorwayCommand</name>
    <message>
        <source>Create Colorway</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZDeleteLayerCommand</name>
    <message>
        <source>3D Paint delete layer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZEditColorCommand</name>
    <message>
        <source>Set Color name %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Sub Color %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Sub Color %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Sub Color %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlink Sub Color %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Sub Color %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify Color %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Color name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZEditColorWayCommand</name>
    <message>
        <source>Set Colorway name %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Colorway %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Colorway %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Colorway name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZEditMaterialCommand</name>
    <message>
        <source>Edit Material %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZLayerBackgroundCommand</name>
    <message>
        <source>3D Paint change layer background</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZLayerBlendCommand</name>
    <message>
        <source>3D Paint change layer blend mode</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZLayerNameCommand</name>
    <message>
        <source>3D Paint change layer name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZLayerVisibilityCommand</name>
    <message>
        <source>3D Paint change layer visibility</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZMoveLayerCommand</name>
    <message>
        <source>3D Paint move layer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZPainterBrush</name>
    <message>
        <source>Brush Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate the brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle Jitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle Jitter can be used to create variance in the brush stroke</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use pen pressure to control size.
Requires a pressure sensitive tablet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust the size of the brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size Jitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size Jitter can be used to create variance in the brush stroke</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust the spacing of the brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use pen pressure to control flow.
Requires a pressure sensitive tablet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust the flow of the brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flow Jitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flow Jitter can be used to create variance in the brush stroke</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust the opacity of the brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use pen pressure to control opacity.
Requires a pressure sensitive tablet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hardness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust the hardness of the brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follow Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate the brush with the direction of the stroke</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brush Shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use alpha</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Camera Projection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projects the brush from the camera instead of normal to the object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only Draw on Plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picks a plane from the starting point, to paint in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale with size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene Units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solid Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shader</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paint Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZUndoCommand</name>
    <message>
        <source>Delete Light Layer (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create light layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Light Layer (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update light layer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
