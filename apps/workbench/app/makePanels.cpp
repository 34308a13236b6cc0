#include "workbench/app/makePanels.h"

#include "host/DemoPanel.h"
#include "workbench/app/ConsolePanel.h"
#include "workbench/app/Document.h"
#include "workbench/app/HostCanvas.h"
#include "workbench/app/MainWindow.h"
#include "workbench/colors/ColorEditor.h"
#include "workbench/colors/ColorsPanel.h"
#include "workbench/colors/ColorwaysPanel.h"
#include "workbench/colors/MultiColorPanel.h"
#include "workbench/events/EventsPanel.h"
#include "workbench/history/HistoryPanel.h"
#include "workbench/lights/LightLayersPanel.h"
#include "workbench/lights/LightMatrixPanel.h"
#include "workbench/materials/MaterialPanel.h"
#include "workbench/painting/BrushPanel.h"
#include "workbench/painting/LayersPanel.h"
#include "workbench/painting/PicturePanel.h"
#include "workbench/values/ParametersPanel.h"
#include "workbench/values/ValuesPanel.h"

namespace workbench {

void makePanels(MainWindow& window) {
    using Place = MainWindow::Place;
    Document& document = window.document();
    Scene& scene = document.scene();

    auto* const colours = new ColorsPanel(scene);
    auto* const multi = new MultiColorPanel(scene);
    auto* const editor = new ColorEditor(scene);
    QObject::connect(colours, &ColorsPanel::currentChanged, multi, &MultiColorPanel::setColor);
    QObject::connect(colours, &ColorsPanel::currentChanged, editor, &ColorEditor::setColor);

    auto* const canvas = new HostCanvas(document.host(), scene, &window);
    QObject::connect(&scene, &Scene::commandsRan, canvas, &HostCanvas::noteCommands);

    auto* const material = new MaterialPanel(scene);
    QObject::connect(material, &MaterialPanel::colorWanted, colours, &ColorsPanel::setCurrent);
    auto* const lightLayers = new LightLayersPanel(scene);
    auto* const matrix = new LightMatrixPanel(scene);
    QObject::connect(lightLayers, &LightLayersPanel::assignmentWanted, matrix,
                     &LightMatrixPanel::assignSelected);

    // The first one of a place is in front.
    window.addPanel(Place::Center, "picture", MainWindow::tr("Picture"),
                    new PicturePanel(scene, *canvas));
    window.addPanel(Place::Center, "matrix", MainWindow::tr("Matrix"), matrix);
    window.addPanel(Place::Center, "values", MainWindow::tr("Values"),
                    new ValuesPanel(scene, document.values()));
    window.addPanel(Place::LeftUpper, "colours", MainWindow::tr("Colours"), colours);
    window.addPanel(Place::LeftLower, "multicolour", MainWindow::tr("Multi-Colour"), multi);
    window.addPanel(Place::LeftLower, "lightlayers", MainWindow::tr("Light Layers"), lightLayers);
    window.addPanel(Place::LeftLower, "brush", MainWindow::tr("Brush"),
                    new BrushPanel(scene, *canvas));
    window.addPanel(Place::RightUpper, "coloreditor", MainWindow::tr("Colour Editor"), editor);
    window.addPanel(Place::RightUpper, "material", MainWindow::tr("Material"), material);
    auto const& settings = document.host().state<app::DemoPanel>().parameters;
    window.addPanel(Place::RightUpper, "parameters", MainWindow::tr("Parameters"),
                    new ParametersPanel(scene, document.values(), MainWindow::tr("Demonstration"),
                                        {settings.begin(), settings.end()}));
    window.addPanel(Place::RightLower, "history", MainWindow::tr("History"),
                    new HistoryPanel(scene));
    window.addPanel(Place::RightLower, "layers", MainWindow::tr("Paint Layers"),
                    new LayersPanel(scene, *canvas));
    window.addPanel(Place::Bottom, "colorways", MainWindow::tr("Colorways"),
                    new ColorwaysPanel(scene));
    window.addPanel(Place::Bottom, "console", MainWindow::tr("Console"),
                    new ConsolePanel(document));
    window.addPanel(Place::Bottom, "events", MainWindow::tr("Events"), new EventsPanel(scene));
}

} // namespace workbench
