#include <tern7/ui/panels/row_problem.h>

#include <QCoreApplication>

#include <tern7/core/query/condition_text.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/read_sql/sql_report.h>
#include <tern7/core/query/value_editor_choice.h>
#include <tern7/ui/support/bidi_text.h>
#include <tern7/ui/support/local_dates.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

struct TRowProblem {
    Q_DECLARE_TR_FUNCTIONS(tern7::TRowProblem)
};

QString UnfinishedReason(TUnfinished reason) {
    switch (reason) {
    case TUnfinished::No:
        break;
    case TUnfinished::NoField:
        return TRowProblem::tr("choose a field");
    case TUnfinished::NoOperator:
        return TRowProblem::tr("choose an operator");
    case TUnfinished::UnknownField:
        return TRowProblem::tr("this field is not known any more");
    case TUnfinished::UnknownOperator:
        return TRowProblem::tr("this operator is not known any more");
    case TUnfinished::NoSubQuery:
        return TRowProblem::tr("define the sub-query");
    case TUnfinished::NoValue:
    case TUnfinished::NotEntered:
        return TRowProblem::tr("enter a value");
    }
    return {};
}

/// What is expected; `yyyy-mm-dd` is read in every language.
QString DateRemedy(TValueEditKind kind) {
    const TDateExample example =
        ExampleOf(kind != TValueEditKind::vkTime, kind != TValueEditKind::vkDate);
    const QString local = Isolated(example.local), everywhere = Isolated(example.everywhere);
    return local == everywhere
               ? TRowProblem::tr("write for example %1").arg(local)
               : TRowProblem::tr("write for example %1, or always %2").arg(local, everywhere);
}

bool IsReadable(TValueEditKind kind, const QString& value) {
    switch (kind) {
    case TValueEditKind::vkDate:
        return ReadLocalDate(value).isValid();
    case TValueEditKind::vkTime:
        return ReadLocalTime(value).isValid();
    case TValueEditKind::vkDateTime:
        return ReadLocalDateTime(value).isValid();
    default:
        return true;
    }
}

/// What is wrong, and in a few words what to do where that is known; both empty when all is well.
struct TProblemTexts {
    QString whole, remedy;
};

TProblemTexts DateTexts(const TFilterCond& condition, const QString& value) {
    const TValueEditKind kind = ChooseValueEditor(condition);
    if (value.isEmpty() || IsReadable(kind, value)) return {};
    const QString problem =
        TRowProblem::tr("\u201C%1\u201D can not be read as a date or time").arg(Isolated(value));
    const QString remedy = DateRemedy(kind);
    return {TRowProblem::tr("%1; %2").arg(problem, remedy), remedy};
}

TProblemTexts ValueProblem(const TFilterCond& condition, int n) {
    if (condition.ValueIsParam(n)) return {};
    const QString value = ToQt(condition.Value(n));
    if (TProblemTexts problem = DateTexts(condition, value); !problem.whole.isEmpty())
        return problem;
    if (!condition.Query()->CheckValues) return {};
    try {
        CheckBareValue(condition, n);
    } catch (const EKWrongValueError&) {
        return {condition.IsListOperator()
                    ? TRowProblem::tr("\u201C%1\u201D is no list of numbers").arg(Isolated(value))
                    : TRowProblem::tr("\u201C%1\u201D is no number").arg(Isolated(value)),
                {}};
    }
    return {};
}

/// The first problem below a bracket.
QString ProblemIn(const TFilterBracket& bracket) {
    for (const auto& row : bracket.Rows()) {
        const TFilterBracket* inner = row->AsBracket();
        QString problem = inner && inner->GetEnabled() ? ProblemIn(*inner) : RowProblem(*row);
        if (!problem.isEmpty()) return problem;
    }
    return {};
}

/// What is left out in a sub-query is missing in the statement around it too.
QString SubQueryProblem(const TFilterCond& condition) {
    QString problem;
    try {
        if (const TKQuery* nested = condition.NestedQuery()) problem = ProblemIn(nested->Root());
    } catch (const EKTernError& error) {
        problem = ToQt(error.what());
    }
    return problem.isEmpty() ? problem : TRowProblem::tr("sub-query: %1").arg(problem);
}

/// What the statement that was read said and the query does not say.
QString LeftOutOfSQL(const TKQuery& query) {
    constexpr int mostNamed = 3;
    constexpr qsizetype mostShown = 60;
    QStringList parts;
    for (const TSQLReportEntry& entry : query.SQLReport().Entries()) {
        if (entry.kind != TSQLReportKind::rkDropped) continue;
        if (parts.size() == mostNamed) {
            parts << QStringLiteral("...");
            break;
        }
        const QString text = ToQt(entry.text).simplified();
        parts << Isolated(text.size() > mostShown ? text.left(mostShown) + u'\u2026' : text);
    }
    if (parts.isEmpty()) return {};
    return TRowProblem::tr("left out of the SQL that was read: %1")
        .arg(parts.join(QStringLiteral(", ")));
}

TProblemTexts ProblemOf(const TFilterRow& row) {
    if (!row.Parent() && row.Query()) return {LeftOutOfSQL(*row.Query()), {}};
    const TFilterCond* condition = row.AsCond();
    if (!condition || !condition->Query() || !condition->EffectivelyEnabled()) return {};
    if (const TUnfinished reason = condition->Unfinished(); reason != TUnfinished::No)
        return {UnfinishedReason(reason), {}};
    if (!condition->IsRecognized()) return {};
    if (condition->IsSubQueryOperator()) return {SubQueryProblem(*condition), {}};
    for (int n = 1; n <= condition->ValueCount(); ++n)
        if (TProblemTexts problem = ValueProblem(*condition, n); !problem.whole.isEmpty())
            return problem;
    return {};
}

} // namespace

bool IsLeftOut(const TFilterRow& row) {
    return !row.IsBracket() && row.AsCond()->Unfinished() != TUnfinished::No;
}

QString RowProblem(const TFilterRow& row) {
    return ProblemOf(row).whole;
}

QString DateProblem(const TFilterCond& condition, const QString& value) {
    return DateTexts(condition, value).whole;
}

QString RowMark(const TFilterRow& row) {
    const TProblemTexts problem = ProblemOf(row);
    return problem.remedy.isEmpty() ? problem.whole : problem.remedy;
}

} // namespace tern7
