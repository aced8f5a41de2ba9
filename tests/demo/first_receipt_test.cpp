// A hospital that was made a moment ago takes its first receipt, with no more than the facts that it cannot do without.
#include "support/Check.h"
#include "support/Rows.h"
#include "support/Workstation.h"

namespace orvane {
namespace {

class FirstReceipt : public ::testing::TestWithParam<Engine> {};
ORVANE_ON_EACH_ENGINE(FirstReceipt);

TEST_P(FirstReceipt, BearsTheNumberOne) {
    const TestHome home(GetParam());
    {
        Workstation owner(home.folder());
        Connection billing = owner.billing();
        addRows(billing, "HospList (hospID, Hname, hname2)", {"'001', 'HALDEN HOSPITAL', 'MAIN CLINIC'"});
        addRows(billing, "ApplicationUsers (Username, Fullname, AccountStatus, EmpID)",
                {"'amina.b', 'AMINA BELLO', 'Enabled', 'E001'"});
        addRows(billing, "Roles (RoleID, LoginRole)", {"1, 'BILLING'"});
        addRows(billing, "UserRoles (RoleID, Username)", {"1, 'amina.b'"});
        addRows(billing, "AppDefaults (ID, idval)", {"'PRIVATE', '0001'"});
        addRows(billing, "hRetainership (retainID, retainCode, retainName)", {"'0001', '0001', 'PRIVATE'"});
        makePatient(billing);
        makeVisit(billing);
        makeItem(billing, {.qty = 10});
    }
    const LeastRights login(home);
    Workstation ws(home.folder());
    ASSERT_TRUE(ws.start()) << ws.ui.takeBoxes().join(" / ").toStdString();
    ws.open("frmBillingVerify");
    ws.set("frmBillingVerify.txtSearch", "001OFL0000001");
    ws.click("frmBillingVerify.cmdOK");
    for (const auto& [box, value] : {std::pair("chkRct", "yes"), {"cboPayFor", "DRUGS"}, {"chkExact", "yes"}})
        ws.set(QStringLiteral("frmBillingVerify.") + box, value);
    ws.ui.answer(true);
    ws.click("frmBillingVerify.OKButton");
    EXPECT_EQ(ws.scalar("select ReceiptNo from Payments"), "1") << ws.ui.takeBoxes().join(" / ").toStdString();
    ws.ui.forgetBoxes();
    EXPECT_EQ(checkDatabases(ws.program).findings, QStringList());
}

} // namespace
} // namespace orvane
