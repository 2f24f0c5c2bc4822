// Structure texts into the model, beside QSettings and inih reading the same text, and the memory
// that a field takes.

#include <cstdio>
#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <malloc.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ini.h>
#ifdef TERN7_BENCH_QT
#include <QSettings>
#include <QStringList>
#endif

#include <tern7/core/corekit/files.h>
#include <tern7/core/structure/structure.h>

#include "side_by_side.h"

namespace {

using namespace tern7;

constexpr const char* Columns[] = {"id",        "customer_id", "name",       "city",
                                   "placed_on", "amount",      "is_paid",    "description",
                                   "ship_via",  "unit_price",  "changed_at", "changed_by_user_id"};
constexpr TFieldType Types[] = {
    TFieldType::ftAutoInc, TFieldType::ftInteger,  TFieldType::ftString,   TFieldType::ftString,
    TFieldType::ftDate,    TFieldType::ftBCD,      TFieldType::ftBoolean,  TFieldType::ftMemo,
    TFieldType::ftString,  TFieldType::ftCurrency, TFieldType::ftDateTime, TFieldType::ftInteger};

/// Tables with so many fields altogether, one group each, every table linked to an earlier one.
void Fill(TKCustomDBStructure& structure, int tables, int fields) {
    TDSUpdate update(structure);
    for (int i = 0; i < tables; ++i) {
        const std::string number = std::to_string(i);
        TDSTable* table = structure.AddTable("order_items_" + number, "OrderItems" + number);
        table->SetDisplayName("Order items " + number);
        if (i > 0)
            structure.AddLink(table->TableAlias(), structure.GetTable(i / 3)->TableAlias())
                ->AddPair("customer_id", "id");
        TDSFieldGroup* group = structure.FieldGroups().AddGroup(table->DisplayName(), nullptr);
        for (int k = 0; k < fields / tables; ++k) {
            const std::string column = Columns[k % 12] + (k < 12 ? "" : std::to_string(k));
            TDSField* field =
                structure.AddField(TKFieldKind::kfkData, column, ReadableName(column), table);
            field->SetFieldType(Types[k % 12]);
            field->SetFieldSize(k % 12 == 2 ? 40 : 0);
            field->AddAppliedOperators();
            group->Add(field);
        }
    }
}

std::string TextOf(int64_t tables, int64_t fields) {
    TKCustomDBStructure structure;
    Fill(structure, static_cast<int>(tables), static_cast<int>(fields));
    return structure.GetStructString();
}

int CountLine(void* count, const char*, const char*, const char*) {
    ++*static_cast<size_t*>(count);
    return 1;
}

void LoadBesideInih(benchmark::State& state) {
    const std::string text = TextOf(state.range(0), state.range(1));
    auto ours = [&] {
        TKCustomDBStructure structure;
        structure.SetStructString(text);
        benchmark::DoNotOptimize(structure.GetFieldCount());
    };
    auto inih = [&] {
        size_t lines = 0;
        ini_parse_string(text.c_str(), CountLine, &lines);
        benchmark::DoNotOptimize(lines);
    };
    bench::SideBySide(state, 1, ours, inih);
}

#ifdef TERN7_BENCH_QT
void LoadBesideQSettings(benchmark::State& state) {
    const std::string text = TextOf(state.range(0), state.range(1));
    char name[] = "/tmp/structure-bench-XXXXXX";
    close(mkstemp(name));
    WriteWholeFile(name, text);
    auto ours = [&] {
        TKCustomDBStructure structure;
        structure.LoadFromFile(name);
        benchmark::DoNotOptimize(structure.GetFieldCount());
    };
    auto settings = [&] {
        const QSettings file(name, QSettings::IniFormat);
        // all keys: sections are read when one of their keys is first asked for
        benchmark::DoNotOptimize(file.allKeys().size());
    };
    timespec times[2] = {{1000000000, 0}, {1000000000, 0}};
    auto touch = [&] { // QSettings reads a file again only when its time is another
        ++times[1].tv_sec;
        utimensat(AT_FDCWD, name, times, 0);
    };
    bench::SideBySide(state, 1, ours, settings, touch);
    std::remove(name);
}
#endif

void Save(benchmark::State& state) {
    TKCustomDBStructure structure;
    Fill(structure, static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    size_t size = 0;
    for (auto _ : state) {
        size = structure.GetStructString().size();
        benchmark::DoNotOptimize(size);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(size));
}

size_t Allocated() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

// Bytes a field, all in: after loading, and when every lookup has been asked.
void Memory(benchmark::State& state) {
    const std::string text = TextOf(state.range(0), state.range(1));
    const auto fields = static_cast<double>(state.range(1));
    for (auto _ : state) {
        const size_t before = Allocated();
        TKCustomDBStructure structure;
        structure.SetStructString(text);
        state.counters["bytes_a_field"] = static_cast<double>(Allocated() - before) / fields;
        structure.FieldByID(1);
        structure.FieldByName(true, "x");
        structure.FieldByName(false, "x");
        structure.FieldByFullName("x");
        structure.FieldBySQLExpr("x");
        state.counters["with_all_lookups"] = static_cast<double>(Allocated() - before) / fields;
    }
}

// Sequences of changes and lookups: the time of each step must not grow with the structure.
void AddAndLookUpInTurns(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    for (auto _ : state) {
        TKCustomDBStructure structure;
        TDSTable* table = structure.AddTable("t", "T");
        for (int i = 0; i < count; ++i) {
            const std::string name = "c" + std::to_string(i);
            TDSField* field = structure.AddField(TKFieldKind::kfkData, name, name, table);
            benchmark::DoNotOptimize(structure.FieldByID(i));
            benchmark::DoNotOptimize(structure.FieldByName(true, name));
            field->SetDisplayName(name + "x");
            benchmark::DoNotOptimize(structure.FieldBySQLExpr("T." + name));
        }
    }
    state.SetItemsProcessed(state.iterations() * count);
}

void Clear(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        auto structure = std::make_unique<TKCustomDBStructure>();
        Fill(*structure, static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
        state.ResumeTiming();
        structure->ClearStructure();
        state.PauseTiming();
        structure.reset();
        state.ResumeTiming();
    }
}

void Sizes(benchmark::internal::Benchmark* line) {
    line->ArgNames({"tables", "fields"})->Args({1000, 50000})->Args({10000, 200000});
    line->Unit(benchmark::kMillisecond);
}

BENCHMARK(LoadBesideInih)->Apply(Sizes)->UseManualTime();
#ifdef TERN7_BENCH_QT
BENCHMARK(LoadBesideQSettings)->Apply(Sizes)->UseManualTime();
#endif
BENCHMARK(Save)->Apply(Sizes);
BENCHMARK(Memory)->Apply(Sizes)->Iterations(1);
BENCHMARK(Clear)->Apply(Sizes);
BENCHMARK(AddAndLookUpInTurns)->Arg(5000)->Arg(50000)->Unit(benchmark::kMillisecond);

} // namespace
