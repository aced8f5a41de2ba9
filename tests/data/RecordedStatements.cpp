#include "RecordedStatements.h"

#include "support/MoneyActions.h"

namespace orvane {

namespace {

bool isOnRows(const QString& tsql) {
    for (const char* word : {"select", "update", "delete"})
        if (tsql.startsWith(QLatin1StringView(word), Qt::CaseInsensitive))
            return true;
    return false;
}

QStringList record() {
    QStringList statements;
    for (const MoneyAction& action : moneyActions()) {
        const TestHome home(Engine::Sqlite);
        Workstation ws(home.folder());
        ws.layHospital();
        ws.program.data().setStatementHook([&](const QString& tsql) {
            if (isOnRows(tsql) && !statements.contains(tsql))
                statements << tsql;
        });
        EXPECT_TRUE(ws.start());
        action.lay(ws);
        action.enter(ws);
        action.press(ws);
        ws.program.data().setStatementHook({});
        ws.ui.forgetBoxes();
        ws.ui.takeQuestions();
    }
    return statements;
}

} // namespace

const QStringList& recordedStatements() {
    static const QStringList statements = record();
    return statements;
}

} // namespace orvane
