#pragma once

#include <QGridLayout>
#include <QLabel>
#include <QWidget>

#include <tern7/DDLabel.h>
#include <tern7/KRndBtn.h>

/// Every control in every state, one below the other, with what it is beside it.
class TGallery : public QWidget {
public:
    TGallery() {
        setWindowTitle("Controls");
        grid->setVerticalSpacing(6);
        grid->setHorizontalSpacing(16);
        grid->setColumnStretch(1, 1);
        AddLabels();
        AddEdits();
        AddLists();
        AddButtons();
        AddMenus();
    }

    tern7::TDropDownEdit* edit = nullptr;
    tern7::TDropDownMaskEdit* mask = nullptr;
    tern7::TDropDownDateTimeEdit* date = nullptr;
    tern7::TDropDownPopup* popup = nullptr;
    tern7::TDropDownPopup* longPopup = nullptr;
    tern7::TDropDownListBox* listBox = nullptr;
    tern7::TDropDownCheckListBox* checkList = nullptr;
    tern7::TKPopupMenu* menu = nullptr; ///< rows of every kind
    tern7::TKPopupMenu* scrolled = nullptr;
    tern7::TKRndBtn* button = nullptr;

private:
    template <class Control>
    Control* Add(const QString& name, const QString& value = {}) {
        auto* control = new Control(this);
        control->setAccessibleName(name);
        if constexpr (std::is_base_of_v<tern7::TDropDownLabel, Control>) control->SetValue(value);
        auto* place = new QHBoxLayout;
        place->addWidget(control);
        place->addStretch();
        grid->addWidget(new QLabel(name), grid->rowCount(), 0);
        grid->addLayout(place, grid->rowCount() - 1, 1);
        return control;
    }

    void AddLabels() {
        using namespace tern7;
        Add<TDropDownLabel>("Label", "Berlin");
        Add<TDropDownLabel>("Empty");
        Add<TDropDownLabel>("Ampersand", "Miller & Sons");
        Add<TDropDownLabel>("Fixed", "can not be changed")->SetFixed(true);
        Add<TDropDownLabel>("With focus frame", "Paris")->SetFocused(true);
        Add<TDropDownLabel>("Disabled", "London")->setEnabled(false);
        Add<TDropDownLabel>("With a colour", "Rome")->SetFontColor(QColor(0, 140, 90));
    }

    void AddEdits() {
        using namespace tern7;
        edit = Add<TDropDownEdit>("Text", "O'Hara");
        Add<TDropDownEdit>("Hebrew", QString::fromUtf8("\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D"));
        Add<TDropDownEdit>("Whole number", "42")->SetValueType(TValueType::vtInteger);
        auto* upper = Add<TDropDownEdit>("Upper case");
        upper->SetAutoUpperCase(true);
        upper->SetValue("abc");
        mask = Add<TDropDownMaskEdit>("Telephone", "(030) 123-4567");
        mask->SetEditMask("(000) 000-0000");
        mask->SetUseFormattedValue(true);
        date = Add<TDropDownDateTimeEdit>("Date", "2024-01-02");
        Add<TDropDownDateTimeEdit>("Time", "15:04:05")->SetKind(TDateTimeEditKind::ekTime);
    }

    void AddLists() {
        using namespace tern7;
        popup = Add<TDropDownPopup>("Popup menu");
        popup->AddItems("", {"is equal to", "is not equal to"}, {"=", "<>"});
        popup->AddItem("", "-", "-");
        popup->AddItems("Lists", {"is in list", "is between"}, {"in", "between"});
        popup->AddItems("Texts", {"contains", "starts with"}, {"contains", "starts"});
        popup->SetItemIndex(1);
        longPopup = Add<TDropDownPopup>("Long popup menu");
        for (const QString group : {"Customer", "Order", "Product"})
            for (int i = 1; i <= 12; ++i)
                longPopup->AddItem(group, QString("%1 field %2").arg(group).arg(i),
                                   QString("%1%2").arg(group).arg(i));
        longPopup->SetItemIndex(0);
        listBox = Add<TDropDownListBox>("List box");
        const QStringList cities = {"Rome",   "Berlin", "Paris",   "London",  "Madrid",  "Vienna",
                                    "Prague", "Warsaw", "Dublin",  "Lisbon",  "Athens",  "Oslo",
                                    "Bern",   "Riga",   "Tallinn", "Vilnius", "Helsinki"};
        listBox->SetItems(cities);
        listBox->SetValues(cities);
        listBox->SetSortList(true);
        listBox->SetValue("Paris");
        checkList = Add<TDropDownCheckListBox>("Check list");
        checkList->SetItems({"Paid", "Open", "Sent back"});
        checkList->SetValues({"P", "O", "S"});
        checkList->SetValue("P,S");
        auto* box = Add<TKCheckListBox>("Check list box");
        box->SetItems({"Monday", "Tuesday", "Wednesday"});
        box->SetChecked(1, true);
        box->setFixedHeight(3 * box->sizeHintForRow(0) + 2 * box->frameWidth());
    }

    void AddMenus() {
        using namespace tern7;
        menu = new TKPopupMenu(this);
        menu->setAccessibleName("Menu");
        menu->Items().Add("&Copy");
        menu->Items().Add("Off").Enabled = false;
        menu->Items().Add("-");
        menu->Items().Add("Checked").Checked = true;
        for (const bool on : {true, false}) {
            TMenuItem& item = menu->Items().Add(on ? "This one" : "Or this one");
            item.RadioItem = true;
            item.Checked = on;
        }
        for (const char* text : {"Right", "Left"})
            menu->Items().Add(text).Break = TMenuBreak::mbBarBreak;
        menu->SetFitToScreen(false); // the breaks above count
        scrolled = new TKPopupMenu(this);
        scrolled->SetFitToScreen(false);
        for (int i = 1; i <= 100; ++i)
            scrolled->Items().Add(QString("Item %1").arg(i));
        scrolled->SetCurrentItem(&scrolled->Items().Items(69));
    }

    void AddButtons() {
        using namespace tern7;
        button = Add<TKRndBtn>("Round button");
        button->SetCaption("1");
        auto* square = Add<TKRndBtn>("Square button");
        square->SetCaption("Columns");
        square->SetRoundCorners(false);
        auto* flat = Add<TKRndBtn>("Flat button");
        flat->SetCaption("12");
        flat->SetFlat(true);
        auto* pressed = Add<TKRndBtn>("Pressed button");
        pressed->SetCaption("Pressed");
        pressed->SetPressedColor(QColor(0, 60, 120));
        pressed->setDown(true);
        auto* off = Add<TKRndBtn>("Disabled button");
        off->SetCaption("Off");
        off->setEnabled(false);
        Add<TFlatCheckBox>("Check box")->setText("Row is on");
        auto* checked = Add<TFlatCheckBox>("Checked box");
        checked->setText("Row is on");
        checked->setChecked(true);
        auto* partly = Add<TFlatCheckBox>("Partly checked box");
        partly->setText("Rows are on");
        partly->setCheckState(Qt::PartiallyChecked);
        auto* disabled = Add<TFlatCheckBox>("Disabled check box");
        disabled->setText("Row is on");
        disabled->setChecked(true);
        disabled->setEnabled(false);
    }

    QGridLayout* grid = new QGridLayout(this);
};
