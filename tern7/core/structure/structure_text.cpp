#include <algorithm>

#include <tern7/core/corekit/files.h>
#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/structure/structure_content.h>
#include <tern7/core/structure/structure_paths.h>
#include <tern7/core/structure/structure_reader.h>
#include <tern7/core/structure/structure_writer.h>

namespace tern7 {

std::unique_ptr<TKCustomDBStructure::TContent>
TKCustomDBStructure::ReadText(std::string_view text) {
    try {
        if (IsUTF8(text)) return TKStructureReader(*this, WithoutByteOrderMark(text)).Read();
        const TKDecodedText decoded = DecodeTextFile(std::string(text));
        std::unique_ptr<TContent> content = TKStructureReader(*this, decoded.text).Read();
        content->warnings.insert(content->warnings.begin(), std::string(messages::NoUTF8));
        return content;
    } catch (const EKDBStructError&) {
        throw;
    } catch (const EKTernError& error) {
        throw EKDBStructError(error.what());
    }
}

void TKCustomDBStructure::SetStructString(std::string_view text) {
    std::unique_ptr<TContent> content = ReadText(text);
    if (TKDBInfo* info = DatabaseInfo(); info && !content->databaseLines.empty()) {
        info->LoadInfo(content->databaseLines); // may fail: nothing is changed yet
        content->databaseLines.clear();
    }
    Adopt(std::move(content));
}

std::string TKCustomDBStructure::GetStructString() const {
    return TKStructureWriter(*this).Write();
}

void TKCustomDBStructure::LoadFromStrings(const TStrings& lines) {
    SetStructString(JoinStrings(lines, "\n"));
}

void TKCustomDBStructure::SaveToStrings(TStrings& lines) const {
    lines = SplitLines(GetStructString());
}

void TKCustomDBStructure::LoadFromFile(const std::string& fileName) {
    SetStructString(ReadWholeFile(fileName));
}

void TKCustomDBStructure::SaveToFile(const std::string& fileName) const {
    WriteWholeFile(fileName, GetStructString());
}

// Exchanges what the structure holds; what it held ends with the content, before anybody is told.
void TKCustomDBStructure::Adopt(std::unique_ptr<TContent> content) {
    TDSUpdate update(*this);
    TReferencesReleased references(*this);
    ForgetPaths();
    indexes = std::make_unique<TIndexes>();
    tables.Swap(content->tables);
    fields.Swap(content->fields);
    links.Swap(content->links);
    MakeLinkedSets();
    operators.Swap(content->operators);
    groups.items.swap(content->groups);
    groups.names.Drop();
    rootGroup.fields.swap(content->rootFields);
    lastFieldOrder = static_cast<uint32_t>(fields.GetCount());
    lastOperatorOrder = static_cast<uint32_t>(operators.GetCount());
    lastID = std::max(lastID, content->lastID);
    fileVersion = content->version;
    defaultMainTable = std::move(content->defaultMainTable);
    rootFieldsFirst = content->rootFieldsFirst;
    if (content->formats) sqlFormats.Assign(*content->formats);
    databaseLines = std::move(content->databaseLines);
    loadWarnings = std::move(content->warnings);
    content.reset();
    Changed();
}

} // namespace tern7
