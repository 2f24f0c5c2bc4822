#include "operator_captions.h"

#include <algorithm>

#include <QCoreApplication>

#include <tern7/core/structure/default_operators.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

/// What the core says in English, for the translation.
[[maybe_unused]] constexpr const char* operatorTexts[] = {
    QT_TRANSLATE_NOOP("operators", "is equal to"),
    QT_TRANSLATE_NOOP("operators", "is not equal to"),
    QT_TRANSLATE_NOOP("operators", "is less than"),
    QT_TRANSLATE_NOOP("operators", "is less than or equal to"),
    QT_TRANSLATE_NOOP("operators", "is greater than"),
    QT_TRANSLATE_NOOP("operators", "is greater than or equal to"),
    QT_TRANSLATE_NOOP("operators", "is null"),
    QT_TRANSLATE_NOOP("operators", "is in list"),
    QT_TRANSLATE_NOOP("operators", "starts with"),
    QT_TRANSLATE_NOOP("operators", "does not start with"),
    QT_TRANSLATE_NOOP("operators", "contains"),
    QT_TRANSLATE_NOOP("operators", "does not contain"),
    QT_TRANSLATE_NOOP("operators", "is between"),
    QT_TRANSLATE_NOOP("operators", "and"),
};

std::string Translated(std::string_view text) {
    return FromQt(QCoreApplication::translate("operators", std::string(text).c_str()));
}

} // namespace

TOperatorCaptions::TOperatorCaptions(const TKCustomDBStructure& structure) {
    for (const TDefaultOperator& each : DefaultOperators) {
        const TDSOperator* op = structure.OperatorByName(each.name);
        if (op && op->DisplayName() == each.caption) names.emplace_back(each.name);
    }
}

void TOperatorCaptions::Translate(TKCustomDBStructure& structure) const {
    Name(structure, Translated);
}

void TOperatorCaptions::Deliver(TKCustomDBStructure& structure) const {
    Name(structure, [](std::string_view text) { return std::string(text); });
}

void TOperatorCaptions::Name(TKCustomDBStructure& structure,
                             std::string (*worded)(std::string_view)) const {
    const TDSUpdate update(structure);
    for (const TDefaultOperator& each : DefaultOperators) {
        if (std::find(names.begin(), names.end(), each.name) == names.end()) continue;
        TDSOperator* op = structure.OperatorByName(each.name);
        if (!op) continue;
        op->SetDisplayName(worded(each.caption));
        if (!each.valFormat.empty()) op->SetValFormat(worded(each.valFormat));
    }
}

} // namespace tern7
