#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QSize>
#include <QStringList>
#include <chrono>
#include <memory>

#include "tests/support/finder.h"
#include "tests/support/gui_thread.h"
#include "tests/support/program.h"

namespace support {

struct KeyStroke;
struct Spot;
class UserDialogs;
class WatchedPrinter;

/// Plays a user: sends mouse and key events to the windows of a program and reads what they show.
///
/// Used from a second thread while the windows live in the application's. Each gesture returns when the program waits
/// for the next one, also inside a box or dialog that came up. A control is named as "CONTROL", of the topmost
/// modal form, else of the active child, or as "FORM.CONTROL". A gesture that no user could make throws Refused.
class User {
public:
    /// `hostSize`: the size that the user gives the host window when it comes up, in pixels.
    explicit User(MakeProgram make, QSize hostSize = {1024, 700});
    /// Leaves the program, whatever boxes are open.
    ~User();
    User(const User&) = delete;
    User& operator=(const User&) = delete;

    /// Runs the program anew; the one before has to be over.
    void start();

    void click(const QString& control);
    /// Clicks into a box and types a text in place of what stands in it.
    void fill(const QString& control, const QString& text);
    void type(const QString& text);
    void key(const QString& name);
    /// Brings a text without its keys, as dead keys and input methods do.
    void compose(const QString& text);
    /// Chooses an entry of a combo from its list.
    void pick(const QString& combo, const QString& entry);
    void node(const QString& key);
    void expand(const QString& key) { setExpanded(key, true); }
    void collapse(const QString& key) { setExpanded(key, false); }
    void menu(const QString& name);
    void tool(const QString& key);
    /// Opens the context menu of the grid or list that has the focus, else of the form's first, and chooses an entry.
    void popup(const QString& name);
    void select(const QString& view, int row);
    /// Clicks a row twice.
    void selectTwice(const QString& view, int row);
    /// Presses a button of the message box: "OK", "Yes", "No".
    void answer(const QString& button);
    /// Finishes the file dialog with a name, which need not exist; with an empty one nothing is chosen.
    void choose(const QString& path);
    /// Types a text into the input box and confirms it.
    void enter(const QString& text);
    /// Cancels the file dialog or input box.
    void cancel();
    /// The close box of the topmost dialog or message box.
    void dismiss();
    /// What is printed from now on goes to this PDF file; with "none" there is no printer, as at the beginning.
    void setPrinter(const QString& file);
    /// The close box of the host window.
    void close();
    /// Takes a picture of the topmost window.
    void shot(const QString& file);

    [[nodiscard]] QJsonObject state();
    [[nodiscard]] QJsonObject session();
    [[nodiscard]] QJsonObject form(const QString& name = {});
    [[nodiscard]] QJsonObject control(const QString& name);
    [[nodiscard]] QJsonObject tree();
    [[nodiscard]] QJsonObject grid(const QString& view = {});
    /// The jobs printed since the last call, each a list of pages, each a list of lines.
    [[nodiscard]] QJsonArray jobs();
    /// The open box or dialog as `state` has it; empty if none is open.
    [[nodiscard]] QJsonObject dialog() { return state()[QLatin1String("dialog")].toObject(); }
    /// What stands in a control.
    [[nodiscard]] QString text(const QString& name);

    /// Beeps and files handed to their programs are counted anew from here.
    void forgetNoises();

private:
    void click(const std::function<Spot()>& find, Qt::MouseButton button = Qt::LeftButton);
    [[nodiscard]] Spot spotOnRowOf(const QString& view, int row);
    void stroke(const KeyStroke& stroke);
    void typeAll(const QString& text);
    /// `click`: how long a double click may take.
    [[nodiscard]] bool openList(const QString& combo, const QString& entry, std::chrono::milliseconds click);
    void setExpanded(const QString& key, bool expanded);
    void leaveProgram();
    [[nodiscard]] Finder finder() const;
    [[nodiscard]] bool isRunning() const;
    [[nodiscard]] bool settled();
    [[nodiscard]] bool sizeHost();
    /// Does what a window manager does when the active window goes; false if nothing is to be done.
    [[nodiscard]] bool activateTopmost();

    template <class Read>
    [[nodiscard]] auto read(Read reading) {
        decltype(reading()) result;
        gui_.look([&] { result = reading(); });
        return result;
    }

    std::unique_ptr<WatchedPrinter> printer_;
    MakeProgram make_;
    std::unique_ptr<Program> program_;
    UserDialogs* dialogs_ = nullptr;
    QSize hostSize_;
    bool starting_ = false;
    bool hostSized_ = false;
    int activations_ = 0;
    int beeps_ = 0;
    QStringList opened_;
    GuiThread gui_;
};

}  // namespace support
