// Any bytes are read as a SELECT statement over a small structure, plainly and completely: an error,
// or a query that can be saved and read again and, when it can be built, says the same when its
// statement is imported again.

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include <tern7/core/query/query.h>
#include <tern7/core/query/read_sql/sql_report.h>

namespace {

using namespace tern7;

class TFuzzStructure : public TKCustomDBStructure {
public:
    TFuzzStructure() {
        TDSTable* customer = AddTable("Customer", "C");
        TDSTable* order = AddTable("Orders", "O");
        AddTable("Customer", "C2");
        AddLink("C", "O", TDSLinkType::ltOuterLeft)->AddPair("id", "customer_id");
        AddLink("O", "C2")->AddPair("id", "id");
        AddData(customer, "city", TFieldType::ftString);
        AddData(order, "amount", TFieldType::ftFloat);
        AddData(order, "paid", TFieldType::ftBoolean);
        AddData(order, "placed on", TFieldType::ftDate)->SetQuoted(true);
        AddData(TableByName(true, "C2"), "id", TFieldType::ftInteger);
        TDSOperator* inQuery = AddOperator("InQuery");
        inQuery->SetSQLName("@f in (@1)");
        inQuery->SetValueType(TOpValueType::vtSubQuery);
        SQLFormats().SetDate("yyyy-mm-dd");
    }

private:
    TDSField* AddData(TDSTable* table, const char* name, TFieldType type) {
        TDSField* field = AddField(TKFieldKind::kfkData, name, name, table);
        field->SetFieldType(type);
        field->AddAppliedOperators();
        return field;
    }
};

void Require(bool condition) {
    if (!condition) std::abort();
}

std::optional<std::string> Statement(TKQuery& query) {
    try {
        query.BuildQuery();
        query.QResult().GetBoundSQL();
    } catch (const EKTernError&) {
        return std::nullopt;
    }
    return query.QResult().GetSQL().Text();
}

void CheckSaved(TKQuery& query) {
    query.SaveMainTable = true;
    const std::string written = query.GetQueryString();
    TKQuery again(query.DbStruct());
    again.SaveMainTable = true;
    again.SetQueryString(written);
    Require(again.GetQueryString() == written);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static TFuzzStructure structure;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    TKQuery plain(&structure), complete(&structure);
    try {
        plain.ParseSQL(text);
        CheckSaved(plain);
        Statement(plain);
    } catch (const ESQLParserError&) {
        Require(!plain.Active() && plain.BuilderState() == TKBuilderState::stIdle);
    }
    try {
        complete.ImportSQL(text);
    } catch (const ESQLParserError&) {
        Require(!complete.Active() && complete.BuilderState() == TKBuilderState::stIdle);
        return 0;
    }
    CheckSaved(complete);
    if (complete.SQLReport().Has(TSQLReportKind::rkDropped)) return 0;
    const std::optional<std::string> statement = Statement(complete);
    if (!statement || complete.SQLReport().Has(TSQLReportKind::rkKeptAsText)) return 0;
    TKQuery saved(&structure);
    saved.SetSQLSyntax(complete.SQLSyntax());
    saved.SetSQLOptions(complete.SQLOptions());
    saved.SaveMainTable = true;
    complete.SaveMainTable = true;
    saved.SetQueryString(complete.GetQueryString());
    Require(Statement(saved) == statement);
    TKQuery again(&structure);
    again.ImportSQL(*statement);
    Require(Statement(again) == statement);
    return 0;
}
