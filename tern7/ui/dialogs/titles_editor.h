#pragma once

#include <functional>
#include <vector>

#include <QDialog>

#include <tern7/core/corekit/strings.h>
#include <tern7/core/global/events.h>
#include <tern7/ui/dialogs/titles_grid.h>

class QLabel;
class QTabWidget;
class QVBoxLayout;

namespace tern7 {

/// The titles editor: every text of a component beside its translation, a page per section.
///
///     T_dlgTitlesEdit editor(window);
///     editor.SetDefTitles(DefaultQueryTitles());
///     editor.Init(titles);
///     if (editor.exec() == QDialog::Accepted) editor.SaveToTitlesSections(titles);
class T_dlgTitlesEdit : public QDialog {
    Q_OBJECT

public:
    explicit T_dlgTitlesEdit(QWidget* parent = nullptr);

    /// The keys, sections and default texts; before Init.
    void SetDefTitles(const TStrings& titles);
    const TStrings& DefTitles() const { return defTitles; }
    /// Shows a title list over the defaults: a page per section, or a single grid without any.
    void Init(const TStrings& titles);
    /// Replaces the list by the edited titles, with exactly the keys and order of the defaults.
    void SaveToTitlesSections(TStrings& titles) const;

    /// Merges a titles file, or the titles of a query file, over the defaults. EKTernError when it
    /// can not be read, or holds something else; nothing is changed then.
    void LoadFile(const QString& fileName);
    /// EKTernError when the file can not be written.
    void SaveFile(const QString& fileName) const;

    int GridCount() const { return static_cast<int>(pages.size()); }
    TKTitlesGrid* Grid(int page) const { return pages.at(static_cast<size_t>(page)).grid; }
    /// None when there are no sections.
    QTabWidget* Pages() const { return tabs; }
    /// A text was edited, or a file loaded, since Init.
    bool IsChanged() const { return changed; }

    /// What is to be known of the file that was loaded; empty when it was as it should be.
    QString Notice() const;

    void reject() override;

    TEvent<T_dlgTitlesEdit*> OnChange;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct TPage {
        std::string section;
        TKTitlesGrid* grid;
    };
    void MakeActions();
    TKTitlesGrid* MakeGrid();
    TKTitlesGrid& GridInSight() const;
    void MakePages(const TStrings& titles);
    void AskLoad();
    void AskSave();
    bool AskDiscard();
    void Report(const std::function<void()>& call);
    void DoChanged();

    TStrings defTitles;
    std::vector<TPage> pages;
    QTabWidget* tabs = nullptr;
    QWidget* body = nullptr; // the pages or the single grid
    QVBoxLayout* place;      // where it stands
    QLabel* notice;
    bool changed = false;
};

} // namespace tern7
