#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

class TKCustomDBStructure;

/// How the end user enters a value for a field; the ordinals stand in structure files.
enum class TDSEditType : uint8_t { etAuto = 0, etEdit = 1, etList = 2, etCustom = 3, etSQL = 4 };

enum class TTextEditorKind : uint8_t { tekSimple = 0, tekMask = 1, tekDate = 2, tekTime = 3 };

/// Settings of a value editor; owned by its field.
class TDSValueEditor {
public:
    virtual ~TDSValueEditor() = default;
    /// Reads again what the editor offers; does nothing by default.
    virtual void Refresh() {}
};

/// Free text, with a mask, or a date or a time.
class TDSTextEditor : public TDSValueEditor {
public:
    static constexpr int UpperCaseOption = 1;
    static constexpr int LowerCaseOption = 2;

    int Options = 0;
    std::string DefValue; ///< proposed for a new condition
    std::string EditMask; ///< used with tekMask
    TTextEditorKind EditKind = TTextEditorKind::tekSimple;
    uint8_t FmtVal = 0;

    /// True when all the given bits are set.
    bool GetOption(int bits) const { return (Options & bits) == bits; }
    /// Sets or clears the bits; options 1 and 2 exclude each other, the one switched on wins.
    void SetOption(int bits, bool on);
};

/// A choice from a list: captions, and the values that are written into SQL, paired by position.
class TDSListEditor : public TDSValueEditor {
public:
    TStrings Items;
    TStrings Values;
    /// The caption of a value; the value itself when the list does not have it.
    std::string_view CaptionOf(std::string_view value) const;
};

/// A choice from a list that an SQL statement reads: values from its first column, captions from
/// its second.
class TDSSQLEditor : public TDSListEditor {
public:
    explicit TDSSQLEditor(TKCustomDBStructure& owner) : structure(owner) {}

    TStrings SQL;
    const TStrings& SQLParams() const { return params; }
    /// When the lines differ they are copied and the editor is closed, so that the next use reads
    /// the list again.
    void SetSQLParams(const TStrings& lines);

    /// The SQL text, lines joined by line ends, with every ":name" of a parameter line replaced by
    /// its value, line by line in order, as plain text.
    std::string GetSQLText() const;
    /// True when ":" followed by the name occurs in the SQL text.
    bool HasParameter(std::string_view name) const;

    bool Opened() const { return opened; }
    /// Opening reads the lists through the structure's DatabaseInfo (EKDBStructError "DatabaseInfo
    /// is not specified" without one; errors of the database pass through and leave it closed);
    /// closing clears them. Setting the present state does nothing.
    void SetOpened(bool value);
    /// Opened, with lists that were read elsewhere by the statement.
    void Adopt(TStrings values, TStrings captions);
    void Refresh() override;

private:
    friend class TKStructureReader;
    TKCustomDBStructure& structure;
    TStrings params;
    bool opened = false;
};

/// Settings that are handed to an editor of the application.
class TDSCustomEditor : public TDSValueEditor {
public:
    TStrings CustomData;
};

/// Settings of the sub-query dialog; no edit type of its own.
class TDSSubQueryEditor : public TDSValueEditor {
public:
    TStrings Settings;
};

/// The editor object of an edit type; none for etAuto.
std::unique_ptr<TDSValueEditor> MakeValueEditor(TDSEditType type, TKCustomDBStructure& structure);

} // namespace tern7
