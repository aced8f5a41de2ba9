#pragma once

#include "printouts/ReportScreen.h"

namespace orvane {

/// "Lab Result": the results of a request to the laboratory, of a hospital's patient or an outlet's, with the titres of
/// a WIDAL reaction; what was found on tissue is a page of its own.
class FrmRptSummQVR : public ReportScreen {
public:
    explicit FrmRptSummQVR(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdDisplay; }
    Button* cancelButton() override { return &CancelButton; }

private:
    /// A request as the list offers it.
    struct Request {
        QString labNo, patient;
        qlonglong conID = 0;
    };

    void cmdList_Click();
    void cmdDisplay_Click();
    void cmdHist_Click();
    std::optional<Request> pickedRequest();
    Recordset findings(const Request& request);
    Recordset histology(const Request& request);
    void showResult(const QString& file, const Recordset& rows, const Request& request, const QString& nothing);

    using Me = FrmRptSummQVR;
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button cmdList{*this, "cmdList", "&Get Patient List", &Me::cmdList_Click};
    ComboBox cboCust{*this, "cboCust", ComboBox::ListOnly};
    Button CancelButton{*this, "CancelButton", "C&lose", &Me::unload};
    Button cmdHist{*this, "cmdHist", "&HistPathology Report", &Me::cmdHist_Click};
    Button cmdDisplay{*this, "cmdDisplay", "&Display Result", &Me::cmdDisplay_Click};
};

} // namespace orvane
