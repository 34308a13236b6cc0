<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Channel</name>
    <message>
        <source>Hue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeptValues</name>
    <message>
        <source>The values of the last time could not be read; they are in %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NameValue</name>
    <message>
        <source>New Value %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Value %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Import a Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n colours of the palette have names that belong to colours of other values here.</source>
        <translation>
            <numerusform>%n colour of the palette has a name that belongs to a colour of another value here.</numerusform>
            <numerusform>%n colours of the palette have names that belong to colours of other values here.</numerusform>
        </translation>
    </message>
    <message>
        <source>Bring Them in Renamed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Those Here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Those Here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Palette (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n colours brought in. This cannot be undone.</source>
        <translation>
            <numerusform>%n colour brought in. This cannot be undone.</numerusform>
            <numerusform>%n colours brought in. This cannot be undone.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n colours changed.</source>
        <translation>
            <numerusform>%n colour changed.</numerusform>
            <numerusform>%n colours changed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n colours were there.</source>
        <translation>
            <numerusform>%n colour was there.</numerusform>
            <numerusform>%n colours were there.</numerusform>
        </translation>
    </message>
    <message>
        <source>The palette has no colours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n colours written.</source>
        <translation>
            <numerusform>%n colour written.</numerusform>
            <numerusform>%n colours written.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them were cut to opaque sRGB.</source>
        <translation>
            <numerusform>%n of them was cut to opaque sRGB.</numerusform>
            <numerusform>%n of them were cut to opaque sRGB.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n colours could not be made.</source>
        <translation>
            <numerusform>%n colour could not be made.</numerusform>
            <numerusform>%n colours could not be made.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ParameterEdit</name>
    <message>
        <source>Set %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Colour of the same name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene uses another colour with the name %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the One That Is There</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bring It in Renamed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A scene has 32 light layers at most, and deleted ones keep their place. Restore one of those instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate Light Layer (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Lights to New Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be deleted: the lights of deleted layers go there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put a Light into Layer (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put %2 Lights into Layer (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An attribute needs a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A name cannot hold vertical bars: schema files lose them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is an attribute %1 already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n colours brought in. This cannot be undone.</source>
        <translation>
            <numerusform>%n colour brought in. This cannot be undone.</numerusform>
            <numerusform>%n colours brought in. This cannot be undone.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Swatch</name>
    <message>
        <source>unnamed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, brighter than the screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, multi-colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not used</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>used by %n places</source>
        <translation>
            <numerusform>used by %n place</numerusform>
            <numerusform>used by %n places</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WeaveEditor</name>
    <message>
        <source>Plain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Twill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Band</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Satin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Basket</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Herringbone</source>
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
    <name>ZMoveLayerCommand</name>
    <message>
        <source>3D Paint move layer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>loadValue</name>
    <message>
        <source>%1 holds no samples.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 holds no weave.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 holds no value.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::BoundColors</name>
    <message>
        <source>Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bind the Copied Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of node %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose one of the parameters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One colour of this scene can be bound.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::BrushPanel</name>
    <message>
        <source>A stroke of the brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of a preset cannot have a slash or begin with a dot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preset is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a preset of that name. Replace it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::CMFForm</name>
    <message>
        <source>&lt;b&gt;Other&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the material stores and the schema does not know</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift+Return: several lines</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ChoiceField</name>
    <message>
        <source>none of these</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mixed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ColorCard</name>
    <message>
        <source>Colours of the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n colours</source>
        <translation>
            <numerusform>%n colour</numerusform>
            <numerusform>%n colours</numerusform>
        </translation>
    </message>
    <message>
        <source>not used</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>used by %n places</source>
        <translation>
            <numerusform>used by %n place</numerusform>
            <numerusform>used by %n places</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>workbench::ColorEditor</name>
    <message>
        <source>HSV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sRGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hexadecimal value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Used by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No colour is selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, the active colour of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no colour; expected #rrggbb or #rrggbbaa.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ColorField</name>
    <message>
        <source>Choose by hue, saturation and brightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hexadecimal value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mixed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no color; expected #rrggbb or #rrggbbaa.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ColorModel</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uses</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ColorWheel</name>
    <message>
        <source>Hue, saturation and brightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hue %1 degrees, saturation %2 %, brightness %3 %</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ColorsPanel</name>
    <message>
        <source>find by name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find by name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In Use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show a list in place of tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn into &amp;Multi-Colour or Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was made. This cannot be undone, because a scene keeps its records.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour has no name, and the scene has no free one to give it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no colour on the clipboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GIMP palettes (*.gpl)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import Palette…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import a Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export Palette…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export a Palette</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ColorwayModel</name>
    <message>
        <source>–</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in %2: stays as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, deleted</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ColorwaysPanel</name>
    <message>
        <source>Colorways</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete or Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave It as It Is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colorway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename the Colorway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch back (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It lists a multi-colour that is gone. Nothing was switched.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ConsolePanel</name>
    <message>
        <source>What the commands have printed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a command; &quot;help&quot; lists them</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::CurveEditor</name>
    <message>
        <source>How the curve goes on from the key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>U: smooth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>T: smooth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>s: step at the next key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S: step at this key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L: straight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A double click in the plot makes one, too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Key</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::CurvePlot</name>
    <message>
        <source>Keys of the curve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>incoming handle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>outgoing handle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key %1 of %2, %3, x %4, y %5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A handle has to stay on its side of the key.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A key has to stay between its neighbors.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::DeleteLightLayer</name>
    <message>
        <source>Delete Light Layer (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore Light Layer (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::Document</name>
    <message>
        <source>%1 (recovered)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unnamed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No copy for after a crash could be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::EventModel</name>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::EventsPanel</name>
    <message>
        <source>find by event or number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find by event or number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hold the list still; what comes meanwhile is shown afterwards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the selected rows, or all of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events: %1, older ones dropped: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ExpressionSpin</name>
    <message>
        <source>%1 is not from %2 to %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no number and no calculation.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::FileActions</name>
    <message>
        <source>Scenes (*.json);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene cannot be saved; it is as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has changes that are not saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a scene without a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved work was found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program ended without saving %1. A copy of %2 is there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep It for Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete It</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has changed %1. Load it, and lose what is not saved here?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has changed %1. Load it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has changed %1. Write over it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::GradientEditor</name>
    <message>
        <source>&amp;Blend between stops</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slope on the l&amp;eft</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slope on the &amp;right</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::GradientStrip</name>
    <message>
        <source>Stops of the gradient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No stops</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop %1 of %2 at %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::HistoryModel</name>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 – saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, undone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, saved</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::HistoryPanel</name>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::HostCanvas</name>
    <message>
        <source>Surface %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no surface to paint on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a layer to paint on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layer to paint on is hidden.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The renderer has no brush to paint with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stroke could not be kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The oldest steps can no longer be undone: what strokes keep for it has a limit of %1 MB.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ImageField</name>
    <message>
        <source>…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop a picture here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a Picture</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::LayersPanel</name>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paint Layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background of the Layer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::LightLayerModel</name>
    <message>
        <source>%1, lights: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, inverted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layer is edited by what it leaves out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lights</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::LightLayersPanel</name>
    <message>
        <source>Light Layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete or Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put Selected Lights Here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Deleted</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::LightMatrixModel</name>
    <message>
        <source>A light is always in a layer. Put it into another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is partly in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (inverted)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the renderer leaves this light out of lists, so it stays in its layer.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::LightMatrixPanel</name>
    <message>
        <source>find by name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find by name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In or Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the selected lights into the layer, or take them out (Space)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to New Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lights and Layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No light is selected in the matrix.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::MainWindow</name>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours of the &amp;System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next Panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous Panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find in Panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1[*] – zsg-workbench</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matrix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multi-Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light Layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paint Layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colorways</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Console</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Demonstration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Material</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::MaterialPanel</name>
    <message>
        <source>Material</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Load Schema…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load a CMF Schema</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CMF schemas (*.json)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Schema…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Attribute…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename Attribute…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Attribute &amp;Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Attribute &amp;Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Take Attribute Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Metadata…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Metadata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take M&amp;etadata Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CMF Schema</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the CMF Schema</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add an Attribute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename the Attribute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the field of an attribute first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A schema needs an attribute.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::MetadataTree</name>
    <message>
        <source>Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(all of it)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::MetalPlot</name>
    <message>
        <source>n, k and the reflectance over the wavelength</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples: %1, from %2 to %3 nm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to draw.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 nm</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::MetalView</name>
    <message>
        <source>Samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was said of the file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::MultiColorPanel</name>
    <message>
        <source>Sub-colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the order and the list as they are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a multi-colour to see what it holds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The multi-colour is locked.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::NumberField</name>
    <message>
        <source> K</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> px</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> %</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::NumberSpin</name>
    <message>
        <source>mixed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::NumbersField</name>
    <message>
        <source>Row %1, column %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::PaintLayerModel</name>
    <message>
        <source>Blend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Darken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Difference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>visible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, painted on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide Layers</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::PaintView</name>
    <message>
        <source>Painted surface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory to show this surface.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plus and minus zoom, 0 shows all, arrow keys move the picture; Ctrl and arrow keys move a pen, Return sets it down and lifts it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ParameterRow</name>
    <message>
        <source>%L1 to %L2; other numbers can be typed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no value to edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy &amp;Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clipboard holds no value for %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ParametersPanel</name>
    <message>
        <source>Whose parameters</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::PicturePanel</name>
    <message>
        <source>Surface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Surface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take paint away; the other end of a pen does so as well</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the whole surface (0)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A dot of the screen for every texel (1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texels along an edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new surface cannot be undone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The renderer makes no surface of this size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is painted in this scene yet; these are its colours. &quot;New Surface&quot; makes something to paint on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours of the scene</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::RenameLightLayer</name>
    <message>
        <source>Rename Light Layer (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ReplaceSchema</name>
    <message>
        <source>CMF Schema (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::Scene</name>
    <message>
        <source>A step of the history could not be carried out.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::SetLightLayerFlags</name>
    <message>
        <source>Set Light Layer Flags (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::SubColorModel</name>
    <message>
        <source>%1, active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The multi-colour is locked against changes of its order.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Sub Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A multi-colour cannot be part of another one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::SummaryField</name>
    <message>
        <source>mixed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 crossings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stops: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>keys: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::SwatchView</name>
    <message>
        <source>%1, brighter than the screen</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::TextField</name>
    <message>
        <source>One text a line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mixed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This cannot be read as a %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a File</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ToggleField</name>
    <message>
        <source>mixed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ValuesPanel</name>
    <message>
        <source>weave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gradient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>curve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>metal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a value, or select one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a %1 of that name already, or the name is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clipboard holds no %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load a Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values (*.json *.nk *.ior *.csv *.txt);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::WeaveEditor</name>
    <message>
        <source>Three repeats each way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left button: weft on top. Right button: warp on top.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind of weave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wefts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weft</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ribbon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Round</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: tension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: section</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::WeaveGrid</name>
    <message>
        <source>Crossings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column %1, row %2: %3 on top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>warp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>weft</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
