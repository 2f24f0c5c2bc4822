// Damaged texts: an error that names the place or a query, never half of one.
#include "text_fixture.h"

#include <random>

#include <tern7/core/corekit/ini_text.h>

namespace tern7 {
namespace {

class DamagedQueryText : public TQueryTextTest {
protected:
    DamagedQueryText() {
        query.SaveSQLOptions = query.SaveMainTable = true;
        query.SetQueryName("whole");
        query.Description = {"d"};
        auto& fields = query.QResult().ResultFields();
        fields.AddByExpression("City", TSortingType::stAscending, "{City}");
        fields.AddByExpression("Sum", TSortingType::stNoSort, "SUM({Amount} + {Gross amount})");
        Add("City", "Contains", "x")->SetValue1IsParam(true);
        TFilterBracket* bracket = query.Root().AddBracket();
        Add(*bracket, "Amount", "InQuery")->SetSubQuery("[Main]\n[Row0]\nRowCount=0\n");
        Add(*bracket, "Amount", "Between", "1", "2");
        text = query.GetQueryString();
        query.SetQueryName("before");
    }
    /// The text with the first line of that key below a section changed.
    std::string With(const std::string& section, const std::string& key, const std::string& value) {
        const size_t start = text.find("\n" + key + "=", text.find("[" + section + "]")) + 1;
        const size_t end = text.find('\n', start);
        return text.substr(0, start) + key + "=" + value + text.substr(end);
    }
    std::string text;
};

TEST_F(DamagedQueryText, NamesSectionAndKey) {
    const struct {
        const char *section, *key, *value;
    } cases[] = {
        {"Main", "Version", "x"},
        {"Main", "Version", "-3"},
        {"Main", "Version", "1e999"},
        {"Main", "Options", "-1"},
        {"Main", "Options", "9999999999"},
        {"RFields", "Count", "-1"},
        {"RFields", "Count", "1"},
        {"RFields", "JustSorting", "5"},
        {"RField0", "Fields", "1,,"},
        {"RField0", "Fields", "99999999999"},
        {"RField1", "Sorting", "3"},
        {"RField0", "SortOrder", "-1"},
        {"RField0", "SortOrder", "2147483647"},
        {"Row0", "RowCount", "-1"},
        {"Row2", "RowCount", ""},
        {"Row0", "RowCount", "1"},
        {"Row0", "RowType", "0"},
        {"Row1", "RowType", "2"},
        {"Row1", "Enabled", "maybe"},
        {"Row2", "LinkType", "4"},
        {"Row1", "FieldID", "1.5"},
        {"Row1", "Param1", "7"},
        {"Row1", "SubQueryOptions", "-1"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ErrorOf(With(c.section, c.key, c.value)), "Wrong value of " + std::string(c.key) +
                                                                " in section " + c.section + ": " +
                                                                c.value);
    // counts that say too much ask for sections that are not there
    EXPECT_EQ(ErrorOf(With("RFields", "Count", "2000000000")), "Can not find section RField2");
    EXPECT_EQ(ErrorOf(With("Row0", "RowCount", "2000000000")), "Can not find section Row5");
}

TEST_F(DamagedQueryText, AMissingSectionIsNamed) {
    const TKIniText sections(text);
    for (const TKIniSection& section : sections.Sections()) {
        const std::string name(section.Name());
        const size_t from = static_cast<size_t>(section.Name().data() - text.data()) - 1;
        const size_t to =
            static_cast<size_t>(section.Body().data() - text.data()) + section.Body().size();
        const std::string error = ErrorOf(text.substr(0, from) + text.substr(to));
        if (name == "Description" || name == "UserData") // free text, empty without its section
            EXPECT_EQ(error, "");
        else
            EXPECT_EQ(error, "Can not find section " + name);
        query.SetQueryName("before");
    }
}

TEST_F(DamagedQueryText, CutAnywhere) {
    int read = 0;
    for (size_t length = 1; length < text.size(); ++length) {
        if (!ErrorOf(text.substr(0, length)).empty()) continue;
        ++read; // only inside of the last section can a cut pass unseen
        EXPECT_GT(length, text.rfind("[Row4]"));
    }
    EXPECT_GT(read, 0);
}

TEST_F(DamagedQueryText, AnyBytesAreReadOrRefused) {
    std::mt19937 random(7);
    for (int round = 0; round < 3000; ++round) {
        std::string broken = text;
        for (int n = 0; n < 3; ++n) {
            const size_t at = random() % broken.size();
            switch (random() % 4) {
            case 0:
                broken[at] = static_cast<char>(random());
                break;
            case 1:
                broken.erase(at, random() % 30);
                break;
            case 2:
                broken.insert(at, broken.substr(random() % broken.size(), random() % 60));
                break;
            default:
                broken.insert(at, "9");
                break;
            }
        }
        if (!ErrorOf(broken).empty()) continue;
        const std::string written = query.GetQueryString();
        EXPECT_EQ(Reread(written), written);
    }
}

TEST_F(DamagedQueryText, DepthIsLimited) {
    for (int depth : {1000, 1001, 20000}) {
        std::string deep = "[Main]\nVersion=3.3\n";
        for (int i = 0; i <= depth; ++i)
            deep += "[Row" + std::to_string(i) +
                    "]\nRowType=1\nRowCount=" + std::to_string(i < depth ? 1 : 0) + "\n";
        EXPECT_EQ(ErrorOf(deep), depth > 1000 ? "Rows are nested too deep" : "");
    }
}

TEST_F(DamagedQueryText, NoStructureIsSaidBeforeAnythingIsRead) {
    TKQuery lost;
    lost.SetQueryName("kept");
    EXPECT_THROW(lost.LoadFromStrings({}), EKQueryPanelError);
    EXPECT_THROW(lost.SetQueryString(text), EKQueryPanelError);
    EXPECT_TRUE(lost.Active());
    EXPECT_EQ(lost.QueryName(), "kept");
}

} // namespace
} // namespace tern7
