// Properties and texts of the panel, in Qt's types.

#include <tern7/core/titles/default_titles.h>
#include <tern7/core/titles/titles.h>
#include <tern7/ui/panels/db_structure.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

QByteArray Bytes(const TStrings& lines) {
    return QByteArray::fromStdString(JoinStrings(lines, "\n"));
}

TStrings LinesOf(const QByteArray& text) {
    return SplitLines(std::string_view(text.constData(), static_cast<size_t>(text.size())));
}

} // namespace

void TKQueryPanel::SetDbStruct(TKCustomDBStructure* structure) {
    query->SetDbStruct(structure);
    FillServices();
    RefreshPanel();
}

TKCustomDBStructure* TKQueryPanel::DbStruct() {
    if (!query->DbStruct())
        if (auto* component = FindComponent<TKDBStructure>(*this, dbStructName))
            SetDbStruct(&component->Structure());
    return query->DbStruct();
}

void TKQueryPanel::SetDbStructName(const QString& name) {
    if (name == dbStructName) return;
    dbStructName = name;
    SetDbStruct(nullptr);
    if (isVisible()) DbStruct();
}

void TKQueryPanel::BuildQuery() {
    DbStruct();
    query->BuildQuery();
}

void TKQueryPanel::SetQueryBase(TKQueryBase* base) {
    DbStruct();
    baseLink.SetQueryBase(base);
}

/// A query that could not be read is shown as it is.
void TKQueryPanel::Read(const std::function<void(TKQuery& query)>& reading) {
    DbStruct();
    CloseEdit(false);
    const std::shared_ptr<TKQuery> held = query; // OnActive may delete the panel
    const bool wasActive = held->Active();
    try {
        reading(*held);
    } catch (...) {
        held->SetActive(wasActive);
        throw;
    }
}

void TKQueryPanel::LoadFromStrings(const TStrings& text) {
    Read([&](TKQuery& q) { q.LoadFromStrings(text); });
}

void TKQueryPanel::SaveToFile(const QString& fileName) {
    query->SaveToFile(FromQt(fileName));
}

void TKQueryPanel::LoadFromFile(const QString& fileName) {
    Read([&](TKQuery& q) { q.LoadFromFile(FromQt(fileName)); });
}

void TKQueryPanel::ParseSQL(const QString& sql) {
    Read([&](TKQuery& q) { q.ParseSQL(FromQt(sql)); });
}

void TKQueryPanel::ImportSQL(const QString& sql) {
    Read([&](TKQuery& q) { q.ImportSQL(FromQt(sql)); });
}

QString TKQueryPanel::QueryName() const {
    return ToQt(query->QueryName());
}

void TKQueryPanel::SetQueryName(const QString& value) {
    query->SetQueryName(FromQt(value));
}

QString TKQueryPanel::MainTableName() const {
    return ToQt(query->MainTableName());
}

void TKQueryPanel::SetMainTableName(const QString& value) {
    query->SetMainTableName(FromQt(value));
}

void TKQueryPanel::SetFormSQLSyntax(TSyntax value) {
    if (value >= ssSQL1 && value <= ssOracle) SetSQLSyntax(static_cast<TSQLSyntax>(value));
}

void TKQueryPanel::SetCheckValues(bool value) {
    query->CheckValues = value;
    RefreshPanel();
}

void TKQueryPanel::SetTitles(const TStrings& titles) {
    query->Titles = titles;
    RefreshPanel();
}

QByteArray TKQueryPanel::TitlesText() const {
    return Bytes(query->Titles);
}

void TKQueryPanel::SetTitlesText(const QByteArray& text) {
    SetTitles(LinesOf(text));
}

QByteArray TKQueryPanel::DescriptionText() const {
    return Bytes(query->Description);
}

void TKQueryPanel::SetDescriptionText(const QByteArray& text) {
    query->Description = LinesOf(text);
}

QByteArray TKQueryPanel::UserDataText() const {
    return Bytes(query->UserData);
}

void TKQueryPanel::SetUserDataText(const QByteArray& text) {
    query->UserData = LinesOf(text);
}

QString TKQueryPanel::Title(std::string_view key) const {
    return ToQt(TKTitles(DefaultQueryTitles(), query->Titles).Text(key));
}

} // namespace tern7
