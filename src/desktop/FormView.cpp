#include "desktop/FormView.h"

#include "desktop/Boxes.h"
#include "desktop/GridBinding.h"
#include "desktop/LayoutBuilder.h"
#include "desktop/Manual.h"
#include "desktop/ReportView.h"
#include "desktop/SmallBindings.h"
#include "desktop/TableView.h"
#include "desktop/ViewerBinding.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <algorithm>

namespace orvane {

FormView::FormView(Form& form, const Layout& layout, const ViewSetting& setting, QWidget* parent)
    : QWidget(parent), m_form(&form), m_scripted(setting.scripted), m_timerSpeed(setting.timerSpeed),
      m_memory(setting.memory), m_mnemonics(setting.reservedLetters) {
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
    if (!m_form || !button.isUsable())
        return;
    const QPointer<Button> pressed(&button);
    if (m_form->isRunning()) {
        // Behind a timer's event the press waits; while an act of the user runs nothing is pressed twice.
        m_form->userEvent([self = QPointer<FormView>(this), pressed] {
            QMetaObject::invokeMethod(
                self,
                [self, pressed] {
                    if (pressed)
                        self->press(*pressed);
                },
                Qt::QueuedConnection);
        });
        return;
    }
    const bool leaving = &button == m_form->cancelButton();
    if (!leaving && !settle())
        return;
    // What was typed last may have closed the form or disabled the button.
    Binding* binding = m_form && pressed && pressed->isUsable() ? bindingOf(*pressed) : nullptr;
    if (binding)
        binding->press([pressed] { pressed->click(); });
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

namespace {

/// The window inside the main window that the widget belongs to.
const QMdiSubWindow* childAround(const QWidget* widget) {
    while (widget && !qobject_cast<const QMdiSubWindow*>(widget))
        widget = widget->parentWidget();
    return static_cast<const QMdiSubWindow*>(widget);
}

} // namespace

void FormView::giveFocus(QWidget& target) {
    const QMdiSubWindow* child = childAround(this);
    const QMdiSubWindow* front = child && child->mdiArea() ? child->mdiArea()->currentSubWindow() : nullptr;
    if (front && front != child) {
        m_focusWished = &target;
        return;
    }
    m_focusWished = nullptr;
    auto* line = qobject_cast<QLineEdit*>(&target);
    // What a box has just complained about is typed over.
    if (line && (!line->hasFocus() || line->property("invalid").toBool()))
        line->selectAll();
    target.setFocus(Qt::OtherFocusReason);
}

void FormView::focusAsWished() {
    if (m_focusWished && m_focusWished->isEnabled())
        giveFocus(*m_focusWished);
    m_focusWished = nullptr;
}

void FormView::release() {
    m_form = nullptr;
    for (Binding* binding : m_bindings)
        binding->release();
}

int FormView::heightForWidth(int width) const {
    return layout()->totalMinimumHeightForWidth(width);
}

void FormView::leave(const std::function<void()>& go) {
    if (m_form->isRunning()) {
        m_form->lateEvent(
            [self = QPointer<FormView>(this), go] {
                QMetaObject::invokeMethod(
                    self,
                    [self, go] {
                        if (self->m_form)
                            self->leave(go);
                    },
                    Qt::QueuedConnection);
            },
            this);
        return;
    }
    if (m_scripted || !m_form->hasEntry() || boxes::confirmLoss(this, m_form->caption()))
        m_form->userEvent(go);
}

Button* FormView::refreshButton() const {
    for (Control* control : m_form->controls())
        if (control->kind() == ControlKind::Button && Mnemonics::plain(control->caption()).startsWith("Refresh"))
            return static_cast<Button*>(control);
    return nullptr;
}

/// The one with the focus, or else the first in sight; null: there is none.
TableView* FormView::listInHand() const {
    TableView* first = nullptr;
    for (Binding* binding : m_bindings) {
        const auto* grid = qobject_cast<GridBinding*>(binding);
        if (!grid || !grid->table()->isVisible())
            continue;
        if (grid->table()->hasFocus())
            return grid->table();
        first = first ? first : grid->table();
    }
    return first;
}

/// The one in sight, unless a list has the focus; null: there is none.
ReportView* FormView::reportInHand() const {
    if (const TableView* list = listInHand(); list && list->hasFocus())
        return nullptr;
    for (Binding* binding : m_bindings)
        if (const auto* viewer = qobject_cast<ViewerBinding*>(binding); viewer && viewer->reportView()->isVisible())
            return viewer->reportView();
    return nullptr;
}

bool FormView::takesKey(const QKeyEvent& event) {
    const bool save = event.matches(QKeySequence::Save);
    if (m_form && (save || event.key() == Qt::Key_F5)) {
        if (Button* button = save ? m_form->saveButton() : refreshButton())
            press(*button);
        return true;
    }
    if (ReportView* report = reportInHand(); m_form && report && report->takesKey(event))
        return true;
    if (m_form && event.matches(QKeySequence::Find)) {
        if (TableView* list = listInHand())
            Q_EMIT list->findWanted();
        return true;
    }
    if (m_form && event.key() == Qt::Key_F1 && event.modifiers() == Qt::NoModifier) {
        showManual(m_form->name(), *this);
        return true;
    }
    if (m_form && event.key() == Qt::Key_F3 && event.modifiers() == Qt::NoModifier) {
        findPatient();
        return true;
    }
    const bool plain = event.modifiers() == Qt::NoModifier || event.modifiers() == Qt::KeypadModifier;
    if (!plain || !m_form)
        return false;
    if (event.key() == Qt::Key_F6)
        goToNextList();
    else if (event.key() == Qt::Key_Escape)
        escapePressed();
    else if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        enterPressed();
    else
        return false;
    return true;
}

/// Behind the key's own event: the finder stays up for longer than this view may.
void FormView::findPatient() {
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_form && !m_form->isRunning() && !m_form->findPatient())
                QApplication::beep();
        },
        Qt::QueuedConnection);
}

void FormView::keyPressEvent(QKeyEvent* event) {
    if (!takesKey(*event))
        QWidget::keyPressEvent(event);
}

/// Of those in sight, after the last one the first: a list has no words for a key of its own.
void FormView::goToNextList() {
    QVector<QWidget*> lists;
    for (const Binding* binding : std::as_const(m_bindings)) {
        QWidget* list = binding->editor();
        const bool is = qobject_cast<QAbstractItemView*>(list) || qobject_cast<PageStack*>(list);
        if (is && list->isVisible() && list->isEnabled())
            lists << list;
    }
    const auto here = std::find_if(lists.cbegin(), lists.cend(), [](const auto* list) { return list->hasFocus(); });
    const bool atLast = here == lists.cend() || here + 1 == lists.cend();
    if (!lists.isEmpty())
        (atLast ? lists.first() : *(here + 1))->setFocus(Qt::ShortcutFocusReason);
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
    if (Button* button = m_form->cancelButton()) {
        leave([form = m_form, button] {
            if (button->isUsable())
                button->click();
        });
    } else if (m_escapeCloses) {
        leave([form = m_form] { form->unload(); });
    }
}

} // namespace orvane
