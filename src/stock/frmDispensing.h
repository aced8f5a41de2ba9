#pragma once

#include "books/Dispensing.h"
#include "session/Screen.h"

namespace orvane {

/// "Dispensing For Injections/Dressing Only": what was given from a doctor's prescription of injections and dressings
/// goes on the medication chart, and waits for the visit's bill.
class frmDispensing : public Screen {
public:
    explicit frmDispensing(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdAdd; }
    Button* cancelButton() override { return &CancelButton; }

protected:
    PatientTaker patientTaker() override;

private:
    Layout entryLayout() const;

    // The prescription and the save (frmDispensing.cpp).
    void fillLists();
    void fillPatients();
    void cboVehNo_Click();
    void showPrescription();
    void clearPatient();
    void cmdNew_Click();
    bool isReady();
    void OKButton_Click();
    Dispensing entered();

    // Its lines (frmDispensingEntry.cpp).
    void cboDrug_Click();
    void showDrug();
    void showStock();
    void forgetDrug();
    void showSubTotal();
    bool isInGrid();
    bool isLineComplete();
    void cmdAdd_Click();
    void OrderGrid_DblClick();
    void showTotal();
    DispensedItem itemIn(int row) const;
    void clearLine();
    void cmdPrice_Click() { program.open("frmDrugPrice"); }

    using Me = frmDispensing;
    ComboBox cboVehNo{*this, "cboVehNo", ComboBox::ListOnly, &Me::cboVehNo_Click};
    DatePicker dtDate{*this, "dtDate"};
    ComboBox cboReason{*this, "cboReason", ComboBox::ListOnly};
    ComboBox cboRef{*this, "cboRef", ComboBox::FreeText};
    Label lblBill{*this, "lblBill"};
    Label lblNo{*this, "lblNo"};
    Label lblClient{*this, "lblClient"};
    Label lblClinic{*this, "lblClinic"};
    Label lblAge{*this, "lblAge"};
    Label lblPhy{*this, "lblPhy"};
    TextBox txtPresc{*this, "txtPresc"};
    ComboBox cboDrug{*this, "cboDrug", ComboBox::FreeText, &Me::cboDrug_Click};
    TextBox txtQty{*this, "txtQty", &Me::showSubTotal};
    TextBox txtUsage{*this, "txtUsage"};
    Label lblCat{*this, "lblCat"};
    Label lblUnit{*this, "lblUnit"};
    Label lblPrice{*this, "lblPrice"};
    Label lblSub{*this, "lblSub"};
    Label lblStock{*this, "lblStock"};
    Button cmdAdd{*this, "cmdAdd", "Add to &Grid", &Me::cmdAdd_Click};
    EntryGrid OrderGrid{*this, "OrderGrid", &Me::OrderGrid_DblClick};
    Label lblTotal{*this, "lblTotal"};
    Button cmdNew{*this, "cmdNew", "&Dispense", &Me::cmdNew_Click};
    Button cmdStock{*this, "cmdStock", "Correct Drug Price from &Billing Manual", &Me::cmdPrice_Click};
    Button cmdCost{*this, "cmdCost", "Enter Drug Cost from &Invoice", &Me::cmdPrice_Click};
    Button cmdRefresh{*this, "cmdRefresh", "&Refresh", &Me::cmdNew_Click};
    Button cmdCancel{*this, "cmdCancel", "Ca&ncel", &Me::cmdNew_Click};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};
    Button OKButton{*this, "OKButton", "&Save", &Me::OKButton_Click};

    double m_markUp = 0; ///< of the client's category, a fraction
    double m_cost = 0;   ///< naira, of the drug in hand
};

} // namespace orvane
