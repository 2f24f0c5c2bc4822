#include <tern7/core/structure/value_editors.h>

#include <algorithm>

#include <tern7/core/global/messages.h>
#include <tern7/core/structure/structure.h>

namespace tern7 {

void TDSTextEditor::SetOption(int bits, bool on) {
    if (!on) {
        Options &= ~bits;
        return;
    }
    Options |= bits;
    if (bits & UpperCaseOption)
        Options &= ~LowerCaseOption;
    else if (bits & LowerCaseOption)
        Options &= ~UpperCaseOption;
}

std::string_view TDSListEditor::CaptionOf(std::string_view value) const {
    const auto found = std::find(Values.begin(), Values.end(), value);
    const auto position = static_cast<size_t>(found - Values.begin());
    return found != Values.end() && position < Items.size() ? std::string_view(Items[position])
                                                            : value;
}

void TDSSQLEditor::SetSQLParams(const TStrings& lines) {
    if (lines == params) return;
    params = lines;
    SetOpened(false);
}

std::string TDSSQLEditor::GetSQLText() const {
    std::string text = JoinStrings(SQL, "\n");
    for (const std::string& line : params)
        if (const std::string_view name = LineName(line); !name.empty())
            text = ReplaceStr(text, ":" + std::string(name), LineValue(line));
    return text;
}

bool TDSSQLEditor::HasParameter(std::string_view name) const {
    return JoinStrings(SQL, "\n").find(":" + std::string(name)) != std::string::npos;
}

void TDSSQLEditor::SetOpened(bool value) {
    if (value == opened) return;
    if (!value) {
        Values.clear();
        Items.clear();
        opened = false;
        return;
    }
    TKDBInfo* info = structure.DatabaseInfo();
    if (!info) throw EKDBStructError(std::string(messages::NoDatabaseInfo));
    TStrings values, captions;
    info->GetSQLValues(GetSQLText(), values, captions);
    Adopt(std::move(values), std::move(captions));
}

void TDSSQLEditor::Adopt(TStrings values, TStrings captions) {
    Values = std::move(values);
    Items = std::move(captions);
    opened = true;
}

void TDSSQLEditor::Refresh() {
    SetOpened(false);
    SetOpened(true);
}

std::unique_ptr<TDSValueEditor> MakeValueEditor(TDSEditType type, TKCustomDBStructure& structure) {
    switch (type) {
    case TDSEditType::etAuto:
        return nullptr;
    case TDSEditType::etEdit:
        return std::make_unique<TDSTextEditor>();
    case TDSEditType::etList:
        return std::make_unique<TDSListEditor>();
    case TDSEditType::etCustom:
        return std::make_unique<TDSCustomEditor>();
    case TDSEditType::etSQL:
        return std::make_unique<TDSSQLEditor>(structure);
    }
    return nullptr;
}

} // namespace tern7
