#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/structure/structure_content.h>

namespace tern7 {

/// Reads a structure text into a TContent. Sections are found by name, keys by name; what is
/// missing takes its default, a numbered section that is missing is an error. Linear in the text.
class TKStructureReader {
public:
    using TContent = TKCustomDBStructure::TContent;

    TKStructureReader(TKCustomDBStructure& owner, std::string_view text);
    std::unique_ptr<TContent> Read();

private:
    using TOperators = std::vector<TDSOperator*>;

    // sections and values
    const TKIniSection* Next(std::string_view name);
    const TKIniSection* Optional(std::string_view name);
    const TKIniSection& Numbered(std::string_view prefix, int number, std::string_view suffix = {});
    [[noreturn]] static void FailSection(std::string_view name);
    [[noreturn]] static void FailValue(const TKIniSection& section, std::string_view key,
                                       std::string_view value);
    [[noreturn]] void FailTable(const TKIniSection& section, std::string_view key,
                                std::string_view name);
    int Count(const TKIniSection& main, std::string_view key) const;
    void RequireCounts(const TKIniSection& main) const;
    void WarnOfMore(std::string_view prefix, std::string_view key, int count);
    static int Ordinal(const TKIniSection& section, std::string_view key, int count);
    static TStrings List(const TKIniSection& section, std::string_view key);
    void Warn(std::string_view message, std::initializer_list<std::string_view> arguments);

    // main and operators (structure_reader.cpp)
    void ReadMain(const TKIniSection& main);
    void ReadOperators(int count);
    void ReadOperator(const TKIniSection& section, TDSOperator& op);
    void ReadAppliedTypes(const TKIniSection& section, TDSOperator& op);
    void MergeDefaults();
    void AddOperator(std::unique_ptr<TDSOperator> op);
    void ReadFormats(const TKIniSection& section);
    void ReadDatabaseLines(const TKIniSection& section);

    // tables and links (structure_reader_tables.cpp)
    struct TLinkTask {
        TDSTable* table;
        const TKIniSection* section; // of the table
        std::string alias;           // as the text has it
        std::string aliases;         // comma text of the tables that its links lead to
    };
    void ReadTables(int count);
    void ReadTable(const TKIniSection& section, TDSTable& table);
    void ReadLinks(const TLinkTask& task);
    void ReadLink(const TKIniSection& section, TDSLink& link);
    std::string FreeAlias(const std::string& wish) const;
    TDSTable* TableByAlias(std::string_view alias) const;

    // fields and groups (structure_reader_fields.cpp)
    void ReadFields(int count);
    void ReadField(const TKIniSection& section, TDSField& field, int number);
    void ReadColumn(const TKIniSection& section, TDSField& field);
    TDSTable* ReadTableOf(const TKIniSection& section);
    void ReadEditor(const TKIniSection& section, TDSField& field, int number);
    void ReadTextEditor(const TKIniSection& section, TDSTextEditor& editor);
    void GiveID(TDSField& field, int id);
    void GiveMissingIDs();
    std::shared_ptr<TOperators> OperatorsOf(const TKIniSection& section);
    std::shared_ptr<TOperators> ReadOperatorList(std::string_view commaText);
    void ReadGroups(int count);
    void ReadGroupFields(const TKIniSection& section, std::string_view groupName,
                         TDSFieldGroup* group, std::vector<TDSField*>& fields);
    void PlaceRestInRoot();
    TDSField* FieldByID(int id) const;
    void Remember(TDSField* field);

    TKCustomDBStructure& structure;
    TKIniText ini;
    size_t cursor = 0; // behind the section found last: files keep their sections in order
    std::string nameBuffer;
    std::unique_ptr<TContent> content;
    std::unordered_map<std::string_view, TDSTable*, TTextHash, TTextEqual> aliases;
    std::unordered_map<std::string_view, TDSTable*, TTextHash, TTextEqual> tableNames;
    std::unordered_map<std::string_view, TDSOperator*, TTextHash, TTextEqual> operatorNames;
    std::unordered_map<std::string_view, std::shared_ptr<TOperators>> operatorLists; // by text
    std::vector<TLinkTask> linkTasks;
    std::vector<TDSField*> fieldsByID; // small IDs; the others:
    std::unordered_map<int, TDSField*> fieldsByLargeID;
    std::vector<std::pair<TDSField*, int>> withoutID; // and the ID that could not be used
    std::vector<bool> placed;                         // by position: the field stands in a group
    bool closesWithRootGroup = false;                 // as every text of this version does
    TDSTable* lastTable = nullptr; // most fields have the table of the field before
};

} // namespace tern7
