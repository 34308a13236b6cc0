#include "colors/subColorEdits.h"

#include <gtest/gtest.h>

using namespace zsg;

namespace {

/// One id per letter; '-' is the invalid one.
ColorIdList ids(std::string const& letters) {
    ColorIdList list;
    for (char const letter : letters) {
        list.push_back(letter == '-' ? nyx::ColorId() : nyx::ColorId(std::uint32_t(letter)));
    }
    return list;
}

} // namespace

TEST(SubColorEdits, InsertingAndMoving) {
    struct {
        char const *list, *given;
        int index;
        char const *inserted, *moved;
    } const rows[] = {
        {"abcd", "da", 2, "bdac", "bdac"},
        {"abcd", "bc", 3, "adbc", "adbc"}, // past b it is 2, where c stands and counts no more
        {"abcd", "x", 0, "xabcd", "abcd"},
        {"abcd", "xyax-", -1, "bcdxya-", "bcda"},
        {"ab", "ba", 0, "baab", "ba"}, // all of them: listed twice, but a move stays a move
        {"ab", "ba", 2, "abab", "ba"},
        {"", "xy", 5, "xy", ""},
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(std::string(row.list) + '+' + row.given + '@' + std::to_string(row.index));
        EXPECT_EQ(withInserted(ids(row.list), ids(row.given), row.index), ids(row.inserted));
        EXPECT_EQ(withMoved(ids(row.list), ids(row.given), row.index), ids(row.moved));
    }
}

TEST(SubColorEdits, RemovingHandsTheActivePlaceOn) {
    struct {
        char const *list, *unwanted, *active, *left, *removed, *newActive;
    } const rows[] = {
        {"abcd", "b", "b", "acd", "b", "c"},  {"abcd", "dc", "d", "ab", "cd", "b"},
        {"abcd", "bx", "a", "acd", "b", "a"}, {"baab", "a", "a", "bb", "aa", "b"},
        {"ab", "ab", "a", "", "ab", "-"},     {"ab", "b", "-", "a", "b", "-"},
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(std::string(row.list) + '-' + row.unwanted);
        auto const result = withoutSubColors(ids(row.list), ids(row.unwanted), ids(row.active)[0]);
        EXPECT_EQ(result.left, ids(row.left));
        EXPECT_EQ(result.removed, ids(row.removed));
        EXPECT_EQ(result.active, ids(row.newActive)[0]);
    }
}

TEST(SubColorEdits, ReplaceTheFirstOfAListedIdByAnUnlistedOne) {
    ColorIdList const list = ids("aba");
    auto const id = [](char const* letter) { return ids(letter)[0]; };
    EXPECT_EQ(replacedSubColor(list, id("a"), id("c")), ids("cba"));
    EXPECT_FALSE(replacedSubColor(list, id("a"), id("b")));
    EXPECT_FALSE(replacedSubColor(list, id("d"), id("c")));
    EXPECT_FALSE(replacedSubColor(list, id("a"), nyx::ColorId()));
}
