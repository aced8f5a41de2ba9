#include "clients/frmBillToCapitated.h"

#include "books/Capitation.h"

namespace orvane {

frmBillToCapitated::frmBillToCapitated(Program& owner)
    : MonthBillsScreen(owner, "frmBillToCapitated", "Preprocessing Checks on Bills", {"Billed between", "Capi&tate"}) {}

Layout frmBillToCapitated::layout() const {
    return layoutOf("Convert Unprocessed Bills to Capitated", {});
}

Sql frmBillToCapitated::companies() const {
    return Sql("select distinct CoyName,retainCode from vwBillingProcess where AttndBillDate between '")
           << range.DTPicker1.date() << "' and '" << range.DTPicker2.date()
           << "' and BatchNo not in (Select BatchNo from billsForClients)";
}

Sql frmBillToCapitated::waitingOf(const QString& code) const {
    return Sql("select  distinct fullName,billno,batchVal,AttdDate from vwBillingProcess where AmountBilled > 0 and "
               "retainCode='")
           << code << "' and  AttndBillDate between '" << range.DTPicker1.date() << "' AND '" << range.DTPicker2.date()
           << "' and BatchNo not in (Select BatchNo from billsForClients) order by AttdDate";
}

void frmBillToCapitated::cmdProcess_Click() {
    save<int>(
        {.button = cmdProcess,
         .action = "CAPITATE BILLS",
         .allowed = [this] { return isTicked("No Patient Bill is selected"); },
         .question = "Are you sure to Capitate the Selected Patients",
         .title = "Capitation",
         .consent = Consent::Destroys,
         .detail =
             [this] {
                 return aboutLines({range.cboVehNo.text(), "Bills: " + QString::number(bills.ticked().size())});
             },
         .prepare = [this] { return showStart(); },
         .step =
             [this](Books& books) {
                 return capitateBills(
                     books, batchNo, tickedBills(), [this](int done) { showDone(done); });
             },
         .follow = [this](int count) { showSaved(QString::number(count) + " Patient Bills successfully Capitated"); },
         .refused = [this](Refusal refusal) { showRefused(refusal); }});
}

} // namespace orvane
