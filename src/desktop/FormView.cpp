#include "desktop/FormView.h"

#include "desktop/LayoutBuilder.h"
#include "desktop/SmallBindings.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLayout>

namespace orvane {

FormView::FormView(Form& form, const Layout& layout, const ViewSetting& setting, QWidget* parent)
    : QWidget(parent), m_form(&form), m_scripted(setting.scripted), m_mnemonics(setting.reservedLetters) {
    setObjectName(form.name());
    LayoutBuilder(*this).build(layout);
    for (Control* control : form.controls())
        if (control->kind() == ControlKind::Timer)
            new TimerBinding(*this, static_cast<Timer&>(*control));
    m_mnemonics.assign();
    orderTabs();
    refreshNow();
}

FormView::~FormView() = default;

void FormView::add(Binding* binding) {
    m_bindings << binding;
    m_byControl.insert(binding->control(), binding);
}

Binding* FormView::bindingOf(const Control& control) const {
    return m_byControl.value(&control);
}

QWidget* FormView::widgetOf(const Control& control) const {
    const Binding* binding = bindingOf(control);
    return binding ? binding->widget() : nullptr;
}

void FormView::orderTabs() {
    QWidget* previous = nullptr;
    for (const Binding* binding : m_bindings) {
        QWidget* editor = binding->editor();
        if (!editor || editor->focusPolicy() == Qt::NoFocus)
            continue;
        // The line inside a list hands its focus to the list, a date to its line: what has the focus is put in order.
        while (editor->focusProxy())
            editor = editor->focusProxy();
        if (previous)
            setTabOrder(previous, editor);
        previous = editor;
    }
}

void FormView::setBusy(bool busy) {
    if (m_busy == busy)
        return;
    const QPointer<QWidget> focus = focusWidget();
    m_busy = busy;
    for (Binding* binding : m_bindings)
        if (binding->control() && binding->control()->kind() == ControlKind::Button)
            binding->refreshNow();
    // A button that is disabled under the focus loses it: give it back when the work is done.
    if (busy)
        m_focusBeforeBusy = focus;
    else if (m_focusBeforeBusy && m_focusBeforeBusy->isEnabled() && isActiveWindow() &&
             !m_focusBeforeBusy->hasFocus() && qobject_cast<QAbstractButton*>(m_focusBeforeBusy))
        m_focusBeforeBusy->setFocus();
}

void FormView::refreshNow() {
    const QVector<Binding*> bindings = m_bindings;
    for (Binding* binding : bindings)
        binding->refreshNow();
}

bool FormView::settle() {
    const QVector<Binding*> bindings = m_bindings;
    for (Binding* binding : bindings) {
        if (!binding->control() || !binding->control()->isUsable() || binding->settle())
            continue;
        if (QWidget* editor = binding->editor())
            editor->setFocus();
        QApplication::beep();
        return false;
    }
    return true;
}

void FormView::press(Button& button) {
    if (!m_form || !button.isUsable() || m_form->isRunning())
        return;
    const bool leaving = &button == m_form->cancelButton();
    const QPointer<Control> pressed(&button);
    if (!leaving && !settle())
        return;
    // What was typed last may have closed the form or disabled the button.
    Binding* binding = m_form && pressed && pressed->isUsable() ? bindingOf(*pressed) : nullptr;
    if (binding)
        binding->user([pressed] { pressed->click(); });
}

void FormView::focusFirst() {
    if (!m_form)
        return;
    if (const Control* wanted = m_form->focused()) {
        const Binding* binding = bindingOf(*wanted);
        if (QWidget* editor = binding ? binding->editor() : nullptr; editor && editor->isEnabled()) {
            editor->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
    for (const Binding* binding : m_bindings) {
        QWidget* editor = binding->editor();
        if (editor && editor->isEnabled() && editor->isVisibleTo(this) && editor->focusPolicy() & Qt::TabFocus) {
            editor->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

void FormView::release() {
    m_form = nullptr;
    for (Binding* binding : m_bindings)
        binding->release();
}

int FormView::heightForWidth(int width) const {
    return layout()->totalMinimumHeightForWidth(width);
}

void FormView::keyPressEvent(QKeyEvent* event) {
    const bool plain = event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier;
    if (plain && m_form && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        enterPressed();
    else if (plain && m_form && event->key() == Qt::Key_Escape)
        escapePressed();
    else
        QWidget::keyPressEvent(event);
}

void FormView::enterPressed() {
    if (auto* button = qobject_cast<QAbstractButton*>(focusWidget()); button && isAncestorOf(button)) {
        button->click();
        return;
    }
    if (Button* button = m_form->defaultButton())
        press(*button);
}

void FormView::escapePressed() {
    if (Button* button = m_form->cancelButton())
        press(*button);
    else if (m_escapeCloses)
        m_form->userEvent([form = m_form] { form->unload(); });
}

} // namespace orvane
