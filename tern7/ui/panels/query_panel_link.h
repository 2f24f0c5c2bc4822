#pragma once

#include <memory>
#include <vector>

#include <QObject>
#include <QPointer>

#include <tern7/core/global/events.h>
#include <tern7/ui/panels/query_panel.h>

namespace tern7 {

/// Ties something outside (an SQL display, a toolbar, another panel) to a query panel: it hears
/// when the query is changed. Owned by whoever listens; the panel may go first.
///
///     link.OnChange = [this](TKQueryPanelLink& l) { Show(l.QueryPanel()->Query()); };
///     link.SetQueryPanel(panel);
class TKQueryPanelLink : public QObject {
    Q_OBJECT

public:
    explicit TKQueryPanelLink(QObject* parent = nullptr);
    ~TKQueryPanelLink() override;

    /// None when it was destroyed.
    TKQueryPanel* QueryPanel() const { return panel; }
    /// Another panel (or none) is a change.
    void SetQueryPanel(TKQueryPanel* value);

    /// The query is another one than before: a change of a user or the application, a text that was
    /// read, another panel, the end of the panel.
    TEvent<TKQueryPanelLink&> OnChange;

private:
    QPointer<TKQueryPanel> panel;
};

/// Links that are owned together.
class TKQueryPanelLinkList {
public:
    int Count() const { return static_cast<int>(links.size()); }
    /// std::out_of_range outside 0..count-1.
    TKQueryPanelLink& Items(int index) const { return *links.at(static_cast<size_t>(index)); }
    /// A new link to a panel.
    TKQueryPanelLink& Add(TKQueryPanel* panel);
    /// Deletes a link; nothing when it is not in the list.
    void Delete(const TKQueryPanelLink& link);
    void Clear() { links.clear(); }

private:
    std::vector<std::unique_ptr<TKQueryPanelLink>> links;
};

} // namespace tern7
