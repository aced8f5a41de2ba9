#include "books/BillInHand.h"

#include "books/Bill.h"

namespace orvane {

bool isCapitatedCategory(const QString& category) {
    return category == "HMO" || category == "NHIS" || category == "PHIS";
}

Given<BilledVisit> readBilledVisit(Connection& connection, const QString& consultID, const QString& pno,
                                   const QString& patient) {
    const Recordset visit(connection,
                          Sql("select pCatid,recdate,consultID,clientcat as clientcatID,referal,retainID,RetainName "
                              "from qryhVisitsForAttend where consultid ='")
                              << consultID << "'");
    if (visit.eof())
        return Refusal::NoPatient;
    const QString retainID = visit.text("retainID");
    const Recordset client(connection,
                           Sql("Select retainCode ,retainName,BillEndDate from hretainership where retainID='")
                               << retainID << "'");
    if (client.eof())
        return Refusal::NoClient;
    return BilledVisit{.bill = {.consultID = consultID,
                                .pno = pno,
                                .patient = patient,
                                .retainID = retainID,
                                .retainCode = client.text("retainCode"),
                                .category = visit.text("clientcatID"),
                                .referal = visit.text("referal"),
                                .billEndDay = int(client.integer("BillEndDate"))},
                       .date = visit.date("recdate"),
                       .client = visit.text("RetainName")};
}

std::optional<Refusal> whyNotBilled(Connection& connection, const QString& consultID, const QString& pno,
                                    const QString& retainID) {
    if (isBillProcessed(connection, consultID))
        return Refusal::BillProcessed;
    const Recordset visit(connection, Sql("select pno,retainID from qryhVisitsForAttend where consultid ='")
                                          << consultID << "'");
    if (visit.eof() || visit.text("pno") != pno || visit.text("retainID") != retainID)
        return Refusal::VisitChanged;
    return std::nullopt;
}

std::optional<Refusal> whyNotBilled(Connection& connection, const BillInHand& bill) {
    return whyNotBilled(connection, bill.consultID, bill.pno, bill.retainID);
}

} // namespace orvane
