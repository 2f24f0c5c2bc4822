#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QString>

#include <tern7/core/global/events.h>

namespace tern7 {

/// What stands before a menu item: nothing, a new column, or a new column behind a bar.
enum class TMenuBreak { mbNone = 0, mbBreak = 1, mbBarBreak = 2 };

/// An item of a TKPopupMenu; owns the items of its sub menu. "&" in a caption marks the key, "&&"
/// is an ampersand, and the caption "-" is a separator.
class TMenuItem {
public:
    explicit TMenuItem(QString itemCaption = {}, TMenuItem* itemParent = nullptr)
        : Caption(std::move(itemCaption)), parent(itemParent) {}

    QString Caption;
    int ImageIndex = -1;
    int Tag = 0;
    bool Enabled = true;
    bool Checked = false;
    bool RadioItem = false;
    TMenuBreak Break = TMenuBreak::mbNone;
    TEvent<TMenuItem*> OnClick;

    TMenuItem* Parent() const { return parent; }
    int Count() const { return static_cast<int>(items.size()); }
    /// Raises EDDLabelError when there is no such item.
    TMenuItem& Items(int i) const;
    TMenuItem& Add(const QString& caption);
    void Clear();

    bool IsSeparator() const { return Caption == QStringLiteral("-"); }
    /// A separator never opens a sub menu.
    bool HasSubMenu() const { return !items.empty() && !IsSeparator(); }
    /// The caption as it is read: without marks.
    QString PlainCaption() const;
    /// The key that is marked in the caption, in lower case, or a null character.
    QChar Mnemonic() const;

    /// Called at the outermost item before an item is added below it, or before some are removed.
    std::function<void(bool removing)> BeforeChange;

private:
    void Announce(bool removing);

    TMenuItem* parent;
    std::vector<std::unique_ptr<TMenuItem>> items;
};

} // namespace tern7
