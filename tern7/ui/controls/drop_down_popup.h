#pragma once

#include <optional>

#include <tern7/ui/controls/drop_down_list.h>
#include <tern7/ui/controls/popup_menu.h>

namespace tern7 {

/// A list that is chosen from a popup menu with a sub menu for each named group. A group or item
/// named "-" is a separator.
class TDropDownPopup : public TDropDownList {
    Q_OBJECT
    Q_PROPERTY(int MaxItemCount READ MaxItemCount WRITE SetMaxItemCount)

public:
    explicit TDropDownPopup(QWidget* parent = nullptr);
    ~TDropDownPopup() override;

    /// How many items a column holds; 0 leaves that to the screen.
    int MaxItemCount() const { return maxItemCount; }
    void SetMaxItemCount(int count);
    /// The menu, made at its first use; null without a parent.
    TKPopupMenu* Menu() const;

protected:
    void CreateControl() override;
    void ShowControl() override;
    void HideControl() override;
    void AcceptInput() override {}
    void BiDiModeChanged() override;
    void DoBeforeDropUp(bool& accept) override;

    virtual void MenuClick(TMenuItem* item);

private:
    struct TChoice {
        int index;
        QString value, caption;
    };

    bool FillMenu();
    void TakeBack(const TChoice& choice);
    TMenuItem* AddGroupItem(const QString& name, int& count);
    TMenuItem* AddMenuItem(TMenuItem& into, const QString& group, int index, int& count);
    template <class Ask>
    TMenuItem* AskForImage(TMenuItem& item, const Ask& ask);
    void CountItem(TMenuItem& item, int& count) const;

    QPointer<TKPopupMenu> menu;
    int maxItemCount = 0;
    std::optional<TChoice> before; // a choice that is being made
};

} // namespace tern7
