#pragma once

#include <string>
#include <vector>

#include <tern7/core/structure/structure.h>

namespace tern7 {

/// The default operators of a structure in the program's language. Captions that somebody has
/// changed in the structure stay as they are.
class TOperatorCaptions {
public:
    explicit TOperatorCaptions(const TKCustomDBStructure& structure);

    void Translate(TKCustomDBStructure& structure) const;
    /// As the core delivers them.
    void Deliver(TKCustomDBStructure& structure) const;

private:
    void Name(TKCustomDBStructure& structure, std::string (*worded)(std::string_view)) const;

    std::vector<std::string> names; // of the operators with the default caption
};

} // namespace tern7
