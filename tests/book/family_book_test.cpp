#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProgressDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QThread>

#include "app/category_nodes.h"
#include "data/tables.h"
#include "platform/print/device_in_use.h"
#include "platform/print/print_device.h"
#include "screens/catalogue/catalogue.h"
#include "tests/data/hostile_disk.h"
#include "tests/support/household.h"
#include "tests/support/pdf_bookmarks.h"

using namespace Qt::StringLiterals;

namespace {

/// A value that tells its column and row, as the file has it. Some texts are longer than their boxes, and some have
/// line ends that no box gives back as they are.
QString valueOf(const data::Column& column, int row, int number) {
    switch (column.kind) {
        case data::FieldKind::YesNo:
            return QString::number(-((row + number) % 2));
        case data::FieldKind::Number:
        case data::FieldKind::Whole:
            return QString::number(1000 * row + number) + u".5"_s;
        case data::FieldKind::Date:
            return u"'20%1-%2-17'"_s.arg(10 + row).arg(1 + number % 12, 2, 10, QChar(u'0'));
        case data::FieldKind::LongText:
            return u"'%1 first of %2'||char(10)||'second'||char(13,10)||'%3'"_s.arg(column.name)
                .arg(row)
                .arg(u"and then some more of it "_s.repeated(number % 9));
        default:
            return u"'%1 of %2 \u00E9 %3'"_s.arg(column.name).arg(row).arg(QString(row % 3 * 30, u'x'));
    }
}

/// What stands on the pages of a job but for empty lines, page by page.
using Pages = std::vector<QStringList>;

Pages pagesOf(const QJsonValue& job) {
    Pages pages;
    const QJsonArray all = job.toArray();
    for (const QJsonValue& page : all) {
        pages.emplace_back();
        const QJsonArray lines = page.toArray();
        for (const QJsonValue& line : lines) {
            if (const QString text = line["text"_L1].toString(); !text.trimmed().isEmpty()) pages.back() << text;
        }
    }
    return pages;
}

QStringList joined(const Pages& pages) {
    QStringList lines;
    for (const QStringList& page : pages)
        lines << page;
    return lines;
}

/// A book taken apart.
struct Book {
    Pages pages;
    QStringList body{};      ///< the lines of documents and listings, without heads and numbers of pages
    QStringList heads{};     ///< by pages
    QStringList contents{};  ///< its lines, with the page as the last word
};

Book taken(const Pages& pages, int covers) {
    Book book{.pages = pages};
    for (std::size_t i = 0; i < pages.size(); ++i) {
        book.heads << (i < std::size_t(covers) ? u"Cover Page"_s : pages[i].first().trimmed());
        if (i < std::size_t(covers)) continue;
        EXPECT_EQ(pages[i].last(), u"-%1-"_s.arg(i + 1));
        const QStringList inside = pages[i].mid(1, pages[i].size() - 2);
        (book.heads.last() == "Contents"_L1 ? book.contents : book.body) << inside;
    }
    return book;
}

/// What comes before it begins to differ, for a message.
std::string difference(const QStringList& ours, const QStringList& theirs) {
    qsizetype i = 0;
    while (i < ours.size() && i < theirs.size() && ours[i] == theirs[i])
        ++i;
    return u"line %1 of %2 and %3: \"%4\" and \"%5\""_s.arg(i)
        .arg(ours.size())
        .arg(theirs.size())
        .arg(ours.value(i), theirs.value(i))
        .toStdString();
}

class FamilyBook : public support::Household {
protected:
    /// Two rows for the first member and one for the second in every table of a member's; two in those of everybody.
    void fillAll() {
        addMembers({u"Ann Larkin"_s, u"Zo\u00EB Larkin"_s});
        exec(u"UPDATE Person SET BirthCity = 'Barre', Comment = 'One'||char(10)||'two'"_s);
        for (const data::Table& table : data::allTables()) {
            const bool owned = table.keys == data::Keys::Owner || table.keys == data::Keys::OwnerAndDoctor;
            const QString name = table.name;
            const bool shared = name == "Doctors"_L1 || name == "Contacts"_L1;
            if (name == "PIN_Password"_L1 || (!owned && !shared)) continue;
            for (int row = 1; row <= 3; ++row)
                insert(table, row, owned);
        }
        exec(u"UPDATE Obligations SET Type = 2 + ID % 3"_s);
        exec(u"UPDATE AlimonyChildSupport SET Type = 1 + ID % 2"_s);
        exec(u"UPDATE Doctors SET Name = 'Dr. Moss ' || ID"_s);
        exec(u"UPDATE MedicalLog SET MedicalID = 1, Description = 'Flu of ' || ID"_s);
        exec(
            u"INSERT INTO Inventory (TypeID, ParentID, Type, Description) SELECT 1, ID, 'Chair', 'Oak' FROM HomeOwned"_s);
        exec(u"INSERT INTO AssetLiquidation (Seq, Asset, Directions) VALUES (1, 'Boat', 'Sell it')"_s);
        exec(u"INSERT INTO WhoGetsWhat (Item, Person) VALUES ('Clock', 'Zo\u00EB')"_s);
        exec(u"INSERT INTO CoverPage (Heading1, SubHeading1) VALUES ('Our Records', 'Kept well')"_s);
        exec(
            u"INSERT INTO PIN_Password (Seq, Account, UserName, PIN_Password, PersonID) VALUES (1, 'Hidden account', "
            "'hidden user', 'hidden pin', 1)"_s);
        exec(
            u"INSERT INTO Attachments (BugNum, SeqNum, FileName, OldFileName, fileDesc) VALUES ('Hom_1_1', 1, 'a', "
            "'deed.pdf', 'The deed'), ('Hom_0_3', 1, 'b', 'plan.pdf', 'Zo\u00EBs plan'), ('Kbk_1_0', 1, 'c', "
            "'ann.jpg', "
            "''), ('MRec_3_0', 1, 'd', 'xray.png', ''), ('Inv_1_1', 1, 'e', 'chair.png', ''), ('Con_1_1', 1, 'f', "
            "'card.png', ''), ('Obl_1_2', 1, 'h', 'loan.pdf', ''), ('Gone_1_1', 1, 'g', 'older.doc', ''), "
            "('Hom_1_77', 1, 'i', 'sold.pdf', 'A house that has gone'), ('nonsense', 1, 'j', 'odd.txt', NULL)"_s);
    }
    void insert(const data::Table& table, int row, bool owned) const {
        QStringList names;
        QStringList values;
        int number = 0;
        for (const data::Column& column : table.columns) {
            ++number;
            if (!column.isStored() || column.shownIn == data::ShownIn::Nowhere) continue;
            names << u'"' + column.name + u'"';
            values << valueOf(column, row, number);
        }
        if (owned) {
            names << u"PersonID"_s;
            values << QString::number(1 + row / 3);
        }
        exec(u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(table.name, names.join(u','), values.join(u',')));
    }
    void startWith(const QString& selection) {
        user.start();
        user.pick(u"MDIHost.cbPerson"_s, selection);
        user.setPrinter(path(u"printed.pdf"_s));
    }

    /// The lines of all documents that Print All of the active window makes.
    QStringList printAll() {
        user.menu(u"mPrintAll"_s);
        QStringList lines;
        const QJsonArray jobs = user.jobs();
        for (const QJsonValue& job : jobs)
            lines << joined(pagesOf(job));
        return lines;
    }
    /// The same for a site's window: what hangs on a row comes behind its document.
    QStringList printHomes() {
        QStringList lines;
        const int count = status().section(u' ', -1).toInt();
        for (int i = 0; i < count; ++i) {
            user.tool(u"tbPrint"_s);
            lines << joined(pagesOf(user.jobs()[0]));
            user.tool(u"tbInventory"_s);
            lines << printAll();
            user.click(u"cmdClose"_s);
            user.click(u"cmdNext"_s);
        }
        return lines;
    }
    /// The documents of every record window, category by category.
    QStringList printEverything() {
        QStringList lines;
        QSet<QString> seen;
        for (const app::CategoryNode& node : app::categoryNodes()) {
            const QString window = node.opens;
            if (!screens::screenDefinition(window) || seen.contains(window)) continue;
            seen << window;
            openNode(node.key);
            EXPECT_EQ(activeWindow(), window);
            if (user.control(u"cmdCancel"_s)["visible"_L1].toBool()) {
                // Without rows it has begun to add one.
                user.click(u"cmdCancel"_s);
                continue;
            }
            lines << (window == "frmHomesOwned"_L1 ? printHomes() : printAll());
            if (window != "frmKinbook"_L1) user.click(u"cmdClose"_s);
        }
        return lines;
    }
    /// The rows of a list's listing, one blank for many.
    QStringList listing(const QString& open) {
        if (open.startsWith(u"m"_s)) {
            // The host's own menu shows when no window is open.
            user.click(u"cmdClose"_s);
            user.menu(open);
        } else {
            openNode(open);
        }
        user.tool(u"tbPrint"_s);
        QStringList lines = joined(pagesOf(user.jobs()[0]));
        if (!open.startsWith(u"m"_s)) user.click(u"cmdClose"_s);
        // The heading over the columns is cut by their widths, which on screen follow the window's.
        lines.removeAt(1);
        return lines.replaceInStrings(QRegularExpression(u" +"_s), u" "_s).mid(0, lines.size() - 1);
    }

    Book printedBook(int covers = 1) {
        user.menu(u"mFamilyBook"_s);
        user.click(u"cmdPrint"_s);
        const QJsonArray jobs = user.jobs();
        EXPECT_EQ(jobs.size(), 1);
        return taken(pagesOf(jobs[0]), covers);
    }
    void save(const QString& file) {
        user.menu(u"mFamilyBook"_s);
        user.click(u"cmdSave"_s);
        user.choose(file);
    }
};

TEST_F(FamilyBook, HoldsEveryPrintedDocumentAndListingInOrderAndNoSecret) {
    fillAll();
    startWith(u"Whole Family"_s);
    const Book book = printedBook();
    const QStringList documents = printEverything();
    EXPECT_TRUE(book.body.mid(0, documents.size()) == documents)
        << difference(book.body.mid(0, documents.size()), documents);
    QStringList lists = book.body.mid(documents.size());
    EXPECT_EQ(book.pages[0][0], u"Our Records"_s);

    lists.replaceInStrings(QRegularExpression(u" +"_s), u" "_s);
    QStringList told;
    for (const QString& list : {u"AssetLiquidation"_s, u"MedicalLog"_s, u"WhoGetsWhat"_s, u"mFamilySequence"_s})
        told << listing(list);
    for (const QString& line : told)
        EXPECT_TRUE(lists.contains(line)) << line.toStdString();
    const QStringList files{u" Birth Information Ann Larkin ann.jpg "_s,
                            u" Home(s) Ann Larkin deed.pdf The deed "_s,
                            u" Home(s) Zo\u00EB Larkin plan.pdf Zo\u00EBs plan "_s,
                            u" Address card.png "_s,
                            u" Medical Log Zo\u00EB Larkin xray.png "_s,
                            u" Home(s), Inventory Ann Larkin chair.png "_s,
                            u" Mortgages Ann Larkin loan.pdf "_s,
                            u" Gone_1_1 older.doc "_s,
                            u" Hom_1_77 sold.pdf A house that has gone "_s,
                            u" nonsense odd.txt "_s};
    for (const QString& file : files)
        EXPECT_TRUE(lists.contains(file)) << file.toStdString() << lists.join(u'\n').toStdString();
    for (const QString& name : {u"loan.pdf"_s, u"deed.pdf"_s, u"chair.png"_s, u"older.doc"_s, u"sold.pdf"_s})
        EXPECT_EQ(lists.filter(name).size(), 1) << name.toStdString();
    EXPECT_EQ(book.heads.last(), u"Attachments Without a Record"_s);
    EXPECT_TRUE(book.pages.size() > 100 && joined(book.pages).filter(u"hidden"_s, Qt::CaseInsensitive).isEmpty());
}

/// A bookmark or a line of the contents.
using Entry = std::pair<QString, int>;

TEST_F(FamilyBook, ContentsAndBookmarksTellTheTruePages) {
    fillAll();
    startWith(u"Whole Family"_s);
    const Book book = printedBook();
    save(path(u"book.pdf"_s));
    EXPECT_EQ(boxTitle(), u""_s);

    std::vector<Entry> told;
    QString category;
    for (const QString& line : book.contents.mid(2)) {
        const Entry entry{line.section(u" .."_s, 0, 0).trimmed(), line.section(u' ', -1).toInt()};
        told.push_back(entry);
        const QString head = book.heads.value(entry.second - 1);
        const bool isMember = entry.first.endsWith(u" Larkin"_s);
        // The page of a branch is that of the first category in it.
        if (isMember) {
            EXPECT_EQ(head, category + u" -- "_s + entry.first);
        }
        EXPECT_NE(head, book.heads.value(entry.second - 2)) << "page " << entry.second << " begins no part";
        category = entry.first.endsWith(u" Larkin"_s) ? category : entry.first;
    }
    EXPECT_GT(told.size(), 150);
    EXPECT_GT(book.heads.count(u"Contents"_s), 2);

    std::vector<Entry> bookmarks;
    for (const platform::Bookmark& bookmark : support::bookmarksOf(path(u"book.pdf"_s)))
        bookmarks.emplace_back(bookmark.title, bookmark.page);
    told.insert(told.begin(), {{u"Cover Page"_s, 1}, {u"Contents"_s, 2}});
    EXPECT_TRUE(bookmarks == told) << bookmarks.size() << " and " << told.size();
    EXPECT_TRUE(bytesOf(u"book.pdf"_s).contains("/PageMode /UseOutlines"));
    const QString about = support::aboutPdf(path(u"book.pdf"_s)).simplified();
    EXPECT_TRUE(about.contains(u"Title: Family Book for Whole Family"_s)) << about.toStdString();
    EXPECT_TRUE(about.contains(u"Pages: %1 "_s.arg(book.pages.size()))) << about.toStdString();
}

TEST_F(FamilyBook, OfOneMemberHasHisRecordsAndThoseOfNobodyInParticular) {
    fillAll();
    startWith(u"Zo\u00EB Larkin"_s);
    user.menu(u"mFamilyBook"_s);
    EXPECT_EQ(user.control(u"cbMember"_s)["items"_L1].toVariant().toStringList(),
              (QStringList{u"Zo\u00EB Larkin"_s, u"Whole Family"_s, u"Ann Larkin"_s}));
    EXPECT_EQ(user.text(u"cbMember"_s), u"Zo\u00EB Larkin"_s);
    user.key(u"Escape"_s);
    const Book book = printedBook();
    const QStringList documents = printEverything();
    EXPECT_TRUE(book.body.mid(0, documents.size()) == documents)
        << difference(book.body.mid(0, documents.size()), documents);
    const QString text = book.body.join(u'\n');
    EXPECT_TRUE(book.heads.contains(u"Home(s) -- Zo\u00EB Larkin"_s));
    EXPECT_FALSE(text.contains(u" - Ann Larkin"_s));
    EXPECT_TRUE(text.contains(u"Flu of 3"_s) && !text.contains(u"Flu of 1"_s));
    EXPECT_TRUE(text.contains(u"plan.pdf"_s) && text.contains(u"card.png"_s) && text.contains(u"xray.png"_s));
    EXPECT_FALSE(text.contains(u"deed.pdf"_s) || text.contains(u"ann.jpg"_s) || text.contains(u"chair.png"_s) ||
                 text.contains(u"sold.pdf"_s));
    EXPECT_TRUE(text.contains(u"Boat"_s) && text.contains(u"Clock"_s));
    EXPECT_FALSE(text.contains(u"hidden"_s));

    user.menu(u"mFamilyBook"_s);
    user.fill(u"cbMember"_s, u"Nobody"_s);
    user.click(u"cmdPrint"_s);
    EXPECT_EQ(dismissBox(), u"No Matching Family Member"_s);
    user.fill(u"cbMember"_s, u"Whole Family"_s);
    user.click(u"cmdPrint"_s);
    EXPECT_GT(user.jobs()[0].toArray().size(), static_cast<qsizetype>(book.pages.size()));
    EXPECT_EQ(user.session()["gPersonID"_L1].toInt(), 2);
}

TEST_F(FamilyBook, GroupsByMemberWhereSeveralHaveOneNumberInTheFamily) {
    addMembers({u"Ann Larkin"_s, u"Bob Larkin"_s});
    exec(u"UPDATE Person SET Seq = 0"_s);
    exec(u"INSERT INTO Stocks (PersonID) VALUES (1), (2), (1), (2)"_s);
    startWith(u"Whole Family"_s);
    QStringList heads = printedBook(0).heads;
    heads.removeDuplicates();
    EXPECT_EQ(heads,
              (QStringList{u"Contents"_s, u"Birth Information -- Ann Larkin"_s, u"Birth Information -- Bob Larkin"_s,
                           u"Stocks -- Ann Larkin"_s, u"Stocks -- Bob Larkin"_s, u"Family Sequence"_s}));
}

TEST_F(FamilyBook, NeverTakesThePlaceOfTheBooksFilesAndTellsWhyItCanNotBeSaved) {
    addMembers({u"Ann Larkin"_s});
    startWith(u"Whole Family"_s);
    const QByteArray before = bytesOf(u"SplashDef.txt"_s);
    write(u"locked.pdf"_s, "kept");
    QFile::setPermissions(path(u"locked.pdf"_s), QFile::ReadOwner);
    SmallDisk disk;
    disk.fill();
    struct {
        QString file, report;
    } const table[] = {{path(u"FamilyInfo.mdb"_s), u"70 - Permission denied"_s},
                       {path(u"SplashDef.txt"_s), u"70 - Permission denied"_s},
                       {path(u"locked.pdf"_s), u"70 - Permission denied"_s},
                       {path(u"missing/a.pdf"_s), u"76 - Path not found"_s},
                       {disk.folder() + u"/a.pdf"_s, u"61 - Disk full"_s}};
    for (const auto& row : table) {
        save(row.file);
        EXPECT_EQ(boxText(), row.report) << row.file.toStdString();
        EXPECT_EQ(boxIcon(), u"critical"_s);
        EXPECT_EQ(dismissBox(), u"Family Book Error"_s);
        user.click(u"cmdCancel"_s);
    }
    EXPECT_EQ(bytesOf(u"SplashDef.txt"_s), before);
    EXPECT_EQ(bytesOf(u"locked.pdf"_s), "kept");
    EXPECT_FALSE(QFile::exists(disk.folder() + u"/a.pdf"_s));
    save({});
    EXPECT_EQ(dismissBox(), u"No Filename"_s);
    user.setPrinter(u"none"_s);
    user.click(u"cmdPrint"_s);
    EXPECT_EQ(dismissBox(), u"No Printer"_s);
    EXPECT_EQ(cell(u"SELECT COUNT(*) FROM Person"_s), u"1"_s);
}

TEST_F(FamilyBook, AFamilyWithoutMembersHasNone) {
    user.start();
    user.menu(u"mFamilyBook"_s);
    for (const QString& button : {u"cmdPrint"_s, u"cmdSave"_s}) {
        user.click(button);
        EXPECT_EQ(dismissBox(), u"No Entries"_s);
    }
}

/// While it lives, clicks the button of the window that shows the progress once that tells of the writing. Lives where
/// the windows do.
class Impatient : public QObject {
public:
    explicit Impatient(QString doing) : doing_(std::move(doing)) {
        moveToThread(qApp->thread());
        QMetaObject::invokeMethod(
            this, [this] { timer_ = startTimer(1); }, Qt::QueuedConnection);
    }

protected:
    void timerEvent(QTimerEvent* /*event*/) override {
        auto* progress = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        if (!progress || !progress->labelText().startsWith(doing_)) return;
        killTimer(timer_);
        holder = progress->parentWidget() ? progress->parentWidget()->objectName() : u"none"_s;
        isTitleWhole =
            progress->width() > progress->fontMetrics().horizontalAdvance(progress->windowTitle() + u"-- buttons --"_s);
        progress->findChild<QPushButton*>()->click();
    }

public:
    /// Of the window that was clicked.
    QString holder;
    bool isTitleWhole = false;

private:
    QString doing_;
    int timer_ = 0;
};

/// A device that takes its time with each page.
class SlowDevice : public platform::PrintDevice {
public:
    class Pages : public platform::JobPages {
    public:
        explicit Pages(SlowDevice& device) : device_(device) {}
        void add(const platform::PrintedPage& /*page*/) override {
            QThread::msleep(30);
            ++device_.pages;
        }
        void end() override { ++device_.sent; }

    private:
        SlowDevice& device_;
    };
    [[nodiscard]] platform::PageArea page() override { return {12240, 15840, 11520, 15120}; }
    void send(const platform::PrintJob& /*job*/, const QString& /*title*/) override { ++sent; }
    [[nodiscard]] std::unique_ptr<platform::JobPages> begin(const QString& title) override {
        titles << title;
        return std::make_unique<Pages>(*this);
    }
    QStringList titles;
    int pages = 0;
    int sent = 0;
};

TEST_F(FamilyBook, ThatIsStoppedLeavesNothing) {
    addMembers({u"Ann Larkin"_s});
    exec(
        u"INSERT INTO HomeOwned (PersonID, Description) WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
        "WHERE i < 4000) SELECT 1, 'Home' FROM n"_s);
    startWith(u"Whole Family"_s);
    write(u"book.pdf"_s, "the old one");
    const QStringList names = namesIn({});
    auto* finger = new Impatient(u"Writing record "_s);
    save(path(u"book.pdf"_s));
    EXPECT_EQ(boxText(), u"You stopped the family book.  No file was saved."_s);
    EXPECT_EQ(dismissBox(), u"Family Book Stopped"_s);
    EXPECT_EQ(finger->holder, u"frmFamilyBook"_s);
    EXPECT_TRUE(finger->isTitleWhole);
    finger->deleteLater();
    EXPECT_EQ(bytesOf(u"book.pdf"_s), "the old one");
    EXPECT_EQ(namesIn({}), names);

    exec(u"DELETE FROM HomeOwned WHERE ID > 300"_s);
    SlowDevice queue;
    const platform::PrintDeviceInPlace place(queue);
    finger = new Impatient(u"Printing record "_s);
    user.click(u"cmdPrint"_s);
    EXPECT_EQ(boxText(), u"You stopped the family book.  Nothing was printed."_s);
    EXPECT_EQ(dismissBox(), u"Family Book Stopped"_s);
    finger->deleteLater();
    EXPECT_EQ(queue.titles, QStringList(u"Family Book for Whole Family"_s));
    EXPECT_GT(queue.pages, 1);
    EXPECT_EQ(queue.sent, 0);
}

}  // namespace
