// Any bytes are read as a query text over a small structure: an error, or a query that writes a
// text which comes back unchanged, can be described and can be built or says why not.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include <tern7/core/global/errors.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_text.h>
#include <tern7/core/query/row_text.h>

namespace {

class TFuzzStructure : public tern7::TKCustomDBStructure {
public:
    TFuzzStructure() {
        using namespace tern7;
        TDSTable* customer = AddTable("Customer", "C");
        TDSTable* order = AddTable("Orders", "O");
        AddLink("C", "O")->AddPair("id", "customer_id");
        Add(customer, "city", "City", TFieldType::ftString);
        Add(order, "amount", "Amount", TFieldType::ftFloat);
        Add(order, "placed", "Placed on", TFieldType::ftDate);
        TDSOperator* inQuery = AddOperator("InQuery");
        inQuery->SetSQLName("@f in (@1)");
        inQuery->SetValueType(TOpValueType::vtSubQuery);
    }

private:
    void Add(tern7::TDSTable* table, const char* name, const char* title, tern7::TFieldType type) {
        tern7::TDSField* field = AddField(tern7::TKFieldKind::kfkData, name, title, table);
        field->SetFieldType(type);
        field->AddAppliedOperators();
    }
};

void Require(bool condition) {
    if (!condition) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tern7;
    static TFuzzStructure structure;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    ReadQueryTextHead(text);

    TKQuery query(&structure);
    const std::string before = query.GetQueryString();
    try {
        query.SetQueryString(text);
    } catch (const EKQueryPanelError&) {
        Require(query.GetQueryString() == before);
        return 0;
    }
    const std::string written = query.GetQueryString();
    TKQuery again(&structure);
    again.SetQueryString(written);
    Require(again.GetQueryString() == written);
    DescribeQuery(query, query.Titles);
    try {
        query.BuildQuery();
        query.QResult().GetSQL();
        query.QResult().GetBoundSQL();
    } catch (const EKTernError&) {
    }
    return 0;
}
