#include "accounts/frmBanks.h"

namespace orvane {

frmBanks::frmBanks(Program& owner)
    : GroupedList(owner, "frmBanks", "Banks",
                  {.heading = "Bank Information",
                   .group = "PARENT",
                   .member = "BRANCH",
                   .groupLabel = "Parent Name",
                   .nameLabel = "Branch Name",
                   .remarkLabel = "Location",
                   .groupColumn = "Parent",
                   .memberName = "Branch",
                   .memberRemark = "Location",
                   .groupCode = "GroupCode",
                   .codeOfGroup = "BankCode",
                   .memberCode = "BranchCode"}) {
    grdData.setHead("BName", "Parent");
}

Sql frmBanks::members() const {
    Sql branches("select SNO,BankName,Branch,Location,BankCode,BranchCode,BName,Status from vwbanks where "
                 "status='BRANCH'");
    if (!groupCode().isEmpty())
        branches << " and bankCode='" << groupCode() << "'";
    return branches;
}

Sql frmBanks::ownRow(const QString& code) const {
    return Sql("select SNO from banks where Status='PARENT' and bankcode='") << code << "'";
}

bool frmBanks::isComplete() {
    const bool isBranch = cboType.text() == "BRANCH";
    return passes({{cboType.text().isEmpty(), "Specify Entry Type", &cboType},
                   {cboVehNo.text().trimmed().isEmpty(), "Bank Name  cannot be empty!", &cboVehNo},
                   {isBranch && txtReg.text().trimmed().isEmpty(), "BRANCH Name field cannot be empty!", &txtReg},
                   {isBranch && groupCode().isEmpty(), "Invalid Parent Name! Please select a Parent", &cboVehNo}});
}

BankBranch frmBanks::entered() const {
    return {.bankCode = groupCode(),
            .bankName = cboVehNo.text().trimmed(),
            .branch = txtReg.text().trimmed(),
            .location = txtName.text().trimmed()};
}

Given<Saved> frmBanks::addEntry(Books& books) {
    return isGroup() ? addBank(books, entered()) : addBankBranch(books, entered());
}

void frmBanks::changeEntry(Books& books) {
    if (isGroup())
        renameBank(books, sCode, entered().bankName);
    else
        changeBankBranch(books, lID, entered());
}

} // namespace orvane
