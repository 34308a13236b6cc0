#include "support/TestScene.h"

#include "nyxrender/nyx_memory.h"

#include <cstdlib>
#include <cstring>

TestScene::~TestScene() {
    nyx::embedded::Ledger const ledger = renderer.ledger();
    EXPECT_EQ(ledger.blocks, 0u);
    EXPECT_EQ(ledger.lockDepth, 0);
    EXPECT_EQ(ledger.arrays, atStart_.arrays);
    EXPECT_EQ(ledger.alignedBlocks, atStart_.alignedBlocks);
    EXPECT_EQ(ledger.texts, atStart_.texts);
}

std::string TestScene::takeJournal() {
    renderer.journal().setRecording(true);
    std::string text;
    for (std::string const& line : renderer.journal().take()) {
        text += text.empty() ? line : '\n' + line;
    }
    return text;
}

SmallScene TestScene::addSmallScene() {
    SmallScene made;
    made.red = renderer.colors().add("Red", {1, 0, 0, 1});
    made.green = renderer.colors().add("Green", {0, 1, 0, 1});
    made.blue = renderer.colors().add("Blue", {0, 0, 1, 1});
    made.cover = renderer.colors().addMulti("Cover", {made.red, made.green}, made.red);
    made.summer = renderer.colorways().add("Summer", {{made.cover, made.red}});
    made.winter = renderer.colorways().add("Winter", {{made.cover, made.green}});
    made.fabric = renderer.materials().add("Fabric");
    made.frame = renderer.materials().add("Frame");
    renderer.materials().bindColor(made.fabric, 1, "color", made.cover);
    renderer.materials().bindColor(made.fabric, 2, "seam", made.red);
    renderer.materials().bindColor(made.frame, 1, "color", made.blue);
    made.chair = renderer.items().addObject("Chair", {}, made.fabric);
    return made;
}

void TestScene::edit(nyx::ColorId id, std::function<void(nyxParameter_edit&)> const& change) {
    nyxParameter_edit* const block = api()->color_params(id);
    ASSERT_NE(block, nullptr);
    change(*block);
    api()->commit_color_params(block);
    api()->release_color_params(block);
}

nyxParameter_entry& entry(nyxParameter_edit& block, std::string const& name) {
    for (std::int32_t i = 0; i < block.count; ++i) {
        if (block.entries[i].name == name) {
            return block.entries[i];
        }
    }
    std::abort();
}

void setList(nyxParameter_value& value, nyx::Span<nyx::ColorId> ids) {
    std::size_t const bytes = ids.size() * sizeof(nyx::ColorId);
    nyx_free_aligned(value.list.ids);
    value.list = {
        static_cast<nyx::ColorId*>(nyx_malloc_aligned(bytes, nyxParameter_edit::ListAlignment)),
        static_cast<std::int32_t>(ids.size())};
    if (bytes != 0) {
        std::memcpy(static_cast<void*>(value.list.ids), ids.data(), bytes);
    }
}
