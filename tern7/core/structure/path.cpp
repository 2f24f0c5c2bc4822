#include <tern7/core/structure/path.h>

#include <tern7/core/structure/structure.h>

namespace tern7 {

void TDSPath::AddTable(int index) {
    tables.push_back(structure->GetTable(index));
}

void TDSPath::DelTable(int i) {
    static_cast<void>(tables.at(static_cast<size_t>(i)));
    tables.erase(tables.begin() + i);
}

TDSTable* TDSPath::TableByIndex(int index) const {
    for (TDSTable* table : tables)
        if (table->Index() == index) return table;
    return nullptr;
}

} // namespace tern7
