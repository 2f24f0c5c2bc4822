#include <QDateTimeEdit>

#include <tern7/ui/controls/drop_down_date_time_edit.h>
#include <tern7/ui/controls/drop_down_mask_edit.h>
#include <tern7/ui/controls/edit_mask.h>
#include <tern7/ui/support/local_dates.h>
#include <ui/controls/control_form.h>

namespace tern7 {

TEST(MaskEdit, MaskIsTranslated) {
    const struct {
        QString mask, inputMask, shown, typed;
    } cases[] = {
        {"", "", "any", "any"},
        {"!99/99/0000;1;_", "00/00/9999;_", "1_/2_/2024", "122024"},
        {"(000) 000-0000;0;*", "(999) 999-9999;*", "(0**) ***-****", "0"},
        {">LLL<lll<>Aa", ">AAA<aaa!Nn;_", "ABCdefXy", "ABCdefXy"},
        {"\\A-Cc\\\\#", "\\A-Xx\\\\#;_", "A-x_\\+", "x+"},
        {"N[0]", "\\N\\[9\\];_", "N[7]", "7"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.mask.toStdString());
        const TEditMask mask(c.mask);
        EXPECT_EQ(mask.InputMask(), c.inputMask);
        EXPECT_EQ(mask.Typed(c.shown), c.typed);
    }
}

TEST(MaskEdit, ValueWithAndWithoutLiterals) {
    const struct {
        bool formatted;
        QString value, typed, result;
    } cases[] = {
        {true, "", "0712", "07/12"},
        {false, "", "0712", "0712"},
        {false, "", "07", "07"},
        {true, "", "", ""},
        {true, "07/12", "0811", "08/11"},
        {false, "0712", "0811", "0811"},
        {true, "does not fit", "", "does not fit"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.value.toStdString() + "<" + c.typed.toStdString());
        TControlForm form;
        auto* label = form.Add<TDropDownMaskEdit>();
        label->SetEditMask("99/99");
        label->SetUseFormattedValue(c.formatted);
        label->SetValue(c.value);
        ASSERT_TRUE(form.Open());
        label->DropDown();
        Type(c.typed);
        Press(Qt::Key_Return);
        EXPECT_EQ(label->Value(), c.result);
    }
}

TEST(DateTimeEdit, LocalForms) {
    const struct {
        const char* locale;
        QString date, time;
    } cases[] = {{"C", "2 Jan 2024", "15:04:05"},
                 {"de_DE", "02.01.2024", "15:04:05"},
                 {"en_US", "1/2/2024", "15:04:05"},
                 {"fr_CA", "2024-01-02", "15 h 04:05"},
                 {"cs_CZ", "02.01.2024", "15:04:05"}};
    const QDate date(2024, 1, 2);
    const QTime time(15, 4, 5);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.locale);
        const QLocale locale(c.locale);
        EXPECT_EQ(locale.toString(date, LocalDateFormat(locale)), c.date);
        EXPECT_EQ(locale.toString(time, LocalTimeFormat(locale)), c.time);
        EXPECT_EQ(ReadLocalDate(c.date, locale), date);
        EXPECT_EQ(ReadLocalTime(c.time, locale), time);
        EXPECT_EQ(ReadLocalDateTime(c.date + ' ' + c.time, locale), QDateTime(date, time));
        EXPECT_EQ(ReadLocalDateTime("2024-01-02T15:04:05", locale), QDateTime(date, time));
        EXPECT_EQ(ReadLocalDateTime(c.date, locale), QDateTime(date, QTime(0, 0)));
        EXPECT_FALSE(ReadLocalDate("no date", locale).isValid());
        // the examples that users are given can be read, and mean one moment
        const QDateTime example = ReadLocalDateTime(ExampleOf(true, true, locale).local, locale);
        EXPECT_EQ(ReadLocalDateTime(ExampleOf(true, true, locale).everywhere, locale), example);
        EXPECT_EQ(ReadLocalDate(ExampleOf(true, false, locale).local, locale), example.date());
        EXPECT_EQ(ReadLocalDate("2024-12-31", locale), example.date());
        EXPECT_EQ(ReadLocalTime(ExampleOf(false, true, locale).local, locale), example.time());
        EXPECT_FALSE(ReadLocalDateTime("2024-01-02 soon", locale).isValid());
    }
}

TEST(DateTimeEdit, Values) {
    using enum TDateTimeEditKind;
    const QString today = QDate::currentDate().toString("dd.MM.yyyy");
    const struct {
        const char* name;
        TDateTimeEditKind kind;
        QString value;
        std::vector<Qt::Key> keys;
        QString result;
    } cases[] = {
        {"day before", ekDate, "31.12.1699", {Qt::Key_Down, Qt::Key_Return}, "30.12.1699"},
        {"read from ISO", ekDate, "2024-01-02", {Qt::Key_Return}, "02.01.2024"},
        {"left as it was", ekDate, "2024-01-02", {}, "2024-01-02"},
        {"unreadable, left", ekDate, "soon", {}, "soon"},
        {"unreadable, Enter", ekDate, "soon", {Qt::Key_Return}, today},
        {"discarded", ekDate, "", {Qt::Key_Up, Qt::Key_Escape}, ""},
        {"typed", ekDate, "", {Qt::Key_0, Qt::Key_7}, "07" + today.mid(2)},
        {"time", ekTime, "7:05", {Qt::Key_Up}, "08:05:00"},
    };
    QLocale::setDefault(QLocale("de_DE"));
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        TControlForm form;
        auto* label = form.Add<TDropDownDateTimeEdit>();
        label->SetKind(c.kind);
        label->SetValue(c.value);
        ASSERT_TRUE(form.Open());
        label->DropDown();
        ASSERT_TRUE(label->EditControl()->hasFocus());
        EXPECT_GE(label->EditControl()->width(), label->EditControl()->sizeHint().width());
        for (const Qt::Key key : c.keys)
            Press(key);
        if (label->Dropped()) ClickAt(form.neighbour, {5, 5});
        EXPECT_EQ(label->Value(), c.result);
        EXPECT_FALSE(label->Dropped());
    }
    QLocale::setDefault(QLocale::c());
}

TEST(DateTimeEdit, TextIsWholeAndKeepsItsOrder) {
    TControlForm form;
    auto* label = form.Add<TDropDownDateTimeEdit>(200, 20);
    label->SetValue("2024-01-02");
    label->SetBiDiMode(Qt::RightToLeft);
    ASSERT_TRUE(form.Open());
    label->DropDown();
    const auto* text = label->EditControl()->findChild<QLineEdit*>();
    EXPECT_EQ(text->text(), "2 Jan 2024");
    EXPECT_EQ(text->height(), label->height() - 2);
    EXPECT_EQ(label->EditControl()->geometry().right(), label->geometry().right());
    Type("7");
    Press(Qt::Key_Return);
    EXPECT_EQ(label->Value(), "7 Jan 2024");
}

TEST(Editors, DoubleClickHandlerChangesTextOrNothing) {
    const struct {
        bool mask;
        QString answer, result;
    } cases[] = {
        {true, "", "does not fit"},          {true, "0811", "0811"},
        {false, "", "does not fit"},         {false, "no date", "does not fit"},
        {false, "2021-03-03", "3 Mar 2021"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.answer.toStdString());
        TControlForm form;
        auto* mask = form.Add<TDropDownMaskEdit>();
        mask->SetEditMask("99/99");
        TDropDownCustomEdit* label = mask;
        if (!c.mask) label = form.Add<TDropDownDateTimeEdit>();
        label->OnEditDblClick = [&](TDropDownLabel*, QString& text) {
            if (!c.answer.isEmpty()) text = c.answer;
        };
        label->SetValue("does not fit");
        ASSERT_TRUE(form.Open());
        label->DropDown();
        QWidget* editor = label->EditControl();
        if (!c.mask) editor = editor->findChild<QLineEdit*>();
        QTest::mouseDClick(editor, Qt::LeftButton);
        ClickAt(form.neighbour, {5, 5});
        EXPECT_EQ(label->Value(), c.result);
    }
}

TEST(DateTimeEdit, DestroyedWhileOpen) {
    TControlForm form;
    QPointer<TDropDownDateTimeEdit> label = form.Add<TDropDownDateTimeEdit>();
    label->BeforeDropUp = [&](TDropDownLabel*, const QString&, bool&) { delete label; };
    ASSERT_TRUE(form.Open());
    label->DropDown();
    Press(Qt::Key_Return);
    EXPECT_FALSE(label);
}

} // namespace tern7
