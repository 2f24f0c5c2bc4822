#pragma once

#include <string_view>
#include <vector>

namespace tern7 {

/// The command numbers of the add menu and the row menu.
enum TPanelCommand : int {
    pcAddBracket = 1,
    pcAddCondition = 2,
    pcDeleteRow = 3,
    pcEnableDisable = 4
};

/// The command numbers of the value menu.
enum TValueCommand : int { vcConstant = 1, vcParameter = 2 };

/// An item of a menu: the key of its caption, "-" for a separator, and its command number.
struct TPanelMenuItem {
    std::string_view captionKey;
    int command;
};

inline std::vector<TPanelMenuItem> AddMenuItems() {
    return {{"ttlAddCond", pcAddCondition}, {"ttlAddBracket", pcAddBracket}};
}

inline std::vector<TPanelMenuItem> RowMenuItems() {
    return {{"ttlAddCond", pcAddCondition},
            {"ttlAddBracket", pcAddBracket},
            {"ttlDelRow", pcDeleteRow},
            {"-", 0},
            {"ttlEnableDisable", pcEnableDisable}};
}

/// A group of radio items.
inline std::vector<TPanelMenuItem> ValueMenuItems(bool allowParams) {
    std::vector<TPanelMenuItem> items{{"ttlConstant", vcConstant}};
    if (allowParams) items.push_back({"ttlParameter", vcParameter});
    return items;
}

} // namespace tern7
