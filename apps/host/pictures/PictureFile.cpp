#include "host/pictures/PictureFile.h"

#include "host/Host.h"
#include "host/OutputFile.h"
#include "host/pictures/png.h"
#include "host/pictures/svg.h"

namespace app {

PictureFile PictureFile::take(Host& host, Arguments& arguments) {
    PictureFile file;
    file.path = arguments.word("a path");
    file.dark = arguments.flag("dark");
    file.failingStep = host.renderer().faults().failSaveStep;
    return file;
}

void PictureFile::write(Picture const& picture) const {
    if (path.ends_with(".png")) {
        return writeOutputFile(path, png(picture, dark ? Theme::Dark : Theme::Light), failingStep);
    }
    if (!path.ends_with(".svg")) {
        throw CommandError("expected a path that ends in .svg or .png");
    }
    writeOutputFile(path, dark ? svg(picture, Theme::Dark) : svg(picture), failingStep);
}

} // namespace app
