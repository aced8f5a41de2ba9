#pragma once

#include "forms/Controls.h"
#include "forms/Grid.h"
#include "forms/Layout.h"
#include "forms/Page.h"
#include "forms/Ui.h"

#include <QObject>
#include <functional>
#include <optional>

namespace orvane {

/// A screen: named controls in visual order and the handlers of their events. It knows no widget.
class Form : public QObject {
    Q_OBJECT

public:
    /// `name`: the form's own name, by which the registry, the menus and scripts know it.
    Form(Ui& ui, const QString& name, const QString& caption);
    ~Form() override;

    const QString& name() const { return m_name; }
    const QString& caption() const { return m_caption; }
    void setCaption(const QString& caption);
    Ui& ui() const { return m_ui; }

    const QVector<Control*>& controls() const { return m_controls; }
    /// By name without regard to case; a member of a control array is "txtAmt(2)". Null when there is none.
    Control* find(const QString& name) const;

    virtual Layout layout() const = 0;
    /// A form that is a document gives its page as it stands now: shown as a preview and printed the same. Nothing: a
    /// plain screen.
    virtual std::optional<Page> page() const { return std::nullopt; }
    virtual void Form_Load() {}
    virtual void Form_Activate() {}             ///< the program opens the form, newly loaded or already on the screen
    virtual bool Form_Unload() { return true; } ///< false refuses to close
    virtual bool fillsScreen() const { return false; } ///< shown over the whole screen
    /// Pressed by Enter and by Esc; null when there is none.
    virtual Button* defaultButton() { return nullptr; }
    virtual Button* cancelButton() { return nullptr; }
    /// The button that keeps what the user has entered: the first whose caption begins with "Save". Null: nothing is
    /// entered here.
    virtual Button* saveButton();
    /// Finds a patient among all for this form, which takes him as if its user had picked him in its own way. False: it
    /// takes none.
    virtual bool findPatient() { return false; }
    /// What a file with the form's page is called, without its ending.
    virtual QString documentName() const { return m_caption; }

    /// The user himself has changed the control's value.
    void entered(const Control& control);
    /// What was entered is kept now, though it may still stand in its fields.
    void entrySaved() { m_entered.clear(); }
    /// Whether closing the form would lose what its user has entered: the form can save, and a text that he typed
    /// stands as he left it, or several of his choices do (one choice alone is how something is looked up), or lines
    /// wait in an entry grid.
    bool hasEntry();

    void load(); ///< runs Form_Load once, at the edge where faults are caught
    bool isLoaded() const { return m_loaded; }
    /// Closes the form: Form_Unload may refuse; then `onClosed` and Ui::closed. The form object is deleted later by its
    /// owner.
    bool unload();
    /// Closes the form without asking Form_Unload: the program ends.
    void abandon();
    bool isClosed() const { return m_closed; }
    bool isRunning() const { return m_events > 0; } ///< a handler of this form, or what follows it, is under way
    std::function<void(Form&)> onClosed;
    /// The desktop calls it when its user has brought the form's window to the front.
    void activated();
    std::function<void(Form&)> onActivated;

    /// Runs a handler. Outermost, it is the edge: a DataError is shown once in a plain box and the screen stays. Inside
    /// another handler of this form the fault rises to that one.
    void run(const std::function<void()>& handler);
    /// What the desktop and the script player call for a press of a button and the like. While another act of the user
    /// runs (a save under way) it does nothing, so that no button can be pressed twice; behind the event of a timer it
    /// waits. A closed form hears none of these three.
    void userEvent(const std::function<void()>& event);
    /// What must not be lost, such as a typed text or a field that was left: while another event of the form runs it
    /// waits and runs after, in the order of arrival. Of one `source` (unless null) only the last one waits.
    void lateEvent(const std::function<void()>& event, const QObject* source = nullptr);
    /// As lateEvent, for what happens without the user: a timer's tick, a long list that is read on.
    void backgroundEvent(const std::function<void()>& event, const QObject* source);
    /// Runs last, after a fault was shown: put the pointer and the like back.
    virtual void afterFault() {}
    /// Runs when an outermost event has ended, with or without a fault.
    virtual void afterEvent() {}

    Control* focused() const { return m_focused; }

Q_SIGNALS:
    void captionChanged();

private:
    friend class Control;
    void add(Control* control);
    void focus(Control* control);
    void close();
    /// An event that arrived while another one ran.
    struct Waiting {
        std::function<void()> event;
        const QObject* source;
        bool background;
    };
    void runOrKeep(const Waiting& arrived);
    void runWaiting();
    void runOutermost(const std::function<void()>& event);
    bool runCatching(const std::function<void()>& event); ///< false: a fault was shown

    Ui& m_ui;
    QString m_name;
    QString m_caption;
    QVector<Control*> m_controls;
    QHash<QString, Control*> m_byName; ///< by lower-cased name
    Control* m_focused = nullptr;
    bool m_loaded = false;
    bool m_closed = false;
    bool m_running = false;    ///< a handler is under way
    bool m_background = false; ///< and nobody has asked for it
    int m_events = 0;          ///< events whose end has not come
    QVector<Waiting> m_waiting;
    QHash<const Control*, QString> m_entered; ///< what the user has changed, with the values that he gave
};

} // namespace orvane
