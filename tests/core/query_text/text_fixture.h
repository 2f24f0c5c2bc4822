#pragma once

#include <gtest/gtest.h>

#include <string>

#include <core/query/shop.h>

namespace tern7 {

/// The shop, with an operator for sub-queries, and a query whose text holds no captions.
class TQueryTextTest : public TShop {
protected:
    TQueryTextTest() {
        AddSubQueryOperator()->SetDisplayName("is found by");
        query.SaveTitles = false;
    }

    /// What another query over the same structure writes after it has read the text.
    std::string Reread(const std::string& text) {
        TKQuery other(&structure);
        other.Services = query.Services;
        other.SaveTitles = query.SaveTitles;
        other.SaveSQLOptions = query.SaveSQLOptions;
        other.SaveMainTable = query.SaveMainTable;
        other.SetQueryString(text);
        return other.GetQueryString();
    }

    /// What reading the text raises, empty when it is read; checks that a failure changed nothing.
    std::string ErrorOf(const std::string& text) {
        const std::string before = query.GetQueryString();
        query.SetActive(true);
        try {
            query.SetQueryString(text);
            return {};
        } catch (const EKQueryPanelError& error) {
            EXPECT_EQ(query.GetQueryString(), before);
            EXPECT_EQ(query.BuilderState(), TKBuilderState::stIdle);
            EXPECT_FALSE(query.Active());
            return error.what();
        }
    }

    TFilterCond& Cond(int index) { return *query.Root().GetRow(index)->AsCond(); }
};

} // namespace tern7
