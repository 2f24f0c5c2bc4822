// Which tables a query joins, along which way, and from which one it starts.

#include "main_window.h"

#include <algorithm>
#include <utility>

#include <QAction>
#include <QLabel>

#include <tern7/core/query/join_ways.h>
#include <tern7/ui/controls/popup_menu.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/panels/result_fields_panel.h>
#include <tern7/ui/support/text.h>

#include "menu_text.h"
#include "message_bar.h"

namespace tern7 {

namespace {

constexpr size_t mostNamed = 12;
constexpr size_t mostAsked = 3; // tables for which other ways are looked for after each change

QString WayText(const std::vector<TDSTable*>& way) {
    QStringList names;
    for (size_t i = 0; i < std::min(way.size(), mostNamed); ++i)
        names << ToQt(way[i]->DisplayName());
    if (way.size() > mostNamed) names << QStringLiteral("...");
    return names.join(QStringLiteral(" – "));
}

QString Link(const char* target, const QString& text) {
    // three points do not go on a line of their own
    const QString shown =
        text.toHtmlEscaped().replace(QStringLiteral(" ..."), QStringLiteral("&nbsp;..."));
    return QStringLiteral("<a href=\"%1\">%2</a>").arg(QLatin1String(target), shown);
}

} // namespace

/// Joins follow the shortest way through the database, which may be another than the one that is
/// meant: so users see it, and can choose another or say where to start.
void TMainWindow::ShowTables() {
    const TRTableList& list = conditions->QResult().ResultTables();
    const bool isChosen = !conditions->MainTableName().isEmpty();
    std::vector<TDSTable*> joined;
    joined.reserve(static_cast<size_t>(list.GetCount()));
    for (int i = 0; i < list.GetCount(); ++i)
        joined.push_back(list[i].Table);
    const std::vector<TDSTable*> ends = JoinEnds(conditions->Query());
    const auto asked = ends.begin() + static_cast<std::ptrdiff_t>(std::min(ends.size(), mostAsked));
    const bool hasOtherWays = std::any_of(ends.begin(), asked, [this](const TDSTable* end) {
        return JoinWays(conditions->Query(), *end).size() > 1;
    });
    joinWayAction->setEnabled(hasOtherWays);

    QStringList lines{tr("Tables: %1.").arg(WayText(joined)).toHtmlEscaped()};
    const std::vector<TSharedTable> shared = SharedTables(conditions->Query());
    if (hasOtherWays && !shared.empty())
        lines << QStringLiteral("<b>%1</b>")
                     .arg(tr("%1 and %2 have only %3 in common.")
                              .arg(ToQt(shared.front().first->DisplayName()),
                                   ToQt(shared.front().second->DisplayName()),
                                   ToQt(shared.front().shared->DisplayName()))
                              .toHtmlEscaped());
    QStringList links;
    if (hasOtherWays) links << Link("way", tr("Join another way..."));
    links << Link("start", tr("Start from another table..."));
    lines << links.join(QStringLiteral(" &nbsp; "));
    tables->setVisible(joined.size() > 1 || isChosen);
    tables->setText(lines.join(QStringLiteral("<br>")));
    TellOtherStart();
}

/// Columns in another order may start the joins from another table, and then give other rows.
void TMainWindow::TellOtherStart() {
    const TRTableList& list = conditions->QResult().ResultTables();
    const auto textOf = [&list](const std::string& (TDSTable::*text)() const) {
        return list.IsEmpty() ? QString() : ToQt((list[0].Table->*text)());
    };
    const TStart now{textOf(&TDSTable::TableAlias), textOf(&TDSTable::DisplayName)};
    std::vector<const TResultField*> present;
    present.reserve(static_cast<size_t>(columns->ResultFields().GetCount()));
    for (int i = 0; i < columns->ResultFields().GetCount(); ++i)
        present.push_back(columns->ResultFields().GetItem(i));
    std::sort(present.begin(), present.end());
    const bool sameColumns = present == std::exchange(startColumns, present);
    const TStart before = std::exchange(start, now);
    if (before.alias == now.alias) return;
    if (queryMessages->Shown() == startMessage) queryMessages->Clear();
    const bool isChosen = !conditions->MainTableName().isEmpty();
    if (isChosen || !sameColumns || before.alias.isEmpty() || now.alias.isEmpty()) return;
    queryMessages->Say(
        TMessageBar::TKind::Note,
        [before, now] {
            return tr("The joins start from %1 now, and not from %2: the rows may be others.")
                .arg(now.name, before.name);
        },
        [before] { return tr("Start from %1").arg(before.name); },
        [this, before] { conditions->Editor().SetMainTable(FromQt(before.alias)); });
    startMessage = queryMessages->Shown();
}

/// All tables in a menu; joins start from the chosen one.
void TMainWindow::ChooseStartTable() {
    if (!session) return;
    auto* menu = new TKPopupMenu(this);
    const QString present = conditions->MainTableName();
    const auto add = [&](const QString& caption, const QString& alias) {
        TMenuItem& item = menu->Items().Add(MenuText(caption));
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
    PopUpAtColumns(menu);
}

/// The ways to each table at which the joins end, in a menu; in sub menus when there are several
/// such tables.
void TMainWindow::ChooseJoinWay() {
    if (!session) return;
    auto* menu = new TKPopupMenu(this);
    std::vector<std::pair<const TDSTable*, std::vector<TJoinWay>>> all;
    for (const TDSTable* end : JoinEnds(conditions->Query())) {
        std::vector<TJoinWay> ways = JoinWays(conditions->Query(), *end);
        if (ways.size() > 1) all.emplace_back(end, std::move(ways));
    }
    for (const auto& [end, ways] : all) {
        TMenuItem& into =
            all.size() == 1 ? menu->Items() : menu->Items().Add(MenuText(ToQt(end->DisplayName())));
        for (const TJoinWay& way : ways) {
            TMenuItem& item = into.Add(MenuText(WayText(way.tables)));
            item.RadioItem = true;
            item.Checked = &way == &ways.front();
            item.OnClick = [this, avoided = way.avoided](TMenuItem*) {
                conditions->CloseEdit();
                conditions->Editor().SetAvoidedJoins(avoided);
            };
        }
    }
    if (!all.empty()) return PopUpAtColumns(menu);
    delete menu;
}

void TMainWindow::PopUpAtColumns(TKPopupMenu* menu) {
    connect(menu, &TKPopupMenu::closed, menu, &QObject::deleteLater);
    const QRect place = columns->rect();
    menu->PopupAt({columns->mapToGlobal(place.topLeft()), QSize(place.width(), 0)});
}

} // namespace tern7
