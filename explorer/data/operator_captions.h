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

private:
    std::vector<std::string> names; // of the operators with the default caption
};

} // namespace tern7
