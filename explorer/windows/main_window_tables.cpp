// Which tables a query joins, and from which one it starts.

#include "main_window.h"

#include <QLabel>

#include <tern7/ui/controls/popup_menu.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/panels/result_fields_panel.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

constexpr qsizetype mostNamed = 12;

} // namespace

/// Joins follow the shortest way through the database, which may be another than the one that is
/// meant: so users see it, and can say where to start.
void TMainWindow::ShowTables() {
    const TRTableList& list = conditions->QResult().ResultTables();
    const bool isChosen = !conditions->MainTableName().isEmpty();
    QStringList names;
    for (int i = 0; i < list.GetCount() && names.size() < mostNamed; ++i)
        names << ToQt(list[i].Table->DisplayName());
    if (list.GetCount() > mostNamed) names << QStringLiteral("...");
    tables->setVisible(names.size() > 1 || isChosen);
    tables->setText(
        QStringLiteral("%1<br><a href=\"start\">%2</a>")
            .arg(tr("Tables: %1.").arg(names.join(QStringLiteral(" – "))).toHtmlEscaped(),
                 tr("Start from another table...").toHtmlEscaped()));
}

/// All tables in a menu; joins start from the chosen one.
void TMainWindow::ChooseStartTable() {
    if (!session) return;
    auto* menu = new TKPopupMenu(this);
    const QString present = conditions->MainTableName();
    const auto add = [&](const QString& caption, const QString& alias) {
        TMenuItem& item = menu->Items().Add(QString(caption).replace(u'&', QStringLiteral("&&")));
        item.RadioItem = true;
        item.Checked = alias.compare(present, Qt::CaseInsensitive) == 0;
        item.OnClick = [this, alias](TMenuItem*) {
            conditions->CloseEdit();
            conditions->Editor().SetMainTable(FromQt(alias));
        };
    };
    add(tr("Chosen by the columns"), {});
    const TKCustomDBStructure& structure = session->Structure();
    for (int i = 0; i < structure.GetTableCount(); ++i) {
        const TDSTable& table = *structure.GetTable(i);
        add(ToQt(table.DisplayName()), ToQt(table.TableAlias()));
    }
    connect(menu, &TKPopupMenu::closed, menu, &QObject::deleteLater);
    const QRect place = columns->rect();
    menu->PopupAt({columns->mapToGlobal(place.topLeft()), QSize(place.width(), 0)});
}

} // namespace tern7
