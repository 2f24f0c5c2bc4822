#include <tern7/ui/dialogs/field_names.h>

#include <algorithm>
#include <optional>

#include <QString>

#include <tern7/core/structure/offered_fields.h>
#include <tern7/core/structure/structure.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

constexpr qsizetype longestName = 80; // of what is compared letter by letter

/// How many letters must be put in, left out or replaced; none when it is more than `limit`.
std::optional<qsizetype> Difference(const QString& a, const QString& b, qsizetype limit) {
    if (std::abs(a.size() - b.size()) > limit) return {};
    std::vector<qsizetype> row(static_cast<size_t>(b.size()) + 1);
    for (size_t k = 0; k < row.size(); ++k)
        row[k] = static_cast<qsizetype>(k);
    for (qsizetype i = 0; i < a.size(); ++i) {
        qsizetype diagonal = row[0];
        row[0] = i + 1;
        for (qsizetype k = 0; k < b.size(); ++k) {
            qsizetype& cell = row[static_cast<size_t>(k) + 1];
            const qsizetype replaced = diagonal + (a[i] == b[k] ? 0 : 1);
            diagonal = cell;
            cell = std::min({replaced, cell + 1, row[static_cast<size_t>(k)] + 1});
        }
    }
    return row.back() <= limit ? std::optional(row.back()) : std::nullopt;
}

/// 0 for the same; none when the names have little in common.
std::optional<qsizetype> Unlikeness(const QString& wanted, const QString& name) {
    const qsizetype limit = std::max<qsizetype>(1, wanted.size() / 3);
    const bool within = wanted.size() > 2 && (name.contains(wanted) || wanted.contains(name));
    if (const auto difference = Difference(wanted, name, limit)) return difference;
    return within && name.size() > 2 ? std::optional(limit) : std::nullopt;
}

} // namespace

std::vector<TDSField*> FieldsOfName(const TKCustomDBStructure& structure, std::string_view name) {
    std::vector<TDSField*> found = structure.FieldsByDisplayName(name);
    for (size_t point = name.find('.'); found.empty() && point != std::string_view::npos;
         point = name.find('.', point + 1))
        for (TDSField* field : structure.FieldsByDisplayName(name.substr(point + 1)))
            if (field->Table() && SameText(field->Table()->DisplayName(), name.substr(0, point)))
                found.push_back(field);
    return found;
}

std::vector<TDSField*> FieldsLikeName(const TKCustomDBStructure& structure, std::string_view name,
                                      size_t most) {
    struct THit {
        TDSField* field;
        qsizetype unlikeness;
    };
    const QString wanted = ToQt(name).toLower().left(longestName).trimmed();
    // behind a wrong table name
    const QString alone = wanted.mid(wanted.lastIndexOf('.') + 1).trimmed();
    std::vector<THit> hits;
    for (const TOfferedField& offered : OfferedFields(structure, TFieldUse::Result)) {
        const QString shown = ToQt(offered.field->DisplayName()).toLower().left(longestName);
        if (const auto unlikeness = Unlikeness(alone, shown))
            hits.push_back({offered.field, *unlikeness});
    }
    std::stable_sort(hits.begin(), hits.end(),
                     [](const THit& a, const THit& b) { return a.unlikeness < b.unlikeness; });
    // what is worse than the best by far helps nobody
    std::vector<TDSField*> best;
    for (const THit& hit : hits)
        if (best.size() < most && hit.unlikeness <= hits.front().unlikeness + 1)
            best.push_back(hit.field);
    return best;
}

} // namespace tern7
