#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <ostream>
#include <string>

#include "data/template.h"
#include "tests/support/database_file.h"
#include "tests/support/print.h"
#include "tests/support/test_folder.h"

using namespace Qt::StringLiterals;

namespace {

/// A member's bond, typed and read in one region.
struct Typed {
    const char* locale;
    QString birth, birthShown;      ///< May 3, 1950, unformatted
    QString cost, costShown;        ///< 250000.5 through "#,##0.00"
    QString rate, rateShown;        ///< 4.25 through "0.000"
    QString bought, boughtShown;    ///< November 2, 2026 through "M/d/yy"
    QString maturity, matureShown;  ///< December 31, 2035 through the same: beyond the years of two digits
    QString noNumber, noDate;       ///< what isn't one here
};

void PrintTo(const Typed& typed, std::ostream* out) {
    *out << typed.locale;
}

/// The program in an application folder of its own, in a process of its own with the locale.
class Session : public testing::TestWithParam<Typed>, protected support::TestFolder {
protected:
    void SetUp() override {
        data::createTemplate(file_);
        write(u"SplashDef.txt"_s, "CompanyName=Larkmoor\r\nProductName=Kinbook\r\nValue=\r\nSplash=1\r\n");
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LC_ALL"_s, QString::fromLatin1(GetParam().locale));
        drive_.setProcessEnvironment(environment);
    }
    void TearDown() override {
        drive_.closeWriteChannel();
        drive_.waitForFinished();
    }
    void startDriver() {
        drive_.start(QStringLiteral(KINBOOK_DRIVE), {path()});
        say({u"start"_s});
    }
    /// Says words to the driver and gives its answer.
    QJsonObject say(const QStringList& words) {
        QByteArray line;
        for (const QString& word : words) {
            const QByteArray json = QJsonDocument(QJsonArray{word}).toJson(QJsonDocument::Compact);
            line += json.sliced(1, json.size() - 2) + ' ';
        }
        drive_.write(line + '\n');
        while (!drive_.canReadLine() && drive_.waitForReadyRead(60'000)) {
        }
        const QByteArray answer = drive_.readLine();
        const QJsonObject said = QJsonDocument::fromJson(answer).object();
        EXPECT_TRUE(said["ok"_L1].toBool()) << line.constData() << answer.constData();
        return said;
    }
    QString text(const QString& control) { return say({u"get"_s, control})["text"_L1].toString(); }
    void fill(int box, const QString& typed) { say({u"fill"_s, u"txtFields(%1)"_s.arg(box), typed}); }
    /// Types into a box, leaves it, and gives the box that refuses it.
    QString refusal(int box, const QString& typed) {
        fill(box, typed);
        const QJsonObject state = say({u"key"_s, u"Tab"_s});
        const QString title = state["dialog"_L1]["title"_L1].toString();
        if (!title.isEmpty()) say({u"answer"_s, u"OK"_s});
        fill(box, {});
        return title;
    }
    const QString file_ = path(u"FamilyInfo.mdb"_s);
    QProcess drive_;
};

TEST_P(Session, TakesOverWhatIsTypedAndShowsItAgain) {
    const Typed& typed = GetParam();
    support::exec(file_, u"INSERT INTO Person (LegalName, Seq, Sex) VALUES ('Ann', 1, 'F')"_s);
    support::exec(file_, u"INSERT INTO Bonds (PersonID, Broker) VALUES (1, 'Rail')"_s);
    startDriver();
    say({u"pick"_s, u"MDIHost.cbPerson"_s, u"Ann"_s});
    say({u"click"_s, u"cmdEdit"_s});
    EXPECT_EQ(refusal(1, typed.noDate), u"Invalid Date"_s);
    fill(1, typed.birth);
    say({u"click"_s, u"cmdUpdate"_s});
    EXPECT_EQ(text(u"txtFields(1)"_s), typed.birthShown);
    EXPECT_EQ(support::cell(file_, u"SELECT BirthDate FROM Person"_s), u"1950-05-03"_s);

    for (const QString& branch : {u"Financial Information"_s, u"Assets"_s, u"Investments"_s})
        say({u"expand"_s, branch});
    say({u"node"_s, u"Bonds"_s});
    say({u"click"_s, u"cmdEdit"_s});
    EXPECT_EQ(refusal(10, typed.noNumber), u"Invalid Cost Basis"_s);
    fill(10, typed.cost);
    fill(14, typed.rate);
    fill(11, typed.bought);
    fill(12, typed.maturity);
    const QStringList shown{typed.costShown, typed.rateShown, typed.boughtShown, typed.matureShown};
    // Typed once, then taken over again as it is shown: nothing may change.
    for (int round = 0; round < 2; ++round) {
        const QJsonObject state = say({u"click"_s, u"cmdUpdate"_s});
        ASSERT_TRUE(state["dialog"_L1].isNull()) << QJsonDocument(state).toJson().constData();
        EXPECT_EQ(
            support::cell(
                file_,
                u"SELECT Value || '|' || InterestRate || '|' || ValuationDate || '|' || MaturityDate FROM Bonds"_s),
            u"250000.5|4.25|2026-11-02|2035-12-31"_s);
        EXPECT_EQ(QStringList({text(u"txtFields(10)"_s), text(u"txtFields(14)"_s), text(u"txtFields(11)"_s),
                               text(u"txtFields(12)"_s)}),
                  shown);
        say({u"click"_s, u"cmdEdit"_s});
        for (int i = 0; const int box : {10, 14, 11, 12})
            fill(box, shown[i++]);
    }
}

const Typed regions[] = {
    {"POSIX", u"5/3/1950"_s, u"5/3/1950"_s, u"$250,000.50"_s, u"250,000.50"_s, u"4.25"_s, u"4.250"_s, u"Nov 2, 2026"_s,
     u"11/2/26"_s, u"12/31/2035"_s, u"12/31/2035"_s, u"250 000"_s, u"5.3.1950"_s},
    {"de_DE.UTF-8", u"3.5.1950"_s, u"03.05.1950"_s, u"250.000,50"_s, u"250.000,50"_s, u"4,25"_s, u"4,250"_s,
     u"2. November 2026"_s, u"2.11.26"_s, u"31.12.2035"_s, u"31.12.2035"_s, u"$5"_s, u"31.2.1950"_s},
    {"sv_SE.UTF-8", u"1950-05-03"_s, u"1950-05-03"_s, u"250\u00A0000,50 kr"_s, u"250\u00A0000,50"_s, u"4,25"_s,
     u"4,250"_s, u"2 nov. 2026"_s, u"26-11-2"_s, u"2035-12-31"_s, u"2035-12-31"_s, u"250.50"_s, u"1950-02-31"_s},
    {"ar_EG.UTF-8", u"\u0663/\u0665/\u0661\u0669\u0665\u0660"_s, u"\u0663/\u0665/\u0661\u0669\u0665\u0660"_s,
     u"250000\u066B50"_s, u"\u0662\u0665\u0660\u066C\u0660\u0660\u0660\u066B\u0665\u0660"_s, u"4\u066B25"_s,
     u"\u0664\u066B\u0662\u0665\u0660"_s, u"2/11/2026"_s, u"\u0662/\u0661\u0661/\u0662\u0666"_s, u"31/12/2035"_s,
     u"\u0663\u0661/\u0661\u0662/\u0662\u0660\u0663\u0665"_s, u"250.50"_s, u"31/2/1950"_s},
};

INSTANTIATE_TEST_SUITE_P(Regions, Session, testing::ValuesIn(regions),
                         [](const auto& tested) { return std::string(tested.param.locale).substr(0, 5); });

}  // namespace
