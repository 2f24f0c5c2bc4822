#include <tern7/ui/controls/text_search.h>

#include <algorithm>

namespace tern7 {

TTextSearch::TTextSearch(const QString& typed)
    : words(typed.simplified().split(u' ', Qt::SkipEmptyParts)) {}

bool TTextSearch::Finds(const QString& text) const {
    return std::all_of(words.begin(), words.end(), [&](const QString& word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
}

} // namespace tern7
