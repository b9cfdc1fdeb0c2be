#include <gtest/gtest.h>

#include <QDateTime>
#include <QElapsedTimer>
#include <QMap>

#include "platform/base/runtime_error.h"
#include "platform/forms/binding.h"
#include "platform/forms/check_box.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/memo_box.h"
#include "platform/forms/text_box.h"
#include "tests/support/gui_thread.h"
#include "tests/support/print.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// Runs the body of a test where controls may live.
void withControls(const std::function<void()>& body) {
    support::GuiThread gui([] { return true; });
    gui.look(body);
}

int errorOf(const std::function<void()>& operation) {
    try {
        operation();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

/// One row that is moved, changed and written by the test.
class Row : public RecordSource {
public:
    QMap<QString, QVariant> values;
    QMap<QString, QVariant> handedOver;
    bool current = true;

    [[nodiscard]] bool hasCurrentRow() const override { return current; }
    [[nodiscard]] QVariant value(const QString& column) const override { return values.value(column); }
    void setValue(const QString& column, const QVariant& value) override { handedOver[column] = value; }
    [[nodiscard]] ColumnKind columnKind(const QString& column) const override {
        if (column == u"Adopted"_s) return ColumnKind::YesNo;
        return column == u"Amount"_s ? ColumnKind::Number : ColumnKind::Text;
    }
    void show() { Q_EMIT rowShown(); }
    void write() { Q_EMIT collecting(); }
    void setByCode(const QString& column, const QVariant& value) {
        values[column] = value;
        Q_EMIT valueSet(column);
    }
};

TEST(ComboBoxTest, CodeChoosesByTheRulesOfItsList) {
    withControls([] {
        ComboBox combo;
        int clicks = 0;
        combo.onClick([&] { ++clicks; });
        combo.setListIndex(0);
        for (const auto& entry : {u"A"_s, u"B"_s, u"C"_s})
            combo.addItem(entry);
        EXPECT_EQ(combo.text(), QString()) << "adding chooses nothing";
        EXPECT_EQ(combo.listIndex(), -1);
        EXPECT_EQ(clicks, 0);

        struct Step {
            std::function<void()> act;
            QString text;
            int index;
            int clicks;
        };
        const std::vector<Step> steps{
            {[&] { combo.setListIndex(0); }, u"A"_s, 0, 1},      {[&] { combo.setListIndex(0); }, u"A"_s, 0, 1},
            {[&] { combo.setText(u"B"_s); }, u"B"_s, -1, 1},     {[&] { combo.setListIndex(2); }, u"C"_s, 2, 2},
            {[&] { combo.removeEntry(0); }, u"C"_s, 1, 2},       {[&] { combo.addItem(u"D"_s); }, u"C"_s, 1, 2},
            {[&] { combo.removeEntry(1); }, QString(), -1, 2},   {[&] { combo.setListIndex(1); }, u"D"_s, 1, 3},
            {[&] { combo.setListIndex(-1); }, QString(), -1, 4}, {[&] { combo.clearList(); }, QString(), -1, 4},
        };
        for (std::size_t i = 0; i < steps.size(); ++i) {
            steps[i].act();
            EXPECT_EQ(combo.text(), steps[i].text) << "step " << i;
            EXPECT_EQ(combo.listIndex(), steps[i].index) << "step " << i;
            EXPECT_EQ(clicks, steps[i].clicks) << "step " << i;
        }
        combo.addItem(u"A"_s);
        EXPECT_EQ(errorOf([&] { combo.setListIndex(1); }), 380);
        EXPECT_EQ(errorOf([&] { combo.setListIndex(-2); }), 380);
        EXPECT_EQ(errorOf([&] { combo.removeEntry(1); }), 5);
        EXPECT_EQ(combo.list(7), QString());
    });
}

TEST(TextBoxTest, PositionsCountALineEndTwice) {
    withControls([] {
        MemoBox memo;
        memo.setText(u"ab\r\ncd"_s);
        EXPECT_EQ(memo.text(), u"ab\r\ncd"_s);
        memo.select(4, 2);
        EXPECT_EQ(memo.selText(), u"cd"_s);
        EXPECT_EQ(memo.selStart(), 4);
        memo.setLocked(true);
        memo.setSelText(u"x"_s);
        EXPECT_EQ(memo.text(), u"ab\r\nx"_s) << "code writes into a locked box";
    });
}

/// What a box says of a text is the whole of it, however much it draws.
template <class Box>
void expectRestIsKept(const QString& text) {
    Box box;
    box.resize(300, 100);
    QElapsedTimer timer;
    timer.start();
    box.setText(text);
    box.grab();
    EXPECT_LT(timer.elapsed(), 5000) << "it took minutes once";
    EXPECT_EQ(box.text(), text);
    box.select(2, 3);
    box.setSelText(u"-"_s);
    EXPECT_EQ(box.text(), text.left(2) + u'-' + text.mid(5)) << "what isn't drawn stays behind a change";
    box.selectAll();
    EXPECT_EQ(box.selText(), box.text());
    box.setSelText(u"new"_s);
    EXPECT_EQ(box.text(), u"new"_s) << "who replaces all means all";
    box.setText(text);
    box.setText(u"short"_s);
    EXPECT_EQ(box.text(), u"short"_s);
}

TEST(TextBoxTest, KeepsWhatIsTooLongToBeDrawn) {
    withControls([] {
        for (const QString& text : {QString(1 << 20, u'x'), u"some words "_s.repeated(100'000),
                                    u"a line\r\n"_s.repeated(600'000), u"\U0001F600"_s.repeated(100'000)}) {
            expectRestIsKept<MemoBox>(text);
            expectRestIsKept<TextBox>(QString(text).remove(u"\r\n"_s));
        }
    });
}

TEST(ComboBoxTest, ALongEntryIsItselfThoughItsBeginningIsShown) {
    withControls([] {
        const QString name(5'000'000, u'n');
        ComboBox combo;
        combo.addItem(u"Ann"_s);
        combo.addItem(name);
        combo.addItem(name + u'x');
        combo.setListIndex(2);
        EXPECT_EQ(combo.text(), name + u'x');
        combo.setText(name);
        EXPECT_EQ(combo.text(), name);
        EXPECT_EQ(combo.currentIndex(), 1);
        EXPECT_LT(combo.currentText().size(), 10'000);
        combo.addItem(u"Bob"_s);
        combo.removeEntry(0);
        EXPECT_EQ(combo.text(), name);
        combo.setText(u"Bob"_s);
        EXPECT_EQ(combo.text(), u"Bob"_s);
    });
}

TEST(TextBoxTest, CodeIsCutToTheLengthOfTheBox) {
    withControls([] {
        TextBox line;
        MemoBox memo;
        for (TextControl* box : {static_cast<TextControl*>(&line), static_cast<TextControl*>(&memo)}) {
            box->setMaxLength(3);
            box->setText(u"abcdef"_s);
            EXPECT_EQ(box->text(), u"abc"_s);
            EXPECT_EQ(box->selStart(), 0);
        }
    });
}

TEST(TextBoxTest, TheLengthOfABoxNeverCutsACharacterInHalf) {
    withControls([] {
        TextBox line;
        MemoBox memo;
        for (TextControl* box : {static_cast<TextControl*>(&line), static_cast<TextControl*>(&memo)}) {
            box->setMaxLength(3);
            box->setText(u"ab😀"_s);
            EXPECT_EQ(box->text(), u"ab"_s);
            box->setText(u"a😀b"_s);
            EXPECT_EQ(box->text(), u"a😀"_s);
        }
        line.setText(u"ad"_s);
        line.select(1, 0);
        line.setSelText(u"😀"_s);
        EXPECT_EQ(line.text(), u"ad"_s);
        line.select(1, 1);
        line.setSelText(u"😀"_s);
        EXPECT_EQ(line.text(), u"a😀"_s);
    });
}

TEST(BindingTest, AControlFollowsItsRow) {
    withControls([] {
        Row row;
        row.values = {{u"Name"_s, u"Ann"_s}, {u"Amount"_s, 1234.5}, {u"Adopted"_s, QVariant()}};
        TextBox name;
        TextBox amount;
        CheckBox adopted;
        Binding nameBinding(name, u"Name"_s, {});
        Binding amountBinding(amount, u"Amount"_s, u"#,##0.00"_s);
        Binding adoptedBinding(adopted, u"Adopted"_s, {});
        for (Binding* binding : {&nameBinding, &amountBinding, &adoptedBinding})
            binding->setSource(&row);
        EXPECT_EQ(name.text(), u"Ann"_s);
        EXPECT_EQ(amount.text(), u"1,234.50"_s);
        EXPECT_EQ(adopted.value(), 2) << "a null is grey";

        row.setByCode(u"Name"_s, u"Bob"_s);
        row.setByCode(u"Adopted"_s, true);
        EXPECT_EQ(name.text(), u"Bob"_s);
        EXPECT_EQ(adopted.value(), 1);

        row.current = false;
        row.show();
        EXPECT_EQ(name.text(), QString());
        EXPECT_EQ(adopted.value(), 0) << "without a row a check box is clear";

        nameBinding.setSource(nullptr);
        row.current = true;
        row.show();
        EXPECT_EQ(name.text(), QString()) << "an unbound box keeps its text";
        EXPECT_EQ(amount.text(), u"1,234.50"_s);
    });
}

TEST(BindingTest, OnlyWhatWasAlteredIsHandedOver) {
    withControls([] {
        Row row;
        row.values = {{u"Name"_s, u"Ann"_s}, {u"Amount"_s, 2}, {u"State"_s, u"Vermont"_s}};
        TextBox name;
        TextBox amount;
        ComboBox state;
        Binding nameBinding(name, u"Name"_s, {});
        Binding amountBinding(amount, u"Amount"_s, {});
        Binding stateBinding(state, u"State"_s, {}, true);
        for (Binding* binding : {&nameBinding, &amountBinding, &stateBinding})
            binding->setSource(&row);

        name.setText(u"lost"_s);
        row.show();
        row.write();
        EXPECT_TRUE(row.handedOver.isEmpty()) << "showing the row again forgets what was typed";

        name.setText(u"Zoë"_s);
        state.setText(u"Maine"_s);
        EXPECT_TRUE(row.handedOver.isEmpty()) << "nothing goes to the row before it is written";
        row.write();
        EXPECT_EQ(row.handedOver, (QMap<QString, QVariant>{{u"Name"_s, u"Zoë"_s}}));
    });
}

}  // namespace

}  // namespace platform
