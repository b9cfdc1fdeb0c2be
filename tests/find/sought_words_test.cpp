#include "find/sought_words.h"

#include <gtest/gtest.h>

#include <QLocale>

#include "find/folding.h"

using namespace Qt::StringLiterals;

namespace {

TEST(Folding, CaseAccentsAndTheWritingOfDigitsDoNotCount) {
    struct Case {
        QString text;
        QString folded;
    };
    const Case cases[] = {
        {u"Zoë ZOË"_s, u"zoe zoe"_s},
        {u"Zoe\u0308"_s, u"zoe"_s},
        {u"Straße"_s, u"strasse"_s},
        {u"ΣΊΣΥΦΟΣ σίσυφος"_s, u"σισυφοσ σισυφοσ"_s},
        {u"Ёлка"_s, u"елка"_s},
        // A letter of its own, whatever it looks like.
        {u"Søren"_s, u"søren"_s},
        {u"\uFB01nd \uFF21"_s, u"find a"_s},
        {u"\u0661\u0669 \u0E51"_s, u"19 1"_s},
        {u"한국"_s, QString(u"한국"_s).normalized(QString::NormalizationForm_KD)},
        {u"𝐙oe 😀"_s, u"zoe 😀"_s},
        {u"plain, ASCII; [\\]^_`{|}~@"_s, u"plain, ascii; [\\]^_`{|}~@"_s},
    };
    for (const Case& row : cases)
        EXPECT_EQ(find::folded(row.text), row.folded);
    // What the file holds need not be UTF-8.
    find::FoldedTexts left;
    left.append("Caf\xE9 \xC3");
    EXPECT_EQ(left.view().substr(0, 3), "caf");
    const find::FoldedText whole = find::foldedWithOrigins(u"aß\u0308Z");
    EXPECT_EQ(whole.text, u"assz"_s);
    EXPECT_EQ(whole.origins, (std::vector<qsizetype>{0, 1, 1, 3}));
}

TEST(SoughtWords, NumbersAndDatesAreFoundAsTheyAreShownAndPlainly) {
    constexpr data::Column money{.kind = data::FieldKind::Number, .format = "#,##0.00"_L1};
    constexpr data::Column rate{.kind = data::FieldKind::Number, .format = "0.000%"_L1};
    constexpr data::Column whole{.kind = data::FieldKind::Whole};
    constexpr data::Column plain{.kind = data::FieldKind::Number};
    struct Number {
        const char* locale;
        const data::Column* column;
        double value;
        QStringList found;
        QStringList missed;
    };
    const Number numbers[] = {
        {"en_US", &money, 1250.5, {u"1250.5"_s, u"1,250.50"_s, u"50"_s, u"2"_s}, {u"1.250"_s, u"126"_s, u"x1"_s}},
        {"en_US", &money, -0.125, {u"-0.13"_s, u"-0.125"_s, u".13"_s}, {u"0.12"_s + u"0"_s, u"1.25"_s}},
        // Carried over as it is shown.
        {"en_US", &money, 1.995, {u"2.00"_s, u"1.995"_s}, {u"1.99"_s + u"0"_s}},
        {"en_US", &money, 1e15, {u"1,000,000"_s}, {u"7"_s}},
        {"en_US", &rate, 0.0525, {u"5.250%"_s, u"0.0525"_s}, {u"6"_s}},
        {"en_US", &whole, 1987, {u"1987"_s, u"98"_s}, {u"1,987"_s}},
        {"en_US", &plain, 3.25, {u"3.25"_s}, {u"3.250"_s}},
        {"de_DE", &money, 1250.5, {u"1.250,50"_s, u"1250.5"_s}, {u"1,250"_s}},
        {"fr_FR", &money, 1250.5, {u"1250.5"_s, u"250,50"_s}, {u"1250,50"_s}},
    };
    const auto has = [](const auto& row, const QString& word) {
        const platform::Region region = platform::Region::of(QLocale(QString::fromLatin1(row.locale)));
        find::SoughtWords words(word, region);
        if constexpr (requires { row.value; })
            return words.numberHas(words.words().at(0), row.value, *row.column, find::decimalsOf(*row.column));
        else
            return words.dateHas(words.words().at(0), row.stored, *row.column);
    };
    const auto check = [&](const auto& row) {
        for (const QString& word : row.found)
            EXPECT_TRUE(has(row, word)) << row.locale << ' ' << qPrintable(word);
        for (const QString& word : row.missed)
            EXPECT_FALSE(has(row, word)) << row.locale << ' ' << qPrintable(word);
    };
    for (const Number& row : numbers)
        check(row);

    constexpr data::Column date{.kind = data::FieldKind::Date, .format = "M/d/yy"_L1};
    constexpr data::Column unformatted{.kind = data::FieldKind::Date};
    struct Date {
        const char* locale;
        const data::Column* column;
        std::string_view stored;
        QStringList found;
        QStringList missed;
    };
    const Date dates[] = {
        {"en_US", &date, "1985-03-04", {u"3/4/85"_s, u"1985-03-04"_s, u"85"_s}, {u"4/3"_s, u"3/4/1985"_s, u"55"_s}},
        {"en_US", &unformatted, "1985-03-04", {u"3/4/1985"_s, u"1985"_s}, {u"1986"_s, u"4/3"_s}},
        {"de_DE", &unformatted, "1985-03-04", {u"04.03.1985"_s, u"1985-03"_s}, {u"3/4"_s}},
        {"en_US", &date, "", {}, {u"1"_s, u"0"_s}},
    };
    for (const Date& row : dates)
        check(row);
}

}  // namespace
