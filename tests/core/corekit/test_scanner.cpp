#include <gtest/gtest.h>

#include <tern7/core/corekit/scanner.h>
#include <tern7/core/corekit/token_reader.h>

using namespace tern7;

namespace {

/// The tokens between bars, each with the number of its type in front.
std::string Tokens(TKScanner& scanner, const char* text) {
    scanner.SetSource(TStrings{text});
    std::string result;
    for (; !scanner.EOS(); scanner.NextToken()) {
        result += std::to_string(static_cast<int>(scanner.GetTokType()));
        result.append(scanner.GetRealStr()).append("|");
    }
    return result;
}

} // namespace

TEST(Scanner, CutsSQL) {
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"Select a1,_b#$", "2Select|3a1|1,|3_b#$|"},
        {"größe", "3größe|"},
        {"'it''s'''x", "4'it''s'''|3x|"},
        {"'two\nlines'", "4'two\nlines'|"},
        {"'open", "4'open|"},
        {"'open''", "4'open''|"},
        {"12 1.5 1e5 1.e+5 .5 1e", "612|71.5|71e5|71.e+5|7.5|61|3e|"},
        {"t.5 t1.c \"t\".5 1..2", "3t|1.|65|3t1|1.|3c|1\"|3t|1\"|1.|65|71.|7.2|"},
        {"<><=>=!=<!=*==", "1<>|1<=|1>=|1!=|1<|1!=|1*|1=|1=|"},
        {"a--x\nb/*c*/d/*", "3a|3b|3d|"},
        {"a - -b /", "3a|1-|1-|3b|1/|"},
        {"--", ""},
        {"\"Owner's -- name;\" a", "1\"|3Owner|1'|3s|1-|1-|3name|1;|1\"|3a|"},
        {"a; b", "3a|"},
        {"\x01\ta\x7F", "3a|1\x7F|"},
    };
    for (const auto& [text, tokens] : cases) {
        TKScanner scanner;
        scanner.AddKeyword("select");
        EXPECT_EQ(Tokens(scanner, text), tokens) << text;
    }
    TKScanner quoted;
    quoted.AddNameQuotes('"', '"');
    quoted.AddNameQuotes('[', ']');
    EXPECT_EQ(Tokens(quoted, "\"a \"\"b'\".[c d]]]"), "5\"a \"\"b'\"|1.|5[c d]]]|");
}

TEST(Scanner, EndPositionsAndPieces) {
    TKScanner scanner;
    EXPECT_TRUE(scanner.EOS());
    const uint8_t code = scanner.AddWord("AND");
    EXPECT_EQ(scanner.AddKeyword("and"), code);
    scanner.SetSource(TStrings{"Äx /* c */ AND", "", "  b -- c"});
    EXPECT_EQ(scanner.GetTokCode(), 0);
    scanner.NextToken();
    EXPECT_EQ(scanner.GetTokCode(), code);
    EXPECT_EQ(scanner.GetTokStr(), "and");
    EXPECT_EQ(scanner.GetRealStr(), "AND");
    EXPECT_EQ(scanner.Source()->PositionOf(scanner.GetTokOffset()).column, 12);
    scanner.NextToken();
    EXPECT_EQ(scanner.GetTokLine(), 3);
    EXPECT_EQ(scanner.ExtractPiece(0, 1, false), "Äx");
    EXPECT_EQ(scanner.ExtractPiece(0, 1, true), "Äx /* c */ ");
    EXPECT_EQ(scanner.ExtractPiece(0, 3, false), "Äx /* c */ AND\n\n  b");
    EXPECT_EQ(scanner.ExtractPiece(1, 1, false), "");
    scanner.NextToken();
    scanner.NextToken();
    EXPECT_TRUE(scanner.EOS());
    EXPECT_EQ(scanner.GetTokType(), TKTokenType::Keyword);
    EXPECT_EQ(scanner.GetTokStr(), "");
    EXPECT_EQ(scanner.GetTokLine(), 3) << "the end is behind the last token";
}

TEST(Scanner, BehindTheStatement) {
    const std::pair<const char*, const char*> cases[] = {
        {"a; -- c\n ;", ""}, {"a ; b ; ", "b ;"}, {"a", ""}, {"';' \";\"", ""}, {";b", "b"}};
    for (const auto& [text, behind] : cases) {
        TKScanner scanner;
        scanner.SetSource(TStrings{text});
        EXPECT_EQ(scanner.Behind(), behind) << text;
    }
}

TEST(Scanner, ScanToPair) {
    const struct {
        const char* text;
        bool found;
    } cases[] = {
        {"(a and b)", true},
        {"(a) and b", false},
        {"(a", false},
        {"(a (b or c) d)", true},
        {"(a or", true},
        {"(x between 1 and 2)", false},
        {"(x between 1 and 2 and y)", true},
        {"(x between (1 and 2) and 3)", true},
        {"(x between (a) and 3)", false},
        {"(x BETWEEN y BETWEEN 1 AND 2 AND 3)", false},
        {"(f(between) and 3)", true},
        {"('a and b')", false},
        {"(a /* or */)", false},
        {"() or", false},
    };
    for (const auto& each : cases) {
        for (bool known : {false, true}) {
            TKScanner scanner;
            if (known)
                for (const char* word : {"and", "or", "between", "(", ")"})
                    scanner.AddWord(word);
            scanner.SetSource(TStrings{each.text});
            EXPECT_EQ(scanner.ScanToPair("(", ")", "between", "and,or"), each.found) << each.text;
            EXPECT_FALSE(scanner.ScanToPair("(", ")", "", "none,=")) << each.text;
        }
    }
}

TEST(TokenReader, TokensBetweenSeparators) {
    TKTokenReader reader("  one,two ;; three");
    std::string_view token;
    std::string all;
    while (reader.GetToken(token))
        all.append(token).append("|");
    EXPECT_EQ(all, "one,two|;;|three|");
    TKTokenReader other(",;a b,c");
    other.SetSeparatorList(",;");
    EXPECT_TRUE(other.IsSeparator(';'));
    EXPECT_TRUE(other.GetToken(token));
    EXPECT_EQ(token, "a b");
}
