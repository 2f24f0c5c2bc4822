#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tern7 {

class TDSListEditor;

/// Finds the captions of list values, for lists of any length: a list is indexed when it is first
/// asked about, and anew when it was exchanged.
class TListCaptions {
public:
    /// The caption of a value; the value itself when the list does not have it. Either view lasts
    /// as long as the list and the value.
    std::string_view CaptionOf(const TDSListEditor& editor, std::string_view value);
    void Clear() { indexes.clear(); }

private:
    struct TIndex {
        const std::string* list = nullptr; // only compared
        size_t count = 0;
        std::unordered_multimap<size_t, uint32_t> positions; // by hash of the value
    };
    const TIndex& IndexOf(const TDSListEditor& editor);
    std::unordered_map<const TDSListEditor*, TIndex> indexes;
};

} // namespace tern7
