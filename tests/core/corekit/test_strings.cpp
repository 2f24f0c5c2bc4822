#include <gtest/gtest.h>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/corekit/strings.h>

using namespace tern7;

TEST(Strings, ComparisonIgnoresTheCaseOfAToZOnly) {
    EXPECT_TRUE(SameText("Name", "nAME"));
    EXPECT_FALSE(SameText("name", "names"));
    EXPECT_FALSE(SameText("@", "`"));
    EXPECT_FALSE(SameText("Ä", "ä"));
    EXPECT_TRUE(StartsText("Link:A-B", "link:"));
    EXPECT_FALSE(StartsText("Li", "Link"));
    for (const char* text : {"a", "CUSTOMER", "Customers_And_Orders", ""})
        EXPECT_EQ(TTextHash()(LowerCase(text)), TTextHash()(UpperCase(text))) << text;
}

TEST(Strings, EqualToSpacesIgnoresBlanksEverywhere) {
    EXPECT_TRUE(EqualToSpaces("A.x + 1", " A.x+\t1 \n"));
    EXPECT_TRUE(EqualToSpaces("", "  "));
    EXPECT_FALSE(EqualToSpaces("A.x", "a.x"));
    EXPECT_FALSE(EqualToSpaces("ab", "abc"));
}

TEST(Strings, WholeWords) {
    EXPECT_TRUE(ContainsAsWholeWord("a or B", "b"));
    EXPECT_TRUE(ContainsAsWholeWord("xab ab", "ab"));
    EXPECT_FALSE(ContainsAsWholeWord("order_by", "order"));
    EXPECT_FALSE(ContainsAsWholeWord("änd", "nd"));
    EXPECT_FALSE(ContainsAsWholeWord("a", ""));
}

TEST(Strings, PartsAtSeparators) {
    EXPECT_EQ(GetBeforeSep("a.b.c", "."), "a");
    EXPECT_EQ(GetAfterSep("a.b.c", "."), "b.c");
    EXPECT_EQ(GetBeforeSep("abc", "."), "abc");
    EXPECT_EQ(GetAfterSep("abc", "."), "");
    EXPECT_EQ(LineName("a=b=c"), "a");
    EXPECT_EQ(LineValue("a=b=c"), "b=c");
    EXPECT_EQ(LineName("abc"), "");
    EXPECT_EQ(IndexOfName({"abc", "=x", "K=1", "k=2"}, "k"), 2);
    EXPECT_EQ(ValueOf({"abc", "K=1"}, "abc"), "");
}

TEST(Strings, ReplacementIsOnePass) {
    EXPECT_EQ(ReplaceStr("aaa", "a", "aa"), "aaaaaa");
    EXPECT_EQ(ReplaceStr("aaa", "aa", "b"), "ba");
    EXPECT_EQ(ReplaceStr("aaa", "", "b"), "aaa");
    EXPECT_EQ(XReplaceStr("From @F and @f", "@f", "x"), "From x and x");
    EXPECT_EQ(FormatMessage("%s in %s", {"%s", "b"}), "%s in b");
    EXPECT_EQ(FormatMessage("index %d", {"3", "4"}), "index 3");
}

TEST(Strings, QuotingAndBack) {
    for (const char* text : {"", "a", "O'Hara", "''", "'"})
        EXPECT_EQ(UnquotedString(QuotedString(text)), text);
    EXPECT_EQ(QuotedString("O'Hara"), "'O''Hara'");
    for (const char* text : {"'a' or 'b'", "'", "a'", "'a''' '"})
        EXPECT_EQ(UnquotedString(text), text) << "not one quoted string";
}

TEST(Strings, Lines) {
    EXPECT_EQ(SplitLines("a\r\nb\n\nc\rd\n"), (TStrings{"a", "b", "", "c", "d"}));
    EXPECT_EQ(SplitLines(""), TStrings());
    EXPECT_EQ(JoinStrings({"a", "", "b"}, ", "), "a, , b");
    EXPECT_EQ(Trim("\t a b\r\n"), "a b");
}

TEST(CommaText, WritesAndReadsBack) {
    const struct {
        TStrings items;
        const char* text;
    } cases[] = {
        {{}, ""},
        {{""}, "\"\""},
        {{"", ""}, ","},
        {{"a", "b"}, "a,b"},
        {{"a b", "c,d", "e\"f"}, "\"a b\",\"c,d\",\"e\"\"f\""},
        {{"a", "", "c"}, "a,,c"},
        {{" a ", "\n"}, "\" a \",\"\n\""},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(ComposeCommaText(each.items), each.text);
        EXPECT_EQ(ParseCommaText(each.text), each.items) << each.text;
    }
}

TEST(CommaText, ReadsWhatPeopleWrite) {
    EXPECT_EQ(ParseCommaText(" a b , c "), (TStrings{"a b", "c"})) << "only commas separate";
    EXPECT_EQ(ParseCommaText("a,"), (TStrings{"a", ""}));
    EXPECT_EQ(ParseCommaText("\"a,b"), (TStrings{"a,b"})) << "a text that ends inside quotes";
    EXPECT_EQ(ParseCommaText("\"a\" , \"b\""), (TStrings{"a", "b"}));
    EXPECT_EQ(ParseCommaText("\"a\"x,b"), (TStrings{"ax", "b"}));
    EXPECT_EQ(ParseCommaText("  "), TStrings());
}
