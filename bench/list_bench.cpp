// Lists and menus of many items: opened and searched, beside Qt's list and menu of as many items.

#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMenu>

#include <side_by_side.h>

#include <tern7/ui/controls/drop_down_list_box.h>
#include <tern7/ui/controls/popup_menu.h>

namespace tern7 {

namespace {

QStringList Names(int64_t count) {
    QStringList names;
    for (int64_t i = 0; i < count; ++i)
        names << QStringLiteral("City %1 of %2").arg(i * 7919 % 10007).arg(i % 31);
    return names;
}

void OpenMenu(benchmark::State& state) {
    const QStringList names = Names(state.range(0));
    bench::SideBySide(
        state, 1,
        [&] {
            TKPopupMenu menu;
            for (const QString& name : names)
                menu.Items().Add(name);
            menu.Popup(10, 10);
            menu.repaint();
        },
        [&] {
            QMenu menu;
            for (const QString& name : names)
                menu.addAction(name);
            menu.popup({10, 10});
            menu.repaint();
        });
}

void SearchMenu(benchmark::State& state) {
    const QStringList names = Names(state.range(0));
    TKPopupMenu menu;
    for (const QString& name : names)
        menu.Items().Add(name);
    menu.Popup(10, 10);
    QListWidget list;
    list.addItems(names);
    list.show();
    bool odd = false;
    const auto word = [&] { return odd ? QStringLiteral("17") : QStringLiteral("y 23"); };
    bench::SideBySide(
        state, 1,
        [&] {
            menu.SearchField()->setText(word());
            menu.repaint();
        },
        [&] {
            for (int i = 0; i < list.count(); ++i)
                list.item(i)->setHidden(
                    !list.item(i)->text().contains(word(), Qt::CaseInsensitive));
            list.repaint();
        },
        [&] { odd = !odd; });
}

void OpenList(benchmark::State& state) {
    const QStringList names = Names(state.range(0));
    QWidget form;
    TDropDownListBox label(&form);
    label.SetItems(names);
    label.SetValues(names);
    form.show();
    bench::SideBySide(
        state, 1,
        [&] {
            label.DropDown();
            label.EditControl()->repaint();
            label.DropUp(false);
        },
        [&] {
            QListWidget list;
            list.addItems(names);
            list.show();
            list.repaint();
        });
}

BENCHMARK(OpenMenu)->Arg(100)->Arg(1000)->Arg(10000)->UseManualTime();
BENCHMARK(SearchMenu)->Arg(100)->Arg(1000)->Arg(10000)->UseManualTime();
BENCHMARK(OpenList)->Arg(100)->Arg(1000)->Arg(10000)->UseManualTime();

} // namespace

} // namespace tern7

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
