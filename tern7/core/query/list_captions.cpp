#include <tern7/core/query/list_captions.h>

#include <algorithm>
#include <functional>

#include <tern7/core/structure/value_editors.h>

namespace tern7 {

namespace {

constexpr size_t shortList = 16;

size_t HashOf(std::string_view value) {
    return std::hash<std::string_view>()(value);
}

} // namespace

const TListCaptions::TIndex& TListCaptions::IndexOf(const TDSListEditor& editor) {
    TIndex& index = indexes[&editor];
    if (index.list == editor.Values.data() && index.count == editor.Values.size()) return index;
    index.list = editor.Values.data();
    index.count = editor.Values.size();
    index.positions.clear();
    index.positions.reserve(index.count);
    for (size_t i = 0; i < index.count; ++i)
        index.positions.emplace(HashOf(editor.Values[i]), static_cast<uint32_t>(i));
    return index;
}

std::string_view TListCaptions::CaptionOf(const TDSListEditor& editor, std::string_view value) {
    if (editor.Values.size() <= shortList) return editor.CaptionOf(value);
    const TIndex& index = IndexOf(editor);
    size_t found = editor.Values.size();
    const auto [first, last] = index.positions.equal_range(HashOf(value));
    for (auto it = first; it != last; ++it) // compared with the list as it is now
        if (editor.Values[it->second] == value) found = std::min<size_t>(found, it->second);
    return found < editor.Items.size() ? std::string_view(editor.Items[found]) : value;
}

} // namespace tern7
