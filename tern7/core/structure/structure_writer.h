#pragma once

#include <string>
#include <unordered_map>

#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/structure/structure.h>

namespace tern7 {

/// Writes a structure as text, in the order that readers rely on.
class TKStructureWriter {
public:
    explicit TKStructureWriter(const TKCustomDBStructure& written) : structure(written) {}
    std::string Write();

private:
    void Numbered(std::string_view prefix, int number, std::string_view suffix = {});
    void List(std::string_view key, const TStrings& items);
    void Body(const TStrings& lines);
    void WriteMain();
    void WriteOperator(const TDSOperator& op, int number);
    void WriteTable(const TDSTable& table, int number);
    void WriteLink(const TDSLink& link);
    void WriteField(const TDSField& field, int number);
    void WriteEditor(const TDSField& field, int number);
    void WriteTextEditor(const TDSTextEditor& editor);
    void WriteGroupFields(const TDSFieldList& fields);
    void WriteDatabaseLines();
    void WriteFormats();
    const std::string& OperatorNames(const TDSField& field);

    const TKCustomDBStructure& structure;
    TKIniWriter out;
    std::unordered_map<const void*, std::string> operatorNames; // by shared list
};

} // namespace tern7
