#include "desktop/Windows.h"

#include "desktop/Boxes.h"
#include "desktop/FormWindow.h"
#include "desktop/PagePainter.h"
#include "desktop/Printing.h"
#include "desktop/ReportForm.h"
#include "desktop/ReportPages.h"
#include "desktop/ShellWindow.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPainter>
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
    m_shell = new ShellWindow(form, m_scripted);
    m_entries.append({&form, m_shell, nullptr});
    connect(m_shell->area(), &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* active) {
        for (const Entry& entry : std::as_const(m_entries)) {
            if (!entry.child || entry.child != active)
                continue;
            entry.form->activated();
            return;
        }
    });
    if (m_mainSize.isValid()) {
        m_shell->resize(m_mainSize);
        m_shell->show();
    } else {
        m_shell->resize(1280, 720);
        m_shell->showMaximized();
    }
}

FormWindow* Windows::makeWindow(Form& form, QWidget* parent, Qt::WindowFlags flags) {
    return new FormWindow(form, {m_shell ? m_shell->menuLetters() : QString(), m_scripted}, parent, flags);
}

void Windows::showChild(Form& form) {
    FormWindow* window = makeWindow(form, nullptr, {});
    QMdiArea* area = m_shell->area();
    auto* child = new QMdiSubWindow;
    child->setWidget(window);
    child->setAttribute(Qt::WA_DeleteOnClose, false);
    m_entries.append({&form, window, child});
    area->addSubWindow(child);
    const QSize room = area->viewport()->size();
    const int title = child->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, child) + 8;
    const QSize frame(8, title);
    child->resize((window->sizeFor(room - frame) + frame).boundedTo(room));
    child->show();
    // One window lies near the upper left corner, the next ones a step further, as long as they stay in sight.
    const int step = 8 + 24 * (int(area->subWindowList().size() - 1) % 6);
    child->move(std::min(step, std::max(0, room.width() - child->width())),
                std::min(step, std::max(0, room.height() - child->height())));
    window->view()->focusFirst();
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
    window->resize(window->sizeFor(room.size() - QSize(40, 60)));
    window->move(room.center() - window->rect().center());
    window->show();
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

void Windows::closed(Form& form) {
    const auto found =
        std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry& entry) { return entry.form == &form; });
    if (found == m_entries.end())
        return;
    const Entry entry = *found;
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
        entry.child->hide();
        m_shell->area()->removeSubWindow(entry.child);
        entry.child->deleteLater();
    } else {
        entry.window->hide();
        entry.window->deleteLater();
    }
    std::erase_if(m_reports,
                  [](const std::unique_ptr<ReportForm>& report) { return report->isClosed() && !report->isRunning(); });
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

/// What a form prints: its page, a report's list; nothing for a form that is printed as it looks.
std::optional<Document> documentOf(const Form& form) {
    if (const auto* report = dynamic_cast<const ReportForm*>(&form)) {
        const auto pages = std::make_shared<ReportPages>(report->rows(), report->caption());
        return Document{pages->count(), [pages](int number) { return pages->page(number); }};
    }
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
        printing::print(*document, form.caption(), boxParent());
    } else if (m_printFolder.isEmpty()) {
        printing::printWidget(*view, form.caption(), boxParent());
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

void Windows::viewReport(const QString& file, const QString& title, const Recordset& rows) {
    m_reports.push_back(std::make_unique<ReportForm>(m_ui, file, title, rows));
    ReportForm& report = *m_reports.back();
    report.load();
    show(report);
}

bool Windows::savePicture(const QString& file) {
    QWidget* main = m_shell;
    if (!main && !m_entries.isEmpty())
        main = m_entries.last().window;
    if (!main)
        return false;
    refreshNow();
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
