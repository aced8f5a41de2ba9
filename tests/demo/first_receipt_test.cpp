// A hospital that was made a moment ago takes its first receipt, with no more than the facts that it cannot do without.
#include "support/Check.h"
#include "support/LeastRights.h"
#include "support/Workstation.h"

namespace orvane {
namespace {

class FirstReceipt : public ::testing::TestWithParam<Engine> {};
ORVANE_ON_EACH_ENGINE(FirstReceipt);

TEST_P(FirstReceipt, BearsTheNumberOne) {
    const TestHome home(GetParam());
    {
        Workstation owner(home.folder());
        for (const char* fact :
             {"insert into HospList (hospID, Hname, hname2) values ('001', 'HALDEN HOSPITAL', 'MAIN CLINIC')",
              "insert into ApplicationUsers (Username, Fullname, AccountStatus, EmpID) values ('amina.b', 'AMINA "
              "BELLO', "
              "'Enabled', 'E001')",
              "insert into Roles (RoleID, LoginRole) values (1, 'BILLING')",
              "insert into UserRoles (RoleID, Username) values (1, 'amina.b')",
              "insert into AppDefaults (ID, idval) values ('PRIVATE', '0001')",
              "insert into hRetainership (retainID, retainCode, retainName) values ('0001', '0001', 'PRIVATE')"})
            owner.run(QString::fromLatin1(fact));
        Connection billing = owner.billing();
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
    ws.set("frmBillingVerify.chkRct", "yes");
    ws.set("frmBillingVerify.cboPayFor", "DRUGS");
    ws.set("frmBillingVerify.chkExact", "yes");
    ws.ui.answer(true);
    ws.click("frmBillingVerify.OKButton");
    EXPECT_EQ(ws.scalar("select ReceiptNo from Payments"), "1") << ws.ui.takeBoxes().join(" / ").toStdString();
    ws.ui.forgetBoxes();
    EXPECT_EQ(checkDatabases(ws.program).findings, QStringList());
}

} // namespace
} // namespace orvane
