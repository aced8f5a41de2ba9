#include "session/Settings.h"

#include <QVector>
#include <variant>

namespace orvane {

namespace {

/// A variable of the session: a text, a whole number or a yes/no value.
using Variable = std::variant<QString Session::*, qlonglong Session::*, bool Session::*>;

/// One setting of the start: what is asked and what becomes of the answer.
struct Rule {
    SqlLiteral statement;
    const char* column = "idval";
    QVector<Variable> variables;     ///< each takes the column's value
    bool isRequired = false;         ///< without its row the start ends
    const char* defaultValue = "";   ///< without its row, where the start goes on
    const char* noRowText = nullptr; ///< shown when there is no row
    const char* emptyText = nullptr; ///< shown before the start ends when the value is an empty text or 0
    bool forPosting = false;         ///< asked only while posting to the accounts is on
    void (*then)(Session&) = nullptr;
};

void decidePostingMode(Session& session) {
    session.gAcctPostAuto = session.gAcctPostType.compare(QLatin1String("AUTO"), Qt::CaseInsensitive) == 0;
}

/// An account of the ledger, which posting cannot do without.
Rule postingAccount(SqlLiteral statement, QString Session::*variable, const char* noRowText, const char* emptyText) {
    return {.statement = statement,
            .variables = {variable},
            .isRequired = true,
            .noRowText = noRowText,
            .emptyText = emptyText,
            .forPosting = true};
}

QVector<Rule> postingRules() {
    using S = Session;
    return {
        {.statement = "select Period from AccountMonth",
         .column = "Period",
         .variables = {&S::gCurrentPeriod, &S::gPeriod},
         .isRequired = true,
         .noRowText = "Acct Current_Period missing",
         .forPosting = true},
        {.statement = "select idval from AppDefaults where ID='ACCT_SUSP'",
         .variables = {&S::gAcctSusp},
         .isRequired = true,
         .noRowText = "Suspense Account No (ACCT_SUSP/ACCT_SUSP_DESC) missing",
         .forPosting = true},
        {.statement = "select idval from AppDefaults where ID='ACCT_SUSP_DESC'",
         .variables = {&S::gAcctSuspDesc},
         .defaultValue = "OTHERS",
         .forPosting = true},
        {.statement = "select idval from AppDefaults where ID='AcctPostType'",
         .variables = {&S::gAcctPostType},
         .defaultValue = "AUTO",
         .forPosting = true,
         .then = decidePostingMode},
        {.statement = "select idval from AppDefaults where ID='AUTO_TRAN_NO'",
         .variables = {&S::gAutoTranNo},
         .defaultValue = "YES",
         .emptyText = "AUTO_TRAN_NO needed for Posting",
         .forPosting = true},
        postingAccount("select idval from AppDefaults where ID='AcctCostCenter'", &S::gAcctCostCenter,
                       "AcctCostCenter needed for Posting", "AcctCostCenter needed for Posting"),
        postingAccount("select idval from AppDefaults where ID='AcctNoPOS'", &S::gAcctNoPOS,
                       "POS Acct No needed for Posting", "POS Acct No needed for Posting"),
        postingAccount("select idval from AppDefaults where ID='AcctNoCheque'", &S::gAcctNoCheque,
                       "Cheque Acct No needed for Posting", "Cheque Acct No needed for Posting"),
        postingAccount("select idval from AppDefaults where ID='AcctNoTransfer'", &S::gAcctNoTransfer,
                       "Transfer Acct No needed for Posting", "Transfer Acct No needed for Posting"),
        postingAccount("select idval from AppDefaults where ID='AcctNoCash'", &S::gAcctNoCash,
                       "Cash Acct No needed for Posting", "Cash Acct No needed for Posting"),
        // The texts of the next two are crossed, and stay so.
        {.statement = "select idval from AppDefaults where ID='CashAccountIndex'",
         .variables = {&S::gCashAccountIndex},
         .isRequired = true,
         .noRowText = "CashAccountIndex needed for Posting",
         .emptyText = "Cash Acct Index No needed for Posting",
         .forPosting = true},
        {.statement = "select idval from AppDefaults where ID='ARAccountIndex'",
         .variables = {&S::gARAccountIndex},
         .isRequired = true,
         .noRowText = "Cash Acct Index No needed for Posting",
         .emptyText = "ARAccountIndex needed for Posting",
         .forPosting = true},
        postingAccount("select idval from AppDefaults where ID='AcctNoSales'", &S::gAcctNoSales,
                       "Sales Acct No needed for Posting", "Cash Sales Acct No needed for Posting"),
        postingAccount("select idval from AppDefaults where ID='AcctNoSalesInv'", &S::gAcctNoSalesInv,
                       "Sales Invoice Acct No needed for Posting", "Sales Invoice Acct No needed for Posting"),
    };
}

/// All settings in the order in which they are read.
QVector<Rule> makeRules() {
    using S = Session;
    QVector<Rule> rules{
        {.statement = "select idval from AppDefaults where ID='PRIVATE'",
         .variables = {&S::gPrivateTariff},
         .isRequired = true,
         .noRowText = "System Default Value needed for Private Tariff"},
        {.statement = "select idval from AppDefaults where ID='LockPrice'",
         .variables = {&S::gLockPrice},
         .defaultValue = "YES"},
        {.statement = "select idval from AppDefaults where ID='RevTypeRpt'",
         .variables = {&S::gRevTypeRpt},
         .defaultValue = "NO"},
        {.statement = "select idval from AppDefaults where ID='AcctPostOn'", .variables = {&S::gAcctPostOn}},
    };
    rules += postingRules();
    rules += {
        {.statement = "select idval from AppDefaults where ID='NHISFEE'",
         .variables = {&S::gNHISFee},
         .defaultValue = "ALL",
         .noRowText = "System Default Value needed for NHIS % Fee"},
        {.statement = "select idval from AppDefaults where ID='BillTo'",
         .variables = {&S::gBillTo},
         .defaultValue = "0001"},
    };
    return rules;
}

[[noreturn]] void refuse(const Rule& rule, const QString& value, const QString& wanted) {
    throw DataError(QStringLiteral("The setting asked by \"%1\" has the value \"%2\", which is not %3.")
                        .arg(Sql(rule.statement).text(), value, wanted));
}

/// The words of a text flag, or a number; an empty value is no.
bool parseFlag(const Rule& rule, const QString& value) {
    const QString word = value.trimmed().toUpper();
    if (word.isEmpty() || word == QLatin1String("FALSE") || word == QLatin1String("NO"))
        return false;
    if (word == QLatin1String("TRUE") || word == QLatin1String("YES"))
        return true;
    bool isNumber = false;
    const double number = word.toDouble(&isNumber);
    if (!isNumber)
        refuse(rule, value, "true or false");
    return number != 0;
}

/// An empty value is 0.
qlonglong parseIndex(const Rule& rule, const QString& value) {
    bool isNumber = false;
    const qlonglong number = value.trimmed().toLongLong(&isNumber);
    if (!isNumber && !value.trimmed().isEmpty())
        refuse(rule, value, "a whole number");
    return number;
}

/// Stores the value and says whether it counts as empty.
bool store(Session& session, const Rule& rule, const Variable& variable, const QString& value) {
    if (const auto* text = std::get_if<QString Session::*>(&variable)) {
        session.*(*text) = value;
        return value.isEmpty();
    }
    if (const auto* number = std::get_if<qlonglong Session::*>(&variable)) {
        session.*(*number) = parseIndex(rule, value);
        return session.*(*number) == 0;
    }
    session.*std::get<bool Session::*>(variable) = parseFlag(rule, value);
    return false;
}

bool readSetting(Program& program, Connection& connection, const Rule& rule) {
    const Recordset row(connection, rule.statement);
    if (row.eof() && rule.noRowText)
        program.box(QString::fromUtf8(rule.noRowText));
    if (row.eof() && rule.isRequired)
        return false;
    const QString value = row.eof() ? QString::fromUtf8(rule.defaultValue) : row.text(QString::fromLatin1(rule.column));
    bool isEmpty = false;
    for (const Variable& variable : rule.variables)
        isEmpty = store(program.session, rule, variable, value);
    if (rule.then)
        rule.then(program.session);
    if (row.eof() || !isEmpty || !rule.emptyText)
        return true;
    program.box(QString::fromUtf8(rule.emptyText));
    return false;
}

} // namespace

bool readSettings(Program& program) {
    static const QVector<Rule> rules = makeRules();
    Connection connection = program.openBilling();
    for (const Rule& rule : rules) {
        if (rule.forPosting && !program.session.gAcctPostOn)
            continue;
        if (!readSetting(program, connection, rule))
            return false;
    }
    return true;
}

} // namespace orvane
