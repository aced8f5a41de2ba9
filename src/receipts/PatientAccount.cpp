#include "receipts/PatientAccount.h"

namespace orvane {

void postPatientTran(Program& program, Connection& connection, QDate, const QString& pno, const QString& billNo,
                     double amount, const QString& clientCode, const QString& remarks) {
    if (clientCode != program.session.gBillTo)
        return;
    const Recordset last(connection, Sql("select top 1 RunningTotal from Tranxaction where PNo='")
                                         << pno << "' order by SNo Desc");
    const double runningTotal = (last.eof() ? 0.0 : last.number("RunningTotal")) + amount;

    Recordset event(connection, Sql("select * from Tranxaction where 1=2"));
    event.addNew();
    event.set("entryDate", program.session.gServerDate);
    event.set("PNo", pno);
    event.set("billNo", billNo);
    event.set("Amount", amount);
    event.set("RunningTotal", runningTotal);
    event.set("Remarks", remarks);
    event.update();

    connection.execute(Sql("update hPatients set DebtBF=") << runningTotal << "where pno = '" << pno << "'");
}

double refreshBillAmountPaid(Program& program, const QString& billNo) {
    double paid = 0;
    try {
        Connection connection = program.openBilling();
        // The gate keeps a receipt of another workstation from coming between the sum and the bill.
        Transaction transaction(connection);
        const Recordset payments(connection,
                                 Sql("select  BillNo,sum(AmountPaid) as AmountPaid from payments where billno='")
                                     << billNo << "' group by BillNo");
        if (payments.eof())
            return 0;
        paid = payments.number("AmountPaid");
        connection.execute(Sql("update  billing set AmountPaid= ") << paid << " where billno = '" << billNo << "'");
        transaction.commit();
    } catch (const DataError&) {
        // What was reached is the answer; a wrong figure heals itself at the next look.
    }
    return paid;
}

} // namespace orvane
