#include "books/Bank.h"
#include "books/ExpenseItem.h"
#include "books/Supplier.h"
#include "data/rows/Transaction.h"
#include "demo/DemoParts.h"

namespace orvane {

namespace {

struct BankFacts {
    const char* name;
    QStringList branches;
};

struct ExpenseFacts {
    const char* category;
    const char* name;
    const char* description;
    const char* account;
    int price; ///< naira, for vouchers
};

struct SupplierFacts {
    const char* name;
    const char* category;
    const char* contact;
    const char* address;
    const char* account;
};

constexpr ExpenseFacts expenses[] = {
    {"POWER", "DIESEL", "FOR GENERATORS", "5310010", 1150},
    {"POWER", "ELECTRICITY BILL", "DISTRIBUTION COMPANY", "5310020", 285000},
    {"POWER", "GENERATOR SERVICE", "OIL, FILTERS AND WORKMANSHIP", "5410030", 96500},
    {"OFFICE", "PAPER AND TONER", "FOR BILLING AND RECORDS", "5310050", 8750},
    {"OFFICE", "INTERNET", "MONTHLY SUBSCRIPTION", "5310040", 45000},
    {"OFFICE", "NEWSPAPERS", "FOR THE WAITING ROOM", "5310050", 700},
    {"HOUSEKEEPING", "CLEANING MATERIALS", "SOAP, BLEACH AND MOPS", "5310060", 3200},
    {"HOUSEKEEPING", "LAUNDRY", "WARD LINEN", "5310060", 450},
    {"HOUSEKEEPING", "WASTE DISPOSAL", "CLINICAL WASTE", "5310030", 62000},
    {"HOUSEKEEPING", "SECURITY GUARDS", "MONTHLY FEE", "5310070", 180000},
    {"CLINICAL", "MEDICAL OXYGEN", "CYLINDER REFILL", "5110040", 12500},
    {"CLINICAL", "LOCUM DOCTOR", "NIGHT DUTY", "5210020", 35000},
    {"CLINICAL", "EQUIPMENT REPAIR", "ULTRASOUND PROBE", "5410010", 148000},
    {"STAFF", "TRAINING", "LIFE SUPPORT COURSE", "5210040", 27500},
};

constexpr SupplierFacts suppliers[] = {
    {"LANTERN PHARMA WHOLESALE (DEMO)", "SUPPLIER", "NGOZI EKE", "3 WHARF ROAD, APAPA", "2110010"},
    {"PALM QUAY DRUG DEPOT (DEMO)", "SUPPLIER", "MUSA GARBA", "18 MARKET ROAD, IKEJA", "2110010"},
    {"HARBOUR LIGHT CONSUMABLES (DEMO)", "SUPPLIER", "TOYIN COKER", "7 STATION ROAD, YABA", "2110020"},
    {"BLUE HERON DIAGNOSTICS SUPPLY (DEMO)", "SUPPLIER", "EFE OMORUYI", "22 COLLEGE ROAD, YABA", "2110020"},
    {"O'DARE & SONS BUILDERS (DEMO)", "CONTRACTOR", "KUNLE O'DARE", "5 QUARRY ROAD, IKEJA", "2110030"},
    {"STEADY HUM GENERATORS (DEMO)", "CONTRACTOR", "IFEANYI OBI", "41 UNITY CLOSE, AGEGE", "2110030"},
    {"DR. A. MARTINS, RADIOLOGY (DEMO)", "CONSULTANT", "ADE MARTINS", "9 PALM AVENUE, LEKKI", ""},
};

void makeBanks(Books& books) {
    const BankFacts banks[] = {{"HARMATTAN TRUST BANK (DEMO)", {"IKEJA", "SURULERE", "APAPA"}},
                               {"COWRIE COMMERCIAL BANK (DEMO)", {"IKEJA", "LEKKI"}},
                               {"BAOBAB SAVINGS BANK (DEMO)", {"YABA"}}};
    int code = 0;
    for (const BankFacts& bank : banks) {
        const QString name = QString::fromLatin1(bank.name);
        addBank(books, {.bankCode = {}, .bankName = name, .branch = "HEAD OFFICE", .location = "LAGOS ISLAND"});
        const QString bankCode = QStringLiteral("%1").arg(++code, 3, 10, QLatin1Char('0'));
        for (const QString& branch : bank.branches)
            addBankBranch(books, {bankCode, name, branch, "MARKET ROAD, " + branch});
    }
}

/// Gives the code of each item, "category/item".
QStringList makeExpenseItems(Books& books) {
    QStringList codes;
    QString category, code;
    for (const ExpenseFacts& facts : expenses) {
        if (category != QLatin1StringView(facts.category)) {
            category = QString::fromLatin1(facts.category);
            addExpenseCategory(books, category, {});
            code = books.document().section('/', 0, 0);
        }
        addExpenseItem(books, {code, QString::fromLatin1(facts.name), QString::fromLatin1(facts.description)});
        codes << books.document();
    }
    return codes;
}

void makeSuppliers(Books& books) {
    for (const SupplierFacts& facts : suppliers)
        addSupplier(books, {.name = QString::fromLatin1(facts.name),
                            .category = QString::fromLatin1(facts.category),
                            .contact = QString::fromLatin1(facts.contact),
                            .address = QString::fromLatin1(facts.address),
                            .phone = "08000001500",
                            .email = {},
                            .accountNo = QString::fromLatin1(facts.account)});
}

/// What the store took in and the suppliers' invoices say, each week of the history: entered on the invoice's day, as
/// another program of the hospital does.
void makeSupplierEntries(Connection& billing, const DemoHospital& hospital) {
    const char* const stocks[] = {"1260010", "1260010", "1260040", "1260030"};
    Recordset entries(billing, Sql("select * from StockEntryAcct where 1=2"));
    const QDate first = hospital.options.until.addDays(1 - hospital.options.days);
    int number = 0;
    for (QDate day = first; day <= hospital.options.until; day = day.addDays(7))
        for (int supplier = 0; supplier < int(std::size(stocks)); ++supplier, ++number)
            addRow(entries, {{"EntryDate", day},
                             {"InvoiceDate", day},
                             {"InvoiceNo", QStringLiteral("INV-%1").arg(1401 + number)},
                             {"POID", QStringLiteral("PO%1").arg(number + 1, 5, 10, QLatin1Char('0'))},
                             {"supplierID", QStringLiteral("%1").arg(supplier + 1, 4, 10, QLatin1Char('0'))},
                             {"InvAcctNo", QString::fromLatin1(stocks[supplier])},
                             {"Amount", 48'000.5 + number * 7'919 % 260'000}});
}

/// Vouchers that were approved elsewhere and wait for their payment.
void makeVouchers(Connection& billing, const DemoHospital& hospital, const QStringList& codes) {
    const QStringList receivers = {"STEADY HUM GENERATORS (DEMO)", "BUKOLA ADEYEMO", "HALIMA YUSUF",
                                   "DR. A. MARTINS, RADIOLOGY (DEMO)"};
    Recordset vouchers(billing, Sql("select * from hExpenseApprvFinal where 1=2"));
    Recordset items(billing, Sql("select * from hExpenseDetailsApprvFinal where 1=2"));
    for (int i = 0; i < int(std::size(expenses)); i += 2) {
        const QString number = QStringLiteral("V%1").arg(i / 2 + 1, 5, 10, QLatin1Char('0'));
        const QDate day = hospital.options.until.addDays(i / 2 - 8);
        double amount = 0;
        for (int k = i; k < i + 2; ++k) {
            const ExpenseFacts& facts = expenses[k];
            const int qty = facts.price < 20000 ? 4 + k : 1;
            amount += qty * facts.price;
            addRow(items, {{"vouchNo", number},
                           {"ExpDate", day},
                           {"ItemCode", codes.at(k)},
                           {"ItemName", QString::fromLatin1(facts.name)},
                           {"Description", QString::fromLatin1(facts.description)},
                           {"Qty", qty},
                           {"Price", facts.price},
                           {"SubTotal", qty * facts.price},
                           {"RefNo", "REQ" + number.mid(1)},
                           {"AcctID", QString::fromLatin1(facts.account)}});
        }
        addRow(vouchers, {{"vouchNo", number},
                          {"ApprvDate", day},
                          {"ReceivedBy", receivers.at(i / 2 % receivers.size())},
                          {"ApprvBy", "amina.b"},
                          {"Amount", amount},
                          {"Remarks", QString::fromLatin1(expenses[i].category)}});
    }
}

} // namespace

void makeAccountLists(Connection& billing, const DemoHospital& hospital) {
    Transaction transaction(billing);
    const BookContext context;
    Books books(billing, context);
    makeBanks(books);
    const QStringList codes = makeExpenseItems(books);
    makeSuppliers(books);
    makeSupplierEntries(billing, hospital);
    makeVouchers(billing, hospital, codes);
    transaction.commit();
}

} // namespace orvane
