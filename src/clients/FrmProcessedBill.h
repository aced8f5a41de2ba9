#pragma once

#include "clients/MonthPicker.h"
#include "printouts/ReportScreen.h"

namespace orvane {

/// "Invoice": prints what the run of a month has made of it, for all clients in one list or for one of them.
class FrmProcessedBill : public ReportScreen {
public:
    explicit FrmProcessedBill(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdPatInv; }
    Button* cancelButton() override { return &CancelButton; }

private:
    /// An invoice that the list offers: whose, and of which batch.
    struct Invoice {
        QString coyCode, batchNo;
    };

    void cmdPat_Click();
    void cboCust_Click();
    void cmdBatch_Click();
    void cmdCoy_Click();
    void cmdCoy2_Click();
    void cmdDetail_Click();
    void cmdPatInv_Click();
    void cmdSumm_Click();
    bool takePeriod();
    QString periodName() const;
    std::optional<Invoice> pickedInvoice(const QString& nothing);
    void showClaims(const QString& file);
    void showInvoice(const QString& file, const Invoice& invoice, const Sql& rows,
                     const QHash<QString, QString>& textObjects = {});

    using Me = FrmProcessedBill;
    Label lblHeading{*this, "lblHeading", "Print Processed Bill [Invoice]"};
    MonthPicker period{*this};
    Button cmdPat{*this, "cmdPat", "&Get Processed Company List", &Me::cmdPat_Click};
    ComboBox cboCust{*this, "cboCust", ComboBox::ListOnly, &Me::cboCust_Click};
    Button cmdBatch{*this, "cmdBatch", "Invoice Summary by &Batch", &Me::cmdBatch_Click};
    Button cmdCoy2{*this, "cmdCoy2", "U&nprocessed Companies", &Me::cmdCoy2_Click};
    Button CancelButton{*this, "CancelButton", "C&lose", &Me::unload};
    Button cmdSumm{*this, "cmdSumm", "&Display Claims/FFS Form", &Me::cmdSumm_Click};
    Button cmdCoy{*this, "cmdCoy", "C&ustom Invoice for Corporate", &Me::cmdCoy_Click};
    Button cmdDetail{*this, "cmdDetail", "Invoice Summary by Com&pany", &Me::cmdDetail_Click};
    Button cmdPatInv{*this, "cmdPatInv", "Patients' &Invoice", &Me::cmdPatInv_Click};

    QString m_batchNo; ///< of the period taken last
};

} // namespace orvane
