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
    /// Pressed by Enter and by Esc; null when there is none.
    virtual Button* defaultButton() { return nullptr; }
    virtual Button* cancelButton() { return nullptr; }

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
    /// What the desktop and the script player call for everything that a user does: as run, but while a handler of this
    /// form still runs (a save under way) and when the form has closed it does nothing, so that no button can be
    /// pressed twice.
    void userEvent(const std::function<void()>& event);
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
    bool m_running = false; ///< a handler is under way: the user's events are dropped
    int m_events = 0;       ///< user events whose end has not come
};

} // namespace orvane
