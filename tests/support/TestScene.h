#pragma once

#include "nyxembedded/Renderer.h"
#include "nyxrender/nyxParameter_edit.h"
#include "nyxrender/nyxRT_api.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

/// Three plain colours, a multi-colour over two of them, two colorways over that, and two
/// materials; one object uses the first. Ids ascend from 1 in the order of the members.
struct SmallScene {
    nyx::ColorId red, green, blue;
    nyx::ColorId cover;             ///< multi-colour of red (active) and green
    nyx::ColorwayId summer, winter; ///< cover shows red, cover shows green
    nyx::MaterialId fabric, frame;  ///< 1 "color" cover, 2 "seam" red; 1 "color" blue
    nyx::ObjectId chair;            ///< of fabric
};

/// A fixture with an embedded renderer. When everything of the test is gone, members of derived
/// fixtures included, it checks that all that the renderer lent came back: blocks, arrays, aligned
/// memory, texts, locks.
class TestScene : public testing::Test {
protected:
    TestScene() = default;
    ~TestScene() override;

    [[nodiscard]] nyxRT_api* api() { return renderer.api(); }
    [[nodiscard]] nyxScene* scene() { return renderer.scene(); }

    /// What was called since the last time, one line each, and from now on it is recorded.
    std::string takeJournal();

    SmallScene addSmallScene();

    /// Lends a colour's block to `change`, commits and releases it.
    void edit(nyx::ColorId id, std::function<void(nyxParameter_edit&)> const& change);

    nyx::embedded::Renderer renderer;

private:
    nyx::embedded::Ledger const atStart_ = renderer.ledger();
};

/// The entry of a name in a block; ends the program when there is none.
nyxParameter_entry& entry(nyxParameter_edit& block, std::string const& name);
/// Its value.
inline nyxParameter_value& value(nyxParameter_edit& block, std::string const& name) {
    return entry(block, name).value;
}
/// Gives a list entry other ids as an application does: the old list is freed.
void setList(nyxParameter_value& value, nyx::Span<nyx::ColorId> ids);
