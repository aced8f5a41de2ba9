// The procedures of the accounting database by which a posting writes its legs.
#include "data/Assert.h"
#include "data/rows/procedures/Bodies.h"

namespace orvane {

namespace {

/// The month behind the newest period; where there is none yet, the current one or else the month of the server's day.
QDate nextMonth(Connection& connection) {
    const Recordset newest(connection, Sql("select top 1 PrdClose from AccountMonthOpen order by PeriodVal desc"));
    if (!newest.eof())
        return newest.date("PrdClose").addDays(1);
    const Recordset current(connection, Sql("select Period from AccountMonth"));
    const QDate month = current.eof() ? QDate() : QDate::fromString(current.text("Period") + "/01", "yyyy/MM/dd");
    if (month.isValid())
        return month;
    const Recordset clock(connection, Sql("select getdate() as Today"));
    return clock.date("Today");
}

} // namespace

Recordset nextTranID(Connection& connection, const QVariantMap&) {
    ORVANE_ASSERT(connection.inTransaction());
    connection.execute(Sql("update IDgen set ID=ID+1 where DestName='TRANID'"));
    const auto number = [&] {
        return Recordset(connection, Sql("select ID as tranID from IDgen where DestName='TRANID'"));
    };
    const Recordset known = number();
    if (!known.eof())
        return known;
    connection.execute(Sql("insert into IDgen (DestName, ID) values ('TRANID', 1)"));
    return number();
}

Recordset openNextPeriod(Connection& connection, const QVariantMap&) {
    const QDate month = nextMonth(connection);
    Recordset row(connection, Sql("select * from AccountMonthOpen where 1=2"));
    row.addNew();
    row.set("Period", month.toString("yyyy/MM"));
    row.set("PeriodVal", month.year() * 100 + month.month());
    row.set("PrdClose", QDate(month.year(), month.month(), month.daysInMonth()));
    row.set("isClose", 0);
    row.update();
    return {};
}

Recordset storeLeg(Connection& connection, const QVariantMap& parameters) {
    const Recordset current(connection, Sql("select Period from AccountMonth"));
    const QString period = parameters.value("@Period").toString();
    const bool isCurrent = !current.eof() && current.text("Period") == period;
    Recordset leg(connection, isCurrent ? Sql("select * from Tranxaction where 1=2")
                                        : Sql("select * from TranxactionTemp where 1=2"));
    leg.addNew();
    for (const char* column : {"TranID", "AccountNo", "TranNo", "TranDate", "CostCenterID", "Amount", "Description",
                               "TranCat", "EntryDate", "Period", "userName"})
        leg.set(column, parameters.value(QLatin1Char('@') + QLatin1String(column)));
    leg.update();
    return {};
}

} // namespace orvane
