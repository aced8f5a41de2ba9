#include "clients/LineCustom.h"

#include "books/Bill.h"

namespace orvane {

void prepareLines(Grid& lines) {
    lines.hide({"BillType", "SNO"});
    for (const char* amount : {"UnitPrice", "Amount"})
        lines.setFormat(amount, "#,###.00");
    lines.setWidth("Service", 36);
}

bool customiseCurrentLine(Program& program, const Grid& lines) {
    const QString billNo = lines.text("BillNo");
    if (billNo.isEmpty()) {
        program.box("No Row is selected");
        return false;
    }
    bool processed = false;
    {
        Connection connection = program.openBilling();
        processed = isBillProcessed(connection, billNo);
    }
    if (processed) {
        program.box("This Bill Item cannot be Adjusted/Customized!! Already Processed\r\n"
                    "To Adjust, Reverse the processing for the Company");
        return false;
    }
    program.session.lWorkSNo = qlonglong(lines.number("SNO"));
    program.openModal("frmPriceAdjustCustom");
    return true;
}

} // namespace orvane
