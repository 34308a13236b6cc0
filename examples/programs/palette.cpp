// Colours: a palette of its own, a multi-colour that is switched by colorways, and one drag in a
// colour picker that becomes one undo step.

#include <nyxembedded/Host.h>
#include <zsg/colors/ColorController.h>
#include <zsg/colors/ColorDB.h>
#include <zsg/colors/MultiColorPair.h>
#include <zsg/core/ISceneGraph.h>

#include <iostream>

int main() {
    nyx::embedded::Host host;
    zsg::ColorDB& db = *host.root().colorDB();
    zsg::ColorController& edit = *host.root().colorController();

    // Making records is not undoable; what is done with them is.
    auto const add = [&](char const* name, float r, float g, float b) {
        ZColorExt color(r, g, b); // linear light
        color.setColorName(name);
        db.pushColor(color); // takes the id, and a number behind the name when that is taken
        return color.getId();
    };
    nyx::ColorId const oak = add("Oak", 0.33f, 0.19f, 0.08f);
    nyx::ColorId const slate = add("Slate", 0.05f, 0.06f, 0.07f);
    nyx::ColorId const frame = db.createColor("Frame", nyxColor_extended::MultiColor);
    auto const show = [&](char const* when) {
        ZColorExt const color = db.colorFromId(frame);
        std::cout << when << ": " << color.getColorName() << " shows "
                  << color.getName(color.activeIndex()) << ", red " << color.rgba().r << '\n';
    };

    nyx::ColorId const both[] = {oak, slate};
    edit.addSubColors(frame, both, -1, oak);
    show("made");

    zsg::MultiColorPair const day[] = {{frame, oak}};
    zsg::MultiColorPair const night[] = {{frame, slate}};
    edit.createColorway("Day", day);
    edit.applyColorway(edit.createColorway("Night", night));
    show("by night");

    // While the pointer moves, each step may merge with the one before; the last one may not.
    for (int step = 1; step <= 10; ++step) {
        edit.setColor(slate, ZColor(float(step) / 100, 0.06f, 0.07f),
                      step < 10 ? zsg::AllowForwardUndoMerge::Yes : zsg::AllowForwardUndoMerge::No);
    }
    show("after the drag");

    ZUndoStack& undo = host.undoStack();
    for (int i = 0; i < undo.count(); ++i) {
        std::cout << "  " << undo.text(i).toStdString() << '\n';
    }
    undo.undo();
    show("drag undone");
    undo.undo();
    show("colorway undone");
    return 0;
}
