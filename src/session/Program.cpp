#include "session/Program.h"

#include "books/Posting.h"

#include "books/Words.h"
#include "data/Assert.h"
#include "patients/PatientDirectory.h"

namespace orvane {

Program::Program(const QString& homeFolder, Ui& ui)
    : m_homeFolder(homeFolder), m_ui(ui), m_patients(std::make_unique<PatientDirectory>()) {}

Program::~Program() {
    for (const auto& entry : m_forms)
        m_ui.abandoned(*entry.second);
}

DataSource& Program::data() {
    if (!m_data)
        m_data = std::make_unique<DataSource>(m_homeFolder);
    return *m_data;
}

Desk Program::desk() {
    readEnvironmentIdentity();
    return Desk(data(), session.gConnStr,
                {.actor = {.user = session.gUsername, .empID = session.gEmpID, .workstation = session.sComputerName},
                 .settings = {.hospital = session.gHospIDName,
                              .privateClient = session.gBillTo,
                              .privateTariff = session.gPrivateTariff,
                              .suspenseAccount = session.gAcctSusp,
                              .suspenseRevenue = session.gAcctPostAuto ? session.gAcctSuspDesc : "OTHERS",
                              .nhisFeeBase = session.gNHISFee,
                              .costCenter = session.gAcctCostCenter,
                              .wayAccounts = {{"CASH", session.gAcctNoCash},
                                              {"POS", session.gAcctNoPOS},
                                              {"CHEQUE", session.gAcctNoCheque},
                                              {"TRANSFER", session.gAcctNoTransfer}},
                              .salesAccount = session.gAcctNoSales},
                 .today = session.gServerDate,
                 .now = session.gServerTime,
                 .audit = [this](const AuditEntry& entry) { writeAuditTrail(entry); },
                 .openSteps = &m_openSteps});
}

LedgerDesk Program::ledgerDesk() {
    return {desk(), data(), session.gAcctConnStr};
}

void Program::registerForm(const QString& name, FormFactory factory) {
    m_factories[name.toLower()] = std::move(factory);
}

bool Program::isRegistered(const QString& name) const {
    return m_factories.contains(name.toLower());
}

QStringList Program::formNames() const {
    QStringList names;
    for (const auto& entry : m_factories)
        names << entry.first;
    return names;
}

Form* Program::loadedForm(const QString& name) {
    const auto found = m_forms.find(name.toLower());
    return found == m_forms.end() ? nullptr : found->second.get();
}

Form& Program::form(const QString& name) {
    deleteClosedForms();
    if (Form* loaded = loadedForm(name))
        return *loaded;
    const QString key = name.toLower();
    ORVANE_ASSERT(m_factories.contains(key));
    std::unique_ptr<Form> made = m_factories[key](*this);
    made->onActivated = [this](Form& active) {
        if (m_shown.removeOne(&active))
            m_shown.append(&active);
    };
    made->onClosed = [this, key](Form& closed) {
        m_shown.removeOne(&closed);
        const auto found = m_forms.find(key);
        m_closedForms.push_back(std::move(found->second));
        m_forms.erase(found);
    };
    return *(m_forms[key] = std::move(made));
}

void Program::open(const QString& name) {
    Form& opened = form(name);
    opened.load();
    if (!opened.isClosed())
        opened.run([&opened] { opened.Form_Activate(); });
    if (opened.isClosed())
        return;
    if (name.compare(QLatin1String("MdiTolmek"), Qt::CaseInsensitive) != 0) {
        m_shown.removeOne(&opened);
        m_shown.append(&opened);
    }
    m_ui.show(opened);
}

void Program::openModal(const QString& name) {
    Form& opened = form(name);
    opened.load();
    if (!opened.isClosed())
        m_ui.showModal(opened);
}

void Program::end() {
    QList<Form*> open;
    for (const auto& entry : m_forms)
        open << entry.second.get();
    for (Form* form : open)
        form->abandon();
    m_lock.reset();
    m_ui.quit();
}

void Program::deleteClosedForms() {
    std::erase_if(
        m_closedForms, [](const std::unique_ptr<Form>& closed) { return !closed->isRunning(); });
}

void Program::amountToUpperWords() {
    session.sAmountWords = getValInWord(session.dBillTotal);
}

void Program::box(const QString& text, Icon icon, const QString& title) {
    ORVANE_ASSERT(!isInTransaction());
    m_ui.box(text, icon, title);
}

void Program::boxAfterTransaction(const QString& text) {
    m_pendingBoxes << text;
    flushBoxes();
}

void Program::flushBoxes() {
    if (isInTransaction())
        return;
    const QStringList boxes = std::exchange(m_pendingBoxes, {});
    for (const QString& text : boxes)
        box(text);
}

bool Program::question(const QString& text, const QString& title, Consent consent, const QString& detail) {
    ORVANE_ASSERT(!isInTransaction());
    return m_ui.question(text, title, consent, detail);
}

} // namespace orvane
