#include "support/TestScene.h"

#include "nyxembedded/Warnings.h"
#include "nyxrender/nyx_color.h"
#include "nyxrender/nyx_memory.h"

#include <gmock/gmock.h>

#include <cstring>
#include <thread>
#include <vector>

using nyx::ColorId;
using testing::ElementsAre;

namespace {

std::vector<std::string> names(nyxParameter_edit const& block) {
    std::vector<std::string> result;
    for (std::int32_t i = 0; i < block.count; ++i) {
        result.emplace_back(block.entries[i].name);
    }
    return result;
}

class RendererBlocks : public TestScene {
protected:
    /// Hands out a block, lets it be changed, commits and releases it.
    template <class Change>
    void edit(ColorId id, Change change) {
        nyxParameter_edit* const block = api()->color_params(id);
        ASSERT_NE(block, nullptr);
        change(*block);
        api()->commit_color_params(block);
        api()->release_color_params(block);
    }

    static void replaceList(nyxParameter_entry& entry, std::vector<ColorId> const& ids) {
        nyx_free_aligned(entry.value.list.ids);
        entry.value.list = {nullptr, static_cast<std::int32_t>(ids.size())};
        if (!ids.empty()) {
            std::size_t const bytes = ids.size() * sizeof(ColorId);
            entry.value.list.ids = static_cast<ColorId*>(nyx_malloc_aligned(bytes, 32));
            std::memcpy(static_cast<void*>(entry.value.list.ids), ids.data(), bytes);
        }
    }
};

} // namespace

TEST_F(RendererBlocks, AllEntriesAreThereWithTheValuesOfTheRecord) {
    SmallScene const made = addSmallScene();
    nyxParameter_edit* const color = api()->color_params(made.cover);
    EXPECT_EQ(color->kind, 3);
    EXPECT_EQ(color->record_id, 4u);
    EXPECT_THAT(names(*color), ElementsAre("id", "display_name", "original_name", "color", "flags",
                                           "sub_colors", "active_sub"));
    EXPECT_EQ(findEntry(*color, "id")->value.word, 4u);
    EXPECT_STREQ(findEntry(*color, "display_name")->value.text, "Cover");
    EXPECT_EQ(findEntry(*color, "original_name")->value.text, nullptr);
    EXPECT_EQ(findEntry(*color, "color")->value.rgba[3], 1.0f);
    EXPECT_EQ(findEntry(*color, "flags")->value.word, 1u);
    ASSERT_EQ(findEntry(*color, "sub_colors")->value.list.count, 2);
    EXPECT_EQ(findEntry(*color, "sub_colors")->value.list.ids[1], made.green);
    EXPECT_EQ(findEntry(*color, "active_sub")->value.word, made.red.toUint());

    nyxParameter_edit* const colorway = api()->colorway_params(made.winter);
    EXPECT_EQ(colorway->kind, 4);
    EXPECT_EQ(colorway->record_id, 2u);
    EXPECT_THAT(names(*colorway),
                ElementsAre("id", "display_name", "multi_colors", "active_sub_indices", "flags"));
    EXPECT_EQ(findEntry(*colorway, "active_sub_indices")->value.list.ids[0], made.green);

    nyxParameter_edit* const settings = api()->color_settings_params();
    EXPECT_EQ(settings->kind, 5);
    EXPECT_THAT(names(*settings), ElementsAre("active_colorway_id"));
    settings->entries[0].value.word = 2;
    api()->commit_color_settings_params(settings);
    EXPECT_EQ(renderer.activeColorway(), made.winter);
    renderer.faults().noSettings = true;
    EXPECT_EQ(api()->color_settings_params(), nullptr);

    EXPECT_EQ(renderer.ledger().blocks, 3u);
    // Handing the same record out again costs no more text.
    std::size_t const strings = renderer.ledger().strings;
    api()->release_color_params(api()->color_params(made.cover));
    EXPECT_EQ(renderer.ledger().strings, strings);
    // The texts of a block outlive the scene's contents.
    ASSERT_EQ(renderer.loadSceneText(nyx::embedded::Renderer().saveSceneText()), "");
    EXPECT_TRUE(renderer.colors().empty());
    EXPECT_STREQ(findEntry(*color, "display_name")->value.text, "Cover");
    api()->commit_color_params(color);
    EXPECT_TRUE(renderer.colors().empty());
    EXPECT_EQ(renderer.addColor("First after loading", {}), ColorId(5)) << "ids are not reused";
    api()->release_color_params(color);
    api()->release_colorway_params(colorway);
    api()->release_color_settings_params(settings);
    api()->release_color_params(nullptr);
}

TEST_F(RendererBlocks, CommitsWriteByRecordIdAndKindAndLeaveTheIdEntryAlone) {
    SmallScene const made = addSmallScene();
    edit(made.cover, [&](nyxParameter_edit& block) {
        findEntry(block, "id")->value.word = 99;
        replaceList(*findEntry(block, "sub_colors"), {made.blue, made.red, made.green});
        findEntry(block, "active_sub")->value.word = made.blue.toUint();
    });
    EXPECT_THAT(renderer.color(made.cover)->subColors,
                ElementsAre(made.blue, made.red, made.green));
    EXPECT_EQ(renderer.color(made.cover)->activeSub, made.blue);

    std::string const before = renderer.dump();
    nyxParameter_edit* const block = api()->color_params(made.red);
    findEntry(*block, "color")->value.rgba[0] = 0.5f;
    block->record_id = 99;
    api()->commit_color_params(block);
    block->record_id = 1;
    api()->commit_colorway_params(block);
    api()->commit_color_settings_params(block);
    api()->commit_color_params(nullptr);
    EXPECT_EQ(renderer.dump(), before) << "unknown record, wrong kind";
    renderer.removeColor(made.red);
    api()->commit_color_params(block);
    EXPECT_FALSE(renderer.color(made.red)) << "a commit brings nothing back";
    api()->release_color_params(block);

    nyxParameter_edit* const colorway = api()->colorway_params(made.summer);
    replaceList(*findEntry(*colorway, "multi_colors"), {});
    findEntry(*colorway, "flags")->value.word = 3;
    api()->commit_colorway_params(colorway);
    EXPECT_EQ(renderer.colorway(made.summer)->flags, 3u);
    EXPECT_TRUE(renderer.colorway(made.summer)->multiColors.empty());
    EXPECT_EQ(renderer.colorway(made.summer)->activeSubs.size(), 1u) << "nothing forces a length";
    api()->release_colorway_params(colorway);
}

TEST_F(RendererBlocks, ClonesAreDeepAndOfAnyKind) {
    SmallScene const made = addSmallScene();
    nyxParameter_edit* const block = api()->color_params(made.cover);
    nyxParameter_edit* const clone = api()->clone_color_params(block, true);
    replaceList(*findEntry(*block, "sub_colors"), {made.blue});
    api()->release_color_params(block);
    EXPECT_EQ(clone->record_id, made.cover.toUint());
    ASSERT_EQ(findEntry(*clone, "sub_colors")->value.list.count, 2);
    EXPECT_EQ(findEntry(*clone, "sub_colors")->value.list.ids[0], made.red);
    nyxParameter_edit* const empty = api()->clone_color_params(clone, false);
    EXPECT_EQ(names(*empty), names(*clone));
    EXPECT_EQ(findEntry(*empty, "sub_colors")->value.list.ids, nullptr);
    EXPECT_EQ(findEntry(*empty, "display_name")->value.text, nullptr);
    nyxParameter_edit* const colorway = api()->colorway_params(made.summer);
    nyxParameter_edit* const colorwayClone = api()->clone_color_params(colorway, true);
    EXPECT_EQ(colorwayClone->kind, 4);
    EXPECT_NE(findEntry(*colorwayClone, "multi_colors")->value.list.ids,
              findEntry(*colorway, "multi_colors")->value.list.ids);
    EXPECT_EQ(api()->clone_color_params(nullptr, true), nullptr);
    for (nyxParameter_edit* const each : {clone, empty}) {
        api()->release_color_params(each);
    }
    for (nyxParameter_edit* const each : {colorway, colorwayClone}) {
        api()->release_colorway_params(each);
    }
}

TEST_F(RendererBlocks, TamperedBlocksAreReadByNameAndLoseNothing) {
    SmallScene const made = addSmallScene();
    auto const was = *renderer.color(made.cover);
    edit(made.cover, [this](nyxParameter_edit& block) {
        findEntry(block, "color")->value.rgba[0] = 0.5f;
        std::strcpy(findEntry(block, "sub_colors")->name, "unknown");
        std::memset(findEntry(block, "flags")->name, 'x', 40); // no closing zero either
        std::strcpy(findEntry(block, "original_name")->name, "display_name");
        block.entries[2].value.text = nyx_string_dup(*scene(), "Later wins");
    });
    EXPECT_EQ(renderer.color(made.cover)->value.r, 0.5f);
    EXPECT_EQ(renderer.color(made.cover)->subColors, was.subColors);
    EXPECT_EQ(renderer.color(made.cover)->flags, was.flags);
    EXPECT_EQ(renderer.color(made.cover)->name, "Later wins");

    edit(made.cover, [this](nyxParameter_edit& block) {
        std::swap(block.entries[0], block.entries[5]);
        nyxParameter_edit* const clone = api()->clone_color_params(&block, true);
        clone->count = -1;
        api()->commit_color_params(clone);
        clone->entries = nullptr;
        clone->count = 7;
        api()->commit_color_params(clone);
        api()->release_color_params(clone);
    });
    edit(made.cover,
         [](nyxParameter_edit& block) { findEntry(block, "sub_colors")->value.list.count = -5; });
    EXPECT_TRUE(renderer.color(made.cover)->subColors.empty());
}

TEST_F(RendererBlocks, JournalNamesEveryCallInOrder) {
    SmallScene const made = addSmallScene();
    EXPECT_EQ(takeJournal(), "") << "switched off until now, and building is not a call";
    api()->lock();
    edit(made.red, [](nyxParameter_edit&) {});
    api()->unlock();
    api()->set_modified(true);
    api()->refresh(3);
    static_cast<void>(nyx_get_colors(scene(), nyxColor_extended::PlainColor));
    static_cast<void>(nyx_color_reference_count(scene(), ColorId()));
    nyx_free(nyx_color_find_unique_name(scene(), "Red", {made.red, made.blue},
                                        nyxColor_extended::MultiColor));
    EXPECT_EQ(takeJournal(), "lock\n"
                             "color_params 1\n"
                             "commit_color_params 1\n"
                             "release_color_params 1\n"
                             "unlock\n"
                             "set_modified true\n"
                             "refresh 3\n"
                             "nyx_get_colors 1\n"
                             "nyx_color_reference_count -\n"
                             "nyx_color_find_unique_name \"Red\" [1 3] 2");
    EXPECT_TRUE(renderer.isModified());
    EXPECT_EQ(renderer.refreshCount(), 1u);
    renderer.recordJournal(false);
    api()->refresh(3);
    EXPECT_TRUE(renderer.takeJournal().empty());
}

TEST_F(RendererBlocks, TheLockIsRecursiveAndAStrayUnlockIsReported) {
    std::string warnings;
    nyx::embedded::setWarningHandler([&](std::string_view text) { warnings += text; });
    api()->lock();
    api()->lock();
    EXPECT_EQ(renderer.ledger().lockDepth, 2);
    api()->unlock();
    std::thread([this] { api()->unlock(); }).join();
    EXPECT_EQ(warnings, "nyxrender: unlock() without lock()\n");
    EXPECT_EQ(renderer.ledger().lockDepth, 1) << "another thread's unlock does not count";
    api()->unlock();
    api()->unlock();
    EXPECT_EQ(renderer.ledger().lockDepth, 0);
    nyx::embedded::setWarningHandler({});
}
