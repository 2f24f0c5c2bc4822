// The query panel over 100 to 100,000 conditions, beside plain labels.
#include <memory>

#include <malloc.h>

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

/// A program's event loop until it rests: the picture that is due, and the end of controls.
void Turn() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // also what other events ask for, as the picture is
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10000);
}

/// A window with a panel that shows the rows.
struct TShown {
    explicit TShown(TFilled& filled) {
        panel.resize(800, 600);
        panel.SetDbStruct(&filled.structure);
        panel.LoadFromStrings(filled.text);
        panel.show();
        Turn();
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

/// From a query that is read to the first picture; closing is not timed.
void Open(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    TFilled filled(count);
    std::unique_ptr<TKQuery> query;
    std::unique_ptr<TKQueryPanel> panel;
    std::unique_ptr<TPlainLabels> labels;
    SideBySide(
        state, 1,
        [&] {
            panel = std::make_unique<TKQueryPanel>(std::move(query), nullptr);
            panel->resize(800, 600);
            panel->show();
            Turn();
        },
        [&] {
            labels = std::make_unique<TPlainLabels>(count);
            labels->show();
            Turn();
        },
        [&] {
            panel.reset();
            labels.reset();
            Turn();
            query = std::make_unique<TKQuery>(&filled.structure);
            query->LoadFromStrings(filled.text);
        });
}
BENCHMARK(Open)->Arg(100)->Arg(1000)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The same alone: so many labels would take minutes.
void OpenHuge(benchmark::State& state) {
    TFilled filled(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        auto query = std::make_unique<TKQuery>(&filled.structure);
        query->LoadFromStrings(filled.text);
        const double start = ThreadTime();
        TKQueryPanel panel(std::move(query), nullptr);
        panel.resize(800, 600);
        panel.show();
        Turn();
        state.SetIterationTime(ThreadTime() - start);
    }
}
BENCHMARK(OpenHuge)->Arg(100000)->UseManualTime()->Unit(benchmark::kMillisecond);

size_t Allocated() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// What a row takes, nearly all of them out of sight: in the query, and in the panel that shows it.
void Memory(benchmark::State& state) {
    TFilled filled(static_cast<int>(state.range(0)));
    const auto rows = static_cast<double>(state.range(0));
    for (auto _ : state) {
        const size_t empty = Allocated();
        auto query = std::make_unique<TKQuery>(&filled.structure);
        query->LoadFromStrings(filled.text);
        const size_t loaded = Allocated();
        TKQueryPanel panel(std::move(query), nullptr);
        panel.resize(800, 600);
        panel.show();
        Turn();
        state.counters["query_bytes_a_row"] = static_cast<double>(loaded - empty) / rows;
        state.counters["panel_bytes_a_row"] = static_cast<double>(Allocated() - loaded) / rows;
    }
}
BENCHMARK(Memory)->Arg(10000)->Arg(100000)->Iterations(1);

/// Scrolls on, to the top again from the end.
void ScrollBy(benchmark::State& state, int (QAbstractSlider::*step)() const) {
    const int count = static_cast<int>(state.range(0));
    TFilled filled(count);
    TShown shown(filled);
    TPlainLabels labels(count);
    labels.show();
    Turn();
    auto scroll = [step](QAbstractScrollArea& area) {
        QScrollBar* bar = area.verticalScrollBar();
        const int next = bar->value() + (bar->*step)();
        bar->setValue(next > bar->maximum() ? 0 : next);
        Turn();
    };
    SideBySide(
        state, 1, [&] { scroll(shown.panel); }, [&] { scroll(labels); });
}

void ScrollByPage(benchmark::State& state) {
    ScrollBy(state, &QAbstractSlider::pageStep);
}
void ScrollByLine(benchmark::State& state) {
    ScrollBy(state, &QAbstractSlider::singleStep);
}
BENCHMARK(ScrollByPage)->Arg(100)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ScrollByLine)->Arg(100)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// One change and the picture after it; the yardstick is the same change at 100 rows, so that
/// times_as_fast near 1 means: it costs the same in a huge query.
template <class Change, class Prepare>
void BesideSmall(benchmark::State& state, Change change, Prepare prepare) {
    TFilled few(100), many(static_cast<int>(state.range(0)));
    TShown small(few), large(many);
    auto run = [&](TKQueryPanel& panel) {
        change(panel);
        Turn();
    };
    auto both = [&] {
        for (TKQueryPanel* panel : {&small.panel, &large.panel}) {
            prepare(*panel);
            panel->PlaceAllRows();
        }
        Turn();
    };
    SideBySide(
        state, 1, [&] { run(large.panel); }, [&] { run(small.panel); }, both);
}

void ChangeValue(benchmark::State& state) {
    int n = 0;
    BesideSmall(
        state,
        [&n](TKQueryPanel& panel) {
            panel.Root().GetFirstCondition()->SetValue(1, std::to_string(++n));
        },
        [](TKQueryPanel&) {});
}
BENCHMARK(ChangeValue)->Arg(1000)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// In front of all others, so that all are numbered anew; it is deleted again untimed.
void AddRow(benchmark::State& state) {
    BesideSmall(
        state, [](TKQueryPanel& panel) { panel.Root().GetRow(0)->AsBracket()->InsertCond(0); },
        [](TKQueryPanel& panel) {
            TFilterBracket& first = *panel.Root().GetRow(0)->AsBracket();
            if (first.GetRowCount() > 10) first.DeleteRow(first.GetRow(0));
        });
}
BENCHMARK(AddRow)->Arg(1000)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

} // namespace tern7::bench

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
