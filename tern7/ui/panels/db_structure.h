#pragma once

#include <tern7/core/structure/structure.h>
#include <tern7/ui/panels/form_component.h>

namespace tern7 {

/// A database structure on a form: panels refer to it by its object name (their DbStructName), or
/// in code by its Structure().
class TKDBStructure : public TFormComponent {
    Q_OBJECT
    Q_PROPERTY(QByteArray StructString READ StoredString WRITE SetStructString)
    Q_PROPERTY(bool StoreStruct READ StoreStruct WRITE SetStoreStruct)
    Q_PROPERTY(bool AutoAddFields READ AutoAddFields WRITE SetAutoAddFields)
    Q_PROPERTY(QString HelpFileName READ HelpFileName WRITE SetHelpFileName)
    Q_PROPERTY(int SEHelpContext READ SEHelpContext WRITE SetSEHelpContext)

public:
    explicit TKDBStructure(QWidget* parent = nullptr);
    ~TKDBStructure() override;

    TKCustomDBStructure& Structure() { return structure; }

    /// The whole structure as text. A text that can not be read is kept and given back as it is,
    /// LoadError says why; the structure stays as it was.
    QByteArray StructString() const;
    /// What a form keeps: the text, or nothing when StoreStruct is off.
    QByteArray StoredString() const { return StoreStruct() ? StructString() : QByteArray(); }
    void SetStructString(const QByteArray& text);
    QString LoadError() const { return loadError; }
    bool StoreStruct() const { return structure.StoreStruct; }
    void SetStoreStruct(bool value) { structure.StoreStruct = value; }
    bool AutoAddFields() const { return structure.AutoAddFields; }
    void SetAutoAddFields(bool value) { structure.AutoAddFields = value; }
    QString HelpFileName() const;
    void SetHelpFileName(const QString& name);
    int SEHelpContext() const { return structure.SEHelpContext; }
    void SetSEHelpContext(int context) { structure.SEHelpContext = context; }

signals:
    void changed();

private:
    TKCustomDBStructure structure;
    QByteArray unreadText;
    QString loadError;
};

} // namespace tern7
