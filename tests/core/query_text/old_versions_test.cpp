// Texts of earlier versions, and what changed with each.
#include "text_fixture.h"

#include <tern7/core/corekit/numbers.h>

namespace tern7 {
namespace {

using OldQueryText = TQueryTextTest;

std::string TextOf(const std::string& version, const std::string& condition) {
    return "[Main]\nQueryName=old\n" + (version.empty() ? "" : "Version=" + version + "\n") +
           "\n[RFields]\nCount=0\n[Row0]\nEnabled=1\nRowType=1\nLinkType=1\nRowCount=1\n"
           "[Row1]\nEnabled=1\nRowType=0\n" +
           condition;
}

TEST_F(OldQueryText, FieldsByNameExpressionOrNumber) {
    const struct {
        const char *version, *key, *compound;
    } cases[] = {
        {"", "FldName=Customer City", "C.city"},
        {"1.1", "FldName=customer city", "C.city"},
        {"1.3", "FldName=Employee Name", "E.name"},
        {"1.3", "FldName=C.city", nullptr},
        {"1.4", "FldName=c . CITY", "C.city"},
        {"1.9", "FldName=o.AMOUNT*1.19", "Gross amount"},
        {"1.9", "FldName=Customer City", nullptr},
        {"2.0", "FieldID=2", "C.city"},
        {"2.0", "FldName=Customer City", nullptr},
        {"3.3", "FieldID=10", "E.name"},
        {"3.3", "FieldID=4711", nullptr},
    };
    for (const auto& c : cases) {
        query.SetQueryString(
            TextOf(c.version, std::string(c.key) + "\nOperator=Equal\nValue1=x\n"));
        EXPECT_EQ(Cond(0).Field(), c.compound ? Field(c.compound) : structure.PlaceholderField())
            << c.version << " " << c.key;
        EXPECT_EQ(Cond(0).Operator(), structure.OperatorByName("equal"));
        EXPECT_EQ(query.FormatVersion(), *c.version ? XStrToFloat(c.version) : 1.1);
        // what was not found can be read again from the text that is written now
        const std::string text = query.GetQueryString();
        EXPECT_EQ(Reread(text), text);
    }
}

TEST_F(OldQueryText, ParametersDatesAndCaptionsCameLater) {
    query.Services.writeLocalDate = [](TFieldType, const TKDateTime& value) {
        return FormatDateTime("d/m/yyyy", value);
    };
    const struct {
        const char *version, *field, *value;
        bool isParam;
        const char* caption;
    } cases[] = {
        {"1.1", "FldName=Order Placed on", "2024-02-05", false, nullptr},
        {"1.2", "FldName=Order Placed on", "5/2/2024", true, "Placed on param"},
        {"2.0", "FieldID=6", "5/2/2024", true, "Placed on param"},
        {"2.1", "FieldID=6", "5/2/2024", true, "When?"},
    };
    order->SetDisplayName("Order");
    for (const auto& c : cases) {
        query.SetQueryString(TextOf(c.version, c.field + std::string(R"(
Operator=Equal
Param1=1
Value1=2024-02-05
VFormat1=<@v>
Caption1=When?
)")));
        EXPECT_EQ(Cond(0).Value(1), c.value);
        ASSERT_EQ(Cond(0).GetValue1IsParam(), c.isParam) << c.version;
        if (!c.isParam) continue;
        EXPECT_EQ(Cond(0).Param(1)->ValueFormat(), "<@v>");
        EXPECT_EQ(Cond(0).Param(1)->Caption(), c.caption);
    }
}

TEST_F(OldQueryText, CaptionsByTheVersionThatTheQueryHadBefore) {
    const std::string text =
        "[Titles]\nttlAll=alle\n[PanelTitles]\nttlAny=irgendeine\n" + TextOf("2.0", "FieldID=2\n");
    query.SaveTitles = true;
    query.SetQueryString(text); // a new query has the present version
    EXPECT_EQ(ValueOf(query.Titles, "ttlAny"), "irgendeine");
    EXPECT_EQ(ValueOf(query.Titles, "ttlAll"), "all");
    query.SetQueryString(text); // it has 2.0 now
    EXPECT_EQ(ValueOf(query.Titles, "ttlAll"), "alle");
    EXPECT_EQ(ValueOf(query.Titles, "ttlAny"), "irgendeine");
    TKQuery fresh(&structure);
    fresh.SetFormatVersion(2.1);
    fresh.SetQueryString(text);
    EXPECT_EQ(ValueOf(fresh.Titles, "ttlAll"), "alle");
    EXPECT_EQ(ValueOf(fresh.Titles, "ttlAny"), "any");
}

TEST_F(OldQueryText, NewerOnesAreReadWithAWarning) {
    query.SetQueryString(TextOf("9.5", "FieldID=2\nOperator=Equal\nColour=red\n") + "[New]\nx=1\n");
    EXPECT_EQ(Cond(0).Field(), Field("C.city"));
    ASSERT_EQ(query.LoadWarnings().size(), 1u);
    EXPECT_NE(query.LoadWarnings()[0].find("9.5"), std::string::npos);
    query.SetQueryString(TextOf("3.3", "FieldID=2\n"));
    EXPECT_TRUE(query.LoadWarnings().empty());
}

} // namespace
} // namespace tern7
