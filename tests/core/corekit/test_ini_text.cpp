#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tern7/core/corekit/errors.h>
#include <tern7/core/corekit/ini_text.h>

using namespace tern7;

namespace {

constexpr std::string_view Sample = "in no section\n"
                                    "[Main]\r\n"
                                    "Version=3.3\r\n"
                                    "count=12\n"
                                    "Name.Encoded=%20a%0Ab\n"
                                    "Flag=maybe\n"
                                    "[Link:A-B]  \n"
                                    "n=1\n"
                                    " [no header]\n"
                                    "[no header\n"
                                    "\n"
                                    "\n"
                                    "[link:a-b]\n"
                                    "n=2\n"
                                    "[]";

} // namespace

TEST(IniText, CutsSections) {
    const TKIniText ini(Sample);
    ASSERT_EQ(ini.Sections().size(), 4u);
    EXPECT_EQ(ini.Sections()[0].Name(), "Main");
    EXPECT_EQ(ini.Sections()[1].Line(), 7);
    EXPECT_EQ(ini.Sections()[1].Lines(), (TStrings{"n=1", " [no header]", "[no header"}));
    EXPECT_EQ(ini.Sections()[2].Line(), 13);
    EXPECT_EQ(ini.Sections()[3].Name(), "");
    EXPECT_TRUE(ini.Sections()[3].Body().empty());
    EXPECT_EQ(ini.Find("none"), nullptr);
    EXPECT_EQ(TKIniText("").Find(""), nullptr);
}

TEST(IniText, FindsTheFirstSectionFromAPosition) {
    const TKIniText ini(Sample);
    EXPECT_EQ(ini.Find("LINK:A-B"), &ini.Sections()[1]);
    EXPECT_EQ(ini.FindFrom(2, "LINK:A-B"), &ini.Sections()[2]);
    EXPECT_EQ(ini.FindFrom(3, "LINK:A-B"), &ini.Sections()[1]) << "none behind: the first of all";
    EXPECT_EQ(ini.PositionOf(*ini.FindFrom(2, "link:A-B")), 2u);
}

TEST(IniText, ReadsValuesInAnyOrder) {
    const TKIniText ini(Sample);
    const TKIniSection& main = *ini.Find("main");
    EXPECT_EQ(main.Int("Count"), 12);
    EXPECT_EQ(main.Raw("VERSION"), "3.3");
    EXPECT_EQ(main.Text("name"), " a\nb");
    EXPECT_EQ(main.Text("Version"), "3.3");
    EXPECT_FALSE(main.Has("Coun"));
    EXPECT_EQ(main.Int("missing", 5), 5);
    EXPECT_TRUE(main.Bool("missing", true));
    EXPECT_THAT([&] { main.Bool("Flag"); },
                testing::ThrowsMessage<EKTernError>("Wrong value of Flag in section Main: maybe"));
    EXPECT_THROW(main.Int("Version"), EKTernError);
}

TEST(IniText, SectionsOfStringLists) {
    const TStrings lines = {"x=1", "[A]", "x=2", "", "[B] ", "[a]", "x=3"};
    EXPECT_EQ(ReadSLSections(lines), (TStrings{"A", "B", "a"}));
    EXPECT_EQ(XReadSLSectionValues(lines, "a"), (TStrings{"x=2"}));
    EXPECT_EQ(XReadSLSectionValues(lines, "C"), TStrings());
}

TEST(IniWriter, EveryTextComesBack) {
    const std::string texts[] = {"",     "plain", " blank before", "blank behind ",        "a\r\nb",
                                 "%20",  " %20 ", "100 %",         std::string("a\0b", 3), "\t",
                                 "ä\nö", "[x]",   "Caf\xE9",       " 5% \xE2\x82"};
    for (const std::string& text : texts) {
        TKIniWriter writer;
        writer.Section("S");
        writer.Text("Key", text);
        writer.Key("Last", 1);
        const std::string file = writer.Take();
        const TKIniText ini(file);
        EXPECT_EQ(ini.Find("S")->Text("key"), text);
        EXPECT_EQ(ini.Find("S")->Int("Last"), 1);
        EXPECT_EQ(DecodePercent(EncodePercent(text)), text);
        EXPECT_TRUE(FitsOnLine(EncodePercent(text)));
        EXPECT_TRUE(IsUTF8(file)) << "else all of the file is read as Windows-1252";
    }
    EXPECT_EQ(DecodePercent("5% %4 %zz%41"), "5% %4 %zzA");
}

TEST(IniWriter, BodyLinesAreNoHeaders) {
    for (const char* line : {"[Main]", " [Main]", "\t[", "text [x]", "", "  indented"}) {
        TKIniWriter writer;
        writer.Section("Description");
        writer.BodyLine(line);
        writer.Line("end");
        const std::string file = writer.Take();
        const TKIniText ini(file);
        ASSERT_EQ(ini.Sections().size(), 1u) << line;
        EXPECT_EQ(UnprotectBodyLine(ini.Sections()[0].Lines().at(0)), line);
    }
    TKIniWriter writer;
    writer.Section("S");
    writer.Bool("B", true);
    writer.Key("K", "v");
    writer.BodyLine("Caf\xE9");
    EXPECT_EQ(writer.Take(), "[S]\nB=1\nK=v\nCafé\n");
}

TEST(DecodeTextFile, UTF8OrWindows1252AsAWhole) {
    const struct {
        const char* bytes;
        const char* text;
        bool wasWindows1252;
    } cases[] = {
        {"\xEF\xBB\xBF[Main]", "[Main]", false},
        {"Gr\xC3\xB6\xC3\x9F"
         "e \xE2\x82\xAC \xF0\x9F\x98\x80",
         "Größe € 😀", false},
        {"plain text that is longer", "plain text that is longer", false},
        {"Gr\xF6\xDF"
         "e \x80\x99 and \xC3\xB6",
         "Größe €™ and Ã¶", true},
        {"\xC0\x80", "À€", true},             // overlong
        {"\xED\xA0\x80", "í\xC2\xA0€", true}, // surrogate
        {"cut \xE2\x82", "cut â‚", true},
    };
    for (const auto& each : cases) {
        const TKDecodedText decoded = DecodeTextFile(each.bytes);
        EXPECT_EQ(decoded.text, each.text);
        EXPECT_EQ(decoded.wasWindows1252, each.wasWindows1252) << each.text;
    }
}

TEST(LineReader, Lines) {
    TKLineReader reader("a\r\n\nb\rc\n");
    TStrings lines;
    for (std::string_view line; reader.Next(line);)
        lines.emplace_back(line);
    EXPECT_EQ(lines, (TStrings{"a", "", "b\rc"}));
}
