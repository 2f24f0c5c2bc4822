#include <QAccessible>
#include <QFile>
#include <QMetaEnum>

#include <examples/controls_gallery/gallery.h>
#include <ui/controls/control_form.h>

namespace tern7 {

namespace {

/// What a screen reader finds, one object a line, children indented.
void Describe(QAccessibleInterface* object, int depth, QString& text) {
    static const QMetaEnum roles = QMetaEnum::fromType<QAccessible::Role>();
    const QAccessible::State state = object->state();
    text += QString(2 * depth, ' ') + roles.valueToKey(object->role());
    for (const auto kind : {QAccessible::Name, QAccessible::Value, QAccessible::Description})
        if (const QString said = object->text(kind); !said.isEmpty()) text += " | " + said;
    const struct {
        bool on;
        const char* name;
    } states[] = {
        {bool(state.disabled), "disabled"},   {bool(state.checked), "checked"},
        {bool(state.focusable), "focusable"}, {bool(state.hasPopup), "has popup"},
        {bool(state.readOnly), "read only"},  {bool(state.expanded), "expanded"},
    };
    for (const auto& s : states)
        if (s.on) text += QString(" [%1]").arg(s.name);
    QAccessibleActionInterface* actions = object->actionInterface();
    if (actions && actions->actionNames().contains(QAccessibleActionInterface::pressAction()))
        text += " (press)";
    text += '\n';
    for (int i = 0; i < object->childCount(); ++i)
        if (!object->child(i)->state().invisible) Describe(object->child(i), depth + 1, text);
}

QString Tree(QWidget& widget) {
    QString text;
    Describe(QAccessible::queryAccessibleInterface(&widget), 0, text);
    return text;
}

} // namespace

/// With TERN7_RENEW in the environment the file is written anew.
TEST(Gallery, AccessibleTree) {
    TGallery gallery;
    gallery.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&gallery));
    QString text = Tree(gallery);
    gallery.popup->DropDown();
    gallery.popup->Menu()->SetCurrentRow(3);
    text += "--- popup menu\n" + Tree(*gallery.popup->Menu());
    gallery.popup->DropUp(false);
    gallery.longPopup->DropDown();
    gallery.longPopup->Menu()->SearchField()->setText("9");
    text += "--- search in the long popup menu\n" + Tree(*gallery.longPopup->Menu());
    gallery.longPopup->DropUp(false);

    gallery.menu->Popup(10, 10);
    text += "--- menu with rows of every kind\n" + Tree(*gallery.menu);
    gallery.menu->hide();
    for (TDropDownLabel* label :
         std::initializer_list<TDropDownLabel*>{gallery.listBox, gallery.checkList}) {
        label->DropDown();
        text += "--- open list\n" + Tree(*label->EditControl()->window());
        label->DropUp(false);
    }
    for (TDropDownLabel* label :
         std::initializer_list<TDropDownLabel*>{gallery.edit, gallery.mask, gallery.date}) {
        label->DropDown();
        text += "--- open editor\n" + Tree(*label->EditControl());
        label->DropUp(false);
    }

    QFile file(QFile::decodeName(TERN7_TESTS_DIR) + "/ui/controls/gallery_tree.txt");
    if (qEnvironmentVariableIsSet("TERN7_RENEW")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
        return;
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList wanted = QString::fromUtf8(file.readAll()).split('\n');
    const QStringList found = text.split('\n');
    for (int i = 0; i < std::max(wanted.size(), found.size()); ++i)
        EXPECT_EQ(found.value(i), wanted.value(i)) << "line " << i + 1;
}

TEST(Gallery, ReaderPressesMenuRow) {
    TGallery gallery;
    gallery.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&gallery));
    gallery.popup->DropDown();
    QAccessibleInterface* menu = QAccessible::queryAccessibleInterface(gallery.popup->Menu());
    QAccessibleInterface* row = menu->child(0);
    EXPECT_EQ(menu->indexOfChild(row), 0);
    EXPECT_EQ(menu->childAt(row->rect().center().x(), row->rect().center().y()), row);
    row->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(gallery.popup->Value(), "=");
}

TEST(RoundButton, KeysSizeAndColours) {
    TControlForm form;
    auto* button = form.Add<TKRndBtn>(20, 20);
    button->SetCaption("1");
    const int narrow = button->width();
    button->SetCaption("A long caption");
    EXPECT_GT(button->width(), narrow);
    int pressed = 0;
    QObject::connect(button, &QPushButton::clicked, [&] { ++pressed; });
    ASSERT_TRUE(form.Open());
    button->setFocus();
    Press({Qt::Key_Space, Qt::Key_Return});
    ClickAt(button, button->rect().center());
    EXPECT_EQ(pressed, 3);
    button->SetRoundCorners(false);
    button->SetPressedColor(Qt::red);
    button->SetHoverColor(Qt::green);
    const auto ground = [&] { return button->grab().toImage().pixelColor(4, 4); };
    button->setDown(true);
    EXPECT_EQ(ground(), QColor(Qt::red));
    button->setDown(false);
    button->setAttribute(Qt::WA_UnderMouse);
    EXPECT_EQ(ground(), QColor(Qt::green));
    button->setAttribute(Qt::WA_UnderMouse, false);
    form.neighbour->setFocus();
    button->SetFlat(true);
    EXPECT_EQ(ground(), form.palette().color(QPalette::Window));
    button->SetAutoSize(false);
    button->SetCaption("1");
    EXPECT_GT(button->width(), narrow);
}

TEST(FlatCheckBox, KeysMouseAndArrows) {
    TControlForm form;
    auto* box = form.Add<TFlatCheckBox>(20, 20);
    auto* label = form.Add<TDropDownLabel>(80, 20);
    ASSERT_TRUE(form.Open());
    box->setFocus();
    const QImage off = box->grab().toImage();
    Press(Qt::Key_Space);
    EXPECT_TRUE(box->isChecked());
    EXPECT_NE(box->grab().toImage(), off);
    ClickAt(box, box->rect().bottomRight());
    EXPECT_FALSE(box->isChecked());
    Press(Qt::Key_Right);
    EXPECT_TRUE(label->hasFocus());
}

} // namespace tern7
