#include "query_generator.h"

#include <algorithm>

#include "evaluator.h"

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/corekit/numbers.h>
#include <tern7/core/corekit/strings.h>

namespace tern7::proof {

namespace {

std::string ValueText(const TCell& cell) {
    if (const auto* text = std::get_if<std::string>(&cell)) return *text;
    if (const auto* whole = std::get_if<int64_t>(&cell)) return std::to_string(*whole);
    return XFloatToStr(std::get<double>(cell));
}

bool IsComplete(const TKQuery& query) {
    const TQueryResult& result = query.QResult();
    if (query.SQLSyntax() == TSQLSyntax::ssSQL2) return true;
    bool anyInner = false, anyOuter = false;
    for (int i = 1; i < result.ResultTables().GetCount(); ++i)
        (result.ResultTables()[i].Link->LinkType() == TDSLinkType::ltInner ? anyInner : anyOuter) =
            true;
    if (query.SQLSyntax() == TSQLSyntax::ssOracle) return !anyOuter;
    return anyInner || !anyOuter || !result.Conditions().IsEmpty();
}

/// Of an integer column only what is one of its values: servers give a named parameter the type of
/// the other side. And no word of SQL.
bool CanBeParameter(const TDSField& field, const std::string& value) {
    if (KindOf(field.FieldType()) != TKindOfType::Whole) return !SameText(value, "null");
    const std::optional<int> number = StrToIntExact(value);
    return number && std::abs(*number) < 32'000;
}

void CollectNested(const TFilterBracket& bracket, std::vector<const TKQuery*>& all) {
    for (const auto& row : bracket.Rows()) {
        if (!row->GetEnabled()) continue;
        if (const TFilterBracket* inner = row->AsBracket()) {
            CollectNested(*inner, all);
            continue;
        }
        const TFilterCond& condition = *row->AsCond();
        if (!condition.IsSubQueryOperator() || !condition.NestedQuery()) continue;
        all.push_back(condition.NestedQuery());
        CollectNested(all.back()->Root(), all);
    }
}

} // namespace

std::vector<const TKQuery*> WithNested(const TKQuery& query) {
    std::vector<const TKQuery*> all{&query};
    CollectNested(query.Root(), all);
    return all;
}

bool CanBeExecuted(const TKQuery& query) {
    const std::vector<const TKQuery*> all = WithNested(query);
    return std::all_of(all.begin(), all.end(), [](const TKQuery* q) { return IsComplete(*q); });
}

/// The query as it comes back from its text.
std::unique_ptr<TKQuery> ReadAgain(TKQuery& query) {
    auto again = std::make_unique<TKQuery>(query.DbStruct());
    again->SetQueryString(query.GetQueryString());
    again->SetSQLSyntax(query.SQLSyntax());
    again->BuildQuery();
    return again;
}

TCase MakeCase(const TSample& sample, uint32_t seed) {
    constexpr size_t mostRows = 4000;
    const auto& structures = sample.Structures();
    for (uint32_t attempt = 0;; ++attempt) {
        TCase made;
        TKCustomDBStructure& structure = *structures[seed % structures.size()];
        made.query = std::make_unique<TKQuery>(&structure);
        TQueryGenerator(sample, structure, seed * 1000 + attempt).Fill(*made.query);
        made.query->BuildQuery();
        if (!CanBeExecuted(*made.query)) continue;
        try {
            made.expected = TEvaluator(sample, mostRows).Rows(*made.query);
        } catch (const TTooManyRows&) {
            continue;
        }
        if (seed % 2) made.query = ReadAgain(*made.query);
        return made;
    }
}

TQueryGenerator::TQueryGenerator(const TSample& data, TKCustomDBStructure& over, uint32_t seed)
    : sample(data), structure(over), random(seed) {}

void TQueryGenerator::Fill(TKQuery& query) {
    query.SetSQLSyntax(OneIn(2) ? TSQLSyntax::ssSQL2 : static_cast<TSQLSyntax>(Below(3)));
    Options(query);
    TDSTable* start = structure.GetTable(
        static_cast<int>(Below(static_cast<unsigned>(structure.GetTableCount()))));
    ChooseTables(start);
    if (OneIn(2)) query.SetMainTableName(start->TableAlias());
    Columns(query);
    query.Root().SetLinkType(static_cast<TFilterLinkType>(Below(4)));
    Rows(query.Root(), 0);
    if (query.QResult().ResultFields().IsEmpty()) query.SetMainTableName(start->TableAlias());
}

void TQueryGenerator::Options(TKQuery& query) {
    query.SetSQLOptions(IntToSQLOptions(static_cast<int>(Below(1 << SQLOptionCount))));
    query.SaveSQLOptions = query.SaveMainTable = true;
}

/// The fields of a table and of those up to two links away, and the virtual fields over them.
void TQueryGenerator::ChooseTables(TDSTable* start) {
    std::vector<TDSTable*> tables{start};
    for (size_t i = 0, last = 1; i < 2; ++i, last = tables.size())
        for (size_t k = 0; k < last; ++k)
            for (const TDSLink* link : tables[k]->Links())
                if (TDSTable* other = link->OtherTable(tables[k]);
                    std::find(tables.begin(), tables.end(), other) == tables.end())
                    tables.push_back(other);
    // few of them, so that conditions and columns meet
    std::shuffle(tables.begin() + 1, tables.end(), random);
    tables.resize(std::min<size_t>(tables.size(), 1 + Below(4)));
    fields.clear();
    for (const auto& field : structure.Fields())
        if (std::all_of(field->GetTables().begin(), field->GetTables().end(), [&](TDSTable* table) {
                return std::find(tables.begin(), tables.end(), table) != tables.end();
            }))
            fields.push_back(field.get());
}

// ---------------------------------------------------------------- columns

void TQueryGenerator::Columns(TKQuery& query) {
    TRFieldList& list = query.QResult().ResultFields();
    const bool aggregates = OneIn(5);
    const unsigned count = OneIn(12) ? 0 : 1 + Below(4);
    for (unsigned i = 0; i < count; ++i)
        Column(list, aggregates);
    list.SetJustSorting(!aggregates && OneIn(15));
}

void TQueryGenerator::Column(TRFieldList& list, bool aggregates) {
    std::vector<TDSField*> of{AnyField(), AnyField()};
    const TFormula* formula = &FormulaByText("@1");
    const TFormula& other = AnyOf(Formulas());
    if (OneIn(3) && (other.aggregate == TAggregate::None || aggregates) &&
        other.takes(of[0]->FieldType(), of[1]->FieldType()))
        formula = &other;
    of.resize(static_cast<size_t>(formula->fieldCount));
    TResultField* column = list.Add();
    column->SetFields(of, std::string(formula->text));
    column->SetCaption(Caption(list.QuoteAliases()));
    if (OneIn(3) && !of.empty()) {
        column->SetSorting(OneIn(2) ? TSortingType::stAscending : TSortingType::stDescending);
        if (OneIn(2)) column->SetSortOrder(static_cast<int>(1 + Below(4)));
    }
}

/// One that makes an identifier, or anything where aliases are quoted.
std::string TQueryGenerator::Caption(bool quoted) {
    static const std::string plain[] = {"Name",    "Order no", "Größe in cm", "Betrag",
                                        "menge_2", "Жар x",    "Total",       "C1"};
    static const std::string any[] = {"Is it? :v1", "it's, well", "100 %", "a -- b /* c", "$1"};
    return quoted && OneIn(2) ? AnyOf(any) : AnyOf(plain);
}

// ---------------------------------------------------------------- conditions

void TQueryGenerator::Rows(TFilterBracket& bracket, int level) {
    for (unsigned count = Below(level == 0 ? 5 : 4); count > 0; --count) {
        TFilterRow* row = nullptr;
        if (level < 3 && OneIn(4)) {
            TFilterBracket* inner = bracket.AddBracket();
            inner->SetLinkType(static_cast<TFilterLinkType>(Below(4)));
            Rows(*inner, level + 1);
            row = inner;
        } else {
            row = bracket.AddCond();
            Condition(*row->AsCond());
        }
        if (OneIn(8)) row->SetEnabled(false);
    }
}

void TQueryGenerator::Condition(TFilterCond& condition) {
    const TDSField& field = *AnyField();
    if (!OneIn(40)) condition.SetField(const_cast<TDSField*>(&field));
    static const char* const likes[] = {"StartsWith", "NotStartsWith", "Contains", "NotContains",
                                        "BeginsAndEnds"};
    TDSOperator* op = AnyOf(field.Operators());
    if (KindOf(field.FieldType()) == TKindOfType::Text && OneIn(3))
        op = structure.OperatorByName(AnyOf(likes));
    while (op->ValueType() == TOpValueType::vtSubQuery && nesting > 1)
        op = AnyOf(field.Operators());
    if (!OneIn(40)) condition.SetOperator(op);
    const std::string& name = op->Name();
    if (name == "IsNull") return;
    if (OneIn(40) && (IsNumeric(KindOf(field.FieldType())) || name == "InList")) return;
    if (op->ValueType() == TOpValueType::vtSubQuery) {
        SubQuery(condition);
    } else if (name == "InList") {
        condition.SetValue(1, List(field));
    } else if (name == "BeginsAndEnds") {
        condition.SetValue(1, Pattern(field, false));
        condition.SetValue(2, Pattern(field, true));
    } else if (name == "Between") {
        std::string from = Value(field), to = Value(field);
        if (to < from && !OneIn(4)) std::swap(from, to);
        condition.SetValue(1, from);
        condition.SetValue(2, to);
        condition.SetValue2IsParam(OneIn(8) && CanBeParameter(field, to));
    } else {
        const bool like = op->SQLName().find("like") != std::string::npos;
        condition.SetValue(1, like ? Pattern(field, op->SQLName().find("'%") != std::string::npos)
                                   : Value(field));
    }
    // a list in one parameter would be one text; a literal holds one parameter
    if (op->ValueType() == TOpValueType::vtScalar && name != "BeginsAndEnds")
        condition.SetValue1IsParam(OneIn(8) && CanBeParameter(field, condition.Value(1)));
}

void TQueryGenerator::SubQuery(TFilterCond& condition) {
    const std::vector<TDSField*> outer = fields;
    const TKindOfType kind =
        KindOf(condition.Field() ? condition.Field()->FieldType() : TFieldType::ftInteger);
    std::vector<TDSField*> candidates;
    for (const auto& field : structure.Fields())
        if (KindOf(field->FieldType()) == kind) candidates.push_back(field.get());
    TDSField* column = AnyOf(candidates);
    ChooseTables(column->GetTables().front());

    std::string text;
    TSQLOptions options;
    {
        const std::unique_ptr<TKQuery> nested = condition.Query()->NewNested();
        Options(*nested);
        ++nesting;
        TResultField* result = nested->QResult().ResultFields().Add();
        const bool greatest = OneIn(6) && kind != TKindOfType::Boolean;
        result->SetFields({column}, greatest ? "MAX(@1)" : "@1");
        if (OneIn(2)) result->SetCaption(Caption(nested->QResult().ResultFields().QuoteAliases()));
        nested->Root().SetLinkType(static_cast<TFilterLinkType>(Below(4)));
        Rows(nested->Root(), 1);
        --nesting;
        text = nested->GetQueryString();
        options = nested->SQLOptions();
    }
    condition.SetSubQuery(text, options);
    fields = outer;
}

// ---------------------------------------------------------------- values

TCell TQueryGenerator::CellOf(const TDSField& field, size_t rowNumber) const {
    if (field.Kind() == TKFieldKind::kfkData) {
        const TTableRows& table = sample.Rows(field.Table()->TableName());
        return table.rows[rowNumber % table.rows.size()][table.ColumnOf(field.FieldExpr())];
    }
    const TVirtualField& description = sample.VirtualFields().at(field.ID());
    TRow parts;
    for (int id : description.fieldIDs)
        parts.push_back(CellOf(*structure.FieldByID(id), rowNumber));
    return description.formula->value(parts);
}

/// A value that the field has somewhere, or one that nearly is.
std::string TQueryGenerator::Value(const TDSField& field) {
    TCell cell = CellOf(field, random());
    if (IsNull(cell)) cell = CellOf(field, random());
    const std::string text = IsNull(cell) ? std::string() : ValueText(cell);
    switch (KindOf(field.FieldType())) {
    case TKindOfType::Whole:
    case TKindOfType::Exact:
    case TKindOfType::Floating:
        return NumberValue(field, text.empty() ? "7" : text);
    case TKindOfType::Boolean:
        return OneIn(2) ? "1" : "0";
    case TKindOfType::Text:
        return TextValue(text);
    case TKindOfType::Date:
        return text.empty() || OneIn(8) ? "2023-02-28" : text;
    case TKindOfType::Time:
        return text.empty() || OneIn(8) ? "08:15:59" : text;
    case TKindOfType::Timestamp:
        if (text.empty() || OneIn(8)) return "2022-12-31 23:59:59";
        return OneIn(6) ? text.substr(0, 10) : text;
    }
    return text;
}

std::string TQueryGenerator::NumberValue(const TDSField& field, const std::string& number) {
    if (!OneIn(3)) return number;
    const bool whole = KindOf(field.FieldType()) == TKindOfType::Whole;
    const std::string others[] = {number.find('.') == std::string::npos ? number + ".5"
                                                                        : "0" + number,
                                  whole ? std::to_string(std::stoll(number) + 1) : number + "1",
                                  number[0] == '-' ? number : "-" + number,
                                  " " + number + " ",
                                  "null",
                                  "NULL",
                                  "70000"};
    return AnyOf(others);
}

std::string TQueryGenerator::TextValue(const std::string& text) {
    static const std::string others[] = {"",   "'",        "%",   "O'Hara", "o''Double & O'Single",
                                         "_",  "1 OR 1=1", "ÄÖÜ", "\"x\"",  "NULL",
                                         "@1", ":v1 ?"};
    if (!OneIn(3)) return text;
    const std::string changed[] = {text + " ", text + "'", UpperCase(text),
                                   text.substr(0, text.find(' ')), AnyOf(others)};
    return AnyOf(changed);
}

/// A piece of a value, with wildcards at times. No backslash: engines disagree on it here.
std::string TQueryGenerator::Pattern(const TDSField& field, bool anywhere) {
    const std::string text = ReplaceStr(TextValue(Value(field)), "\\", "_");
    std::vector<std::string> characters;
    for (char c : text)
        if (characters.empty() || (static_cast<unsigned char>(c) & 0xC0) != 0x80)
            characters.emplace_back(1, c);
        else
            characters.back() += c;
    const auto count = static_cast<unsigned>(characters.size());
    const size_t from = anywhere && count > 0 ? Below(count) : 0;
    std::string pattern;
    for (size_t i = from; i < count && i < from + 1 + Below(5); ++i)
        pattern += OneIn(10) ? (OneIn(2) ? "_" : "%") : characters[i];
    return pattern;
}

std::string TQueryGenerator::List(const TDSField& field) {
    TStrings items;
    for (unsigned count = 1 + Below(5); count > 0; --count)
        items.push_back(Value(field));
    // the comma text of numbers stands as it is, without quotes
    if (IsNumeric(KindOf(field.FieldType()))) return JoinStrings(items, ",");
    return ComposeCommaText(items);
}

} // namespace tern7::proof
