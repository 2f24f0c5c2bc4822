#pragma once

#include <array>
#include <string>
#include <string_view>

#include <tern7/core/corekit/ini_text.h>

/// Names that the reader and the writer of structure texts share.
namespace tern7::structure_format {

inline constexpr double Version = 3.3;
inline constexpr std::string_view MainSection = "Main";
inline constexpr std::string_view RootGroupSection = "RootGroup";
inline constexpr std::string_view DatabaseSection = "DBSpecInfo";
inline constexpr std::string_view FormatsSection = "SQLFormats";
inline constexpr std::string_view SameAsField = "SameAsField";
/// By the ordinals of TDSLinkType.
inline constexpr std::array<std::string_view, 4> LinkTypes = {"Inner", "Left", "Right", "Full"};

/// The section of a link; a line break in an alias would end the header.
inline std::string LinkSection(std::string_view alias1, std::string_view alias2) {
    std::string name = std::string("Link:").append(alias1).append("-").append(alias2);
    const bool fits = name.find_first_of("\r\n") == std::string::npos && IsUTF8(name);
    return fits ? name : EncodePercent(name);
}

} // namespace tern7::structure_format
