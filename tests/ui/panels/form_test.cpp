// The panel as a part of a form.
#include <ui/panels/panel_form.h>

#include <QLineEdit>
#include <QMetaProperty>
#include <QPushButton>

#include <tern7/ui/panels/db_structure.h>

namespace tern7 {

class TPanelOnAFormTest : public TPanelTest {};

/// As a form editor does: by name, with the names of enumerators.
TEST_F(TPanelOnAFormTest, PropertiesThatFormsKeep) {
    struct TCase {
        const char* name;
        QVariant value;
        std::function<bool()> arrived;
    };
    const QColor red(200, 0, 0);
    const TQPAppearance& looks = panel->Appearance();
    const TCase cases[] = {
        {"SQLSyntax", "ssOracle", [&] { return panel->SQLSyntax() == TSQLSyntax::ssOracle; }},
        {"SQLOptions", "soQuoteAliases|soSortByNames",
         [&] {
             return panel->SQLOptions() ==
                    TSQLOptions{TSQLOption::soQuoteAliases, TSQLOption::soSortByNames};
         }},
        {"CheckValues", false, [&] { return !panel->Query().CheckValues; }},
        {"AppearanceStyle", "psAndOr", [&] { return looks.Style() == TQPStyle::psAndOr; }},
        {"AppearanceOptions", "aoPopupField|aoShowAddRow",
         [&] {
             return looks.Options() == (TQPAppearance::aoPopupField | TQPAppearance::aoShowAddRow);
         }},
        {"AppearanceActiveRowColor", red, [&] { return looks.ActiveRowColor() == red; }},
        {"AppearanceControlBorderColor", red, [&] { return looks.ControlBorderColor() == red; }},
        {"AppearanceFieldColor", red, [&] { return looks.FieldColor() == red; }},
        {"AppearanceOperatorColor", red, [&] { return looks.OperatorColor() == red; }},
        {"AppearanceValueColor", red, [&] { return looks.ValueColor() == red; }},
        {"AppearanceBoolOpColor", red, [&] { return looks.BoolOpColor() == red; }},
    };
    for (const TCase& c : cases) {
        const QMetaObject& meta = *panel->metaObject();
        const QMetaProperty property = meta.property(meta.indexOfProperty(c.name));
        EXPECT_TRUE(property.write(panel, c.value)) << c.name;
        EXPECT_TRUE(c.arrived()) << c.name;
        EXPECT_EQ(property.reset(panel), property.isResettable());
    }
    EXPECT_EQ(looks.FieldColor(), QColor(0, 0, 255));
    EXPECT_FALSE(looks.ActiveRowColor().isValid());
}

TEST_F(TPanelOnAFormTest, TabGoesThroughTheRowsInTheirPlace) {
    auto* before = new QLineEdit(&window);
    delete panel;
    panel = new TKQueryPanel(&window);
    auto* behind = new QPushButton(&window);
    panel->SetDbStruct(&structure);
    panel->resize(600, 300);
    for (QWidget* widget : {static_cast<QWidget*>(before), static_cast<QWidget*>(panel),
                            static_cast<QWidget*>(behind)})
        widget->show();
    TShop::Add(panel->Root(), "C.city", "Equal", "Berlin");
    Settle();
    before->setFocus();
    Press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), View(0).Button());
    panel->AddRowLabel()->setFocus();
    Press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), behind);
}

TEST_F(TPanelOnAFormTest, StructureIsFoundBeforeTheFormIsShown) {
    const auto filled = [this](QWidget& form) {
        auto* named = new TKQueryPanel(&form);
        named->SetDbStructName("shop");
        auto* component = new TKDBStructure(&form); // behind the panel, as forms may have it
        component->setObjectName("shop");
        component->SetStructString(QByteArray::fromStdString(structure.GetStructString()));
        return named;
    };
    QWidget first, second, third;
    TKQueryPanel* built = filled(first);
    built->SetMainTableName("C");
    EXPECT_NO_THROW(built->BuildQuery());
    Add("C.city", "Equal", "Berlin");
    TStrings text;
    query.SaveToStrings(text);
    TKQueryPanel* loaded = filled(second);
    loaded->LoadFromStrings(text);
    EXPECT_EQ(loaded->Root().GetRowCount(), 1);
    TKQueryPanel* read = filled(third);
    read->ImportSQL("select C.id from Customer C where C.city = 'Rome'");
    EXPECT_EQ(read->Root().GetRowCount(), 1);
    EXPECT_THROW(read->ParseSQL("select"), EKTernError);
    EXPECT_TRUE(read->Active()) << "it goes on showing what there is";
    read->SetActive(false);
    EXPECT_THROW(read->LoadFromStrings({"nothing"}), EKTernError);
    EXPECT_FALSE(read->Active()) << "as the application had it";
}

} // namespace tern7
