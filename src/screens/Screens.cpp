#include "screens/Screens.h"

#include "accounts/frmBanks.h"
#include "accounts/frmExpenseItems.h"
#include "accounts/frmExpensePay.h"
#include "accounts/frmRevAcctSelect.h"
#include "accounts/frmRevCashAcct.h"
#include "accounts/frmRevCashAdjust.h"
#include "accounts/frmRevCat.h"
#include "accounts/frmRevCatEdit.h"
#include "accounts/frmRevHeaders.h"
#include "accounts/frmSupplers.h"
#include "accounts/frmSuppliersAcct.h"
#include "attendance/frmCoyUpdate.h"
#include "attendance/frmFind.h"
#include "attendance/frmFlash.h"
#include "attendance/frmPatList.h"
#include "attendance/frmPatientFinder.h"
#include "attendance/frmPatientInfo.h"
#include "attendance/frmRecordsOffline.h"
#include "attendance/frmReminder.h"
#include "billing/frmApprvCode.h"
#include "billing/frmBillDiscount.h"
#include "billing/frmBillPat.h"
#include "billing/frmBillPatAdjust.h"
#include "billing/frmBillingVerify.h"
#include "billing/frmDecide.h"
#include "billing/frmExistBill.h"
#include "billing/frmPriceAdjust.h"
#include "billing/frmPriceAdjustCustom.h"
#include "billing/frmPriceAdjustSplit.h"
#include "billing/frmPriceAdjustVerify.h"
#include "billing/frmTreatment.h"
#include "clients/FrmProcessedBill.h"
#include "clients/FrmRptBillsByPat.h"
#include "clients/frmBillProcess.h"
#include "clients/frmBillProcessing.h"
#include "clients/frmBillProcessingPost.h"
#include "clients/frmBillProcessingShift.h"
#include "clients/frmBillReverseProcessing.h"
#include "clients/frmBillSplitting.h"
#include "clients/frmBillToCapitated.h"
#include "clients/frmClients.h"
#include "clients/frmRetainership.h"
#include "clients/frmRptHeading.h"
#include "clients/frmVerifyBillsInSummary.h"
#include "outlets/frmBillGen.h"
#include "outlets/frmBillingPublic.h"
#include "outlets/frmInvestigatePublic.h"
#include "outlets/frmRevHeadersPublic.h"
#include "printouts/FrmRptAttendByCoy.h"
#include "printouts/FrmRptBillsByBillingOfficers.h"
#include "printouts/FrmRptBillsByClient.h"
#include "printouts/FrmRptBillsUnAttendedTo.h"
#include "printouts/FrmRptPaymentsByCashier.h"
#include "printouts/FrmRptSummQVR.h"
#include "printouts/frmPrintRpt.h"
#include "printouts/frmRevPrintRpt.h"
#include "printouts/frmRptPaymentVoucherByCashier.h"
#include "printouts/frmRptTB.h"
#include "printouts/rptPanelBill.h"
#include "printouts/rptPanelForFinancial.h"
#include "receipts/frmCashReceipt.h"
#include "receipts/frmCashReceiptLab.h"
#include "receipts/frmDebtInfo.h"
#include "receipts/frmReceiptDeposit.h"
#include "receipts/frmReceiptManual.h"
#include "receipts/frmReceiptTemp.h"
#include "receipts/rptPanelSummary.h"
#include "session/MdiTolmek.h"
#include "session/frmDialog.h"
#include "session/frmLogin.h"
#include "session/frmRole.h"
#include "session/frmStart.h"
#include "session/frmUserRole.h"
#include "session/frmUsers.h"
#include "session/frmWelcome.h"
#include "stock/frmDispensing.h"
#include "stock/frmDrugPrice.h"
#include "stock/frmStockEntry.h"

namespace orvane {

namespace {

template <typename FormClass>
std::unique_ptr<Form> make(Program& program) {
    return std::make_unique<FormClass>(program);
}

constexpr struct {
    const char* name;
    std::unique_ptr<Form> (*make)(Program&);
} screens[] = {
    {"MdiTolmek", make<MdiTolmek>},
    {"frmLogin", make<frmLogin>},
    {"frmWelcome", make<frmWelcome>},
    {"frmStart", make<frmStart>},
    {"frmUsers", make<frmUsers>},
    {"frmUserRole", make<frmUserRole>},
    {"frmRole", make<frmRole>},
    {"frmDialog", make<frmDialog>},

    {"frmCoyUpdate", make<frmCoyUpdate>},
    {"frmFind", make<frmFind>},
    {"frmFlash", make<frmFlash>},
    {"frmPatList", make<frmPatList>},
    {"frmPatientFinder", make<frmPatientFinder>},
    {"frmPatientInfo", make<frmPatientInfo>},
    {"frmRecordsOffline", make<frmRecordsOffline>},
    {"frmReminder", make<frmReminder>},

    {"frmCashReceipt", make<frmCashReceipt>},
    {"frmCashReceiptLab", make<frmCashReceiptLab>},
    {"frmDebtInfo", make<frmDebtInfo>},
    {"frmReceiptDeposit", make<frmReceiptDeposit>},
    {"frmReceiptManual", make<frmReceiptManual>},
    {"frmReceiptTemp", make<frmReceiptTemp>},
    {"rptPanelSummary", make<rptPanelSummary>},

    {"frmApprvCode", make<frmApprvCode>},
    {"frmBillDiscount", make<frmBillDiscount>},
    {"frmBillPat", make<frmBillPat>},
    {"frmBillPatAdjust", make<frmBillPatAdjust>},
    {"frmBillingVerify", make<frmBillingVerify>},
    {"frmDecide", make<frmDecide>},
    {"frmExistBill", make<frmExistBill>},
    {"frmPriceAdjust", make<frmPriceAdjust>},
    {"frmPriceAdjustCustom", make<frmPriceAdjustCustom>},
    {"frmPriceAdjustSplit", make<frmPriceAdjustSplit>},
    {"frmPriceAdjustVerify", make<frmPriceAdjustVerify>},
    {"frmTreatment", make<frmTreatment>},

    {"FrmProcessedBill", make<FrmProcessedBill>},
    {"FrmRptBillsByPat", make<FrmRptBillsByPat>},
    {"frmBillProcess", make<frmBillProcess>},
    {"frmBillProcessing", make<frmBillProcessing>},
    {"frmBillProcessingShift", make<frmBillProcessingShift>},
    {"frmBillProcessingPost", make<frmBillProcessingPost>},
    {"frmBillReverseProcessing", make<frmBillReverseProcessing>},
    {"frmBillSplitting", make<frmBillSplitting>},
    {"frmBillToCapitated", make<frmBillToCapitated>},
    {"frmClients", make<frmClients>},
    {"frmRetainership", make<frmRetainership>},
    {"frmRptHeading", make<frmRptHeading>},
    {"frmVerifyBillsInSummary", make<frmVerifyBillsInSummary>},

    {"frmBillGen", make<frmBillGen>},
    {"frmBillingPublic", make<frmBillingPublic>},
    {"frmInvestigatePublic", make<frmInvestigatePublic>},
    {"frmRevHeadersPublic", make<frmRevHeadersPublic>},

    {"frmPrintRpt", make<frmPrintRpt>},
    {"frmRevPrintRpt", make<frmRevPrintRpt>},
    {"FrmRptAttendByCoy", make<FrmRptAttendByCoy>},
    {"FrmRptBillsByBillingOfficers", make<FrmRptBillsByBillingOfficers>},
    {"FrmRptBillsByClient", make<FrmRptBillsByClient>},
    {"FrmRptBillsUnAttendedTo", make<FrmRptBillsUnAttendedTo>},
    {"FrmRptPaymentsByCashier", make<FrmRptPaymentsByCashier>},
    {"FrmRptSummQVR", make<FrmRptSummQVR>},
    {"frmRptPaymentVoucherByCashier", make<frmRptPaymentVoucherByCashier>},
    {"frmRptTB", make<frmRptTB>},
    {"rptPanelBill", make<rptPanelBill>},
    {"rptPanelForFinancial", make<rptPanelForFinancial>},

    {"frmBanks", make<frmBanks>},
    {"frmExpenseItems", make<frmExpenseItems>},
    {"frmExpensePay", make<frmExpensePay>},
    {"frmRevAcctSelect", make<frmRevAcctSelect>},
    {"frmRevCashAcct", make<frmRevCashAcct>},
    {"frmRevCashAdjust", make<frmRevCashAdjust>},
    {"frmRevCat", make<frmRevCat>},
    {"frmRevCatEdit", make<frmRevCatEdit>},
    {"frmRevHeaders", make<frmRevHeaders>},
    {"frmSupplers", make<frmSupplers>},
    {"frmSuppliersAcct", make<frmSuppliersAcct>},

    {"frmDispensing", make<frmDispensing>},
    {"frmDrugPrice", make<frmDrugPrice>},
    {"frmStockEntry", make<frmStockEntry>},
};

} // namespace

void registerScreens(Program& program) {
    for (const auto& screen : screens)
        program.registerForm(screen.name, screen.make);
}

} // namespace orvane
