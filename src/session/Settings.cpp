#include "session/Settings.h"

#include <QDir>

namespace orvane {

namespace {

using Rule = SettingRule;
constexpr bool posting = true;

void decidePostingMode(Session& session) {
    session.gAcctPostAuto = session.gAcctPostType.compare(QLatin1String("AUTO"), Qt::CaseInsensitive) == 0;
}

QVector<SettingRule> makeRules() {
    using S = Session;
    const auto value = [](auto variable) { return QVector<SettingTarget>{{"idval", variable}}; };
    return {
        {"select * from appSettings where ID='BILL'",
         {{"idval", &S::billSetting1},
          {"idval2", &S::billSetting2},
          {"idval3", &S::billSetting3},
          {"idval4", &S::billSetting4}},
         Rule::UseDefault,
         "",
         nullptr,
         nullptr,
         false,
         {{&S::gRctPicture, "RctPix.JPG"},
          {&S::gRctPictureLab, "RctPixLab.JPG"},
          {&S::gRctPictureDen, "RctPixDen.JPG"}}},
        {"select idval,idval2,idval3,idval5 from appSettings where ID='LAB'",
         {{"idval", &S::labSetting1},
          {"idval2", &S::labSetting2},
          {"idval3", &S::labSetting3},
          {"idval5", &S::labSetting5}},
         Rule::UseDefault,
         "",
         nullptr,
         nullptr,
         false,
         {{&S::gRctPictureLab2, "RctPix.JPG"}}},
        {"select idval from AppDefaults where ID='PRIVATE'", value(&S::gPrivateTariff), Rule::NoRowEnds, "",
         "System Default Value needed for Private Tariff", nullptr},
        {"select idval from AppDefaults where ID='LockPrice'", value(&S::gLockPrice), Rule::UseDefault, "YES", nullptr,
         nullptr},
        {"select idval from AppDefaults where ID='RevTypeRpt'", value(&S::gRevTypeRpt), Rule::UseDefault, "NO", nullptr,
         nullptr},
        {"select idval from AppDefaults where ID='AcctPostOn'", value(&S::gAcctPostOn), Rule::UseDefault, "", nullptr,
         nullptr},
        {"select Period from AccountMonth",
         {{"Period", &S::gCurrentPeriod}, {"Period", &S::gPeriod}},
         Rule::NoRowEnds,
         "",
         "Acct Current_Period missing",
         nullptr,
         posting},
        {"select idval from AppDefaults where ID='ACCT_SUSP'", value(&S::gAcctSusp), Rule::NoRowEnds, "",
         "Suspense Account No (ACCT_SUSP/ACCT_SUSP_DESC) missing", nullptr, posting},
        {"select idval from AppDefaults where ID='ACCT_SUSP_DESC'", value(&S::gAcctSuspDesc), Rule::UseDefault,
         "OTHERS", nullptr, nullptr, posting},
        {"select idval from AppDefaults where ID='AcctPostType'",
         value(&S::gAcctPostType),
         Rule::UseDefault,
         "AUTO",
         nullptr,
         nullptr,
         posting,
         {},
         decidePostingMode},
        {"select idval from AppDefaults where ID='AUTO_TRAN_NO'", value(&S::gAutoTranNo), Rule::UseDefault, "YES",
         nullptr, "AUTO_TRAN_NO needed for Posting", posting},
        {"select idval from AppDefaults where ID='AcctCostCenter'", value(&S::gAcctCostCenter), Rule::NoRowEnds, "",
         "AcctCostCenter needed for Posting", "AcctCostCenter needed for Posting", posting},
        {"select idval from AppDefaults where ID='AcctNoPOS'", value(&S::gAcctNoPOS), Rule::NoRowEnds, "",
         "POS Acct No needed for Posting", "POS Acct No needed for Posting", posting},
        {"select idval from AppDefaults where ID='AcctNoCheque'", value(&S::gAcctNoCheque), Rule::NoRowEnds, "",
         "Cheque Acct No needed for Posting", "Cheque Acct No needed for Posting", posting},
        {"select idval from AppDefaults where ID='AcctNoTransfer'", value(&S::gAcctNoTransfer), Rule::NoRowEnds, "",
         "Transfer Acct No needed for Posting", "Transfer Acct No needed for Posting", posting},
        {"select idval from AppDefaults where ID='AcctNoCash'", value(&S::gAcctNoCash), Rule::NoRowEnds, "",
         "Cash Acct No needed for Posting", "Cash Acct No needed for Posting", posting},
        {"select idval from AppDefaults where ID='AcctNoOthers'", value(&S::gAcctNoOthers), Rule::UseDefault, "0000",
         nullptr, nullptr, posting},
        // The texts of the next two are crossed as the users know them.
        {"select idval from AppDefaults where ID='CashAccountIndex'", value(&S::gCashAccountIndex), Rule::NoRowEnds, "",
         "CashAccountIndex needed for Posting", "Cash Acct Index No needed for Posting", posting},
        {"select idval from AppDefaults where ID='ARAccountIndex'", value(&S::gARAccountIndex), Rule::NoRowEnds, "",
         "Cash Acct Index No needed for Posting", "ARAccountIndex needed for Posting", posting},
        {"select idval from AppDefaults where ID='AcctNoSales'",
         {{"idval", &S::gAcctNoSales}, {"idval", &S::gAcctNoSales2}},
         Rule::NoRowEnds,
         "",
         "Sales Acct No needed for Posting",
         "Cash Sales Acct No needed for Posting",
         posting},
        {"select idval from AppDefaults where ID='AcctNoSalesInv'",
         {{"idval", &S::gAcctNoSalesInv}, {"idval", &S::gAcctNoSalesInv2}},
         Rule::NoRowEnds,
         "",
         "Sales Invoice Acct No needed for Posting",
         "Sales Invoice Acct No needed for Posting",
         posting},
        {"select idval from AppDefaults where ID='NHISFEE'", value(&S::gNHISFee), Rule::UseDefault, "ALL",
         "System Default Value needed for NHIS % Fee", nullptr},
        {"select idval from AppDefaults where ID='OLDPNo'", value(&S::gOldPNo), Rule::UseDefault, "NO", nullptr,
         nullptr},
        {"select idval from AppDefaults where ID='BillTo'", value(&S::gBillTo), Rule::UseDefault, "0001", nullptr,
         nullptr},
        {"select idval from AppDefaults where ID='Coy_Code'", value(&S::gCoyCode), Rule::UseDefault, "SHORT", nullptr,
         nullptr},
    };
}

[[noreturn]] void refuse(const SettingRule& rule, const QString& value, const QString& wanted) {
    throw DataError(QStringLiteral("The setting asked by \"%1\" has the value \"%2\", which is not %3.")
                        .arg(Sql(rule.statement).text(), value, wanted));
}

/// The words of a text flag, or a number; an empty value is no.
bool parseFlag(const SettingRule& rule, const QString& value) {
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
qlonglong parseIndex(const SettingRule& rule, const QString& value) {
    bool isNumber = false;
    const qlonglong number = value.trimmed().toLongLong(&isNumber);
    if (!isNumber && !value.trimmed().isEmpty())
        refuse(rule, value, "a whole number");
    return number;
}

/// Stores the value and says whether it counts as empty.
bool store(Session& session, const SettingRule& rule, const SettingTarget& target, const QString& value) {
    if (const auto* text = std::get_if<QString Session::*>(&target.variable)) {
        session.*(*text) = value;
        return value.isEmpty();
    }
    if (const auto* number = std::get_if<qlonglong Session::*>(&target.variable)) {
        session.*(*number) = parseIndex(rule, value);
        return session.*(*number) == 0;
    }
    session.*std::get<bool Session::*>(target.variable) = parseFlag(rule, value);
    return false;
}

bool readSetting(Program& program, Connection& connection, const SettingRule& rule) {
    Session& session = program.session;
    const Recordset row(connection, rule.statement);
    if (row.eof() && rule.noRowText)
        program.box(QString::fromUtf8(rule.noRowText));
    if (row.eof() && rule.whenNoRow == SettingRule::NoRowEnds)
        return false;
    bool firstIsEmpty = false;
    for (qsizetype i = 0; i < rule.targets.size(); ++i) {
        const SettingTarget& target = rule.targets[i];
        const QString value =
            row.eof() ? QString::fromUtf8(rule.defaultValue) : row.text(QString::fromLatin1(target.column));
        const bool isEmpty = store(session, rule, target, value);
        firstIsEmpty = i == 0 ? isEmpty : firstIsEmpty;
    }
    for (const SettingPicture& picture : rule.pictures)
        session.*picture.variable =
            row.eof() ? QString() : QDir(program.homeFolder()).filePath(QString::fromLatin1(picture.file));
    if (rule.then)
        rule.then(session);
    if (!row.eof() && firstIsEmpty && rule.emptyText) {
        program.box(QString::fromUtf8(rule.emptyText));
        return false;
    }
    return true;
}

} // namespace

const QVector<SettingRule>& settingRules() {
    static const QVector<SettingRule> rules = makeRules();
    return rules;
}

bool readSettings(Program& program) {
    Connection connection = program.openBilling();
    for (const SettingRule& rule : settingRules()) {
        if (rule.forPosting && !program.session.gAcctPostOn)
            continue;
        if (!readSetting(program, connection, rule))
            return false;
    }
    return true;
}

} // namespace orvane
