#pragma once

#include "forms/Controls.h"

#include <QBasicTimer>
#include <QPointer>
#include <QVector>
#include <QWidget>

class QKeyEvent;

namespace orvane {

class FormView;

/// Where a control stands, for what looks different there.
enum class Place { Plain, Facts, Card, Large };

/// Ties a widget to its control in both directions: what changes in the control is shown (once an event, however often
/// it changed), what the user does goes to the control as an event of its form. It lets go of the control when the form
/// closes.
class Binding : public QObject {
    Q_OBJECT

public:
    Binding(FormView& view, Control& control, QWidget* widget);

    Control* control() const { return m_control; } ///< null once released
    QWidget* widget() const { return m_widget; }   ///< null for what has no widget of its own
    /// The widget that takes the focus and the keys.
    virtual QWidget* editor() const { return m_widget; }
    /// A label or the like that is seen only with the control.
    void addCompanion(QWidget* companion) { m_companions << companion; }
    void refreshNow();
    /// Takes over what is typed and not yet taken. False: it is no value, and the widget has said so.
    virtual bool settle() { return true; }
    void release();
    /// Lets the user's act run as an event of the form, then shows what came of it. While another event runs it waits.
    void user(const std::function<void()>& act);
    /// The same for what replaces the act before it, such as one more letter of a text: only the last of them waits.
    void userEdit(const std::function<void()>& act);
    /// The same for a press, which is not heard while another act runs.
    void press(const std::function<void()>& act);
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    virtual void refresh() = 0; ///< shows the control's state
    virtual void released() {}
    void timerEvent(QTimerEvent* event) override;
    void watch(QWidget* widget); ///< its focus and its keys belong to the control
    /// What happens without the user, a timer's tick: waits as his acts do, but once only.
    void byItself(const std::function<void()>& act);
    static bool isWorking(); ///< a save is under way, on this form or another: nothing may happen by itself
    FormView& view() const { return m_view; }

private:
    void schedule();
    void showState();
    void takeFocus();
    void readOn();
    void focusCame();
    void focusLeft();
    bool acceptsKey(const QKeyEvent& event);
    std::function<void()> shownAfter(const std::function<void()>& act);
    void noteEntry(const QString& before);

    FormView& m_view;
    QPointer<Control> m_control;
    QPointer<QWidget> m_widget;
    QVector<QPointer<QWidget>> m_companions;
    QBasicTimer m_readOn;
    bool m_scheduled = false;
    bool m_focusWanted = false;
    bool m_waiting = false; ///< an act has not run yet: the widget shows more than the control knows
};

/// Makes the widget of a control below `parent` and ties them together. A menu entry, a tab strip and a timer are tied
/// elsewhere.
Binding* bindControl(FormView& view, Control& control, QWidget* parent, Place place, int characters);

} // namespace orvane
