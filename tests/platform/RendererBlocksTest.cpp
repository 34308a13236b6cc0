#include "support/TestScene.h"

#include "nyxembedded/Warnings.h"
#include "nyxrender/Unique_array.h"
#include "nyxrender/nyx_color.h"
#include "nyxrender/nyx_memory.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <cstring>
#include <new>
#include <thread>
#include <utility>
#include <vector>

using nyx::ColorId;
using testing::ElementsAre;

namespace {

std::string names(nyxParameter_edit const& block) {
    std::string result = std::to_string(block.kind) + ':';
    for (std::int32_t i = 0; i < block.count; ++i) {
        result.append(1, ' ').append(block.entries[i].name);
    }
    return result;
}

using RendererBlocks = TestScene;

} // namespace

TEST_F(RendererBlocks, AllEntriesAreThereWithTheValuesOfTheRecord) {
    SmallScene const made = addSmallScene();
    nyxParameter_edit* const color = api()->color_params(made.cover);
    EXPECT_EQ(names(*color), "3: id display_name original_name color flags sub_colors active_sub");
    EXPECT_TRUE(color->record_id == 4 && value(*color, "id").word == 4);
    EXPECT_STREQ(value(*color, "display_name").text, "Cover");
    EXPECT_EQ(value(*color, "original_name").text, nullptr);
    EXPECT_EQ(value(*color, "color").rgba[3], 1.0f);
    EXPECT_EQ(value(*color, "flags").word, 1u);
    ASSERT_EQ(value(*color, "sub_colors").list.count, 2);
    EXPECT_EQ(value(*color, "sub_colors").list.ids[1], made.green);
    EXPECT_EQ(value(*color, "active_sub").word, made.red.toUint());

    nyxParameter_edit* const colorway = api()->colorway_params(made.winter);
    EXPECT_EQ(names(*colorway), "4: id display_name multi_colors active_sub_indices flags");
    EXPECT_EQ(colorway->record_id, 2u);
    EXPECT_EQ(value(*colorway, "active_sub_indices").list.ids[0], made.green);

    nyxParameter_edit* const settings = api()->color_settings_params();
    EXPECT_EQ(names(*settings), "5: active_colorway_id");
    value(*settings, "active_colorway_id").word = 2;
    api()->commit_color_settings_params(settings);
    EXPECT_EQ(renderer.colorways().active(), made.winter);
    renderer.faults().noSettings = true;
    EXPECT_EQ(api()->color_settings_params(), nullptr);

    EXPECT_EQ(renderer.ledger().blocks, 3u);
    std::size_t const strings = renderer.ledger().strings;
    api()->release_color_params(api()->color_params(made.cover));
    EXPECT_EQ(renderer.ledger().strings, strings) << "lent again, the same texts serve";
    // The texts of a block outlive the scene's contents.
    ASSERT_EQ(renderer.loadSceneText(nyx::embedded::Renderer().saveSceneText()), "");
    EXPECT_STREQ(value(*color, "display_name").text, "Cover");
    api()->commit_color_params(color);
    EXPECT_TRUE(renderer.colors().ids().empty());
    EXPECT_EQ(renderer.colors().add("First after loading", {}), ColorId(5)) << "ids are not reused";
    api()->release_color_params(color);
    api()->release_colorway_params(colorway);
    api()->release_color_settings_params(settings);
    api()->release_color_params(nullptr);
}

TEST_F(RendererBlocks, CommitsWriteByRecordIdAndKindAndLeaveTheIdEntryAlone) {
    SmallScene const made = addSmallScene();
    edit(made.cover, [&](nyxParameter_edit& block) {
        value(block, "id").word = 99;
        setList(value(block, "sub_colors"), {made.blue, made.red, made.green});
        value(block, "active_sub").word = made.blue.toUint();
    });
    EXPECT_THAT(renderer.colors().record(made.cover)->subColors,
                ElementsAre(made.blue, made.red, made.green));
    EXPECT_EQ(renderer.colors().record(made.cover)->activeSub, made.blue);

    std::string const before = renderer.dump();
    nyxParameter_edit* const block = api()->color_params(made.red);
    value(*block, "color").rgba[0] = 0.5f;
    block->record_id = 99;
    api()->commit_color_params(block);
    block->record_id = 1;
    api()->commit_colorway_params(block);
    api()->commit_color_settings_params(block);
    api()->commit_color_params(nullptr);
    EXPECT_EQ(renderer.dump(), before) << "unknown record, wrong kind";
    renderer.colors().remove(made.red);
    api()->commit_color_params(block);
    EXPECT_FALSE(renderer.colors().record(made.red)) << "a commit brings nothing back";
    api()->release_color_params(block);

    nyxParameter_edit* const colorway = api()->colorway_params(made.summer);
    setList(value(*colorway, "multi_colors"), {});
    value(*colorway, "flags").word = 3;
    api()->commit_colorway_params(colorway);
    EXPECT_EQ(renderer.colorways().record(made.summer)->flags, 3u);
    EXPECT_TRUE(renderer.colorways().record(made.summer)->multiColors.empty());
    EXPECT_EQ(renderer.colorways().record(made.summer)->activeSubs.size(), 1u)
        << "nothing forces a length";
    api()->release_colorway_params(colorway);
}

TEST_F(RendererBlocks, ClonesAreDeepAndOfAnyKind) {
    SmallScene const made = addSmallScene();
    for (nyxParameter_edit* const block :
         {api()->color_params(made.cover), api()->colorway_params(made.summer)}) {
        char const* const list = block->kind == 3 ? "sub_colors" : "multi_colors";
        nyxParameter_edit* const clone = api()->clone_color_params(block, true);
        nyxParameter_edit* const empty = api()->clone_color_params(block, false);
        EXPECT_EQ(clone->record_id, block->record_id);
        EXPECT_EQ(names(*clone) + names(*empty), names(*block) + names(*block));
        EXPECT_EQ(value(*empty, list).list.ids, nullptr);
        EXPECT_EQ(value(*empty, "display_name").text, nullptr);
        ColorId const first = value(*block, list).list.ids[0];
        setList(value(*block, list), {made.blue});
        EXPECT_EQ(value(*clone, list).list.ids[0], first);
        for (nyxParameter_edit* const each : {block, empty, clone}) {
            api()->release_color_params(each);
        }
    }
    EXPECT_EQ(api()->clone_color_params(nullptr, true), nullptr);
}

TEST_F(RendererBlocks, TamperedBlocksAreReadByNameAndLoseNothing) {
    SmallScene const made = addSmallScene();
    edit(made.cover, [this](nyxParameter_edit& block) {
        value(block, "color").rgba[0] = 0.5f;
        std::strcpy(entry(block, "sub_colors").name, "unknown");
        std::memset(entry(block, "flags").name, 'x', 40); // no closing zero either
        std::strcpy(entry(block, "original_name").name, "display_name");
        block.entries[2].value.text = nyx_string_dup(*scene(), "Later wins");
    });
    EXPECT_THAT(renderer.dump(),
                testing::HasSubstr("color 4 \"Later wins\" 0.5 0 0 1 flags 1 subs 1 2 active 1\n"));

    edit(made.cover, [this](nyxParameter_edit& block) {
        std::swap(block.entries[0], block.entries[5]);
        nyxParameter_edit* const clone = api()->clone_color_params(&block, true);
        clone->count = -1;
        api()->commit_color_params(clone);
        clone->entries = nullptr;
        clone->count = 7;
        api()->commit_color_params(clone);
        api()->release_color_params(clone);
        value(block, "sub_colors").list.count = -5;
    });
    EXPECT_TRUE(renderer.colors().record(made.cover)->subColors.empty());
}

TEST_F(RendererBlocks, JournalNamesCallsWithTheirArguments) {
    EXPECT_EQ(takeJournal(), "") << "switched off until now";
    api()->lock();
    api()->unlock();
    api()->set_modified(true);
    api()->refresh(3);
    static_cast<void>(nyx_color_reference_count(scene(), ColorId()));
    nyx_free(nyx_color_find_unique_name(scene(), "\"R\"\n", {ColorId(1), ColorId(3)},
                                        nyxColor_extended::MultiColor));
    static_cast<void>(nyx_color_from_name(scene(), nullptr));
    EXPECT_EQ(takeJournal(), "lock\nunlock\nset_modified true\nrefresh 3\n"
                             "nyx_color_reference_count -\n"
                             "nyx_color_find_unique_name \"\\\"R\\\"\\n\" [1 3] 2\n"
                             "nyx_color_from_name null");
    EXPECT_TRUE(renderer.isModified());
    EXPECT_EQ(renderer.refreshCount(), 1u);
    renderer.journal().setRecording(false);
    api()->refresh(3);
    EXPECT_TRUE(renderer.journal().take().empty());
}

TEST_F(RendererBlocks, TheLockIsRecursiveAndAStrayUnlockIsReported) {
    std::string warnings;
    nyx::embedded::setWarningHandler([&](std::string_view text) { warnings += text; });
    api()->lock();
    api()->lock();
    api()->unlock();
    std::thread([this] { api()->unlock(); }).join();
    EXPECT_EQ(std::exchange(warnings, ""), "nyxrender: unlock() without lock()\n");
    EXPECT_EQ(renderer.ledger().lockDepth, 1) << "another thread's unlock does not count";
    api()->unlock();
    api()->unlock();
    EXPECT_EQ(warnings, "nyxrender: unlock() without lock()\n");
    nyx::embedded::setWarningHandler({});
}

TEST_F(RendererBlocks, MemoryKnowsItsLimits) {
    EXPECT_EQ(nyx_malloc_aligned(0, 32), nullptr);
    EXPECT_THROW(static_cast<void>(nyx_malloc_aligned(SIZE_MAX - 5, 32)), std::bad_alloc);
    void* const memory = nyx_malloc_aligned(1, 4096);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(memory) % 4096, 0u);
    nyx_free_aligned(memory);

    int const numbers[] = {1, 2};
    nyx::Unique_array<int> array(numbers, 2);
    nyx::Unique_array<int>& same = array;
    array = std::move(same);
    EXPECT_THAT(array, ElementsAre(1, 2));
    nyx::Unique_array<int> other(numbers, 1);
    other = std::move(array);
    EXPECT_THAT(other, ElementsAre(1, 2)) << "what it held is freed, as the fixture checks";
}
