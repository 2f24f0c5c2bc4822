#pragma once

#include <gtest/gtest.h>

#include <core/query/shop.h>
#include <ui/controls/control_form.h>

#include <tern7/ui/controls/drop_down_edit.h>
#include <tern7/ui/controls/drop_down_popup.h>
#include <tern7/ui/controls/flat_check_box.h>
#include <tern7/ui/controls/round_button.h>
#include <tern7/ui/panels/filter_row_view.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

/// A window with a query panel over the shop, driven as a user drives it.
class TPanelTest : public TShop {
protected:
    TPanelTest() {
        window.resize(640, 400);
        panel = new TKQueryPanel(&window);
        panel->setGeometry(0, 0, 640, 400);
        panel->SetDbStruct(&structure);
        panel->SetSQLOptions({});
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        Settle();
    }
    ~TPanelTest() override { Settle(); }

    static void Settle() {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    TFilterRow& Row(int line) { return *panel->Lines().At(line).row; }
    TFilterCond& Cond(int line) { return *Row(line).AsCond(); }
    TFilterRowView& View(int line) { return *panel->RowView(Row(line)); }

    // --- what a user does
    void Click(QWidget* widget, Qt::KeyboardModifiers modifiers = {}) {
        ASSERT_NE(widget, nullptr);
        ClickAt(widget, widget->rect().center(), modifiers);
        Settle();
    }
    static void RightClick(QWidget* widget) {
        QTest::mouseClick(widget, Qt::RightButton);
        Settle();
    }
    void ClickLabel(int line, TRowLabelKind kind, int value = 0) {
        Click(View(line).Label(kind, value));
    }
    /// Takes a row of the open menu, by its text; sub menus are opened on the way.
    static void Pick(const QString& text) {
        auto* menu = qobject_cast<TKPopupMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr) << "no menu for " << text.toStdString();
        for (int row = 0; row < menu->RowCount(); ++row) {
            if (menu->Row(row)->PlainCaption() != text) continue;
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->RowRect(row).center());
            return Settle();
        }
        FAIL() << "no row " << text.toStdString();
    }
    void PickField(int line, const QString& field) {
        ClickLabel(line, TRowLabelKind::rlField);
        Pick(field);
    }
    void PickOperator(int line, const QString& op) {
        ClickLabel(line, TRowLabelKind::rlOperator);
        Pick(op);
    }
    /// Opens a value's editor and replaces the text.
    void EnterValue(int line, const QString& text, int n = 1) {
        ClickLabel(line, TRowLabelKind::rlValue, n);
        Type(text);
        Press(Qt::Key_Return);
        Settle();
    }

    // --- what is seen
    /// The pieces of a line as they are shown, with blanks between.
    std::string Shown(int line) {
        QStringList texts;
        for (QWidget* widget : View(line).Widgets())
            if (auto* label = qobject_cast<TDropDownLabel*>(widget)) texts << label->Caption();
        return texts.join(' ').toStdString();
    }
    /// The WHERE text on one line, without the brackets around the whole.
    std::string Condition() {
        panel->BuildQuery();
        const std::string text = panel->QResult().Conditions().OnOneLine();
        return text.size() > 4 && text[0] == '(' ? text.substr(2, text.size() - 4) : text;
    }

    QWidget window;
    TKQueryPanel* panel;
};

} // namespace tern7
