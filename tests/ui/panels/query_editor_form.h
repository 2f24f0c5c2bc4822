#pragma once

#include <set>

#include <QMimeData>

#include <gtest/gtest.h>

#include <core/query/shop.h>
#include <tern7/core/query/query_text.h>
#include <tern7/ui/panels/query_editor.h>

namespace tern7 {

/// A query with the editor that a panel would have, without the panel.
class TEditor : public TShop {
protected:
    TEditor() {
        query.SaveSQLOptions = true;
        query.SaveMainTable = true;
        query.SaveTitles = false;
    }
    ~TEditor() override { editor.reset(); }

    TFilterCond* Enter(TFilterBracket& bracket, std::string_view field, std::string_view op,
                       std::string value) {
        TFilterCond* row = editor->AddCondition(bracket, bracket.GetRowCount());
        editor->SetField(*row, *Field(field));
        editor->SetOperator(*row, *structure.OperatorByName(op));
        editor->SetValue(*row, 1, std::move(value));
        return row;
    }
    /// All that is kept of the query: its text, rows without a field, parameters by name.
    std::string State() {
        std::string state = query.GetQueryString();
        std::vector<TFilterRow*> rows;
        for (const auto& row : query.Root().Rows())
            rows.push_back(row.get());
        state += RowsToText(rows, true);
        std::set<std::string> params;
        for (const auto& param : query.QResult().Params())
            params.insert(param->Name() + "=" + param->Caption() + " " + param->ValueFormat());
        for (const std::string& param : params)
            state += param + "\n";
        return state;
    }
    std::vector<TFilterRow*> AllRows(bool root = true) {
        std::vector<TFilterRow*> rows;
        if (root) rows.push_back(&query.Root());
        Collect(query.Root(), rows);
        return rows;
    }
    static void Collect(TFilterBracket& bracket, std::vector<TFilterRow*>& rows) {
        for (const auto& row : bracket.Rows()) {
            rows.push_back(row.get());
            if (row->IsBracket()) Collect(*row->AsBracket(), rows);
        }
    }
    QString Steps() const {
        QStringList names;
        for (int i = 0; i < editor->Stack().count(); ++i)
            names << editor->Stack().text(i);
        return names.join(", ");
    }

    std::unique_ptr<TKQueryEditor> editor = std::make_unique<TKQueryEditor>(query);
};

} // namespace tern7
