#include "materials/CMFText.h"
#include "support/sourceDir.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validator.hpp>

using nlohmann::json;
using zsg::ZCMFSchema;

namespace {

std::filesystem::path const source = sourceDir();

std::string contents(std::filesystem::path const& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    EXPECT_TRUE(in) << path;
    return text.str();
}

/// What docs/cmf.schema.json says of a text; one that is no JSON is not valid.
bool isValid(std::string const& text) {
    static json const document = json::parse(contents(source / "docs/cmf.schema.json"));
    valijson::Schema schema;
    valijson::SchemaParser parser;
    parser.populateSchema(valijson::adapters::NlohmannJsonAdapter(document), schema);
    json const value = json::parse(text, nullptr, false);
    valijson::Validator validator;
    return !value.is_discarded() &&
           validator.validate(schema, valijson::adapters::NlohmannJsonAdapter(value), nullptr);
}

/// The part of docs/formats.md on CMF schemas.
std::string description() {
    std::string const text = contents(source / "docs/formats.md");
    std::size_t const begin = text.find("## CMF schema");
    return text.substr(begin, text.find("\n## ", begin) - begin);
}

TEST(CMFFormat, LoaderAndSchemaFileAgreeOnTheExamples) {
    std::map<std::string, int> files;
    for (auto const& entry :
         std::filesystem::recursive_directory_iterator(source / "examples/cmf")) {
        if (entry.path().extension() != ".json") {
            continue;
        }
        std::string const text = contents(entry.path());
        std::string const folder = entry.path().parent_path().filename().string();
        ZCMFSchema::LoadInfo const info = load(QByteArray::fromStdString(text));
        ++files[folder];
        EXPECT_EQ(info.status == 0, folder != "bad") << entry << info.message.toStdString();
        // A validator cannot compare names.
        bool const twoOfAName = info.message.startsWith("Two attributes");
        EXPECT_EQ(isValid(text), folder == "good" || twoOfAName) << entry;
        if (folder == "good") {
            EXPECT_TRUE(info.warnings.isEmpty()) << entry;
            EXPECT_EQ(saved(*info.schema).toStdString(), text) << entry;
        }
    }
    EXPECT_GE(files["good"], 3);
    EXPECT_GE(files["odd"], 2);
    EXPECT_GE(files["bad"], 11);
}

TEST(CMFFormat, TheDocumentShowsAFileAsItIsSaved) {
    std::string const text = description();
    std::size_t const begin = text.find("```json\n") + 8;
    std::string const example = text.substr(begin, text.find("```", begin) - begin);
    EXPECT_TRUE(isValid(example));
    ZCMFSchema::LoadInfo const info = load(QByteArray::fromStdString(example));
    ASSERT_TRUE(info.schema) << info.message.toStdString();
    EXPECT_EQ(saved(*info.schema).toStdString(), example);
}

} // namespace
