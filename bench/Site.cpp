#include "bench/Site.h"

#include "screens/Screens.h"
#include "session/Main.h"

namespace orvane {

QDateTime lastEvening(const QString& homeFolder) {
    QuietUi ui;
    Program program(homeFolder, ui);
    prepareServer(program);
    Connection billing = program.openBilling();
    const Recordset last(billing, Sql("select max(recDate) as Day from hRecords"));
    return {last.date("Day"), QTime(20, 0)};
}

Site::Site(const QString& home, const QString& name)
    : copy(home, name), now(lastEvening(copy.folder())), program(copy.folder(), ui), recorder(program, copy.engine()) {
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
