#pragma once

#include <tern7/core/structure/structure.h>
#include <tern7/ui/controls/popup_menu.h>
#include <tern7/ui/panels/result_fields_panel.h>
#include <tern7/ui/support/text.h>
#include <ui/controls/control_form.h>

namespace tern7 {

/// Customers and orders in two groups, one field outside them, one that is for conditions only.
/// Both tables have a field "Name".
inline void MakeShop(TKCustomDBStructure& structure) {
    TDSTable* customer = structure.AddTable("customers", "C");
    TDSTable* order = structure.AddTable("orders", "O");
    customer->SetDisplayName("Customer");
    order->SetDisplayName("Order");
    structure.AddLink("O", "C")->AddPair("customer_id", "id");
    const auto add = [&](TDSTable* table, const char* name, const char* display,
                         const char* group) {
        TDSField* field = structure.AddField(TKFieldKind::kfkData, name, display, table);
        if (*group) structure.FieldGroups().AddGroup(group, field);
        return field;
    };
    add(customer, "city", "City", "Customers");
    add(customer, "name", "Name", "Customers");
    add(order, "price", "Price", "Orders");
    add(order, "quantity", "Quantity", "Orders");
    add(order, "name", "Name", "Orders");
    add(order, "note", "Note", "");
    add(order, "secret", "Secret", "Orders")->SetUseInResult(false);
}

/// A query over the shop and a panel that shows its columns.
class TResultFieldsForm : public QWidget {
public:
    TResultFieldsForm() {
        resize(500, 300);
        MakeShop(structure);
        panel = new TKResultFieldsPanel(this);
        panel->resize(size());
        panel->SetResultFields(&Columns());
    }

    TRFieldList& Columns() { return query.QResult().ResultFields(); }
    TDSField* Field(const char* compound) { return structure.FieldByName(false, compound); }
    /// A plain column, or a formula when the text has braces.
    TResultField* Add(const char* caption, const char* expression) {
        return Columns().AddByExpression(caption, TSortingType::stNoSort, expression);
    }
    bool Open() {
        show();
        activateWindow();
        return QTest::qWaitForWindowActive(this);
    }
    const TResultFieldRow& Row(int i) { return *panel->Rows()[i]; }
    /// The rows as they are read, one a line.
    QStringList Texts() {
        QStringList lines;
        for (const auto& row : panel->Rows())
            lines << row->Button()->Caption() + ' ' + row->FieldLabel()->Caption() + ' ' +
                         row->SortLabel()->Caption();
        return lines;
    }
    /// The columns of the query: caption, SQL expression, rank of the sorted ones.
    QStringList Model() {
        QStringList lines;
        for (const auto& column : Columns()) {
            QString line = ToQt(column->Caption() + "=" + column->GetSQLExpr());
            if (column->Sorting() != TSortingType::stNoSort)
                line += QString(" %1#%2").arg(int(column->Sorting())).arg(column->SortOrder());
            lines << line;
        }
        return lines;
    }

    TKCustomDBStructure structure;
    TKQuery query{&structure};
    TKResultFieldsPanel* panel;
};

/// What was left to do later is done before and after a click.
inline void Click(QWidget* widget) {
    QCoreApplication::processEvents();
    ClickAt(widget, widget->rect().center());
}

} // namespace tern7
