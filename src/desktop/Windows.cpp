#include "desktop/Windows.h"

#include "desktop/Boxes.h"
#include "desktop/FormWindow.h"
#include "desktop/Look.h"
#include "desktop/PagePainter.h"
#include "desktop/Printing.h"
#include "desktop/ReportForm.h"
#include "desktop/ShellWindow.h"
#include "desktop/ViewerBinding.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPainter>
#include <QResizeEvent>
#include <QScreen>
#include <QStyle>
#include <algorithm>

namespace orvane {

Windows::Windows(Ui& ui) : m_ui(ui) {}

Windows::~Windows() {
    for (const Entry& entry : std::as_const(m_entries))
        if (entry.window != m_shell && !entry.child)
            delete entry.window;
    delete m_shell;
}

const Windows::Entry* Windows::find(const Form& form) const {
    const auto found =
        std::find_if(m_entries.cbegin(), m_entries.cend(), [&](const Entry& entry) { return entry.form == &form; });
    return found == m_entries.cend() ? nullptr : &*found;
}

void Windows::show(Form& form) {
    if (const Entry* entry = find(form))
        bringForward(*entry);
    else if (ShellWindow::isShell(form))
        showShell(form);
    else if (m_shell && !QApplication::activeModalWidget())
        showChild(form);
    else
        // Beside no main window, or over a dialog behind which a window inside the main one would be out of reach.
        showAlone(form, m_shell != nullptr);
}

void Windows::showModal(Form& form) {
    if (const Entry* entry = find(form))
        bringForward(*entry);
    else
        showAlone(form, true);
}

void Windows::bringForward(const Entry& entry) {
    if (entry.child) {
        if (entry.child->isMinimized())
            entry.child->showNormal();
        m_shell->area()->setActiveSubWindow(entry.child);
    }
    entry.window->show();
    entry.window->raise();
    entry.window->activateWindow();
}

void Windows::showShell(Form& form) {
    m_shell = new ShellWindow(form, m_scripted, m_timerSpeed);
    m_shell->mayClose = [this] { return mayCloseAll(); };
    m_entries.append({&form, m_shell, nullptr});
    connect(m_shell->area(), &QMdiArea::subWindowActivated, this, &Windows::activated);
    m_shell->area()->viewport()->installEventFilter(this);
    if (m_mainSize.isValid()) {
        m_shell->resize(m_mainSize);
        m_shell->show();
    } else {
        m_shell->resize(1280, 720);
        restorePlace(*m_shell, form, m_shell->screen()->availableGeometry());
        if (m_memory.value(form.name() + "/place").isValid())
            m_shell->show();
        else
            m_shell->showMaximized();
    }
}

void Windows::activated(QMdiSubWindow* child) {
    const auto found = std::find_if(m_entries.cbegin(), m_entries.cend(),
                                    [child](const Entry& entry) { return entry.child == child; });
    if (!child || found == m_entries.cend())
        return;
    const Entry entry = *found;
    entry.form->activated();
    // The frame puts its own last focus back first.
    if (FormView* view = viewOf(*entry.form))
        QMetaObject::invokeMethod(view, &FormView::focusAsWished, Qt::QueuedConnection);
}

/// Whether the main window may go: screens with an entry under way are asked about, each in front.
bool Windows::mayCloseAll() {
    const QVector<Entry> entries = m_entries;
    for (const Entry& entry : entries) {
        if (m_scripted || entry.window == m_shell || !entry.form->hasEntry())
            continue;
        bringForward(entry);
        if (!boxes::confirmLoss(entry.window, entry.form->caption()))
            return false;
    }
    return true;
}

FormWindow* Windows::makeWindow(Form& form, QWidget* parent, Qt::WindowFlags flags) {
    return new FormWindow(form, {m_shell ? m_shell->reservedLetters() : QString(), m_scripted, m_timerSpeed, &m_memory},
                          parent, flags);
}

void Windows::showChild(Form& form) {
    FormWindow* window = makeWindow(form, nullptr, {});
    auto* child = new QMdiSubWindow;
    child->setWidget(window);
    child->setAttribute(Qt::WA_DeleteOnClose, false);
    m_entries.append({&form, window, child, frontForm()});
    m_shell->area()->addSubWindow(child);
    Entry entry = m_entries.last();
    placeChild(entry);
    m_entries.last().place = entry.place;
    window->view()->focusFirst();
}

void Windows::placeChild(Entry& entry) {
    QMdiSubWindow* child = entry.child;
    const QSize room = m_shell->area()->viewport()->size();
    const int title = child->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, child) + 8;
    const QSize frame(8, title);
    const auto* window = static_cast<FormWindow*>(entry.window);
    child->resize((window->sizeFor(room - frame) + frame).boundedTo(room));
    child->show();
    // One window lies near the upper left corner, the next ones a step further, as long as they stay in sight.
    const int step = 8 + 24 * (int(m_shell->area()->subWindowList().size() - 1) % 6);
    child->move(std::min(step, std::max(0, room.width() - child->width())),
                std::min(step, std::max(0, room.height() - child->height())));
    entry.place = child->geometry();
    if (m_memory.value(entry.form->name() + "/maximized").toBool())
        child->showMaximized();
    else
        restorePlace(*child, *entry.form, QRect(QPoint(), room));
}

const Form* Windows::frontForm() const {
    const QMdiSubWindow* front = m_shell->area()->currentSubWindow();
    const auto found = std::find_if(m_entries.cbegin(), m_entries.cend(),
                                    [front](const Entry& entry) { return front && entry.child == front; });
    return found == m_entries.cend() ? nullptr : found->form;
}

QWidget* Windows::frameOf(const Entry& entry) const {
    return entry.child ? static_cast<QWidget*>(entry.child) : entry.window;
}

/// Puts a window where its user last left it, as far as that lies in the room.
void Windows::restorePlace(QWidget& frame, const Form& form, QRect room) {
    const QRect place = m_memory.value(form.name() + "/place").toRect();
    if (!place.isValid())
        return;
    frame.resize(place.size().boundedTo(room.size()));
    frame.move(std::clamp(place.x(), room.left(), std::max(room.left(), room.right() + 1 - frame.width())),
               std::clamp(place.y(), room.top(), std::max(room.top(), room.bottom() + 1 - frame.height())));
}

/// A window that its user has not touched opens again as large as there is room then.
void Windows::keepPlace(const Entry& entry) {
    const QWidget* frame = frameOf(entry);
    if (entry.window == m_shell && frame->isMaximized())
        m_memory.keep(entry.form->name() + "/place", {});
    if (entry.child)
        m_memory.keep(entry.form->name() + "/maximized", frame->isMaximized() ? QVariant(true) : QVariant());
    if (!frame->isMaximized() && !frame->isMinimized() && frame->geometry() != entry.place)
        m_memory.keep(entry.form->name() + "/place", frame->geometry());
}

/// What filled the main window goes on to fill it.
void Windows::followRoom(QSize before, QSize room) {
    for (Entry& entry : m_entries) {
        const bool untouched = entry.child && entry.child->geometry() == entry.place;
        if (!untouched || entry.place.width() < before.width() - look::margin)
            continue;
        entry.child->resize((entry.child->size() + room - before).boundedTo(room));
        entry.place = entry.child->geometry();
    }
}

bool Windows::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && m_shell && watched == m_shell->area()->viewport()) {
        const auto* resized = static_cast<QResizeEvent*>(event);
        if (resized->oldSize().isValid())
            followRoom(resized->oldSize(), resized->size());
    }
    return QObject::eventFilter(watched, event);
}

void Windows::showAlone(Form& form, bool modal) {
    QWidget* parent = modal ? boxParent() : nullptr;
    FormWindow* window = makeWindow(form, parent, modal ? Qt::Dialog | Qt::WindowCloseButtonHint : Qt::Window);
    m_entries.append({&form, window, nullptr});
    if (modal)
        window->setWindowModality(Qt::ApplicationModal);
    connect(window, &FormWindow::activatedByUser, this, [window] {
        if (window->form())
            window->form()->activated();
    });
    const QRect screen = (parent ? parent->screen() : QApplication::primaryScreen())->availableGeometry();
    // A main window of a fixed size is pictured whole, whatever the size of the screen that it is shown on.
    const QRect main = parent ? parent->window()->frameGeometry() : screen;
    const QRect room = m_mainSize.isValid() ? main : screen.intersected(main);
    window->resize(window->dialogSize(room.size() - QSize(40, 60)));
    window->move(room.center() - window->rect().center());
    m_entries.last().place = window->geometry();
    restorePlace(*window, form, room);
    form.fillsScreen() ? window->showFullScreen() : window->show();
    window->activateWindow();
    window->view()->focusFirst();
}

void Windows::waitUntilClosed(Form& form) {
    const Entry* entry = find(form);
    auto* window = entry ? qobject_cast<FormWindow*>(entry->window) : nullptr;
    if (!window)
        return;
    QEventLoop loop;
    connect(window, &FormWindow::formReleased, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Nothing is taken away in front of a user: the windows go with this object.
void Windows::abandoned(Form& form) {
    const Entry* entry = find(form);
    if (!entry)
        return;
    if (entry->window == m_shell)
        m_shell->release();
    else
        static_cast<FormWindow*>(entry->window)->release();
}

void Windows::closed(Form& form) {
    const auto found =
        std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry& entry) { return entry.form == &form; });
    if (found == m_entries.end())
        return;
    const Entry entry = *found;
    keepPlace(entry);
    m_entries.erase(found);
    // The event that closes the form may come out of one of its widgets: they go when it has ended.
    if (entry.window == m_shell) {
        m_shell->release();
        m_shell->hide();
        m_shell->deleteLater();
        m_shell = nullptr;
        return;
    }
    static_cast<FormWindow*>(entry.window)->release();
    if (entry.child) {
        const bool wasInFront = m_shell->area()->currentSubWindow() == entry.child;
        entry.child->hide();
        m_shell->area()->removeSubWindow(entry.child);
        entry.child->deleteLater();
        goBack(wasInFront ? entry.opener : nullptr);
    } else {
        entry.window->hide();
        entry.window->deleteLater();
    }
    std::erase_if(m_reports,
                  [](const std::unique_ptr<ReportForm>& report) { return report->isClosed() && !report->isRunning(); });
}

/// To the window that the user has come from.
void Windows::goBack(const Form* opener) {
    const auto found = std::find_if(m_entries.cbegin(), m_entries.cend(),
                                    [opener](const Entry& entry) { return opener && entry.form == opener; });
    if (found != m_entries.cend() && found->child && !found->child->isMinimized())
        m_shell->area()->setActiveSubWindow(found->child);
}

void Windows::setBusy(bool busy) {
    if (busy != (QApplication::overrideCursor() != nullptr)) {
        if (busy)
            QApplication::setOverrideCursor(Qt::WaitCursor);
        else
            QApplication::restoreOverrideCursor();
    }
    for (const Entry& entry : std::as_const(m_entries))
        if (FormView* view = viewOf(*entry.form))
            view->setBusy(busy && entry.form->isRunning());
}

FormView* Windows::viewOf(const Form& form) const {
    const Entry* entry = find(form);
    if (!entry)
        return nullptr;
    return entry->window == m_shell ? m_shell->view() : static_cast<FormWindow*>(entry->window)->view();
}

QWidget* Windows::windowOf(const Form& form) const {
    const Entry* entry = find(form);
    return entry ? entry->window : nullptr;
}

QWidget* Windows::boxParent() const {
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    for (auto entry = m_entries.crbegin(); entry != m_entries.crend(); ++entry)
        if (!entry->child && entry->window != m_shell && entry->window->isVisible())
            return entry->window;
    return m_shell;
}

void Windows::refreshNow() {
    const QVector<Entry> entries = m_entries;
    for (const Entry& entry : entries)
        if (FormView* view = viewOf(*entry.form))
            view->refreshNow();
}

namespace {

/// What a form prints: its page, the report that it shows; nothing for a form that is printed as it looks.
std::optional<Document> documentOf(const Form& form) {
    for (Control* control : form.controls())
        if (control->kind() == ControlKind::Viewer && static_cast<ReportViewer*>(control)->report())
            return documentOf(static_cast<ReportViewer&>(*control));
    const std::optional<Page> page = form.page();
    return page ? std::optional(Document::of(*page)) : std::nullopt;
}

} // namespace

void Windows::print(Form& form) {
    const std::optional<Document> document = documentOf(form);
    FormView* view = viewOf(form);
    if (!document && !view)
        return;
    if (view)
        view->refreshNow();
    if (m_printFolder.isEmpty() && document) {
        printing::print(*document, {form.documentName(), boxParent(), m_memory});
    } else if (m_printFolder.isEmpty()) {
        printing::printWidget(*view, {form.documentName(), boxParent(), m_memory});
    } else {
        const QString file = nextPrintFile(form);
        if (!(document ? renderPdf(*document, file) : printing::widgetToPdf(*view, file)))
            m_ui.box(QStringLiteral("The file %1 could not be written.").arg(file), Icon::Exclamation);
    }
}

QString Windows::nextPrintFile(const Form& form) const {
    const QString name = QString(form.name()).replace(QLatin1Char('/'), QLatin1Char('_'));
    QString file;
    for (int number = 1; file.isEmpty() || QFile::exists(file); ++number)
        file = QDir(m_printFolder).filePath(QStringLiteral("%1-%2.pdf").arg(name).arg(number));
    return file;
}

void Windows::viewReport(const QString& file, const QString& title, const std::shared_ptr<PageSource>& report) {
    m_reports.push_back(std::make_unique<ReportForm>(m_ui, file, title, report));
    ReportForm& form = *m_reports.back();
    form.load();
    show(form);
}

bool Windows::savePicture(const QString& file) {
    QWidget* main = m_shell;
    if (!main && !m_entries.isEmpty())
        main = m_entries.last().window;
    if (!main)
        return false;
    refreshNow();
    // What was refreshed may lay itself out anew, which only the next round does.
    for (int round = 0; round < 2; ++round)
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    QPixmap picture = main->grab();
    QPainter painter(&picture);
    for (const Entry& entry : std::as_const(m_entries)) {
        if (entry.child || entry.window == main || !entry.window->isVisible())
            continue;
        const QPixmap dialog = entry.window->grab();
        const QPoint place((main->width() - entry.window->width()) / 2, (main->height() - entry.window->height()) / 2);
        painter.fillRect(QRect(place, entry.window->size()).adjusted(-1, -22, 1, 1), QColor(0x44, 0x55, 0x60));
        painter.setPen(Qt::white);
        painter.drawText(QRect(place.x(), place.y() - 21, entry.window->width(), 20), Qt::AlignCenter,
                         entry.window->windowTitle());
        painter.drawPixmap(place, dialog);
    }
    painter.end();
    return picture.save(file);
}

} // namespace orvane
