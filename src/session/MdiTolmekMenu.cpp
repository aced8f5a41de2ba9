#include "session/MdiTolmek.h"

#include "books/Payment.h"
#include "data/words/Money.h"
#include "session/Accounts.h"
#include "session/ListReport.h"
#include "session/StartFiles.h"

namespace orvane {

/// The menus in display order. A hidden entry, and what an empty one opens, is reached only where the section [menu] of
/// orvane.ini turns it on.
const QVector<MdiTolmek::MenuEntry>& MdiTolmek::menuTable() {
    constexpr Look shown = Look::Shown;
    constexpr Look hidden = Look::Hidden;
    constexpr Look empty = Look::Empty;
    using M = MdiTolmek;
    static const QVector<MenuEntry> table = {
        {false, "mnuFile", "&File"},
        {true, "mnuApprvCode", "HMO Approval Code", shown, "frmApprvCode"},
        {true, "mnuCoyInfo", "Client/Company Information", shown, "frmRetainership"},
        {true, "mnuSupp", "Suppliers Information", shown, "frmSupplers"},
        {true, "mnuEII", "Expense Items Information", shown, "frmExpenseItems"},
        {true, "mnuRevCat", "Revenue Type/Category", shown, "frmRevCat"},
        {true, "mnuUPC", "Update Patient Company", hidden, "frmCoyUpdate"},
        {true, "mnuBanks", "Banks", hidden, "frmBanks"},
        {true, "mnuOffAttd", "Offline Attendance", shown, "frmRecordsOffline"},
        {true, "mnuPrint", "Print", shown, nullptr, &M::mnuPrint_Click},
        {true, "mnuEPE", "E&xit", shown, nullptr, &M::mnuEPE_Click},

        {false, "mnuActivities", "&Activities"},
        {true, "mnuVerify", "Collate / Verify Bill", shown, "frmBillingVerify"},
        {true, "mnuViewColl", "View Revenue from Collated Bills ", shown, "frmBillProcess"},
        {true, "mnuPayVouch", "Payment Voucher", shown, "frmExpensePay"},
        {true, "mnuMIGFC", "Monthly Bill Processing For Clients (Batch Processing)", shown, "frmBillProcessing"},
        {true, "mnuSBTAPP", "Shift UnProcessed Bills to Another Period / Month", shown, "frmBillProcessingShift"},
        {true, "mnuLastBatch", "Reverse Processed Batch", shown, "frmBillReverseProcessing"},
        {true, "mnuAdmDepo", "Advance Receipt / Deposit", hidden, "frmReceiptDeposit"},
        {true, "mnuRct", " Receipt Entry", hidden, "frmReceiptTemp"},
        {true, "mnuDisc", "Discount", hidden, "frmBillDiscount"},
        {true, "mnuPrintB", "Print Patient Invoice", shown, "FrmRptBillsByPat"},
        {true, "mnuRPtES", "Print Patient Receipt", shown, "rptPanelSummary", &M::mnuRPtES_Click},
        {true, "mnuOffline", "Offline Payment Entries", shown, "frmReceiptManual"},
        {true, "mnuPCR", "Clients' Payment Update ", hidden},
        {true, "mnuPSITC", "Prepare Manual  Bill", hidden, "frmExistBill"},
        {true, "mnuPCBILL", "Prepare Client Bill", hidden},
        {true, "mnuPCB", "Generate Client Bill", hidden, "rptPanelSummary", &M::mnuPCB_Click},

        {false, "mnuAccts", "A&ccounts"},
        {true, "mnuTB", "Trial Balance", shown, "frmRptTB", &M::mnuTB_Click},
        {true, "mnuTBBP", "Trial Balance by Period (Actual)", shown, "frmRptTB", &M::mnuTBBP_Click},
        {true, "mnuGL", "General ledger", shown, "frmRptTB", &M::mnuGL_Click},
        {true, "mnuCTTA", "Cash Transfer to Accounts", shown, "frmRevCashAcct"},
        {true, "mnuCRD", "Cash Receipt Details/Distribution", shown, "frmRevCashAdjust"},
        {true, "mnuRHFCB", "View Revenue from Collated Bills", shown, "frmRevCatEdit"},
        {true, "mnuSuppAcctUpdate", "Post Suppliers Entries (Payables)", shown, "frmSuppliersAcct"},
        {true, "mnuPMPBFC", "Post Monthly Proceessed bill for Clients (Receivables)", shown, "frmBillProcessingPost"},
        {true, "mnuPCOB", "Preprocessing Checks on Bills (Convert Unprocessed Bills to Capitated && Vice versa)", shown,
         "frmBillToCapitated"},

        {false, "mnuOutlets", "&Service Outlets"},
        {true, "mnuReqEntrt", "Request Entries", shown, "frmInvestigatePublic"},
        {true, "mnuBillPublic", "Collate Bill of an External Patient", hidden, "frmBillingPublic"},
        {true, "mnuDFO", "Part Payment [Deposit]", hidden},
        {true, "mnuCBFSO", "Collate Bill forService Outlets", shown, "frmBillingVerify"},
        {true, "mnuCBFHPC", "Collate Bill for Hospital Patients (Cash)", hidden},
        {true, "mnuDispense", "Dispensing For Injections/Dressing", hidden, nullptr, &M::showDispensing},
        {true, "mnuStockEntry", "Retail Stock Entry", hidden, "frmStockEntry"},

        {false, "mnuSearch", "Searc&h", hidden},
        {true, "mnuEditFind", "Find if a Patient Record Exists", shown, "frmFind"},
        {true, "mnuEditArecord", "&Cancel a Bill/Receipt"},

        {false, "mnuView", "&View", hidden},
        {true, "mnuVSII", "Patient Information", shown, "frmPatientInfo"},

        {false, "mnuReport", "&Report"},
        {true, "mnuABCBAC", "Attendance by Company (Bills && Capitation)", shown, "FrmRptAttendByCoy"},
        {true, "AYTBABBO", "Attendance Yet to be AttendedTo By Bills Officer", shown, "FrmRptBillsUnAttendedTo"},
        {true, "mnuBFT", "Unpaid Private Bills for Today", shown, nullptr, &M::mnuBFT_Click},
        {true, "mnuPDI", "Patients' Debt Information", shown, "frmDebtInfo"},
        {true, "mnuBNIPSL", "Bills Not In Processed Summary List", shown, "frmVerifyBillsInSummary"},
        {true, "mnuPIBP", "Print Invoice (By Patient)", shown, "FrmRptBillsByPat"},
        {true, "mnuLabRes", "Lab Result", shown, "FrmRptSummQVR"},
        {true, "mnuPrintBMonthly", "Print Monthly Processed Bill (By Company)", shown, "FrmProcessedBill"},
        {true, "mnuReal", "Real Time Bill Generation/Income", hidden, "frmBillGen"},
        {true, "mnuINC", "Receipts for Today", shown, nullptr, &M::mnuINC_Click},
        {true, "mnuPRBC", "Payments Received by Cashier", shown, "FrmRptPaymentsByCashier"},
        {true, "mnuPayVBC", "Payment Voucher from Cashier", empty, "frmRptPaymentVoucherByCashier"},
        {true, "mnuBCBBO", "Bills Collated by Billing Officers", shown, "FrmRptBillsByBillingOfficers"},
        {true, "mnuABR", "Amended Bills Report"},
        {true, "mnuBIBC", "Bill Incurred by Clients", hidden, "FrmRptBillsByClient"},
        {true, "mnuRemnd", "Reminders", hidden, "frmReminder"},
        {true, "mnuCR", "Cancelled Receipts for Today", hidden, nullptr, &M::mnuCR_Click},
        {true, "mnuMRpts", "More Reports....", shown, "rptPanelForFinancial"},

        {false, "mnusecurity", "Sec&urity", Look::HiddenAndDisabled},
        {true, "mnuUsers", "&User Accounts", shown, "frmUsers"},
        {true, "mnuUserRoles", "&Assign Users To Roles", shown, "frmUserRole"},
        {true, "mnuChangePWD", "Change &Password...", shown, "frmDialog"},
        {true, "mnuCreateRoles", "Create &Roles", shown, "frmRole"},
        {true, "mnuAcctEnable", "&Enable Account...", shown, nullptr, &M::mnuAcctEnable_Click},
        {true, "mnuAcctDisable", "&Disable Account...", shown, nullptr, &M::mnuAcctDisable_Click},
        {true, "mnuDSP", "Drug/Service Pricing", shown, "frmDrugPrice"},
        {true, "mnuLR", "Login Report", hidden},
        {true, "mnuAuto", "Auto ID Generator", hidden},

        // The desktop arranges its windows and lists them below these.
        {false, "mnuWindow", "&Window"},
        {true, "mnuWindowTV", "Tile Vertical"},
        {true, "mnuWindowTH", "Tile Horizontal"},
        {true, "mnuWindowCascade", "Cascade"},
    };
    return table;
}

void MdiTolmek::buildMenus() {
    const QSet<QString> turnedOn = readMenuEntriesTurnedOn(program.homeFolder());
    MenuItem* menu = nullptr;
    for (const MenuEntry& entry : menuTable()) {
        const QString name = QString::fromLatin1(entry.name);
        m_menus.push_back(
            std::make_unique<MenuItem>(*this, name, QString::fromLatin1(entry.caption), entry.inMenu ? menu : nullptr));
        MenuItem* item = m_menus.back().get();
        if (!entry.inMenu)
            menu = item;
        const bool turned = turnedOn.contains(name.toLower());
        if (!turned) {
            item->setVisible(entry.look == Look::Shown || entry.look == Look::Empty);
            item->setEnabled(entry.look != Look::HiddenAndDisabled);
        }
        if (entry.look == Look::Empty && !turned)
            continue;
        if (entry.opens || entry.run)
            item->onClick = [this, &entry] { act(entry); };
    }
}

void MdiTolmek::act(const MenuEntry& entry) {
    if (entry.run)
        (this->*entry.run)();
    if (entry.opens)
        program.open(entry.opens);
}

void MdiTolmek::mnuPrint_Click() {
    if (Form* active = program.activeForm())
        program.ui().printForm(*active);
    else
        program.box("There is no open screen to print.", Icon::Information);
}

void MdiTolmek::mnuEPE_Click() {
    unload();
}

void MdiTolmek::mnuRPtES_Click() {
    preparePanel("Receipt", "select a receipt No");
}

void MdiTolmek::mnuPCB_Click() {
    preparePanel("Coy", "select a Company Name");
}

void MdiTolmek::preparePanel(const QString& mode, const QString& label) {
    session.sRptPanelMode = mode;
    session.sRptPanelLabel = label;
    // It takes its mode when it loads.
    if (Form* open = program.loadedForm("rptPanelSummary"))
        open->unload();
}

void MdiTolmek::mnuTB_Click() {
    prepareLedgerReport("TB");
}

void MdiTolmek::mnuTBBP_Click() {
    prepareLedgerReport("TB2");
}

void MdiTolmek::mnuGL_Click() {
    prepareLedgerReport("GL");
}

void MdiTolmek::prepareLedgerReport(const QString& kind) {
    session.sRptKind = kind;
    // It takes its kind when it loads.
    if (Form* open = program.loadedForm("frmRptTB"))
        open->unload();
}

void MdiTolmek::mnuBFT_Click() {
    viewToday(Sql("select * from qryhBillingbalanceForPrivate where bdate = '")
                  << session.gServerDate << "' order by bdate desc,fullname asc",
              "No Bills for Today", "rptCompanyBill", "Unpaid Bills for Today");
}

/// Receipts are those of the workstation's today; by the sums of their ways of payment a till is closed.
void MdiTolmek::mnuINC_Click() {
    const QDate today = program.ui().now().date();
    QStringList ways;
    {
        Connection connection = program.openBilling();
        const QMap<QString, double> income = incomeByWay(connection, today);
        for (auto way = income.cbegin(); way != income.cend(); ++way)
            ways << (way.key().isEmpty() ? "(none)" : way.key()) + ' ' + formatTwoDecimals(way.value());
    }
    viewToday(Sql("select * from qryhBillingIncome where receiptdate = '") << today << "' order by receiptNo",
              "No Income between these two dates", "rptBillingIncome", "Income for Today",
              "By way of payment:   " + ways.join("     "));
}

void MdiTolmek::mnuCR_Click() {
    viewToday(Sql("select * from qryreceiptCancelled where receiptdate ='")
                  << program.ui().now().date() << "' order by receiptdate desc",
              "No Cancelled Receipts", "rptCancelledReceipt", "Cancelled Receipts");
}

void MdiTolmek::viewToday(const Sql& sql, const QString& emptyMessage, const QString& report, const QString& title,
                          const QString& sums) {
    Recordset rows;
    {
        Connection connection = program.openBilling();
        rows = Recordset(connection, sql);
    }
    if (rows.eof())
        program.box(emptyMessage);
    else
        viewList(program, report, title, rows, sums);
}

void MdiTolmek::showDispensing() {
    program.open("frmDispensing");
}

void MdiTolmek::mnuAcctEnable_Click() {
    enableUserAccount(program);
}

void MdiTolmek::mnuAcctDisable_Click() {
    disableUserAccount(program);
}

} // namespace orvane
