#pragma once

#include "books/Desk.h"
#include "forms/Form.h"
#include "session/Session.h"

#include <QLockFile>
#include <map>

namespace orvane {

class LedgerDesk;

class PatientDirectory;
class Program;

/// Makes a form of its class; registered under the form's own name.
using FormFactory = std::function<std::unique_ptr<Form>(Program&)>;

/// One run of the program on one workstation: the session, the data source, the user interface and the forms. No global
/// state, so two workstations can run in one process.
class Program {
public:
    /// `homeFolder`: the program's folder with made.sys, sysdoc.sys, orvane.ini, pictures and sound.
    Program(const QString& homeFolder, Ui& ui);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    Session session;
    /// Raises DataError when the home folder's orvane.ini is broken.
    DataSource& data();
    Ui& ui() { return m_ui; }
    const QString& homeFolder() const { return m_homeFolder; }

    /// A connection to the billing database / the Accounting database. Raises DataError.
    Connection openBilling() { return data().open(session.gConnStr); }
    Connection openAccounting() { return data().open(session.gAcctConnStr); }

    /// Where this user saves, by the shell's clock as it stands now.
    Desk desk();
    /// Where a posting opens both databases.
    LedgerDesk ledgerDesk();
    PatientDirectory& patients() { return *m_patients; } ///< one for all screens
    int openSteps() const { return m_openSteps; }        ///< of the books, that run now; for tests

    void registerForm(const QString& name, FormFactory factory);
    bool isRegistered(const QString& name) const;
    QStringList formNames() const; ///< every registered form, for tests that walk them
    /// The loaded form of this name, or a new one (made, not yet loaded or shown). An unregistered name is asserted.
    Form& form(const QString& name);
    Form* loadedForm(const QString& name); ///< null when it is not open
    /// Loads and shows a form, bringing it forward if loaded. An unregistered name is asserted.
    void open(const QString& name);
    /// The same modally; returns when it has closed.
    void openModal(const QString& name);
    /// The screen that was shown or brought forward last, modal ones and the shell aside; null when there is none.
    Form* activeForm() const { return m_shown.isEmpty() ? nullptr : m_shown.last(); }
    /// Ends the program: closes every form without asking it, and quits.
    void end();
    /// Closed forms are deleted here, when no handler of theirs runs any more.
    void deleteClosedForms();

    /// A message with an OK button. Asserts that no transaction is open.
    void box(const QString& text, Icon icon = Icon::None, const QString& title = {});
    /// As box, but a message that comes up while a transaction is open shows after it has ended, from flushBoxes.
    void boxAfterTransaction(const QString& text);
    void flushBoxes();
    /// As Ui::question. Asserts that no transaction is open.
    bool question(const QString& text, const QString& title = {}, Consent consent = Consent::Keeps,
                  const QString& detail = {});
    QString followedSave; ///< token of the save whose follow-up runs: rows of the audit trail name it
    /// Hears what was saved last, in words; the shell shows it.
    std::function<void(const QString& words)> onSaved;

    // Shared routines of the session (session/*.cpp).
    /// The server's date and time from qrySysDateTime; invalid when the view is empty. A fault is shown and gives the
    /// invalid date.
    QDateTime getServerDateTime();
    /// One audit row of the user signed in over a connection of its own, stamped with the shell's clock. A fault is
    /// shown, never raised.
    void writeAuditTrail(const AuditEntry& entry);
    void openUserActivity(bool isLogout, bool autoLogoff, const QString& remarks);
    void closeUserActivity(bool isLogout, bool autoLogoff, const QString& remarks);
    void readEnvironmentIdentity();
    /// The next number of a counter from the procedure getIDNo into session.gIDNo; empty when there is none.
    void fetchIDNo(Connection& connection, const QString& destName);
    /// dBillTotal in upper-case words into session.sAmountWords.
    void amountToUpperWords();

    /// Holds the lock that keeps a second copy on this home folder and machine away; false when another one holds it.
    /// Raises DataError when no lock can be made.
    bool lockInstance();

private:
    bool isInTransaction() const { return m_data && m_data->openTransactions() > 0; }

    QString m_homeFolder;
    Ui& m_ui;
    std::unique_ptr<DataSource> m_data; ///< made on first use, so that its faults show where the program starts
    std::unique_ptr<QLockFile> m_lock;
    std::unique_ptr<PatientDirectory> m_patients;
    std::map<QString, FormFactory> m_factories;       ///< by lower-cased name
    std::map<QString, std::unique_ptr<Form>> m_forms; ///< loaded, by lower-cased name
    std::vector<std::unique_ptr<Form>> m_closedForms;
    QList<Form*> m_shown; ///< open screens inside the shell, the active one last
    QStringList m_pendingBoxes;
    int m_openSteps = 0;
};

} // namespace orvane
