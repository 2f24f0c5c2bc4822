#pragma once

#include <memory>

#include <tern7/sql/bde_info.h>
#include <tern7/sql/connection.h>
#include <tern7/sql/database_url.h>

namespace tern7 {

/// What a structure asks of an open database. Lists are read in the background on connections of
/// their own, so that nothing waits for a server; for all else a connection is opened when it is
/// needed, which panels never do.
class TSessionInfo : public TKDBInfo {
public:
    explicit TSessionInfo(TKDatabaseURL address) : url(std::move(address)) {}

    void GetDatabaseNames(TStrings& list) override { Opened().GetDatabaseNames(list); }
    void TablesByDatabase(TStrings& list) override { Opened().TablesByDatabase(list); }
    void FieldsByTable(const std::string& table, TDBFieldList& list) override {
        Opened().FieldsByTable(table, list);
    }
    void GetSQLValues(const std::string& sql, TStrings& values, TStrings& captions) override {
        Opened().GetSQLValues(sql, values, captions);
    }
    std::function<void(TStrings&, TStrings&)> SQLValuesJob(const std::string& sql) override;
    void LoadInfo(const TStrings&) override {} // the address says it all
    void SaveInfo(TStrings&) override {}
    void GetForeignKeys(std::vector<TDBForeignKey>& list) override {
        Opened().GetForeignKeys(list);
    }
    bool NeedsQuotes(const std::string& name) override { return Opened().NeedsQuotes(name); }
    char QuoteSymbol1() override { return Opened().QuoteSymbol1(); }
    char QuoteSymbol2() override { return Opened().QuoteSymbol2(); }

private:
    struct TOpen {
        explicit TOpen(const TKDatabaseURL& url) : connection(url) {
            info.SetDatabaseName(connection.Name());
        }
        TKConnection connection;
        TKBDEInfo info;
    };
    TKBDEInfo& Opened();

    TKDatabaseURL url;
    std::unique_ptr<TOpen> open;
};

} // namespace tern7
