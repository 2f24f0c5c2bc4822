#pragma once

#include <vector>

#include <QWidget>

class QLabel;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace tern7 {

class TKCustomDBStructure;

/// The fields that can be columns, by group, below a search field. A search shows the fields whose
/// name or group holds all its words; several fields can be selected.
class TFieldTree : public QWidget {
    Q_OBJECT

public:
    explicit TFieldTree(QWidget* parent = nullptr);

    void Fill(const TKCustomDBStructure& structure);
    /// The IDs of the fields in the order of the tree; a selected group stands for its fields in
    /// sight.
    std::vector<int> Selected() const;
    /// The current line is a field and no group.
    bool IsAtField() const;
    QTreeWidget* Tree() const { return tree; }
    QLineEdit* SearchField() const { return search; }

signals:
    /// A double click, or Enter, on fields.
    void activated();
    void selectionChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Search(const QString& text);
    int ShowHits(QTreeWidgetItem& item, const QString& text, bool all) const;

    QLineEdit* search;
    QTreeWidget* tree;
    QLabel* nothing;
};

} // namespace tern7
