#include "billing/ReceiptFrame.h"

#include "books/Words.h"
#include "data/words/Money.h"

namespace orvane {

namespace {

constexpr size_t chequeWay = 2;

QString memberName(const char* array, int index) {
    return QStringLiteral("%1(%2)").arg(QString::fromLatin1(array)).arg(index);
}

/// Naira; a blank or a text that is no amount is 0.
double amountIn(const TextBox& box) {
    return parseAmount(box.text()).value_or(0);
}

QString wordsOf(const TextBox& amount) {
    return amount.text().isEmpty() ? QString() : getValInWord(amountIn(amount));
}

} // namespace

ReceiptFrame::PayWay::PayWay(Form& form, int index, const QString& caption)
    : lblAmt(form, memberName("lblAmt", index), caption), txtAmt(form, memberName("txtAmt", index)),
      lblAcctNo(form, memberName("lblAcctNo", index)) {
    txtAmt.numeric();
    if (index > 0)
        cboBank.emplace(form, memberName("cboBank", index), ComboBox::ListOnly);
}

double ReceiptFrame::PayWay::amount() const {
    return round2(amountIn(txtAmt));
}

ReceiptFrame::ReceiptFrame(Form& form, const Session& session)
    : fraReceipt(form, "fraReceipt"), lblRct(form, "lblRct"), dtRctDate(form, "dtRctDate"),
      cboPayFor(form, "cboPayFor"), lblDep(form, "lblDep"), txtEmp(form, "txtEmp"),
      chkExact(form, "chkExact", "E&xact amount in cash"), ways{{PayWay(form, 0, "CASH"), PayWay(form, 1, "POS"),
                                                                 PayWay(form, 2, "CHEQUE"),
                                                                 PayWay(form, 3, "TRANSFER")}},
      txtCheque(form, "txtCheque"), cboPay(form, "cboPay"), txtHt(form, "txtHt"), txtWord(form, "txtWord"),
      m_session(session) {
    txtEmp.numeric().setLocked(true);
    txtHt.numeric();
    txtWord.multiline().setLocked(true);
    fraReceipt.holds(
        {&lblRct, &dtRctDate, &cboPayFor, &cboPay, &txtCheque, &txtEmp, &txtHt, &txtWord, &chkExact, &lblDep});
    cboPayFor.addItems({"CARD", "CONSULTING", "CONSULTING AND DRUGS", "DRUGS", "GP REVIEW", "SPECIALIST REVIEW",
                        "ANTE NATAL", "EXAMINATION", "ADMISSION", "GP FIRST VISIT", "SPECIALIST FIRST VISIT",
                        "CONSULTING AND INJECTION", "CONSULTING AND DRESSING", "CONSULTING AND INJECTION/INJECTION"});
    cboPay.addItems({"CASH", "CHEQUE", "POS", "OTHERS"});
    txtHt.onChange = [this] { txtWord.setText(wordsOf(txtHt)); };
    chkExact.onClick = [this] { ways[0].txtAmt.setText(chkExact.isChecked() ? txtEmp.text() : "0"); };
    for (size_t i = 0; i < ways.size(); ++i) {
        PayWay& way = ways[i];
        fraReceipt.holds({&way.lblAmt, &way.txtAmt, &way.lblAcctNo});
        way.txtAmt.onChange = [this] { takeWays(); };
        if (!way.cboBank)
            continue;
        fraReceipt.holds({&*way.cboBank});
        way.cboBank->onClick = [this, i, &way] {
            way.lblAcctNo.setText(way.cboBank->picked<QString>().value_or(defaultAccount(i)));
        };
    }
}

Layout ReceiptFrame::layout() const {
    using namespace orvane::layout;
    Layout means = column({cell(chkExact)});
    for (const PayWay& way : ways) {
        Layout line = row({field(way.lblAmt.caption(), way.txtAmt, 14), field("Account", way.lblAcctNo, 12)});
        if (way.cboBank)
            line.children.append(field("Bank", *way.cboBank, 24));
        means.children.append(line);
    }
    means.children.append(field("Cheque No", txtCheque, 14));
    return group("Receipt",
                 {row({column({field("Receipt No", lblRct), field("Receipt Date", dtRctDate),
                               field("Being Payment for", cboPayFor, 30), field("Amount Paid", lblDep),
                               field("Bill Payable:", txtEmp, 16), field("Fresh Payment", txtHt, 16),
                               field("Pay Type", cboPay, 20), field("Amount in Words", txtWord, 30)}),
                       means})},
                 &fraReceipt);
}

void ReceiptFrame::fillBanks(Connection& connection) {
    for (Recordset rows(connection,
                        Sql("select distinct AccountName,AccountNo from vwAccountsInfo where groupID='1220000'  "
                            "order by AccountName"));
         !rows.eof(); rows.moveNext()) {
        const QString account = rows.text("AccountNo");
        for (PayWay& way : ways)
            if (way.cboBank)
                way.cboBank->addItem(rows.text("AccountName") + " [" + account + "]", account);
    }
}

void ReceiptFrame::clear() {
    chkExact.setChecked(false);
    for (size_t i = 0; i < ways.size(); ++i) {
        ways[i].txtAmt.clear();
        if (ways[i].cboBank)
            ways[i].cboBank->setListIndex(-1);
        ways[i].lblAcctNo.setText(defaultAccount(i));
    }
    for (TextBox* box : {&txtHt, &txtWord, &txtCheque})
        box->clear();
    cboPayFor.setText({});
    cboPay.setText({});
    m_namedWays.clear();
    lblRct.clear();
}

/// The four ways make the payment, and name themselves while the cashier has named nothing else.
void ReceiptFrame::takeWays() {
    double sum = 0;
    bool given = false;
    QStringList named;
    for (const PayWay& way : ways) {
        given = given || !way.txtAmt.text().isEmpty();
        if (way.amount() <= 0)
            continue;
        sum += way.amount();
        named << way.lblAmt.text();
    }
    txtHt.setText(given ? formatTwoDecimals(sum) : QString());
    if (cboPay.text().isEmpty() || cboPay.text() == m_namedWays) {
        m_namedWays = named.join('/');
        cboPay.setText(m_namedWays);
    }
}

QString ReceiptFrame::defaultAccount(size_t way) const {
    const QString accounts[] = {m_session.gAcctNoCash, m_session.gAcctNoPOS, m_session.gAcctNoCheque,
                                m_session.gAcctNoTransfer};
    return accounts[way];
}

double ReceiptFrame::paid() const {
    return round2(amountIn(txtHt));
}

double ReceiptFrame::due() const {
    return amountIn(txtEmp);
}

bool ReceiptFrame::lacksCheque() const {
    return ways[chequeWay].amount() > 0 && txtCheque.text().trimmed().isEmpty();
}

const ReceiptFrame::PayWay* ReceiptFrame::wayWithoutBank() const {
    for (const PayWay& way : ways)
        if (way.cboBank && way.amount() > 0 && way.cboBank->text().isEmpty())
            return &way;
    return nullptr;
}

ReceiptInSave ReceiptFrame::entered(const BillInHand& bill, const QString& clinic, const QString& customer) const {
    const bool byCheque = cboPay.text() == "CHEQUE" || ways[chequeWay].amount() > 0;
    ReceiptInSave receipt{.row = {.date = dtRctDate.date(),
                                  .receiptNo = lblRct.text(),
                                  .clinicID = clinic,
                                  .billNo = bill.consultID,
                                  .pno = bill.pno,
                                  .purpose = cboPayFor.text(),
                                  .amountBilled = due(),
                                  .amountPaid = paid(),
                                  .words = txtWord.text(),
                                  .payType = cboPay.text(),
                                  .chequeNo = byCheque ? txtCheque.text().trimmed() : QString(),
                                  .remarks = "PAYMENT"},
                          .ways = {},
                          .customer = customer};
    for (const PayWay& way : ways)
        receipt.ways.append({way.lblAmt.text(), way.lblAcctNo.text(), way.amount()});
    return receipt;
}

} // namespace orvane
