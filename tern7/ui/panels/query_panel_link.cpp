#include <tern7/ui/panels/query_panel_link.h>

namespace tern7 {

TKQueryPanelLink::TKQueryPanelLink(QObject* parent) : QObject(parent) {}
TKQueryPanelLink::~TKQueryPanelLink() = default;

void TKQueryPanelLink::SetQueryPanel(TKQueryPanel* value) {
    if (value == panel) return;
    if (panel) disconnect(panel, nullptr, this, nullptr);
    panel = value;
    const auto tell = [this] { OnChange(*this); };
    if (panel) {
        connect(panel, &TKQueryPanel::changed, this, tell);
        connect(panel, &TKQueryPanel::activated, this, tell);
        connect(panel, &QObject::destroyed, this, [this] {
            panel = nullptr;
            OnChange(*this);
        });
    }
    tell();
}

TKQueryPanelLink& TKQueryPanelLinkList::Add(TKQueryPanel* panel) {
    links.push_back(std::make_unique<TKQueryPanelLink>());
    links.back()->SetQueryPanel(panel);
    return *links.back();
}

void TKQueryPanelLinkList::Delete(const TKQueryPanelLink& link) {
    std::erase_if(links, [&](const auto& each) { return each.get() == &link; });
}

} // namespace tern7
