#include "sample.h"

#include <algorithm>
#include <random>
#include <stdexcept>

#include <QtCore/QProcess>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>

#include "engines.h"

#include <tern7/core/corekit/strings.h>
#include <tern7/sql/bde_info.h>
#include <tern7/sql/connection.h>
#include <tern7/sql/qt_text.h>

namespace tern7::proof {

size_t TTableRows::ColumnOf(std::string_view name) const {
    const auto found = std::find(columns.begin(), columns.end(), name);
    if (found == columns.end()) throw std::logic_error("no such column: " + std::string(name));
    return static_cast<size_t>(found - columns.begin());
}

std::string SampleFolder() {
    return std::string(TERN7_TESTS_DIR) + "/../examples/sample";
}

void RunProgram(const std::string& program, const std::vector<std::string>& arguments) {
    QStringList list;
    for (const std::string& argument : arguments)
        list << ToQt(argument);
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(ToQt(program), list);
    if (!process.waitForFinished(300'000) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        throw std::runtime_error(program + ": " + process.readAll().toStdString());
}

TSample& TSample::Shared() {
    static TSample sample;
    return sample;
}

TSample::TSample() {
    MakeFile();
    Import();
    ReadRows();
    std::mt19937 random(7);
    while (structures.size() < 4) {
        auto& next = *structures.emplace_back(std::make_unique<TKCustomDBStructure>());
        next.SetStructString(Imported().GetStructString());
        for (int i = 0; i < next.GetLinkCount(); ++i)
            next.GetLink(i)->SetLinkType(static_cast<TDSLinkType>(random() % 4));
    }
}

void TSample::MakeFile() {
    const std::string file = FromQt(folder.filePath(QStringLiteral("sample.db")));
    RunProgram(SampleFolder() + "/make_sample_db", {file});
    address = "sqlite:" + file;
}

namespace {

void AddOperators(TKCustomDBStructure& structure) {
    using enum TOpValueType;
    auto add = [&](const char* name, const char* text, TOpValueType type) {
        TDSOperator* op = structure.AddOperator(name);
        op->SetSQLName(text);
        op->SetValueType(type);
        return op;
    };
    add("InQuery", "@f in (@1)", vtSubQuery);
    add("NotInQuery", "@f not in (@1)", vtSubQuery);
    add("EqualOrNull", "(@f = '@1' or @f is null)", vtScalar);
    add("BeginsAndEnds", "@f like '@1%@2'", vtScalar)->SetAppliedTypes({TFieldType::ftString});
}

} // namespace

void TSample::Import() {
    TKCustomDBStructure& structure =
        *structures.emplace_back(std::make_unique<TKCustomDBStructure>());
    AddOperators(structure);
    const TKConnection connection(ParseDatabaseURL(address));
    TKBDEInfo info;
    info.SetDatabaseName(connection.Name());
    structure.SetDatabaseInfo(&info);
    ImportDatabase(structure);
    structure.SetDatabaseInfo(nullptr);
    QuoteMixedCase();

    AddVirtualField("Line key", "@2 * 100 - @1", TFieldType::ftInteger,
                    {"order_lines.line_no", "order_lines.order_id"});
    AddVirtualField("Credit", "coalesce(@1, 0)", TFieldType::ftBCD, {"customers.credit_limit"});
    AddVirtualField("Reachable at", "coalesce(@1, @2)", TFieldType::ftString,
                    {"customers.e_mail", "employees.e_mail"});
}

/// SQLite does without quotes where PostgreSQL needs them.
void TSample::QuoteMixedCase() {
    auto isMixed = [](const std::string& name) { return LowerCase(name) != name; };
    for (const auto& field : Imported().Fields())
        if (isMixed(field->FieldExpr())) field->SetQuoted(true);
    for (int i = 0; i < Imported().GetLinkCount(); ++i) {
        TDSLink& link = *Imported().GetLink(i);
        for (const TStrings* names : {&link.Fields1(), &link.Fields2()})
            if (std::any_of(names->begin(), names->end(), isMixed)) link.SetQuoteFields(true);
    }
}

void TSample::AddVirtualField(const char* name, std::string_view formula, TFieldType type,
                              std::initializer_list<const char*> columns) {
    TKCustomDBStructure& structure = Imported();
    TVirtualField description{&FormulaByText(formula), {}};
    std::string text(formula);
    for (const char* column : columns) {
        const TDSField* field = structure.FieldByName(false, column);
        if (!field) throw std::logic_error("no such field: " + std::string(column));
        description.fieldIDs.push_back(field->ID());
        const std::string placeholder = "@" + std::to_string(description.fieldIDs.size());
        text.replace(text.find(placeholder), placeholder.size(), field->GetSQLExpr());
    }
    TDSField* field = structure.AddField(TKFieldKind::kfkVirtual, text, name, nullptr);
    field->SetFieldType(type);
    field->AddAppliedOperators();
    virtualFields[field->ID()] = std::move(description);
}

void TSample::ReadRows() {
    const TKConnection connection(ParseDatabaseURL(address));
    for (int i = 0; i < Imported().GetTableCount(); ++i) {
        const std::string& name = Imported().GetTable(i)->TableName();
        if (tables.contains(name)) continue;
        TTableRows& table = tables[name];
        QSqlQuery query(connection.Database());
        query.setForwardOnly(true);
        query.exec(ToQt("select * from \"" + name + "\""));
        for (int column = 0; column < query.record().count(); ++column)
            table.columns.push_back(FromQt(query.record().fieldName(column)));
        table.rows = RowsOf(query);
    }
}

} // namespace tern7::proof
