#pragma once

#include <vector>

#include <tern7/core/structure/path.h>

namespace tern7 {

class TDSTable;
class TKQuery;

/// A way to join a table to the one that the query starts from.
struct TJoinWay {
    std::vector<TDSTable*> tables; ///< from the one to the other
    TAvoidedJoins avoided;         ///< what the query must avoid to go it; see SetAvoidedJoins
};

/// Two tables that are joined only because both refer to a third, as orders and countries that
/// share a currency: each row of one comes with every row of the other that refers to the same.
struct TSharedTable {
    const TDSTable* first;
    const TDSTable* shared;
    const TDSTable* second;
};

/// The tables at which the joins of the built query end, in join order; none while it joins less
/// than two.
std::vector<TDSTable*> JoinEnds(const TKQuery& query);
/// The ways from the base table of the built query to another of its tables: the present one, and
/// those around each of its joins and of the shortest way's, or over one that is avoided now. Few;
/// one search of the structure each.
std::vector<TJoinWay> JoinWays(const TKQuery& query, const TDSTable& end);
/// Where the built query joins tables by a shared one, in join order. The first table of a link is
/// the one that refers.
std::vector<TSharedTable> SharedTables(const TKQuery& query);

} // namespace tern7
