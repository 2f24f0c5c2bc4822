#include <tern7/ui/controls/menu_item.h>

#include <tern7/ui/controls/control_events.h>

namespace tern7 {

TMenuItem& TMenuItem::Items(int i) const {
    if (i < 0 || i >= Count()) throw EDDLabelError(EDDLabelError::menuIndexOutOfRange);
    return *items[static_cast<size_t>(i)];
}

TMenuItem& TMenuItem::Add(const QString& caption) {
    Announce(false);
    items.push_back(std::make_unique<TMenuItem>(caption, this));
    return *items.back();
}

void TMenuItem::Clear() {
    Announce(true);
    items.clear();
}

void TMenuItem::Announce(bool removing) {
    TMenuItem* outermost = this;
    while (outermost->parent)
        outermost = outermost->parent;
    if (outermost->BeforeChange) outermost->BeforeChange(removing);
}

QString TMenuItem::PlainCaption() const {
    QString plain;
    for (qsizetype i = 0; i < Caption.size(); ++i) {
        if (Caption[i] == u'&' && i + 1 < Caption.size()) ++i;
        plain += Caption[i];
    }
    return plain;
}

QChar TMenuItem::Mnemonic() const {
    for (qsizetype i = 0; i + 1 < Caption.size(); ++i) {
        if (Caption[i] != u'&') continue;
        ++i;
        if (Caption[i] != u'&') return Caption[i].toLower();
    }
    return {};
}

} // namespace tern7
