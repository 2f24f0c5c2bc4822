#pragma once

#include <QString>
#include <QStringList>

namespace tern7 {

/// From this many choices on, lists and menus have a search field.
constexpr int searchFrom = 15;

/// What is typed into a search field: every word has to occur in the text, in any case and order.
class TTextSearch {
public:
    TTextSearch() = default;
    explicit TTextSearch(const QString& typed);

    /// Without words everything is found.
    bool IsEmpty() const { return words.isEmpty(); }
    bool Finds(const QString& text) const;

private:
    QStringList words;
};

} // namespace tern7
