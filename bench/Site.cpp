#include "bench/Site.h"

#include "screens/Screens.h"
#include "session/Main.h"

namespace orvane {

namespace {

QDateTime timeOf(Moment moment, const QString& homeFolder) {
    QuietUi ui;
    Program program(homeFolder, ui);
    prepareServer(program);
    Connection billing = program.openBilling();
    const Recordset last(billing, Sql("select max(recDate) as Day from hRecords"));
    const QDate day = last.date("Day");
    return moment == Moment::LastEvening ? QDateTime(day, QTime(20, 0)) : QDateTime(day.addDays(1), QTime(9, 0));
}

} // namespace

Site::Site(const QString& home, const QString& name, Moment moment)
    : copy(home, name), now(timeOf(moment, copy.folder())), program(copy.folder(), ui),
      recorder(program, copy.engine()) {
    program.data().setDisposable();
    program.data().setServerClock(now);
    ui.setClock(now);
    registerScreens(program);
    if (!Main(program))
        throw DataError(ui.takeBoxes().join(QLatin1Char('\n')));
    ui.takeBoxes();
}

void Site::tidy() {
    for (const QString& name : program.formNames())
        if (Form* form = program.loadedForm(name); form && name != QLatin1String("MdiTolmek"))
            form->abandon();
    program.deleteClosedForms();
    ui.takeBoxes();
}

} // namespace orvane
