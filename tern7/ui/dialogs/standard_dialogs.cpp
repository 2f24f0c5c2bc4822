#include <memory>

#include <tern7/core/titles/titles_text.h>
#include <tern7/ui/dialogs/result_fields_editor.h>
#include <tern7/ui/dialogs/sub_query_dialog.h>
#include <tern7/ui/dialogs/titles_editor.h>
#include <tern7/ui/support/dialog_services.h>

namespace tern7 {

namespace {

TResultFieldsChange RunResultFieldsEditor(QWidget* parent, const TRFieldList& columns,
                                          const TStrings& titles,
                                          const std::function<void()>& help) {
    const QPointer<T_dlgRFieldsEdit> dialog = new T_dlgRFieldsEdit(columns, titles, parent);
    const std::shared_ptr<TResultFieldsDraft> draft = dialog->Draft();
    dialog->SetHelp(help);
    const bool accepted = dialog->exec() == QDialog::Accepted && dialog;
    delete dialog;
    if (!accepted) return {};
    return [draft](TRFieldList& target) { draft->Apply(target); };
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
    dialogs.editTitles = RunTitlesEditor;
    return dialogs;
}

} // namespace tern7
