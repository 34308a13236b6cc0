#include "colors/subColorEdits.h"

#include <gtest/gtest.h>

using namespace zsg;

namespace {

ColorIdList ids(std::string const& letters) {
    ColorIdList list;
    for (char const letter : letters) {
        list.push_back(letter == '-' ? nyx::ColorId() : nyx::ColorId(std::uint32_t(letter)));
    }
    return list;
}

std::string letters(ColorIdList const& list) {
    std::string text;
    for (nyx::ColorId const id : list) {
        text += id.isValid() ? char(id.value) : '-';
    }
    return text;
}

} // namespace

TEST(SubColorEdits, InsertingAndMoving) {
    struct {
        char const *list, *given;
        int index;
        char const *inserted, *moved;
    } const rows[] = {
        {"abcd", "da", 2, "bdac", "bdac"},
        {"abcd", "bc", 3, "abcd", "abcd"}, // the index is 1 when it has passed both
        {"abcd", "ab", 1, "abcd", "abcd"}, // b stands at the shrunken index
        {"abcd", "x", 0, "xabcd", "abcd"},
        {"abcd", "xyax", -1, "bcdxya", "bcda"},
        {"abcd", "x-", 4, "abcdx", "abcd"},
        {"ab", "ba", 0, "baab", "ba"}, // all of them: listed twice, but a move stays a move
        {"ab", "ba", 2, "abab", "ba"},
        {"", "xy", 5, "xy", ""},
        {"ab", "", 1, "ab", "ab"},
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(std::string(row.list) + '+' + row.given + '@' + std::to_string(row.index));
        ColorIdList const list = ids(row.list);
        EXPECT_EQ(letters(withInserted(list, ids(row.given), row.index)), row.inserted);
        EXPECT_EQ(letters(withMoved(list, ids(row.given), row.index)), row.moved);
    }
}

TEST(SubColorEdits, RemovingHandsTheActivePlaceOn) {
    struct {
        char const *list, *unwanted, *active, *left, *removed, *newActive;
    } const rows[] = {
        {"abcd", "b", "b", "acd", "b", "c"},   {"abcd", "dc", "d", "ab", "cd", "b"},
        {"abcd", "cab", "b", "d", "abc", "d"}, {"abcd", "bx", "a", "acd", "b", "a"},
        {"ab", "ab", "a", "", "ab", "-"},      {"baab", "a", "a", "bb", "aa", "b"},
        {"ab", "b", "-", "a", "b", "-"},
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(std::string(row.list) + '-' + row.unwanted);
        auto const result = withoutSubColors(ids(row.list), ids(row.unwanted), ids(row.active)[0]);
        EXPECT_EQ(letters(result.left), row.left);
        EXPECT_EQ(letters(result.removed), row.removed);
        EXPECT_EQ(letters({result.active}), row.newActive);
    }
}
