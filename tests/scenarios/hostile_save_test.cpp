// Every text that a screen saves is read back from the database as it was typed, or it is refused in plain words and
// nothing is saved.
#include "ScreenWalk.h"
#include "demo/DemoOutlets.h"
#include "play/ControlActs.h"
#include "session/Screen.h"
#include "support/Check.h"
#include "support/Entries.h"
#include "support/Hospital.h"
#include "support/HostileTexts.h"

namespace orvane {
namespace {

const QString visit = "001OFL0000001";
const QString companyBill = "001OFL0000003";

class HostileSave;

/// A field and where its text is saved, the last row first.
struct Stored {
    const char* field;
    const char* tsql;
    bool trimmed = false;
    bool upper = false;
    const char* before = ""; ///< what the system puts in front
};

struct Save {
    const char* form;
    void (*enter)(HostileSave&); ///< from the opened screen up to the fields
    QVector<Stored> fields;
    const char* button;
    void (*complete)(HostileSave&) = nullptr; ///< what is left to enter behind them
    int longest = 50;                         ///< characters that the screen takes
};

class HostileSave : public ScreenWalk {
public:
    using ScreenWalk::program;
    void set(const QString& control, const QString& value) { setValue(driver, find(control), value); }
    void fill(const QString& values) { ///< "CONTROL=VALUE|..."
        for (const QString& one : values.split('|'))
            set(one.section('=', 0, 0), one.section('=', 1));
    }
    void pick(const QString& control, const QString& entry) { pickEntry(driver, find(control), entry, false); }
    void repeat(const QString& control, const QString& of) { set(control, find(of).valueText()); }
    void click(const QString& control) { clickControl(driver, find(control)); }
    /// A number that is another one each time.
    QString serial() const { return QString::number(m_round + 1000); }
    QString price() const { return QString::number(5 + m_round * 0.01, 'f', 2); }
    /// A visit that has no bill yet.
    QString newVisit() {
        const QString number = QStringLiteral("001OFL%1").arg(m_round + 1000, 7, 10, QLatin1Char('0'));
        Connection billing = program.openBilling();
        makeVisit(billing, {.consultID = number});
        return number;
    }
    void run(const QString& tsql) { program.openBilling().run(tsql); }
    /// The row that an adjustment works on.
    void takeRow(const QString& bill) {
        program.session.gConsultID = bill;
        program.session.lWorkSNo = scalar("select max(SNo) as S from BillAccum where consultID='" + bill + "'").toInt();
    }
    QString scalar(const QString& tsql) {
        const Recordset row = program.openBilling().run(tsql);
        return row.eof() ? QString() : row.text(0);
    }

protected:
    HostileSave() {
        ui.inModal = [](Form&) {};
    }
    void prepare(Connection& billing) override;

    Control& find(const QString& control) {
        Form* form = program.loadedForm(m_form);
        Control* found = form ? form->find(control) : nullptr;
        if (!found)
            throw std::runtime_error((m_form + '.' + control).toStdString());
        requireUsable(*found, nullptr);
        return *found;
    }

    void closeAll() {
        for (const QString& name :
             QStringList{"frmCashReceipt", "frmCashReceiptLab", "frmReceiptTemp", "frmInvestigatePublic", m_form})
            if (Form* form = program.loadedForm(name))
                form->abandon();
        program.deleteClosedForms();
        ui.boxes.clear();
    }

    void enter(const Save& save) {
        ++m_round;
        ASSERT_TRUE(opened(m_form));
        save.enter(*this);
        checkBoxes(m_form);
    }

    /// Enters these texts by field and presses the button.
    void finish(const Save& save, const QMap<QString, QString>& texts) {
        for (auto text = texts.begin(); text != texts.end(); ++text)
            set(text.key(), text.value());
        if (save.complete)
            save.complete(*this);
        click(QLatin1String(save.button));
    }

    static QString expected(const Stored& field, const QString& text) {
        const QString kept = field.trimmed ? text.trimmed() : text;
        return QLatin1String(field.before) + (field.upper ? kept.toUpper() : kept);
    }

    /// Each field takes each text in turn, all fields of a save at once.
    void saveAll(const Save& save, const QList<QString>& texts) {
        for (int i = 0; i < texts.size(); ++i) {
            QMap<QString, QString> typed;
            for (const Stored& field : save.fields)
                if (!typed.contains(field.field))
                    typed[field.field] = texts.at((i + 5 * typed.size()) % texts.size());
            SCOPED_TRACE((m_form + " <" + typed.values().join("> <") + '>').toStdString());
            enter(save);
            finish(save, typed);
            for (const Stored& field : save.fields)
                EXPECT_EQ(scalar(field.tsql), expected(field, typed.value(field.field)))
                    << field.tsql << ui.boxes.join(" / ").left(200).toStdString();
            checkBoxes(m_form);
            closeAll();
        }
    }

    /// A text that no column holds, or too long for it, more than one line, or nothing but blanks.
    void saveOrRefuse(const Save& save, const Stored& field, const QString& text) {
        SCOPED_TRACE((m_form + '.' + field.field + " <" + text.left(20) + '>').toStdString());
        enter(save);
        const QString before = scalar(field.tsql);
        // What the screens keep from their user stands there.
        const auto logged = [&] { return QFileInfo(home.folder() + "/ServerErrorLog.txt").size(); };
        const qint64 log = logged();
        bool told = text.trimmed().isEmpty(); // such a field is empty
        try {
            finish(save, {{field.field, text}});
        } catch (const PlayError&) {
            told = text.contains('\n'); // the field takes one line
        }
        told = told || !ui.boxes.isEmpty() || logged() > log;
        checkBoxes(m_form);
        const QString now = scalar(field.tsql);
        EXPECT_TRUE((told && now == before) || now == expected(field, text)) << now.toStdString();
        closeAll();
    }

    QString m_form;
    int m_round = 0;
};

const QVector<Save>& saves() {
    static const QVector<Save> all = {
        {"frmApprvCode",
         [](HostileSave& at) {
             at.click("cmdInv");
             at.pick("cboVehNo", "O'NEILL");
             at.fill("cboBill=CLAIMS|txtApprv=CODE");
         },
         {{"txtApprv", "select top 1 ApprvCode from hApprvCode order by SNO desc"},
          {"txtRem", "select top 1 Remarks from hApprvCode order by SNO desc"}},
         "OKButton"},
        {"frmBillDiscount",
         [](HostileSave& at) { enterDiscount(at.program, visit, "0.01"); },
         {{"cboCat", "select top 1 Remarks from billDiscounts order by SNo desc"},
          {"cboCat", "select top 1 drgName from BillingDetails order by detID desc"}},
         "OKButton"},
        {"frmBillPat",
         [](HostileSave& at) { at.fill("cboCat=SERVICE|cboFFS2=NO|cboPat=PRIVATE PATIENTS"); },
         {{"cboDrug", "select top 1 drgName from BillAccum order by SNo desc", false, true}},
         "OKButton",
         [](HostileSave& at) {
             at.fill("cboRev=SERVICES|txtQty=1");
             at.set("txtPrice", at.price());
             at.click("cmdAdd");
         }},
        {"frmPriceAdjustVerify",
         [](HostileSave& at) {
             at.fill("cboRev=DRUGS|cboCap=NO");
             at.set("txtPrice", at.price());
         },
         {{"txtDrug", "select top 1 drgName from BillAccum order by SNo desc", true}},
         "cmdSave"},
        {"frmPriceAdjustCustom",
         [](HostileSave& at) { at.set("txtPrice", at.price()); },
         {{"cboHead", "select BillHead from BillingDetails where billNo='001OFL0000003'", true}},
         "cmdSave"},
        {"frmBillingVerify",
         [](HostileSave& at) {
             Hand hand = loadBill(at.program, visit);
             hand.tick("chkDep");
             enterCash(hand, "DRUGS", "0.01");
         },
         {{"txtDiag", "select diagnosis from hRecords where consultID='001OFL0000001'", true, true},
          {"txtDiag", "select diagnosis from Billing where billNo='001OFL0000001'"},
          {"txtApprv", "select ApprvCode from hApprvCode where consultID='001OFL0000001'", true},
          {"cboPayFor", "select top 1 PaymentFor from Payments order by SNo desc"},
          {"cboPay", "select top 1 PayType from Payments order by SNo desc"}},
         "OKButton"},
        {"frmReceiptDeposit",
         [](HostileSave& at) { enterDeposit(at.program, at.newVisit(), "1.50"); },
         {{"cboPayFor", "select top 1 PaymentFor from Payments order by SNo desc"},
          {"cboPay", "select top 1 PayType from Payments order by SNo desc"},
          {"txtDiag", "select top 1 diagnosis from Billing order by ID desc"}},
         "OKButton"},
        {"frmReceiptManual",
         [](HostileSave& at) { enterManualReceipt(at.program, visit, at.serial(), "2", "1"); },
         {{"txtRct", "select top 1 ReceiptNo from Payments order by SNo desc", true, false, "SN"},
          {"cboCat", "select top 1 PaymentFor from Payments order by SNo desc"},
          {"cboPay", "select top 1 PayType from Payments order by SNo desc"},
          {"cboClinic", "select top 1 ClinicID from Payments order by SNo desc"}},
         "OKButton"},
        {"frmReceiptTemp",
         [](HostileSave& at) { enterReceipt(at.program, visit, "0.01"); },
         {{"cboCat", "select top 1 PaymentFor from Payments order by SNo desc"},
          {"cboPay", "select top 1 PayType from Payments order by SNo desc"}},
         "OKButton"},
        {"frmDispensing",
         [](HostileSave& at) {
             at.run("update hconsulting set attendedto=0, injprescription='STAT' where consultID='001OFL0000001'");
             at.click("cmdRefresh");
             at.fill("cboVehNo=ADEYEMI BOLA [001OFL0000001]|cboDrug=ARTEMETHER INJECTION|txtQty=1");
         },
         {{"txtUsage", "select top 1 usage from hConsultingDetails order by SNo desc"},
          {"txtUsage", "select top 1 dosage from hInjAndDressing order by SNo desc"},
          {"txtUsage", "select top 1 dosage from hMedChartMonitor order by SNo desc"}},
         "OKButton",
         [](HostileSave& at) { at.click("cmdAdd"); }},
        {"frmStockEntry",
         [](HostileSave& at) { at.fill("cboVehNo=PARACETAMOL 500MG|txtFields(0)=1|cboDriver=OKAFOR CHIDI [D001]"); },
         {{"txtFields(1)", "select top 1 Comments from StockEntryRetail order by EntryID desc", true}},
         "OKButton"},
        {"frmInvestigatePublic",
         [](HostileSave& at) {
             enterOutletRequest(at.program, "OKORO", "ADA", {{"DRUG", "PARACETAMOL 500MG", "1"}});
         },
         {{"txtName", "select top 1 pSurname from hPatientsPublic order by SNo desc", true, true},
          {"txtFirst", "select top 1 pfirstname from hPatientsPublic order by SNo desc", true, true},
          {"txtPhone", "select top 1 pPhoneNo from hPatientsPublic order by SNo desc", true},
          {"txtLabNo", "select top 1 left(labnum, len(labnum) - 4) from hInvestigate order by SNo desc", true}},
         "OKButton",
         nullptr,
         40},
        {"frmBillingPublic",
         [](HostileSave& at) {
             enterOutletRequest(at.program, "OKORO", "ADA", {{"DRUG", "PARACETAMOL 500MG", "1"}}).click("OKButton");
             enterOutletBill(at.program, at.scalar("select max(consultID) as S from hRecordsPublic"), "5", "DRUGS");
         },
         {{"cboCat", "select top 1 PaymentFor from Payments order by SNo desc", true},
          {"cboPay", "select top 1 PayType from Payments order by SNo desc", true},
          {"cboClinic", "select top 1 ClinicID from Payments order by SNo desc", true},
          {"txtDiag", "select top 1 diagnosis from Billing order by ID desc", true}},
         "OKButton"},
        {"frmUsers",
         [](HostileSave& at) {
             at.run("delete from ApplicationUsers where Username<>'amina.b'");
             at.fill("txtUserName=kemi|cboAcctStatus=Enabled|cboBranchCode=HQ");
         },
         {{"txtUserName", "select Username from ApplicationUsers where Username<>'amina.b'", true},
          {"txtFullName", "select Fullname from ApplicationUsers where Username<>'amina.b'"},
          {"txtPassword", "select Password from ApplicationUsers where Username<>'amina.b'", true},
          {"cboBranchCode", "select BranchCode from ApplicationUsers where Username<>'amina.b'"}},
         "cmdApply",
         [](HostileSave& at) { at.repeat("txtConfirmPWD", "txtPassword"); }},
        {"frmUserRole",
         [](HostileSave& at) {
             at.run("delete from UserRoles where Username<>'amina.b'");
             at.set("cboRoleID", "101");
         },
         {{"cboUsername", "select Username from UserRoles where Username<>'amina.b'", true}},
         "cmdSubmit",
         nullptr,
         18},
        {"frmDialog",
         [](HostileSave& at) {
             at.run("delete from ApplicationUsers where Username<>'amina.b'");
             at.run("insert into ApplicationUsers (Username, Password) values ('musa', 'old')");
             at.fill("txtUser=musa|txtPass=old");
         },
         {{"txtPassN", "select Password from ApplicationUsers where Username='musa'"}},
         "OKButton",
         [](HostileSave& at) { at.repeat("txtPassC", "txtPassN"); }},
    };
    return all;
}

/// A company's bill, and a private one that owes so much that every save finds something to pay.
void HostileSave::prepare(Connection& billing) {
    billing.run("update AppDefaults set idval='NO' where ID='LockPrice'");
    billing.run("insert into LagosBranches (BranchCode) values ('ANNEX')");
    billing.run("update employees set deptID='PHARM' where empID='D001'");
    makePatient(billing, {.pno = "P/0003", .surname = "CLERK", .category = "MTHLY", .client = "0102"});
    makeVisit(billing, {.consultID = companyBill, .pno = "P/0003", .category = "MTHLY", .client = "0102"});
    makeItem(billing, {.consultID = companyBill, .pno = "P/0003", .client = "0102", .price = 1500});
    makeItem(billing, {.name = "WARD", .billType = "SERVICE", .revType = "SERVICES", .price = 100000});
}

ORVANE_ON_EACH_ENGINE(HostileSave);

TEST_P(HostileSave, IsReadBackAsItWasTypedOrRefused) {
    m_form = "frmBillingVerify";
    for (const QString& bill : {visit, companyBill}) {
        ASSERT_TRUE(opened(m_form));
        loadBill(program, bill).click("OKButton");
        closeAll();
    }
    for (const Save& save : saves()) {
        m_form = QLatin1String(save.form);
        takeRow(m_form == "frmPriceAdjustCustom" ? companyBill : visit);
        QList<QString> plain, odd;
        for (const QString& text : hostileTexts())
            (isStorable(text) && !text.contains('\n') && !text.trimmed().isEmpty() && text.size() <= save.longest
                 ? plain
                 : odd)
                << text;
        saveAll(save, plain);
        for (const Stored& field : save.fields)
            for (const QString& text : odd)
                saveOrRefuse(save, field, text);
    }
    EXPECT_EQ(checkDatabases(program).findings, QStringList());
}

} // namespace
} // namespace orvane
