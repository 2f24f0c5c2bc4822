#include <algorithm>
#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QKeySequence>

#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/query/panel_menus.h>
#include <tern7/core/titles/default_titles.h>
#include <tern7/ui/support/language_titles.h>
#include <tern7/ui/support/text.h>

namespace tern7 {
namespace {

const TStrings WithoutDefault = {
    "ttlSortTypeHint=", "ttlRename=", "ttlDelete=", "ttlWithoutGroup=", "ttlAllResFieds="};

TStrings Keys(const TStrings& lines) {
    TStrings keys;
    for (const std::string& line : lines)
        if (!line.empty()) keys.emplace_back(LineName(line));
    return keys;
}

QString Letter(std::string_view text) {
    return QKeySequence::mnemonic(ToQt(text)).toString();
}

/// Same keys in the same order, every text translated, its marks kept.
void ExpectTranslated(TStrings defaults, const TStrings& titles, const TStrings& more = {}) {
    defaults.insert(defaults.end(), more.begin(), more.end());
    ASSERT_EQ(Keys(titles), Keys(defaults));
    const TStrings alike = {"OK", "Parameter", "Expression"};
    for (const std::string& key : Keys(titles)) {
        SCOPED_TRACE(key);
        const std::string text(ValueOf(titles, key)), english(ValueOf(defaults, key));
        EXPECT_NE(text, "");
        EXPECT_EQ(Trim(text), text);
        EXPECT_EQ(FromQt(ToQt(text)), text) << "no UTF-8";
        if (text == english) {
            EXPECT_THAT(alike, testing::Contains(text));
        }
        for (const char* mark : {"@", "%", "%s", "&"})
            EXPECT_EQ(ToQt(text).count(mark), ToQt(english).count(mark)) << mark;
        EXPECT_EQ(Letter(text).isEmpty(), Letter(english).isEmpty());
    }
}

/// No two of the texts are opened by the same letter.
void ExpectOwnLetters(const TStrings& titles, const TStrings& keys) {
    std::map<QString, std::string> taken;
    for (const std::string& key : keys) {
        const QString letter = Letter(ValueOf(titles, key));
        if (letter.isEmpty()) continue;
        const auto [other, isNew] = taken.emplace(letter, key);
        EXPECT_TRUE(isNew) << key << " and " << other->second << ": " << FromQt(letter);
    }
}

TStrings CaptionKeys(const std::vector<TPanelMenuItem>& items) {
    TStrings keys;
    for (const TPanelMenuItem& item : items)
        keys.emplace_back(item.captionKey);
    return keys;
}

} // namespace

TEST(LanguageTitles, AreCompleteInEveryLanguage) {
    const TStrings& defaults = DefaultQueryTitles();
    for (const TTitleLanguage& language : TitleLanguages()) {
        if (language.code == "en") continue;
        SCOPED_TRACE(FromQt(language.code));
        const TStrings titles = LanguageTitles(language.code);
        ASSERT_EQ(ReadSLSections(titles), ReadSLSections(defaults));
        const TStrings panel = XReadSLSectionValues(titles, QueryPanelTitles);
        const TStrings editor = XReadSLSectionValues(titles, ResultFieldsEditorTitles);
        ExpectTranslated(XReadSLSectionValues(defaults, QueryPanelTitles), panel, WithoutDefault);
        ExpectTranslated(XReadSLSectionValues(defaults, ResultFieldsEditorTitles), editor);
        ExpectTranslated(DefaultResultFieldsPanelTitles(),
                         LanguageResultFieldsPanelTitles(language.code));
        for (const auto& menu : {AddMenuItems(), RowMenuItems(), ValueMenuItems(true)})
            ExpectOwnLetters(panel, CaptionKeys(menu));
        ExpectOwnLetters(editor, Keys(editor));
    }
}

TEST(LanguageTitles, AreEmptyForEnglishAndUnknownLanguages) {
    ASSERT_FALSE(TitleLanguages().empty());
    EXPECT_EQ(TitleLanguages().front().code, "en");
    for (const char* code : {"en", "", "xx", "../titles/de"}) {
        EXPECT_EQ(LanguageTitles(code), TStrings()) << code;
        EXPECT_EQ(LanguageResultFieldsPanelTitles(code), TStrings()) << code;
    }
}

} // namespace tern7
