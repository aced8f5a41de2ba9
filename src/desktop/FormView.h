#pragma once

#include "desktop/Binding.h"
#include "desktop/Memory.h"
#include "desktop/Mnemonics.h"
#include "forms/Form.h"

#include <QHash>
#include <QWidget>

namespace orvane {

class ReportView;
class TableView;

/// What a view is told about where it stands.
struct ViewSetting {
    QString reservedLetters;  ///< letters that the menu bar above the form answers to
    bool scripted = false;    ///< a script says when a timer ticks and when a control is left
    int timerSpeed = 1;       ///< how many times faster than stated the timers run, for a test of a day
    Memory* memory = nullptr; ///< null: nothing is remembered
};

/// The widgets of a form, laid out as the form says in words, each tied to its control.
class FormView : public QWidget {
    Q_OBJECT

public:
    FormView(Form& form, const Layout& layout, const ViewSetting& setting, QWidget* parent = nullptr);
    ~FormView() override;

    Form* form() const { return m_form; }             ///< null once released
    Binding* bindingOf(const Control& control) const; ///< null when the form does not show it
    QWidget* widgetOf(const Control& control) const;
    Mnemonics& mnemonics() { return m_mnemonics; }

    /// While a long event of the form runs its buttons cannot be pressed.
    void setBusy(bool busy);
    bool isBusy() const { return m_busy; }
    bool isScripted() const { return m_scripted; }
    int timerSpeed() const { return m_timerSpeed; }
    Memory& memory() { return m_memory ? *m_memory : m_noMemory; }
    void refreshNow(); ///< shows every change at once, before a picture is taken
    /// Takes over what is typed in fields that are not left yet. False: one of them holds no value; it has the focus
    /// and says so.
    bool settle();
    /// A button's press by its user: refused with a field that holds no value, except to leave the form.
    void press(Button& button);
    /// Leaves the form as its user asked, unless he has an entry under way and wants to keep it; a script is not asked.
    /// While an event runs it waits.
    void leave(const std::function<void()>& go);
    /// Enter, Esc, Ctrl+S (save), F5 (refresh), F6 (the next list), Ctrl+F (find in a list), F1 (the manual),
    /// F3 (find a patient) and those of a viewer of reports, wherever in the window the focus is.
    bool takesKey(const QKeyEvent& event);
    void focusFirst();
    /// Code's wish for the focus: at once, or when the user comes back to this form if its window lies behind another
    /// one, which it does not leave for that.
    void giveFocus(QWidget& target);
    void focusAsWished();                                          ///< the form's window has come to the front
    void setEscapeCloses(bool closes) { m_escapeCloses = closes; } ///< a form without a cancel button; true at first
    void release(); ///< the form has closed: nothing here may touch it again
    /// What it needs, not what it would like: lists and notes give way before anything has to be scrolled to.
    int heightForWidth(int width) const override;

Q_SIGNALS:
    void listHandled(); ///< the user has scrolled a list, sorted it or gone on in it

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    friend class Binding;
    void add(Binding* binding);
    void enterPressed();
    Button* refreshButton() const;
    void escapePressed();
    void goToNextList();
    void findPatient();
    TableView* listInHand() const;
    ReportView* reportInHand() const;
    void orderTabs();

    Form* m_form;
    bool m_scripted;
    int m_timerSpeed;
    Memory* m_memory;
    Memory m_noMemory;
    Mnemonics m_mnemonics;
    QVector<Binding*> m_bindings; ///< in reading order
    QHash<const Control*, Binding*> m_byControl;
    bool m_busy = false, m_escapeCloses = true;
    QPointer<QWidget> m_focusBeforeBusy, m_focusWished;
};

} // namespace orvane
