// Outlets: from the request to the receipt and the trial balance.
#include "books/OutletRequest.h"
#include "books/Payment.h"
#include "support/PostingActions.h"
#include "support/Print.h"
#include "support/Rows.h"
#include "support/ScreenTest.h"

namespace orvane {

class Outlets : public SoundScreenTest {
protected:
    Outlets() : SoundScreenTest("frmInvestigatePublic") {}

    void person(const QString& name = "OKORO", const QString& labNo = "L1") {
        open("frmInvestigatePublic");
        click("cmdNew");
        for (const auto& [field, text] :
             {std::pair("txtName", name), {"txtFirst", "ADA"}, {"cboMat", "ADULT"}, {"txtSex", "FEMALE"}})
            set(field, text);
        set("txtLabNo", labNo);
    }
    void add(const QString& kind, const QString& item, const QString& qty = "1") {
        set("cboCat", kind);
        set("cboDrug", item);
        set("txtQty", qty);
        EXPECT_EQ(told("cmdAdd"), "");
    }
    void request(const QString& name = "OKORO") {
        person(name);
        add("INVESTIGATION", "MALARIA PARASITE");
        add("DRUG", "PARACETAMOL 500MG", "10");
        save();
        EXPECT_EQ(ui.takeBoxes().join('\n'), "Record Succesfully saved !!! Please collate bill");
    }
    void collate(const QString& name = "OKORO") {
        open("frmBillingPublic");
        click("cmdList");
        pick("cboVehNo", name);
    }
    void pay(const QString& amount) {
        set("cboCat", "LABORATORY");
        set("cboPay", "CASH");
        set("txtHt", amount);
    }
    /// Billed, paid, isPaid and the debt.
    QString owed() {
        return rows("select b.Amountbilled,b.AmountPaid,b.isPaid,d.Amount,d.Remarks,d.isPaid as p from Billing b left "
                    "join hDebtors d on d.billNo=b.billNo order by b.billNo");
    }
    QString receipts() {
        return rows("select ReceiptNo,Amountbilled,AmountPaid,PayType,Remarks from Payments order by SNo");
    }
};

ORVANE_ON_EACH_ENGINE(Outlets);

TEST_P(Outlets, ANumberGoesOnFromTheHighestOfItsHospital) {
    const struct {
        const char* standing;
        const char* next;
    } cases[] = {{nullptr, "001/26/000001"},
                 {"002/26/000007", "001/26/000008"},
                 {"001/25/000041", "001/26/000042"},
                 {"001/26/999999", "001/26/000000"}};
    for (const auto& one : cases) {
        if (one.standing)
            ws.run(QStringLiteral("insert into hRecordsPublic (consultID) values ('%1')").arg(one.standing));
        Connection connection = ws.billing();
        EXPECT_EQ(genOutletNo(connection, "001", QDate(2026, 3, 14)), one.next);
    }
}

TEST_P(Outlets, ARequestIsCheckedInOrderAndFormsItsNumberAnewBehindTheGate) {
    open();
    expectChecks({{nullptr, nullptr, "Service/Tran No needed for this transaction", "cmdNew"}});
    click("cmdNew");
    expectChecks({{"cboCat", "DRUG"}, {"cboDrug", "PARACETAMOL 500MG", "Please specify a Patient Name ", "txtName"}},
                 "cmdAdd");
    expectChecks({{nullptr, nullptr, "Please select Patient Surname", "txtName"},
                  {"txtName", "o'neill \U0001F642", "Please select Patient firstname", "txtFirst"},
                  {"txtFirst", "ADA", "Patient Maturity Field cannot be empty!!! Refer to Doctor", "cboMat"},
                  {"cboMat", "ADULT", "Please select the Gender", "txtSex"},
                  {"txtSex", "FEMALE", "Please Specify Service/Lab No", "txtLabNo"},
                  {"txtLabNo", "L'1", "No Item in the Grid! Please Select Item and Add to Grid", "cboCat"}});
    expectChecks({{"cboRev", "OTHERS", "Please specify Revenue Type!", "cboRev"},
                  {"cboRev", "DRUGS"},
                  {"txtQty", "-1", "Specify Qty in digits ", "txtQty"},
                  {"txtQty", "10"},
                  {"txtPrice", "x", "Specify Price in digits  ", "txtPrice"},
                  {"txtPrice", "0", "Cannot add this line without a price to Grid ", "txtPrice"}},
                 "cmdAdd");
    set("txtPrice", "50");
    EXPECT_EQ(told("cmdAdd"), "");
    set("cboDrug", "PARACETAMOL 500MG");
    EXPECT_EQ(told("cmdAdd"), "Duplicate Item/Service Entry not allowed");
    add("INVESTIGATION", "MALARIA PARASITE");
    add("SERVICE", "WOUND DRESSING");
    row("OrderGrid", 2);
    EXPECT_EQ(value("lblTotal"), "2,000.00") << "a click took the dressing away";
    runBeforeTransaction("insert into hRecordsPublic (consultID) values ('001/26/000001')");
    set("txtAge", "about 30");
    save();
    EXPECT_EQ(ui.takeBoxes().join('\n'), "Record Succesfully saved !!! Please collate bill");
    EXPECT_EQ(
        rows("select consultID,drgName,Category,Qty,SubTotal,billType,revType,attendedto,isBilled,Capitated,conID "
             "from BillAccum order by SNo"),
        "001/26/000002|PARACETAMOL 500MG|TABLETS|10|500|DRUG|DRUGS|0|0|NO|2\n"
        "001/26/000002|MALARIA PARASITE|PARASITOLOGY|1|1500|INVESTIGATION|LABORATORY|0|0|NO|2");
    EXPECT_EQ(rows("select sympItem,Result,Remarks,Price from hInvestigateFindings"),
              "MALARIA PARASITE|XXX|PARASITOLOGY|1500");
    EXPECT_EQ(rows("select labnum,consultID from hInvestigate"), "L'1/001|001/26/000002");
    EXPECT_EQ(rows("select fullname,Age,sex,Maturity,coyName from hPatientsPublic"),
              "O'NEILL \U0001F642 ADA|0|FEMALE|ADULT|0001");
    EXPECT_EQ(rows("select clinicType,Remarks,clientCat,htime,empID from hRecordsPublic where consultID like '%2'"),
              "LABORATORY|ADULT|PRIVATE|09:30|E001");
    EXPECT_EQ(audit("Outsider: insert Inv.%"),
              "Outsider: insert Inv. Items for: O'NEILL \U0001F642 ADA|MALARIA PARASITE");
    EXPECT_EQ(shown("lblBill txtName OrderGrid"), "||1 rows") << "reset";
}

TEST_P(Outlets, AnEditedPriceOrTypeIsThatOfThePriceListAtOnce) {
    person();
    for (const auto& [kind, item, table] : {std::tuple("DRUG", "PARACETAMOL 500MG", "DrugNHIS"),
                                            {"INVESTIGATION", "MALARIA PARASITE", "LabServiceNHIS"},
                                            {"SERVICE", "WOUND DRESSING", "hServiceNHIS"}}) {
        set("cboCat", kind);
        set("cboDrug", item);
        set("txtPrice", "77.50");
        set("cboRev", "CONSULTATION");
        EXPECT_EQ(told("cmdAdd"), "");
        EXPECT_EQ(rows(QStringLiteral("select company,Price,RevType from %1 where Price=77.5").arg(table)),
                  "0001|77.5|CONSULTATION");
        EXPECT_EQ(audit(QStringLiteral("Outsider: Tariff Adjustment: %1").arg(item), "Remarks").right(24),
                  " : => 77.50 CONSULTATION");
    }
}

TEST_P(Outlets, ACollationBillsReceiptsAndOwesAndTheNextOneAddsToIt) {
    request();
    click("cmdBill");
    takeInHand("frmBillingPublic");
    EXPECT_EQ(shown("lblBill lblCoy lblPay txtEmp lblRct cboClinic"),
              "001/26/000001|PRIVATE|2,000.00|2,000.00|001LB0000001|OUT-PATIENT");
    expectChecks({{nullptr, nullptr, "Please enter Amount Paid", "txtHt"},
                  {"txtHt", "400", "Please enter Payment Purpose", "cboCat"},
                  {"cboCat", "LABORATORY", "Please enter Payment type", "cboPay"},
                  {"cboPay", "CHEQUE", "Please enter Cheque No", "txtCheque"},
                  {"cboPay", "CASH"},
                  {"txtHt", "0", "Please enter Amount Paid", "txtHt"},
                  {"txtHt", "400"},
                  {"txtEmp", "0", "Please enter Amount Due or Specify Deposit", "txtEmp"},
                  {"txtEmp", "2000"},
                  {"cboClinic", "", "Please enter Clinic type", "cboClinic"}});
    set("cboClinic", "OPD");
    save();
    EXPECT_TRUE(ws.program.loadedForm("frmCashReceiptLab"));
    EXPECT_EQ(owed(), "2000|400|0|1600|DEBIT|0");
    EXPECT_EQ(rows("select drgName,SubTotal,revType,BillBy,Charged from BillingDetails order by SNo"),
              "MALARIA PARASITE|1500|LABORATORY|E001|0\nPARACETAMOL 500MG|500|DRUGS|E001|0");
    EXPECT_EQ(receipts(), "001LB0000001|2000|400|CASH|PAYMENT");
    EXPECT_EQ(rows("select attendedto from BillAccum"), "1\n1");
    // The outlet finds one more item for him, and he pays more than all of it.
    ws.run("insert into BillAccum (dtDate,consultID,PNo,drgName,Price,Qty,SubTotal,billType,revType) values "
           "('2026-03-14','001/26/000001','001/26/000001','WOUND DRESSING',500,1,500,'SERVICE','SERVICES')");
    collate();
    EXPECT_EQ(shown("lblSub lblBF lblDep lblTotal lblPay"), "500.00|1,600.00|400.00|2,500.00|2,100.00");
    pay("2200");
    save();
    EXPECT_EQ(owed(), "2500|2600|1|-100|CREDIT|1");
    EXPECT_EQ(receipts().section('\n', 1), "001LB0000002|2100|2200|CASH|DEPOSIT");
    EXPECT_EQ(rows("select count(*) as n from Tranxaction"), "0") << "he has no running account";
}

TEST_P(Outlets, ACreditSaleOwesAllAndNoVisitIsBilledTwiceOrUnseen) {
    request();
    collate();
    set("chkRct", "no");
    expectChecks({{nullptr, nullptr, "Please enter Payment type", "cboPay"},
                  {"cboPay", "CASH"},
                  {"txtEmp", "-1", "Please enter Amount Billed", "txtEmp"},
                  {"txtEmp", ""},
                  {nullptr, nullptr, "Please enter Clinic type", "cboClinic"}});
    set("cboClinic", "OPD");
    runBeforeTransaction("update BillAccum set SubTotal=1,Price=1 where drgName='MALARIA PARASITE'");
    save();
    EXPECT_EQ(ui.takeBoxes().join('\n'),
              "The Items of this Patient were changed by another user. Please select the Patient again");
    click("cmdRefresh");
    set("chkRct", "no");
    set("cboPay", "CASH");
    set("cboClinic", "OPD");
    save();
    EXPECT_EQ(ui.takeBoxes().join('\n'), "Record Succesfully saved");
    EXPECT_EQ(owed(), "501|0|0|501|DEBIT|0");
    request("EZE");
    collate("EZE");
    pay("2000");
    runBeforeTransaction("update BillAccum set attendedto=1 where consultID='001/26/000002'");
    save();
    EXPECT_EQ(ui.takeBoxes().join('\n'), "No System generated Bill for this Patient");
    EXPECT_EQ(receipts(), "");

    // He comes back and pays, as every private debtor does.
    open("frmReceiptTemp");
    click("cmdAdd");
    click("cmdInv");
    pick("cboVehNo", "OKORO ADA [001/26/000001]");
    EXPECT_EQ(shown("lblCurr lblDep txtEmp"), "501.00|0.00|501.00");
    pay("501");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(owed(), "501|501|1|0|CREDIT|1");
    EXPECT_EQ(rows("select count(*) as n from Tranxaction"), "0") << "he has no running account";
}

/// Items and ways of the outlet's receipt are made at the cash transfer; nothing of it lies in suspense.
TEST_P(Outlets, AnOutletsReceiptReachesTheTrialBalanceByItsRevenueTypes) {
    layLedger(ws);
    request();
    collate();
    pay("1800");
    save();
    open("frmRevCashAcct");
    set("DTPicker1", "2026-03-14");
    set("DTPicker2", "2026-03-14");
    click("cmdList");
    ui.answer(true);
    EXPECT_EQ(told("cmdView"), "Records Successfully Posted");
    Connection accounting = ws.accounting();
    EXPECT_EQ(rowsOf(accounting, "select Amount,Description from Tranxaction order by Amount"),
              "-1500|Amount Recvd for LABORATORY\n-300|Amount Recvd for DRUGS\n1800|Payment through CASH");
}

} // namespace orvane
