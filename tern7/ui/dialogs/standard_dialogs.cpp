#include <memory>

#include <tern7/core/titles/titles_text.h>
#include <tern7/ui/dialogs/result_fields_editor.h>
#include <tern7/ui/dialogs/sub_query_dialog.h>
#include <tern7/ui/dialogs/titles_editor.h>
#include <tern7/ui/support/dialog_services.h>

namespace tern7 {

namespace {

TResultFieldsChange RunResultFieldEditor(QWidget* parent, const TRFieldList& columns, int first,
                                         const TStrings& titles,
                                         const std::function<void()>& help) {
    const QPointer<T_dlgRFieldsEdit> dialog = new T_dlgRFieldsEdit(columns, titles, parent);
    const std::shared_ptr<TResultFieldsDraft> draft = dialog->Draft();
    dialog->SetHelp(help);
    if (first >= 0) dialog->GoToColumn(first);
    const bool accepted = dialog->exec() == QDialog::Accepted && dialog;
    delete dialog;
    if (!accepted) return {};
    return [draft](TRFieldList& target) { draft->Apply(target); };
}

TResultFieldsChange RunResultFieldsEditor(QWidget* parent, const TRFieldList& columns,
                                          const TStrings& titles,
                                          const std::function<void()>& help) {
    return RunResultFieldEditor(parent, columns, -1, titles, help);
}

bool RunTitlesEditor(QWidget* parent, const TStrings& defaults, TStrings& titles) {
    const QPointer<T_dlgTitlesEdit> dialog = new T_dlgTitlesEdit(parent);
    dialog->SetDefTitles(defaults);
    TStrings complete; // an own list may have few texts, or none
    LoadTitlesFromStrings(defaults, complete, titles);
    dialog->Init(complete);
    const bool accepted = dialog->exec() == QDialog::Accepted && dialog && dialog->IsChanged();
    if (accepted) dialog->SaveToTitlesSections(titles);
    delete dialog;
    return accepted;
}

} // namespace

TKDialogServices StandardDialogs() {
    TKDialogServices dialogs;
    dialogs.editSubQuery = EditSubQuery;
    dialogs.editResultFields = RunResultFieldsEditor;
    dialogs.editResultField = RunResultFieldEditor;
    dialogs.editTitles = RunTitlesEditor;
    return dialogs;
}

} // namespace tern7
