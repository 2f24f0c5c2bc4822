#include <gtest/gtest.h>

#include <tern7/core/corekit/dates.h>
#include <tern7/core/corekit/numbers.h>

using namespace tern7;

TEST(Numbers, Integers) {
    EXPECT_EQ(StrToIntExact(" +12 "), 12);
    EXPECT_EQ(StrToIntExact("-2147483648"), -2147483647 - 1);
    for (const char* text : {"", " ", "2147483648", "1.5", "12a", "+-1", "1 2", "--1"})
        EXPECT_EQ(StrToIntExact(text), std::nullopt) << text;
    EXPECT_EQ(XStrToInt("x", 7), 7);
    EXPECT_EQ(MinInt(MinInt(3, -2), 0), -2);
}

TEST(Numbers, FloatsReadPointAndCommaAndWriteAPoint) {
    EXPECT_EQ(XStrToFloat("3,3"), 3.3);
    EXPECT_EQ(XStrToFloat(" -1.5e3 "), -1500);
    for (const char* text : {"", "nan", "inf", "1,2,3", "0x1p3", "1e999"})
        EXPECT_EQ(XStrToFloat(text, -1), -1) << text;
    EXPECT_EQ(XFloatToStr(3.3), "3.3");
    EXPECT_EQ(XFloatToStr(2.01), "2.01");
    EXPECT_EQ(XFloatToStr(1), "1");
    EXPECT_EQ(XFloatToStr(100000), "100000");
    for (double value : {0.1, -1e300, 1e15, 123456789.125, 4e-7, 0.0})
        EXPECT_EQ(XStrToFloat(XFloatToStr(value)), value);
}

TEST(Numbers, BooleansAndNumberTexts) {
    EXPECT_EQ(NStrToBool("YES"), true);
    EXPECT_EQ(NStrToBool("f"), false);
    EXPECT_EQ(NStrToBool("2"), std::nullopt);
    EXPECT_TRUE(XStrToBool("", true));
    for (const char* text : {"1", "-1.5", "+.5", "5.", "1e5", "1E-5"})
        EXPECT_TRUE(IsNumber(text)) << text;
    for (const char* text : {"", "-", ".", "1e", "1,5", " 1", "1 ", "e5", "1-"})
        EXPECT_FALSE(IsNumber(text)) << text;
}

namespace {

TKDateTime Moment() {
    TKDateTime value;
    value.year = 2024, value.month = 3, value.day = 5;
    value.hour = 14, value.minute = 7, value.second = 9, value.millisecond = 40;
    value.hasDate = value.hasTime = true;
    return value;
}

std::string Iso(const std::optional<TKDateTime>& value) {
    if (!value) return "nothing";
    return FormatDateTime(value->hasDate && value->hasTime ? "yyyy-mm-dd hh:nn:ss.zzz"
                          : value->hasDate                 ? "yyyy-mm-dd"
                                                           : "hh:nn:ss.zzz",
                          *value);
}

} // namespace

TEST(Dates, WritesByFormatAndReadsBack) {
    const struct {
        const char* format;
        const char* text;
        const char* iso;
    } cases[] = {
        {"yyyy-mm-dd hh:nn:ss", "2024-03-05 14:07:09", "2024-03-05 14:07:09.000"},
        {"d.m.yy", "5.3.24", "2024-03-05"},
        {"hh:mm:ss.zzz", "14:07:09.040", "14:07:09.040"},
        {"yyyymmdd", "20240305", "2024-03-05"},
        {"h:n am/pm", "2:7 pm", "14:07:00.000"},
        {"\"day\" d 'of' mm/yyyy", "day 5 of 03/2024", "2024-03-05"},
        {"YYYY/MM/DD\"T\"HH:MM", "2024/03/05T14:07", "2024-03-05 14:07:00.000"},
        {"z", "40", "nothing"},
        {"mm/dd", "03/05", "nothing"},
        {"yyyy", "2024", "2024-01-01"},
        {"\"open", "open", "nothing"},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(FormatDateTime(each.format, Moment()), each.text) << each.format;
        EXPECT_EQ(Iso(ParseDateTime(each.format, each.text)), each.iso) << each.format;
    }
}

TEST(Dates, RefusesWhatIsNoDate) {
    const struct {
        const char* format;
        const char* text;
    } cases[] = {
        {"yyyy-mm-dd", "2023-02-29"}, {"yyyy-mm-dd", "2024-13-01"},
        {"yyyy-mm-dd", "24-03-05"},   {"yyyy-mm-dd", "2024-03-05x"},
        {"yyyy-mm-dd", ""},           {"hh:nn", "24:00"},
        {"hh:nn", "23:60"},           {"h am/pm", "13 am"},
        {"h am/pm", "0 pm"},          {"yyyymmdd", "2024305"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(Iso(ParseDateTime(each.format, each.text)), "nothing") << each.text;
    EXPECT_EQ(Iso(ParseDateTime("yyyy-mm-dd", "2024-02-29")), "2024-02-29");
    EXPECT_EQ(Iso(ParseDateTime("yyyy-mm-dd", "2024-2-9")), "2024-02-09");
    EXPECT_EQ(Iso(ParseDateTime("d.m.yy", "1.1.69")), "1969-01-01");
    EXPECT_EQ(Iso(ParseDateTime("h am/pm", "12 AM")), "00:00:00.000");
}

TEST(Dates, Iso) {
    const std::pair<const char*, const char*> cases[] = {
        {"2024-03-05", "2024-03-05"},
        {"2024-03-05 4:7", "2024-03-05 04:07:00.000"},
        {"2024-03-05T14:07:09.5", "2024-03-05 14:07:09.500"},
        {" 14:07:09.040000 ", "14:07:09.040"},
        {"14:07:09.0405", "nothing"},
        {"14:07:09.", "nothing"},
        {"2024-03-05 ", "2024-03-05"},
        {"2024-03-05 x", "nothing"},
        {"2024-3-05", "nothing"},
        {"1900-02-29", "nothing"},
        {"14", "nothing"},
        {"", "nothing"},
    };
    for (const auto& [text, iso] : cases)
        EXPECT_EQ(Iso(ParseIsoDateTime(text)), iso) << text;
}
