#include <gtest/gtest.h>

#include <tern7/core/titles/default_titles.h>
#include <tern7/core/titles/titles.h>
#include <tern7/core/titles/titles_text.h>

using namespace tern7;

namespace {

const TStrings Sections = {
    "[Query Panel]", "ttlAll=all", "ttlAny=any", "", "[Result Fields Editor]", "ttlAll=alles", ""};
const TStrings Flat = {"ttlAll=all", "ttlAny=any"};

TStrings Merged(const TStrings& defaults, const TStrings& source) {
    TStrings dest = {"old"};
    LoadTitlesFromStrings(defaults, dest, source);
    return dest;
}

TStrings With(TStrings lines, std::initializer_list<std::pair<size_t, const char*>> changes) {
    for (const auto& [index, line] : changes)
        lines.at(index) = line;
    return lines;
}

} // namespace

TEST(LoadTitles, MergesSectionBySection) {
    const struct {
        TStrings source, result;
    } cases[] = {
        {{}, Sections},
        {{"[Query Panel]", "TTLALL=tutti", "ttlNew=x"}, With(Sections, {{1, "ttlAll=tutti"}})},
        {{"[query panel] ", "ttlAll=", "ttlAny=a=b"}, With(Sections, {{2, "ttlAny=a=b"}})},
        {{"[PanelTitles]", "ttlAll=1", "[RFETitles]", "ttlAll=2"},
         With(Sections, {{1, "ttlAll=1"}, {5, "ttlAll=2"}})},
        {{"[Query Panel]", "ttlAll=1", "ttlAll=2", "[Query Panel]", "ttlAny=3"},
         With(Sections, {{1, "ttlAll=1"}})},
        {{"ttlAll=outside", "[Main]", "ttlAny=other"}, Sections},
    };
    for (const auto& each : cases)
        EXPECT_EQ(Merged(Sections, each.source), each.result);
    EXPECT_EQ(Merged(DefaultQueryTitles(), {}), DefaultQueryTitles());
}

TEST(LoadTitles, FlatDefaultsStayFlat) {
    EXPECT_EQ(Merged(Flat, {}), Flat);
    EXPECT_EQ(Merged(Flat, {"ttlAny=uno", "x=y"}), (TStrings{"ttlAll=all", "ttlAny=uno"}));
    EXPECT_EQ(Merged(Flat, {"[S]", "ttlAny=uno"}), (TStrings{"ttlAll=all", "ttlAny=uno"}));
    TStrings same = {"ttlAll=tutti"};
    LoadTitlesFromStrings(Flat, same, same);
    EXPECT_EQ(same, (TStrings{"ttlAll=tutti", "ttlAny=any"}));
}

TEST(LoadTitles, OldTitlesGoIntoEverySection) {
    TStrings titles = Sections;
    LoadOldTitlesFromStrings(titles, {"ttlAll=tutti", "ttlAny=", "ttlNew=x"});
    EXPECT_EQ(titles, With(Sections, {{1, "ttlAll=tutti"}, {5, "ttlAll=tutti"}}));
}

TEST(Titles, LookUpByKey) {
    const TKTitles titles(Sections, {"[query panel]", "ttlAny=qualsiasi", "ttlRename=Rinomina"});
    EXPECT_EQ(titles.Text("ttlany"), "qualsiasi");
    EXPECT_EQ(titles.Text("ttlAll"), "all");
    EXPECT_EQ(titles.Text("Result Fields Editor", "ttlAll"), "alles");
    EXPECT_EQ(titles.Text(QueryPanelTitles, "ttlRename"), "Rinomina") << "a key without default";
    EXPECT_EQ(titles.Text(ResultFieldsEditorTitles, "ttlAny"), "");
    EXPECT_EQ(PlainTitle("Add &Bracket && &"), "Add Bracket & ");
}
