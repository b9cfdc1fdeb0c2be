// Opening record screens and moving on them, against raw SQLite and against bare windows with as many widgets.

#include <SQLiteCpp/SQLiteCpp.h>
#include <malloc.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QToolButton>
#include <algorithm>
#include <cstdio>
#include <limits>
#include <memory>

#include "bench/running.h"
#include "platform/forms/command_button.h"
#include "screens/catalogue/catalogue.h"
#include "session/data_window.h"

using namespace Qt::StringLiterals;

using namespace bench;

namespace {

constexpr int manyRows = 100'000;
constexpr int fewRows = 10;
constexpr int moves = 300;

const char* const keys =
    "SELECT HomeOwned.ID FROM Person INNER JOIN HomeOwned ON Person.ID = HomeOwned.PersonID "
    "ORDER BY Person.Seq, HomeOwned.ID";

void openAndMoveOverManyRows() {
    Running program(manyRows, fewRows);
    const double opening = best([&] { program.close(program.open(u"frmHomesOwned"_s)); });
    const double listing = best([&] {
        SQLite::Statement list(*program.raw, keys);
        qint64 last = 0;
        while (list.executeStep())
            last = list.getColumn(0).getInt64();
        SQLite::Statement row(*program.raw, "SELECT * FROM HomeOwned WHERE ID = ?");
        row.bind(1, static_cast<int64_t>(last));
        row.executeStep();
    });
    report("opening over 100,000 rows", "ms", opening, listing, 2);

    session::DataWindow& window = program.open(u"frmHomesOwned"_s);
    auto* next = dynamic_cast<platform::CommandButton*>(window.control(u"cmdNext"_s));
    double slowest = 0;
    double all = 0;
    for (int i = 0; i < moves; ++i) {
        const double move = milliseconds([&] { next->press(); });
        slowest = std::max(slowest, move);
        all += move;
    }
    const double reads = milliseconds([&] {
        for (int i = 1; i <= moves; ++i) {
            SQLite::Statement row(*program.raw, "SELECT * FROM HomeOwned WHERE ID = " + std::to_string(i * 8));
            row.executeStep();
            for (int column = 0; column < row.getColumnCount(); ++column)
                row.getColumn(column).getString();
            SQLite::Statement owner(*program.raw, "Select LegalName from Person where ID = 1");
            owner.executeStep();
            SQLite::Statement count(
                *program.raw,
                "Select Count(*) as AttachCnt from Attachments where BugNum = 'Hom_0_" + std::to_string(i) + "'");
            count.executeStep();
        }
    });
    report("a move", "ms", all / moves, reads / moves, 5);
    std::printf("%-42s %.2f ms (limit 16)\n", "the slowest move", slowest);
    withinLimits() = withinLimits() && slowest < 16;
}

std::size_t heapOfWindow(int homes) {
    Running program(homes, fewRows);
    program.close(program.open(u"frmHomesOwned"_s));
    const std::size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
    program.open(u"frmHomesOwned"_s);
    return mallinfo2().uordblks + mallinfo2().hblkhd - before;
}

/// How many widgets of each kind a window has; and a window of nothing else, in as many group boxes.
struct Census {
    int labels = 0, lines = 0, memos = 0, combos = 0, checks = 0, buttons = 0, groups = 0, tools = 0;
    int menus = 0, entries = 0, scrollAreas = 0, plain = 0;

    explicit Census(const QWidget& window) {
        labels = count<QLabel>(window);
        combos = count<QComboBox>(window);
        lines = count<QLineEdit>(window) - combos;
        memos = count<QPlainTextEdit>(window);
        checks = count<QCheckBox>(window);
        buttons = count<QPushButton>(window);
        groups = count<QGroupBox>(window);
        tools = count<QToolButton>(window);
        menus = count<QMenu>(window);
        entries = count<QAction>(window) - tools;
        const auto widgets = window.findChildren<QWidget*>();
        const auto isPlain = [](const QWidget* widget) {
            return QLatin1StringView(widget->metaObject()->className()) == "QWidget"_L1;
        };
        plain = static_cast<int>(std::ranges::count_if(widgets, isPlain));
        scrollAreas = count<QScrollArea>(window);
    }

    [[nodiscard]] QWidget* bareWindow() const {
        auto* window = new QWidget;
        auto* column = new QVBoxLayout(window);
        std::vector<QGridLayout*> grids;
        for (int i = 0; i < groups; ++i) {
            auto* group = new QGroupBox(u"Group"_s);
            grids.push_back(new QGridLayout(group));
            column->addWidget(group);
        }
        int place = 0;
        const auto add = [&](QWidget* widget) {
            const int cell = place / groups;
            grids[static_cast<std::size_t>(place % groups)]->addWidget(widget, cell / 4, cell % 4);
            ++place;
        };
        for (int i = 0; i < labels; ++i)
            add(new QLabel(u"Label:"_s));
        for (int i = 0; i < lines; ++i)
            add(new QLineEdit);
        for (int i = 0; i < memos; ++i)
            add(new QPlainTextEdit);
        for (int i = 0; i < combos; ++i) {
            auto* combo = new QComboBox;
            combo->setEditable(true);
            add(combo);
        }
        for (int i = 0; i < checks; ++i)
            add(new QCheckBox(u"Check"_s));
        for (int i = 0; i < buttons; ++i)
            add(new QPushButton(u"Button"_s));
        for (int i = 0; i < tools; ++i)
            add(new QToolButton);
        for (int i = 0; i < scrollAreas; ++i)
            add(new QScrollArea);
        // Those inside memo boxes, combos and scroll areas come with these.
        for (int i = 0; i < plain - 2 * (memos + scrollAreas) - combos; ++i)
            add(new QWidget);
        for (int i = 0; i < menus; ++i) {
            auto* menu = new QMenu(u"Menu"_s, window);
            for (int entry = 0; entry < entries / menus; ++entry)
                menu->addAction(u"Entry"_s);
        }
        return window;
    }

private:
    template <class Kind>
    static int count(const QWidget& window) {
        return static_cast<int>(window.findChildren<Kind*>().size());
    }
};

double openBare(const Census& census) {
    QMainWindow frame;
    auto* area = new QMdiArea;
    frame.setCentralWidget(area);
    frame.resize(1200, 800);
    frame.show();
    QApplication::processEvents();
    return best([&] {
        QMdiSubWindow* window = area->addSubWindow(census.bareWindow());
        window->showMaximized();
        QApplication::processEvents();
        delete window;
    });
}

void openEveryScreenOverTenRows() {
    Running program(fewRows, fewRows);
    double worst = 0;
    double worstOurs = 0;
    double worstBare = 1;
    QString name;
    for (const screens::ScreenDefinition& screen : screens::ownedScreens()) {
        session::DataWindow& window = program.open(screen.name);
        const Census census(window);
        program.close(window);
        const double ours = best([&] { program.close(program.open(screen.name)); });
        const double bare = openBare(census);
        if (ours / bare <= worst) continue;
        worst = ours / bare;
        worstOurs = ours;
        worstBare = bare;
        name = screen.name;
    }
    report(qPrintable(u"opening over ten rows, worst: "_s + name), "ms", worstOurs, worstBare, 2);
}

}  // namespace

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    openAndMoveOverManyRows();
    const double megabytes =
        (static_cast<double>(heapOfWindow(manyRows)) - static_cast<double>(heapOfWindow(fewRows))) / 1048576;
    std::printf("%-42s %.2f MB (limit 20)\n", "memory over the window with ten rows", megabytes);
    withinLimits() = withinLimits() && megabytes <= 20;
    openEveryScreenOverTenRows();
    return withinLimits() ? 0 : 1;
}
