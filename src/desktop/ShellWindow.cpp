#include "desktop/ShellWindow.h"

#include "desktop/Look.h"
#include "desktop/SmallBindings.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QVBoxLayout>
#include <algorithm>

namespace orvane {

namespace {

constexpr QSize alertSize(12, 30);

QString topLetters(const Form& form) {
    Mnemonics letters;
    for (const Control* control : form.controls())
        if (control->kind() == ControlKind::Menu && !static_cast<const MenuItem*>(control)->menu())
            letters.add(Mnemonics::Entry, control->caption(), [](const QString&, Mnemonics::Key) {});
    letters.assign();
    return letters.letters();
}

} // namespace

MenuBinding::MenuBinding(FormView& view, MenuItem& item, QAction* action, QMenu* menu)
    : Binding(view, item, nullptr), m_item(&item), m_action(action), m_menu(menu) {
    action->setText(item.caption());
    m_caption = item.caption();
    action->setObjectName(item.name());
    connect(action, &QAction::triggered, this, [this] {
        if (m_item && m_item->isUsable())
            press([this] { m_item->click(); });
    });
}

void MenuBinding::refresh() {
    if (m_caption != m_item->caption()) {
        m_caption = m_item->caption();
        const QString text = Mnemonics::plain(m_caption).trimmed();
        m_action->setText(Mnemonics::marked(text, Mnemonics::asked(m_action->text())));
    }
    m_action->setVisible(m_item->isShown());
    m_action->setEnabled(m_item->isUsable());
    m_action->setToolTip(look::plainHint(m_item->toolTip()));
    m_action->setStatusTip(m_item->toolTip());
}

bool ShellWindow::isShell(const Form& form) {
    return std::any_of(
        form.controls().cbegin(), form.controls().cend(),
        [](const Control* control) { return control->kind() == ControlKind::Menu; });
}

ShellWindow::ShellWindow(Form& form, bool scripted, int timerSpeed) : m_form(&form), m_area(new QMdiArea(this)) {
    setObjectName(form.name());
    setWindowTitle(form.caption());
    m_strip = new FormView(form, form.layout(), ViewSetting{topLetters(form), scripted, timerSpeed});
    m_strip->setEscapeCloses(false);
    m_strip->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_strip->layout()->setContentsMargins(look::spacing / 2, look::spacing / 2, look::spacing / 2, look::spacing / 2);
    for (const Control* control : form.controls())
        if (QWidget* widget = control->kind() == ControlKind::Picture ? m_strip->widgetOf(*control) : nullptr)
            widget->setFixedSize(alertSize);
    auto* middle = new QWidget(this);
    auto* box = new QVBoxLayout(middle);
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(0);
    box->addWidget(m_strip);
    box->addWidget(m_area, 1);
    setCentralWidget(middle);
    m_area->setBackground(look::color(look::Tone::Around));
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    buildMenus();
    buildStatusBar();
    connect(&form, &Form::captionChanged, this, [this] { setWindowTitle(m_form ? m_form->caption() : QString()); });
}

void ShellWindow::buildMenus() {
    Mnemonics letters;
    for (Control* control : m_form->controls()) {
        if (control->kind() != ControlKind::Menu || static_cast<MenuItem*>(control)->menu())
            continue;
        auto& item = static_cast<MenuItem&>(*control);
        QMenu* menu = menuBar()->addMenu(item.caption());
        (new MenuBinding(*m_strip, item, menu->menuAction(), menu))->refreshNow();
        letters.add(Mnemonics::Entry, item.caption(),
                    [menu](const QString& words, Mnemonics::Key) { menu->setTitle(words); });
        fillMenu(*menu, item);
    }
    letters.assign();
    addArrangement("mnuWindowTV", &ShellWindow::tileVertical);
    addArrangement("mnuWindowTH", &ShellWindow::tileHorizontal);
    addArrangement("mnuWindowCascade", &ShellWindow::cascade);
}

void ShellWindow::fillMenu(QMenu& menu, const MenuItem& item) {
    // Why an entry cannot be used is said where it stands.
    menu.setToolTipsVisible(true);
    Mnemonics letters;
    for (MenuItem* entry : item.entries()) {
        QMenu* inner = entry->entries().isEmpty() ? nullptr : menu.addMenu(entry->caption());
        QAction* action = inner ? inner->menuAction() : menu.addAction(entry->caption());
        (new MenuBinding(*m_strip, *entry, action, inner))->refreshNow();
        letters.add(Mnemonics::Entry, entry->caption().trimmed(),
                    [action](const QString& words, Mnemonics::Key) { action->setText(words); });
        if (inner)
            fillMenu(*inner, *entry);
    }
    letters.assign();
}

/// How the windows lie inside the main window is the desktop's own business: these entries have no handler in the form.
void ShellWindow::addArrangement(const QString& entry, void (ShellWindow::*arrange)()) {
    Control* control = m_form->find(entry);
    auto* binding = control ? dynamic_cast<MenuBinding*>(m_strip->bindingOf(*control)) : nullptr;
    if (!binding)
        return;
    connect(binding->action(), &QAction::triggered, this, arrange);
    const MenuItem* above = static_cast<MenuItem*>(control)->menu();
    auto* menuBinding = above ? dynamic_cast<MenuBinding*>(m_strip->bindingOf(*above)) : nullptr;
    if (menuBinding && menuBinding->menu() && m_children.isEmpty()) {
        QMenu* menu = menuBinding->menu();
        m_children << menu->addSeparator();
        connect(menu, &QMenu::aboutToShow, this, [this, menu] { listChildren(*menu); });
    }
}

void ShellWindow::listChildren(QMenu& menu) {
    while (m_children.size() > 1)
        delete m_children.takeLast();
    int number = 0;
    for (QMdiSubWindow* child : m_area->subWindowList()) {
        if (!child->isVisible())
            continue;
        const QString title = QString(child->windowTitle()).replace(QLatin1Char('&'), "&&");
        ++number;
        QAction* action =
            menu.addAction(QStringLiteral("%1%2 %3").arg(number < 10 ? "&" : QString()).arg(number).arg(title));
        action->setCheckable(true);
        action->setChecked(child == m_area->activeSubWindow());
        connect(action, &QAction::triggered, child, [this, child] { m_area->setActiveSubWindow(child); });
        m_children << action;
    }
}

void ShellWindow::buildStatusBar() {
    for (Control* control : m_form->controls()) {
        if (control->kind() != ControlKind::StatusBar || m_strip->bindingOf(*control))
            continue;
        auto* row = new QWidget(this);
        auto* box = new QHBoxLayout(row);
        box->setContentsMargins(0, 0, look::spacing, 0);
        box->setSpacing(2 * look::spacing);
        auto* binding = new StatusBinding(*m_strip, static_cast<StatusBar&>(*control), row);
        binding->refreshNow();
        statusBar()->addWidget(binding->message(), 1);
        statusBar()->addPermanentWidget(row);
    }
}

namespace {

QVector<QMdiSubWindow*> shownChildren(const QMdiArea& area) {
    QVector<QMdiSubWindow*> shown;
    for (QMdiSubWindow* child : area.subWindowList())
        if (child->isVisible() && !child->isMinimized())
            shown << child;
    return shown;
}

} // namespace

void ShellWindow::tileVertical() {
    const QVector<QMdiSubWindow*> children = shownChildren(*m_area);
    const QSize room = m_area->viewport()->size();
    for (int i = 0; i < int(children.size()); ++i) {
        const int left = room.width() * i / int(children.size()), right = room.width() * (i + 1) / int(children.size());
        children.at(i)->showNormal();
        children.at(i)->setGeometry(left, 0, right - left, room.height());
    }
}

void ShellWindow::tileHorizontal() {
    const QVector<QMdiSubWindow*> children = shownChildren(*m_area);
    const QSize room = m_area->viewport()->size();
    for (int i = 0; i < int(children.size()); ++i) {
        const int top = room.height() * i / int(children.size()),
                  bottom = room.height() * (i + 1) / int(children.size());
        children.at(i)->showNormal();
        children.at(i)->setGeometry(0, top, room.width(), bottom - top);
    }
}

void ShellWindow::cascade() {
    m_area->cascadeSubWindows();
}

void ShellWindow::release() {
    if (!m_form)
        return;
    disconnect(m_form, nullptr, this, nullptr);
    m_form = nullptr;
    m_strip->release();
}

void ShellWindow::closeEvent(QCloseEvent* event) {
    if (m_form && (!mayClose || mayClose()) && m_form)
        m_form->lateEvent([form = m_form] { form->unload(); });
    event->setAccepted(!m_form);
}

/// Comes here while no screen is open that takes it.
void ShellWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_F1 || !m_strip->takesKey(*event))
        QMainWindow::keyPressEvent(event);
}

} // namespace orvane
