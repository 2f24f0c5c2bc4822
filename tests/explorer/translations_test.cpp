#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

/// The marks of a text that are replaced, in order.
QStringList Marks(const QString& text) {
    static const QRegularExpression mark(QStringLiteral("%n|%\\d"));
    QStringList marks;
    for (auto found = mark.globalMatch(text); found.hasNext();)
        marks << found.next().captured();
    marks.sort();
    return marks;
}

int Mnemonics(QString text) {
    return static_cast<int>(text.remove(QStringLiteral("&&")).count(u'&'));
}

void ExpectComplete(const QString& fileName) {
    QFile file(fileName);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << FromQt(fileName);
    QXmlStreamReader xml(&file);
    QString source;
    bool isCounted = false;
    int texts = 0;
    const auto check = [&](const QString& text) {
        const std::string where = FromQt(fileName + ": " + source);
        ++texts;
        EXPECT_FALSE(text.trimmed().isEmpty()) << where;
        EXPECT_EQ(Marks(text), Marks(source)) << where << " / " << FromQt(text);
        EXPECT_EQ(Mnemonics(text), Mnemonics(source)) << where << " / " << FromQt(text);
    };
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == QLatin1String("message"))
            isCounted = xml.attributes().hasAttribute(QLatin1String("numerus"));
        if (xml.name() == QLatin1String("source")) source = xml.readElementText();
        if (xml.name() == QLatin1String("numerusform")) check(xml.readElementText());
        if (xml.name() != QLatin1String("translation")) continue;
        EXPECT_TRUE(xml.attributes().isEmpty()) << FromQt(fileName + ": unfinished: " + source);
        if (!isCounted) check(xml.readElementText());
    }
    EXPECT_FALSE(xml.hasError());
    EXPECT_GT(texts, 4) << FromQt(fileName);
}

TEST(Translations, AreComplete) {
    int files = 0;
    for (const char* folder : {"/../tern7/ui/translations", "/../explorer/translations"}) {
        const QDir texts(QStringLiteral(TERN7_TESTS_DIR) + QLatin1String(folder));
        for (const QString& file : texts.entryList({"*.ts"})) {
            ExpectComplete(texts.filePath(file));
            ++files;
        }
    }
    EXPECT_EQ(files, 13); // English only where something is counted
}

} // namespace

} // namespace tern7
