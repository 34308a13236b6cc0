#include "workbench/colors/importColors.h"

#include "workbench/colors/swatch.h"
#include "workbench/scene/Scene.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/colors/IColorLinkHandler.h"
#include "zsg/colors/IColorLinker.h"

#include <QMessageBox>
#include <QPushButton>

#include <map>
#include <optional>

namespace workbench {

namespace {

using Resolution = zsg::IColorLinkHandler::Resolution;

/// Answers as the user has answered for that name.
class Answers final : public zsg::IColorLinkHandler {
public:
    Resolution resolveConflict(ZColorExt const& color, int index, nyx::ColorId) override {
        auto const found = byName_.find(color.getName(index));
        return found == byName_.end() ? Resolution::Rename : found->second;
    }

    [[nodiscard]] bool knows(std::string const& name) const { return byName_.contains(name); }
    void set(std::string const& name, Resolution answer) { byName_[name] = answer; }

private:
    std::map<std::string, Resolution> byName_;
};

std::optional<Resolution> ask(QString const& name, QWidget* parent) {
    QMessageBox box(QMessageBox::Question, QObject::tr("Colour of the same name"),
                    QObject::tr("The scene uses another colour with the name %1.").arg(name),
                    QMessageBox::Cancel, parent);
    auto* const link =
        box.addButton(QObject::tr("Use the One That Is There"), QMessageBox::YesRole);
    auto* const rename = box.addButton(QObject::tr("Bring It in Renamed"), QMessageBox::NoRole);
    box.setDefaultButton(rename);
    box.exec();
    return box.clickedButton() == link     ? std::optional(Resolution::Link)
           : box.clickedButton() == rename ? std::optional(Resolution::Rename)
                                           : std::nullopt;
}

} // namespace

std::vector<nyx::ColorId> importColors(Scene& scene, std::vector<ZColorExt> colors,
                                       QWidget* parent) {
    zsg::ColorController* const controller = scene.colorController();
    if (!controller) {
        return {};
    }
    Answers answers;
    for (ZColorExt const& color : colors) {
        for (auto const& conflict : controller->checkForConflict(color)) {
            if (answers.knows(conflict.name)) {
                continue;
            }
            auto const answer = ask(QString::fromStdString(conflict.name), parent);
            if (!answer) {
                return {};
            }
            answers.set(conflict.name, *answer);
        }
    }
    auto const linker = scene.colorDB()->getColorLinker(controller, &answers);
    std::vector<nyx::ColorId> ids;
    ids.reserve(colors.size());
    for (ZColorExt& color : colors) {
        ids.push_back(linker->importColor(color));
    }
    scene.noteUnrecordedChange();
    scene.say(
        QObject::tr("%n colours brought in. This cannot be undone.", nullptr, int(ids.size())));
    return ids;
}

} // namespace workbench
