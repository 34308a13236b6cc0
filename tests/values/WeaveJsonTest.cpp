#include "zsg/values/WeavePattern.h"

#include "nyxrender/WeavePattern.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

using Json = nlohmann::json;
using zsg::WeavePattern;
using enum WeavePattern::YarnType;

namespace {

/// A document that describes a 2 x 2 pattern, after some members were changed.
QString document(std::vector<std::pair<char const*, char const*>> const& changes = {}) {
    Json json = Json::parse(R"({"kind":[0,1],"modulus":[3,4],"pattern_mask":[0,1,1,0],
        "pattern_warps":2,"pattern_wefts":2,"tension":[5,6],"width":[7,8]})");
    for (auto const& [key, value] : changes) {
        if (*value == '\0') {
            json.erase(key);
        } else {
            json[key] = Json::parse(value);
        }
    }
    return QString::fromStdString(json.dump());
}

Json reread(WeavePattern const& pattern) { return Json::parse(pattern.toJson().toStdString()); }

} // namespace

TEST(WeaveJson, IsWhatTheJsonLibraryWrites) {
    std::mt19937 random(7);
    for (int round = 0; round < 50; ++round) {
        WeavePattern pattern = WeavePattern::makeTwill(1 + round % 7, round % 3);
        pattern.setSize(1 + round % 5, 1 + round % 4);
        for (auto const type : {Warp, Weft}) {
            pattern.setWidth(type, static_cast<float>(random()) * 1e-9f);
            pattern.setTension(type, round == 9 ? std::numeric_limits<float>::infinity() : 1e-20f);
        }
        std::vector<int> cells(pattern.nyxWeavePattern()->cells,
                               pattern.nyxWeavePattern()->cells +
                                   pattern.numWarp() * pattern.numWeft());
        if (round % 10 == 0) {
            cells[0] = round - 11; // as a renderer may
            pattern.setFromNyxPattern({pattern.numWarp(), pattern.numWeft(), cells.data()});
        }
        Json const wanted = {
            {"pattern_warps", pattern.numWarp()},
            {"pattern_wefts", pattern.numWeft()},
            {"pattern_mask", cells},
            {"tension", {pattern.tension(Warp), pattern.tension(Weft)}},
            {"width", {pattern.width(Warp), pattern.width(Weft)}},
            {"modulus", {1.0f, 1.0f}},
            {"kind", {1, 1}},
        };
        EXPECT_EQ(pattern.toJson().toStdString(), wanted.dump());
    }
    for (WeavePattern const& pattern :
         {WeavePattern(), WeavePattern::makeHerringbone(), WeavePattern::makeSatin(8, 3)}) {
        WeavePattern copy = WeavePattern::makeBasket(2);
        EXPECT_TRUE(copy.setFromJson(pattern.toJson()));
        EXPECT_TRUE(copy.equals(pattern));
        EXPECT_TRUE(copy.setFromJson(
            QString::fromStdString(Json::parse(pattern.toJson().toStdString()).dump(2))));
        EXPECT_TRUE(copy.equals(pattern));
    }
}

TEST(WeaveJson, ReadsWhatItCan) {
    struct {
        QString text;
        bool accepted;
        bool grid;  ///< the grid of document() is there afterwards
        bool yarns; ///< and so are its yarns
    } const rows[] = {
        {document(), true, true, true},
        {document({{"pattern_mask", "[0,-3,77,0]"}}), true, true, true},
        {document({{"pattern_mask", "[0,2,8,0]"}}), true, true, true},
        {document({{"pattern_mask", "[0,1.5,true,0.9]"}}), true, true, true},
        {document({{"more", "{\"pattern_mask\":[1]}"}}), true, true, true},
        {document({{"more", "\"\\\"pattern_mask\\\":[1,1,1,1]\""}}), true, true, true},
        {"{\"pattern_mask\":[1,1,1,1]," + document().mid(1), true, true,
         true}, // the last one counts
        {document().replace("pattern_m", "\\u0070attern_m"), true, true, true},
        {document({{"kind", ""}}), true, true, false},
        {document({{"width", "[1,2,3]"}}), true, true, false},
        {document({{"tension", "[]"}}), true, true, false},
        {"", false, false, false},
        {"{}", false, false, false},
        {document({{"pattern_mask", "[0,1,1]"}}), false, false, false},
        {document({{"pattern_mask", ""}}), false, false, false},
        {document({{"pattern_warps", "65536"}, {"pattern_wefts", "65536"}}), false, false, false},
        {document({{"pattern_warps", "65536"}, {"pattern_wefts", "65536"}, {"pattern_mask", "[]"}}),
         false, false, false},
        {document({{"pattern_warps", "1e300"}}), false, false, false},
        {document({{"pattern_warps", "4294967298"}}), false, false, false}, // 2 if it wrapped
        {document({{"pattern_wefts", "-2147483649"}}), false, false, false},
        {document({{"pattern_mask", "[0.9,-1e300,18446744073709551615,-0.9]"}}), true, true, true},
        {document({{"pattern_mask", "[0,4294967296,-2147483649,0]"}}), true, true, true},
        {document({{"kind", "[1,2147483648.0]"}}), false, false, false},
        {document({{"kind", "[1,2147483648.0,1]"}}), true, true, false},
        {document({{"kind", "[4294967296,1]"}, {"width", "[1]"}}), true, true, false},
    };
    WeavePattern wanted;
    ASSERT_TRUE(wanted.setFromJson(document()));
    EXPECT_EQ(reread(wanted), Json::parse(document().toStdString()));
    for (auto const& row : rows) {
        SCOPED_TRACE(row.text.toStdString());
        WeavePattern const before = WeavePattern::makeSatin(5, 2);
        WeavePattern pattern = before;
        EXPECT_EQ(pattern.setFromJson(row.text), row.accepted);
        WeavePattern expected = row.grid ? WeavePattern::makePlain() : before;
        Json json = reread(expected);
        for (char const* member : {"width", "tension", "modulus", "kind"}) {
            json[member] = reread(row.yarns ? wanted : before)[member];
        }
        EXPECT_EQ(reread(pattern), json);
    }
    WeavePattern single;
    EXPECT_TRUE(single.setFromJson("{\"pattern_warps\":-4,\"pattern_mask\":[1]}"));
    EXPECT_EQ(single.numWarp() * single.numWeft(), 1);
    EXPECT_TRUE(single.setFromJson("{\"pattern_mask\":[2]}") && single.get(0, 0) == 1);
    EXPECT_TRUE(single.setFromJson(document({{"kind", "[2147483647,-2147483648]"}})));
}

TEST(WeaveJson, ErrorsAreTheJsonLibrarysAndChangeNothing) {
    WeavePattern const before = WeavePattern::makeHerringbone();
    WeavePattern pattern = before;
    for (QString const& text :
         {QString("nonsense"), QString(" "), document() + "x", document().chopped(1),
          document().replace("[0,1,1,0]", "[0,1,,1]"), document().replace("\"kind\"", "kind"),
          "{\"a\":\"b" + document().mid(1), QString(100000, '['),
          document({{"width", "{}"}}).replace("[0,1,1,0]", "[~,0]")}) {
        try {
            pattern.setFromJson(text);
            ADD_FAILURE() << text.left(100).toStdString();
        } catch (Json::parse_error const& error) {
            std::string whole;
            try {
                Json const none = Json::parse(text.toStdString());
            } catch (Json::parse_error const& same) {
                whole = same.what();
            }
            EXPECT_EQ(error.what(), whole);
        }
        EXPECT_TRUE(pattern.equals(before));
    }
    for (QString const& text :
         {QString("[1]"), QString("5"), document({{"pattern_warps", "\"2\""}}),
          document({{"pattern_mask", "{}"}}), document({{"pattern_mask", "[0,\"1\",1,0]"}}),
          document({{"width", "[1,\"2\"]"}}), document({{"width", "[1,null]"}}),
          document({{"tension", "3"}}), document({{"kind", "[0,[]]"}})}) {
        EXPECT_THROW(pattern.setFromJson(text), Json::type_error) << text.toStdString();
        EXPECT_TRUE(pattern.equals(before));
    }
}
