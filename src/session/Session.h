#pragma once

#include "data/dialect/Sql.h"

#include <QDate>
#include <QDateTime>
#include <QString>

namespace orvane {

/// The session variables: read by every screen, alive for the run of the program, under their given names.
struct Session {
    // Who, where and with which servers.
    QString gServerName, gHospID, gHospIDName;
    QString sHospitalNoStr;
    QString gConnStr, gAcctConnStr, gPatientsFolder;
    QString gModuleName;
    QString gUsername, gFullName, gEmpID;
    QString gHospName, gHospName2;

    // Settings read once at the start.
    QString gPrivateTariff, gLockPrice, gRevTypeRpt, gNHISFee, gBillTo;
    // Of these the posting engine and the journal bridge read what the receipts do not.
    bool gAcctPostOn = false, gAcctPostAuto = false;
    QString gAcctPostType = "AUTO", gAutoTranNo, gAcctCostCenter;
    QString gAcctNoPOS, gAcctNoCheque, gAcctNoTransfer, gAcctNoCash, gAcctNoSales, gAcctNoSalesInv;
    qlonglong gCashAccountIndex = 0, gARAccountIndex = 0;
    QString gAcctSusp, gAcctSuspDesc;
    QString gCurrentPeriod, gPeriod;

    // The shell's state.
    bool bFirstShow = false, bAutoLogoff = false, bReceiptHeadLoaded = false;
    bool bRollPaper = false; ///< receipts come on a roll of 80 mm, else on A4
    QDate dPostDate;
    QDate gServerDate; ///< the date of the shell's clock
    QTime gServerTime; ///< the time of the shell's clock
    QString sComputerName;
    qlonglong gActivitySNo = 0;

    // Numbers and words.
    QString gIDNo;         ///< what fetchIDNo returned last; empty means failure
    double dBillTotal = 0; ///< naira; what amountToUpperWords words
    QString sAmountWords;

    // The patient finder.
    QString sFoundPNo;      ///< handed to the screen that asked for a patient; empty: none was taken
    QString sPatientSearch; ///< what was searched last

    // The bill in hand.
    QString gConsultID, sBillPno, sBillPatName, sBillCoy, sBillPatLabel;
    double dAmountGen = 0, dAmountBal = 0, dAmountPaid = 0; ///< naira
    double dDebtBF = 0;                                     ///< naira
    QString sPrintBillNo;                                   ///< the receipt or bill to print
    QString gSearchBillNo;                                  ///< handed to the collation screen by the worklist
    QString sWorkPno;
    qlonglong lWorkSNo = 0;
    QDate dWorkDate;
    QString sAdjustItem;
    QString sAuditCoy;
    QString sDebtMode, sRptPanelMode, sRptKind;
    QString sPrintRptMode;  ///< which report frmPrintRpt shows
    Sql sPrintRptSQL;       ///< and its rows
    QString sRptPanelLabel; ///< what the label of rptPanelSummary asks for
    QString sRctLine1, sRctLine2, sRctLine3, sRctLine4, sRctLine5;
    QString sBatchNo; ///< the monthly batch picked last on any screen; each works on its own

    // The accounts.
    QString sRevRptMode;   ///< the revenue report: "SUMMARY", "DETAIL", "CONS-DETAIL" or "CASH"
    Sql sRevRptSQL;        ///< its rows
    QString sRevRptClient; ///< whom it is about, in words
    QDate dRevRptFrom, dRevRptTo;
    QString sAcctCaller;   ///< the screen that asks for an account of the ledger
    QString sAcctSelected; ///< handed to it; empty: none was taken
    QString sRevHeads;     ///< what a payment covers, as picked; empty: nothing was
};

} // namespace orvane
