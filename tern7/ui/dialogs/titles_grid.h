#pragma once

#include <QTableWidget>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

/// The titles of one section in two columns: the default texts, which stay, and the translated
/// ones, which are edited. The heading is the fixed row "English", "Translated".
class TKTitlesGrid : public QTableWidget {
    Q_OBJECT

public:
    enum TColumn { English = 0, Translated = 1 };

    explicit TKTitlesGrid(QWidget* parent = nullptr);

    /// One row per key of `defaults`, `key=text` lines without sections, with the texts that
    /// `titles` has for the keys.
    void FillGrid(const TStrings& defaults, const TStrings& titles);
    /// Both columns get half of the width.
    void AdjustGrid();
    /// Appends `key=text` for each row, in the order of the defaults.
    void AppendLines(TStrings& lines) const;

signals:
    /// The user entered a text.
    void edited();

protected:
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Paste();

    TStrings keys;
};

} // namespace tern7
