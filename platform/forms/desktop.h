#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "platform/forms/dialogs.h"
#include "platform/forms/form.h"

namespace platform {

class FocusGuard;
class MdiFrame;
class RuntimeError;

enum class Pointer { Default, Hourglass };

/// Thrown by what the program can't go on without: nothing catches it but the event that set it off, a box says why,
/// and the run ends.
struct RunEnded {
    QString words;
    QString title;
};

/// What all forms of one run share: the collection of loaded forms, the dialogs, the pointer, and the last net under
/// a failure that no routine handles.
class Desktop : public QObject, public FormHolder {
    Q_OBJECT

public:
    Desktop();
    ~Desktop() override;

    [[nodiscard]] Dialogs& dialogs() { return *dialogs_; }
    void setDialogs(std::unique_ptr<Dialogs> dialogs);

    /// Loads a form: it takes its place at the end of the collection and runs its Form_Load. When that fails the form
    /// is gone again and the failure goes to the caller.
    template <class F>
    F& load(std::unique_ptr<F> form) {
        F& loaded = *form;
        take(std::move(form));
        return loaded;
    }
    [[nodiscard]] int count() const { return static_cast<int>(forms_.size()); }
    /// A loaded form by its place in the order of loading, from 0.
    [[nodiscard]] Form& at(int index) const { return *forms_.at(static_cast<std::size_t>(index)); }
    /// A loaded form by name; nullptr when none is.
    [[nodiscard]] Form* find(const QString& name) const;
    /// Unloads every loaded form for which `which` holds, the latest first. One that vetoes stays.
    void unloadAll(const std::function<bool(const Form&)>& which);

    [[nodiscard]] MdiFrame* host() const { return host_; }
    void setHost(MdiFrame* host) { host_ = host; }

    /// Shows a plain box, without an icon and under the program's own title, and waits for it to be read.
    void notice(const QString& text);
    /// Shows a notice, a refusal or, with its icon, a failure, and waits for it to be read.
    void notice(const QString& text, const QString& title, Icon icon = Icon::Information);
    /// Asks a question; true for Yes.
    [[nodiscard]] bool ask(const QString& text, const QString& title, Buttons buttons = Buttons::YesNo);
    /// Runs a routine that has an error title: a failure in it, of whatever kind, ends it and is shown under the title.
    /// True if it ran whole.
    bool attempt(const QString& title, const std::function<void()>& routine);
    /// The same for a routine that tells of its failures in words of its own.
    static bool attempt(const std::function<void()>& routine, const std::function<void(const RuntimeError&)>& failed);
    /// Runs what an event set off; a failure that no routine handled, of whatever kind, is shown under the program's
    /// own title, and the session goes on.
    void run(const std::function<void()>& handler) override;

    /// Runs a step whose failure doesn't matter to the ones behind it.
    static void passOver(const std::function<void()>& step);

    void setPointer(Pointer pointer);
    [[nodiscard]] Pointer pointer() const { return pointer_; }
    void beep();
    void setClipboardText(const QString& text);
    [[nodiscard]] QString clipboardText() const;
    /// Hands a file to the program that is registered for its kind, which then runs beside this one. `name`: what its
    /// user calls the file. Throws what the opener throws.
    void openFile(const QString& path, const QString& name);
    using FileOpener = std::function<void(const QString& path, const QString& name)>;
    /// Takes the place of what starts that program.
    void setFileOpener(FileOpener opener) { openFile_ = std::move(opener); }
    /// Keeps the program alive to its events for some seconds, while the caller waits.
    void wait(double seconds);
    /// From here on wait() lets the events through and returns at once: for those who play the program without a look
    /// at what it shows meanwhile.
    void skipWaits() { skipsWaits_ = true; }
    [[nodiscard]] bool isWaiting() const { return waiting_; }

    /// The run is over: every form goes without being asked.
    void endRun();

Q_SIGNALS:
    void beeped();
    void fileOpened(const QString& path);
    /// The last form is gone: the program ends.
    void emptied();

private:
    [[nodiscard]] Desktop& desktop() override { return *this; }
    void take(std::unique_ptr<Form> form);
    void retire(Form& form) override;

    std::unique_ptr<Dialogs> dialogs_;
    FileOpener openFile_;
    std::vector<std::unique_ptr<Form>> forms_;
    std::unique_ptr<FocusGuard> guard_;
    MdiFrame* host_ = nullptr;
    Pointer pointer_ = Pointer::Default;
    bool waiting_ = false;
    bool skipsWaits_ = false;
};

}  // namespace platform
