// The query panel over 100 to 10,000 conditions (and a million, once), beside plain labels.
#include <memory>

#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

#include <tern7/ui/panels/query_panel.h>

#include <side_by_side.h>

namespace tern7::bench {

namespace {

/// A table of a few columns, and a filter of so many rows with a bracket for every ten.
struct TFilled {
    explicit TFilled(int count) {
        TDSTable* table = structure.AddTable("customers", "C");
        for (const char* column : {"city", "name", "street", "phone"}) {
            TDSField* field = structure.AddField(TKFieldKind::kfkData, column, column, table);
            field->SetFieldType(TFieldType::ftString);
            field->AddAppliedOperators();
        }
        TKQuery query(&structure);
        TFilterBracket* bracket = &query.Root();
        for (int i = 0; i < count; ++i) {
            if (i % 10 == 0) bracket = query.Root().AddBracket();
            TFilterCond* condition = bracket->AddCond();
            condition->SetField(structure.GetField(i % 4));
            condition->SetOperator(structure.OperatorByName("Equal"));
            condition->SetValue(1, "value " + std::to_string(i));
        }
        query.SaveToStrings(text);
    }
    TKCustomDBStructure structure;
    TStrings text;
};

/// What one turn of a program's event loop does: pictures and the end of controls.
void Paint(QWidget& widget) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    widget.grab();
}

/// A window with a panel that shows the rows.
struct TShown {
    explicit TShown(TFilled& filled) {
        panel.resize(800, 600);
        panel.SetDbStruct(&filled.structure);
        panel.LoadFromStrings(filled.text);
        panel.show();
        Paint(panel);
    }
    TKQueryPanel panel;
};

/// Four plain labels for each line, placed directly.
class TPlainLabels : public QScrollArea {
public:
    explicit TPlainLabels(int count) {
        auto* content = new QWidget;
        for (int i = 0; i < count; ++i) {
            for (int k = 0; k < 4; ++k) {
                auto* label = new QLabel(QStringLiteral("value %1").arg(i), content);
                label->setGeometry(80 * k, 20 * i, 78, 18);
            }
        }
        content->resize(400, 20 * count);
        setWidget(content);
        resize(800, 600);
    }
};

/// From a query that is read to its first picture.
void Open(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    TFilled filled(count);
    auto query = std::make_unique<TKQuery>();
    SideBySide(
        state, 1,
        [&] {
            TKQueryPanel panel(std::move(query), nullptr);
            panel.resize(800, 600);
            panel.show();
            Paint(panel);
        },
        [&] {
            TPlainLabels labels(count);
            labels.show();
            Paint(labels);
        },
        [&] {
            query = std::make_unique<TKQuery>(&filled.structure);
            query->LoadFromStrings(filled.text);
        });
}
BENCHMARK(Open)->Arg(100)->Arg(1000)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// A page further, all the way down.
void ScrollByPage(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    TFilled filled(count);
    TShown shown(filled);
    TPlainLabels labels(count);
    labels.show();
    Paint(labels);
    auto page = [](QAbstractScrollArea& area) {
        QScrollBar* bar = area.verticalScrollBar();
        const int next = bar->value() + bar->pageStep();
        bar->setValue(next > bar->maximum() ? 0 : next);
        Paint(area);
    };
    SideBySide(
        state, 1, [&] { page(shown.panel); }, [&] { page(labels); });
}
BENCHMARK(ScrollByPage)->Arg(100)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// One change and the picture after it; the yardstick is the same change at 100 rows, so that
/// times_as_fast near 1 means: it costs the same in a huge query.
template <class Change>
void BesideSmall(benchmark::State& state, Change change) {
    TFilled few(100), many(static_cast<int>(state.range(0)));
    TShown small(few), large(many);
    auto run = [&](TKQueryPanel& panel) {
        change(panel);
        Paint(panel);
    };
    SideBySide(
        state, 1, [&] { run(large.panel); }, [&] { run(small.panel); });
}

void ChangeValue(benchmark::State& state) {
    int n = 0;
    BesideSmall(state, [&n](TKQueryPanel& panel) {
        panel.Root().GetFirstCondition()->SetValue(1, std::to_string(++n));
    });
}
BENCHMARK(ChangeValue)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);

void AddRow(benchmark::State& state) {
    BesideSmall(state, [](TKQueryPanel& panel) {
        TFilterBracket& first = *panel.Root().GetRow(0)->AsBracket();
        first.InsertCond(0);
        panel.PlaceAllRows();
        first.DeleteRow(first.GetRow(0));
    });
}
BENCHMARK(AddRow)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

} // namespace tern7::bench

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
