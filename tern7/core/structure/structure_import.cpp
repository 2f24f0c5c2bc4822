#include <unordered_set>

#include <tern7/core/global/messages.h>
#include <tern7/core/structure/structure_import.h>
#include <tern7/core/structure/structure_indexes.h>

namespace tern7 {

namespace {

/// The name of a table without its schema.
std::string_view WithoutSchema(std::string_view name) {
    const size_t point = name.rfind('.');
    return point == std::string_view::npos || point + 1 == name.size() ? name
                                                                       : name.substr(point + 1);
}

/// What a foreign key says about the table it leads to: "ship_by_id" gives "Ship by".
std::string RoleOf(const TDBForeignKey& key) {
    std::string role;
    for (const std::string& column : key.Columns) {
        std::string readable = ReadableName(column);
        if (readable.size() > 3 && SameText(readable.substr(readable.size() - 3), " id"))
            readable.resize(readable.size() - 3);
        role += (role.empty() ? "" : ", ") + readable;
    }
    return role;
}

} // namespace

TDatabaseImport::TDatabaseImport(TKCustomDBStructure& target) : structure(target) {
    if (!target.DatabaseInfo()) throw EKDBStructError(std::string(messages::NoDatabaseInfo));
    info = target.DatabaseInfo();
    quote1 = info->QuoteSymbol1();
    quote2 = info->QuoteSymbol2();
}

// --- names

// Aliases are never quoted: plain names that the database has no other use for. A name in another
// case may be the one that it takes without quotes.
std::string TDatabaseImport::PlainName(std::string_view name) {
    std::string plain;
    for (char c : WithoutSchema(name))
        plain += IsLetter(c) || IsDigit(c) ? c : '_';
    if (plain.empty() || !IsLetter(plain[0])) plain.insert(0, 1, 't');
    if (info->NeedsQuotes(plain) && info->NeedsQuotes(LowerCase(plain)) &&
        info->NeedsQuotes(UpperCase(plain)))
        plain += '_';
    return plain;
}

std::string TDatabaseImport::FreeAlias(std::initializer_list<std::string> wishes) const {
    for (const std::string& wish : wishes)
        if (!structure.TableByName(true, wish)) return wish;
    const std::string& last = *(wishes.end() - 1);
    for (int number = 2;; ++number)
        if (std::string alias = last + "_" + std::to_string(number);
            !structure.TableByName(true, alias))
            return alias;
}

// Remembers the name that it gives.
std::string TDatabaseImport::FreeDisplayName(std::initializer_list<std::string> wishes) {
    if (displayNames.empty())
        for (int i = 0; i < structure.GetTableCount(); ++i)
            displayNames.insert(LowerCase(structure.GetTable(i)->DisplayName()));
    for (const std::string& wish : wishes)
        if (displayNames.insert(LowerCase(wish)).second) return wish;
    for (int number = 2;; ++number)
        if (std::string name = *(wishes.end() - 1) + " " + std::to_string(number);
            displayNames.insert(LowerCase(name)).second)
            return name;
}

// --- tables

TDSTable* TDatabaseImport::AddTable(const std::string& name, std::string alias,
                                    std::string displayName) {
    TDSTable* table = structure.AddTable(name, std::move(alias));
    table->SetDisplayName(std::move(displayName));
    table->SetQuoted(info->NeedsQuotes(name));
    return table;
}

TDSTable* TDatabaseImport::AddTable(const std::string& name, std::string alias) {
    const std::string readable = ReadableName(WithoutSchema(name));
    if (alias.empty()) alias = FreeAlias({PlainName(name)});
    return AddTable(name, std::move(alias),
                    FreeDisplayName({readable, readable + " (" + name + ")"}));
}

void TDatabaseImport::AddColumns(TDSTable* table, const TDBFieldList& columns, bool grouped) {
    std::unordered_set<std::string> given;
    TDSFieldGroup* group =
        grouped ? structure.FieldGroups().AddGroup(table->DisplayName(), nullptr) : nullptr;
    for (const TDBFieldInfo& column : columns) {
        std::string display = ReadableName(column.FieldName);
        if (!given.insert(LowerCase(display)).second) {
            display += " (" + column.FieldName + ")";
            given.insert(LowerCase(display));
        }
        TDSField* field =
            structure.AddField(TKFieldKind::kfkData, column.FieldName, std::move(display), table);
        field->SetFieldType(column.FieldType);
        field->SetFieldSize(column.FieldSize);
        field->SetQuoted(info->NeedsQuotes(column.FieldName));
        field->AddAppliedOperators();
        if (group) group->Add(field);
    }
}

// A local form of a date can silently mean another day.
void TDatabaseImport::UseFormats() {
    TSQLFormats& formats = structure.SQLFormats();
    formats.SetDate("yyyy-mm-dd");
    formats.SetTime("hh:nn:ss");
    formats.SetDateTime("yyyy-mm-dd hh:nn:ss");
    formats.SetQuoteSymbol1(quote1);
    formats.SetQuoteSymbol2(quote2);
}

// --- a whole database

// Everything is read before anything is changed: a database that fails on the way leaves the
// structure as it was.
void TDatabaseImport::Read() {
    TStrings names;
    info->TablesByDatabase(names);
    for (std::string& name : names) {
        TDBFieldList columns = info->GetFieldList(name);
        sources.push_back({std::move(name), std::move(columns), nullptr});
    }
    info->GetForeignKeys(keys);
}

void TDatabaseImport::Fill() {
    for (TSource& source : sources) {
        source.table = AddTable(source.name, {});
        AddColumns(source.table, source.columns, true);
        byName.try_emplace(source.name, &source);
        byNameIgnoringCase.try_emplace(source.name, &source);
    }
    for (const TDBForeignKey& key : keys)
        AddLink(key);
}

TDatabaseImport::TSource* TDatabaseImport::SourceOf(const std::string& name) const {
    if (const auto exact = byName.find(name); exact != byName.end()) return exact->second;
    const auto found = byNameIgnoringCase.find(name);
    return found == byNameIgnoringCase.end() ? nullptr : found->second;
}

// The first key of a table to another leads to the table itself; every further one, and a key of a
// table to itself, to a copy, for a query needs both ends under different aliases.
void TDatabaseImport::AddLink(const TDBForeignKey& key) {
    const TSource* from = SourceOf(key.Table);
    TSource* to = SourceOf(key.RefTable);
    if (!from || !to || key.Columns.empty() || key.Columns.size() != key.RefColumns.size()) return;
    TStrings pairs = key.Columns;
    pairs.insert(pairs.end(), key.RefColumns.begin(), key.RefColumns.end());
    std::set<TStrings>& known = linked[{from, to}];
    if (!known.insert(pairs).second) return; // the same key under another name
    const bool direct = from != to && known.size() == 1;
    TDSTable* target = direct ? to->table : AddCopy(*from, *to, RoleOf(key));

    auto link = std::make_unique<TDSLink>(structure);
    link->SetTable1(from->table);
    link->SetTable2(target);
    link->SetLinkType(key.Optional ? TDSLinkType::ltOuterLeft : TDSLinkType::ltInner);
    bool quote = false;
    for (size_t i = 0; i < key.Columns.size(); ++i) {
        link->AddPair(key.Columns[i], key.RefColumns[i]);
        quote |= info->NeedsQuotes(key.Columns[i]) || info->NeedsQuotes(key.RefColumns[i]);
    }
    link->SetQuoteFields(quote);
    structure.AddLinkByRef(std::move(link));
}

TDSTable* TDatabaseImport::AddCopy(const TSource& from, const TSource& to,
                                   const std::string& role) {
    const std::string alias = to.table->TableAlias(), plainRole = LowerCase(PlainName(role));
    const std::string display = to.table->DisplayName();
    TDSTable* copy =
        AddTable(to.name,
                 FreeAlias({alias + "_" + plainRole,
                            alias + "_" + from.table->TableAlias() + "_" + plainRole}),
                 FreeDisplayName({display + " (" + role + ")",
                                  display + " (" + from.table->DisplayName() + ": " + role + ")"}));
    AddColumns(copy, to.columns, true);
    return copy;
}

// --- the public doors

TDSTable* TKCustomDBStructure::AddTableFromDatabase(const std::string& name, std::string alias) {
    TDatabaseImport import(*this);
    TDBFieldList columns;
    if (AutoAddFields) columns = databaseInfo->GetFieldList(name);
    TDSUpdate update(*this);
    TDSTable* table = import.AddTable(name, std::move(alias));
    if (tables.GetCount() == 1 && sqlFormats == TSQLFormats()) import.UseFormats();
    import.AddColumns(table, columns, false);
    return table;
}

void ImportDatabase(TKCustomDBStructure& structure) {
    TDatabaseImport import(structure);
    import.Read();
    TDSUpdate update(structure);
    TKCustomDBStructure::TReferencesReleased references(structure);
    structure.ClearStructure();
    import.UseFormats();
    import.Fill();
}

} // namespace tern7
