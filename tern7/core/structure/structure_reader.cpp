#include <tern7/core/structure/structure_reader.h>

#include <charconv>
#include <limits>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/corekit/numbers.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/structure/default_operators.h>
#include <tern7/core/structure/structure_format.h>

namespace tern7 {

TKStructureReader::TKStructureReader(TKCustomDBStructure& owner, std::string_view text)
    : structure(owner), ini(text), content(std::make_unique<TContent>()) {}

std::unique_ptr<TKCustomDBStructure::TContent> TKStructureReader::Read() {
    const TKIniSection* main = Next(structure_format::MainSection);
    if (!main) FailSection(structure_format::MainSection);
    RequireCounts(*main);
    ReadMain(*main);
    const int operatorCount = Count(*main, "OperatCount"), tableCount = Count(*main, "TableCount");
    const int fieldCount = Count(*main, "FieldCount"), groupCount = Count(*main, "FieldGroups");
    ReadOperators(operatorCount);
    WarnOfMore("Operator:", "OperatCount", operatorCount);
    MergeDefaults(); // before the fields, which may name them
    ReadTables(tableCount);
    WarnOfMore("Table:", "TableCount", tableCount);
    ReadFields(fieldCount);
    WarnOfMore("Field:", "FieldCount", fieldCount);
    ReadGroups(groupCount);
    if (const TKIniSection* section = Optional(structure_format::DatabaseSection))
        ReadDatabaseLines(*section);
    if (const TKIniSection* section = Optional(structure_format::FormatsSection))
        ReadFormats(*section);
    return std::move(content);
}

// --- sections and values

// Sections mostly stand in the order in which they are asked for.
const TKIniSection* TKStructureReader::Next(std::string_view name) {
    const TKIniSection* section = nullptr;
    if (cursor < ini.Sections().size() && ini.Sections()[cursor].Name() == name)
        section = &ini.Sections()[cursor];
    else
        section = ini.Find(name);
    if (section) cursor = ini.PositionOf(*section) + 1;
    return section;
}

// Found by a scan, which costs less than the index of names that a whole text may do without.
const TKIniSection* TKStructureReader::Optional(std::string_view name) {
    for (const TKIniSection& section : ini.Sections())
        if (SameText(section.Name(), name)) return &section;
    return nullptr;
}

const TKIniSection& TKStructureReader::Numbered(std::string_view prefix, int number,
                                                std::string_view suffix) {
    char digits[16];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    nameBuffer.assign(prefix).append(digits, end).append(suffix);
    const TKIniSection* section = Next(nameBuffer);
    if (!section) FailSection(nameBuffer);
    return *section;
}

void TKStructureReader::FailSection(std::string_view name) {
    throw EKDBStructError(FormatMessage(messages::SectionNotFound, {name}));
}

void TKStructureReader::FailValue(const TKIniSection& section, std::string_view key,
                                  std::string_view value) {
    throw EKDBStructError(FormatMessage(messages::WrongValueOfKey, {key, section.Name(), value}));
}

// In a text that was cut off the table may be one that is there no more, or only half: then it says
// more where the name stands.
void TKStructureReader::FailTable(const TKIniSection& section, std::string_view key,
                                  std::string_view name) {
    std::string message = FormatMessage(messages::NoSuchTable, {name});
    if (closesWithRootGroup && !Optional(structure_format::RootGroupSection))
        message.append(" (").append(key).append(" in section ").append(section.Name()).append(")");
    throw EKDBStructError(message);
}

// A text that ends in [Main] without all counts was cut off there: nothing else is missing that
// could tell. In a longer text a count that is missing is 0.
void TKStructureReader::RequireCounts(const TKIniSection& main) const {
    if (ini.Sections().size() > 1) return;
    for (const std::string_view key : {"OperatCount", "TableCount", "FieldCount"})
        if (!main.Has(key)) FailValue(main, key, "");
}

int TKStructureReader::Count(const TKIniSection& main, std::string_view key) const {
    return Ordinal(main, key, std::numeric_limits<int>::max());
}

// Sections behind those that were counted are not read, but they are not lost in silence.
void TKStructureReader::WarnOfMore(std::string_view prefix, std::string_view key, int count) {
    if (cursor >= ini.Sections().size() || count == std::numeric_limits<int>::max()) return;
    if (ini.Sections()[cursor].Name() == std::string(prefix) + std::to_string(count + 1))
        Warn(messages::WrongValueOfKey,
             {key, structure_format::MainSection, std::to_string(count)});
}

// An integer from 0 to below count.
int TKStructureReader::Ordinal(const TKIniSection& section, std::string_view key, int count) {
    const int value = section.Int(key);
    if (value < 0 || value >= count) FailValue(section, key, std::to_string(value));
    return value;
}

TStrings TKStructureReader::List(const TKIniSection& section, std::string_view key) {
    return ParseCommaText(section.Text(key));
}

void TKStructureReader::Warn(std::string_view message,
                             std::initializer_list<std::string_view> arguments) {
    content->warnings.push_back(FormatMessage(message, arguments));
}

// --- main

void TKStructureReader::ReadMain(const TKIniSection& main) {
    if (const std::string_view version = Trim(main.Raw("Version")); !version.empty()) {
        content->version = XStrToFloat(version, -1);
        if (content->version < 0) FailValue(main, "Version", version);
        closesWithRootGroup = content->version >= 3;
        if (content->version > structure_format::Version)
            Warn(messages::NewerVersion, {version, XFloatToStr(structure_format::Version)});
    }
    content->defaultMainTable = main.Text("DefaultMainTable");
    content->rootFieldsFirst = main.Bool("RootFieldsFirst");
}

void TKStructureReader::ReadFormats(const TKIniSection& section) {
    TSQLFormats formats;
    formats.SetDate(section.Text("Date"));
    formats.SetTime(section.Text("Time"));
    formats.SetDateTime(section.Text("DateTime"));
    auto symbol = [&](std::string_view key) {
        if (!section.Has(key) && !section.Has(std::string(key) + ".Encoded")) return '"';
        const std::string value = section.Text(key);
        if (value.size() > 1) FailValue(section, key, value);
        return value.empty() ? '\0' : value[0];
    };
    formats.SetQuoteSymbol1(symbol("QuoteSymbol1"));
    formats.SetQuoteSymbol2(symbol("QuoteSymbol2"));
    content->formats = formats;
}

void TKStructureReader::ReadDatabaseLines(const TKIniSection& section) {
    for (const std::string& line : section.Lines())
        content->databaseLines.emplace_back(UnprotectBodyLine(line));
}

// --- operators

void TKStructureReader::ReadOperators(int count) {
    for (int number = 1; number <= count; ++number) {
        auto op = std::make_unique<TDSOperator>(structure);
        const TKIniSection* former = nullptr; // early files call the sections so
        if (cursor >= ini.Sections().size() ||
            !StartsText(ini.Sections()[cursor].Name(), "Operator:"))
            former = ini.Find("Operation:" + std::to_string(number));
        ReadOperator(former ? *former : Numbered("Operator:", number), *op);
        AddOperator(std::move(op));
    }
}

void TKStructureReader::ReadOperator(const TKIniSection& section, TDSOperator& op) {
    op.name = section.Text("Name");
    if (SameText(op.name, "EqualTo")) op.name = "Equal"; // its name in early files
    op.displayName = section.Text("DisplayName");
    op.sqlTemplate.SetText(section.Text("SQLName"));
    op.valFormat = section.Text("ValFormat");
    const std::string_view exprType = Trim(section.Raw("ExprType"));
    if (!exprType.empty() && !SameText(exprType, structure_format::SameAsField)) {
        op.exprType = StrToFldType(exprType);
        if (!op.exprType) FailValue(section, "ExprType", exprType);
    }
    if (section.Has("AppliedTypes")) ReadAppliedTypes(section, op);
    if (const std::string_view type = Trim(section.Raw("ValueType")); !type.empty()) {
        const auto known = StrToOpValueType(type);
        if (!known) FailValue(section, "ValueType", type);
        op.valueType = *known;
    } else if (section.Bool("ValueIsList")) {
        op.valueType = TOpValueType::vtList;
    }
}

void TKStructureReader::ReadAppliedTypes(const TKIniSection& section, TDSOperator& op) {
    op.appliedTypes = {};
    for (const std::string& name : ParseCommaText(section.Raw("AppliedTypes")))
        if (const auto type = StrToFldType(name))
            op.appliedTypes.Include(*type);
        else
            Warn(messages::WrongValueOfKey, {"AppliedTypes", section.Name(), name});
}

void TKStructureReader::AddOperator(std::unique_ptr<TDSOperator> op) {
    op->order = static_cast<uint32_t>(content->operators.GetCount()) + 1;
    operatorNames.try_emplace(op->name, op.get());
    content->operators.Add(std::move(op));
}

void TKStructureReader::MergeDefaults() {
    for (size_t row = 0; row < DefaultOperators.size(); ++row) {
        const TDefaultOperator& wanted = DefaultOperators[row];
        if (operatorNames.contains(wanted.name) ||
            (wanted.optional && !structure.exOperators.Contains(*wanted.optional)))
            continue;
        auto op = std::make_unique<TDSOperator>(structure);
        structure.FillDefOperator(*op, row);
        AddOperator(std::move(op));
    }
}

} // namespace tern7
