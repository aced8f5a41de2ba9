#pragma once

#include "printouts/ReportScreen.h"

namespace orvane {

/// "Patient's Invoice": prints one patient's bill, processed or not, in one of its forms.
class FrmRptBillsByPat : public ReportScreen {
public:
    explicit FrmRptBillsByPat(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdDisplay; }
    Button* cancelButton() override { return &CancelButton; }

protected:
    PatientTaker patientTaker() override;

private:
    void cmdList_Click();
    void cboCust_Click();
    void cmdDisplay_Click();
    void cmdInv2_Click();
    void cmdAdmInv_Click();
    void cmdCap_Click();
    void cmdPresc_Click();
    void listBills(const Sql& which);
    Sql chosenCategory() const;
    bool isReady();
    bool hasPatient();
    void showBill(const QString& file, const QString& headingObject, const Sql& rows);
    QString attendanceDate(Connection& connection) const;

    using Me = FrmRptBillsByPat;
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    OptionButton radCorp{*this, "radCorp", "C&orporate"};
    OptionButton radHMO{*this, "radHMO", "&HMO / NHIS"};
    OptionButton radPvt{*this, "radPvt", "Pri&vate"};
    OptionButton radAll{*this, "radAll", "A&ll"};
    Button cmdList{*this, "cmdList", "&Get Patient List", &Me::cmdList_Click};
    ComboBox cboCust{*this, "cboCust", ComboBox::ListOnly, &Me::cboCust_Click};
    Label lblCoy{*this, "lblCoy"};
    Label lblNo{*this, "lblNo"};
    Button cmdPresc{*this, "cmdPresc", "Vie&w Treatment", &Me::cmdPresc_Click};
    CheckBox chkRpt{*this, "chkRpt", "&Tick to Hide Details"};
    Button CancelButton{*this, "CancelButton", "Clos&e", &Me::unload};
    Button cmdCap{*this, "cmdCap", "Capitate&d Invoice", &Me::cmdCap_Click};
    Button cmdAdmInv{*this, "cmdAdmInv", "Ad&mission Invoice", &Me::cmdAdmInv_Click};
    Button cmdInv2{*this, "cmdInv2", "Show Invoice&2", &Me::cmdInv2_Click};
    Button cmdDisplay{*this, "cmdDisplay", "Show &Invoice", &Me::cmdDisplay_Click};

    QString m_billNo, m_pno, m_client; ///< of the patient picked; m_client: by name
};

} // namespace orvane
