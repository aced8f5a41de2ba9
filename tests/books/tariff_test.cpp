#include "BooksTest.h"

#include "books/DrugPrice.h"
#include "books/Tariff.h"

namespace orvane {
namespace {

const QString NoTemplate =
    "Price Template for this HMO/Company Yet to be Created! Proceed to use Hospital Private tariff";
const QString NoPrice = "No price for this HMO/Company! Proceed to use Hospital Private tariff";

class Tariff : public BooksTest {
protected:
    void SetUp() override {
        BooksTest::SetUp();
        for (const char* row : {
                 "update DrugNHIS set RevType='LABORATORY' where drgName='AMOXICILLIN 500MG' and company='0201'",
                 "insert into DrugNHIS (drgName, company, Price, Capitated, RevType) values "
                 "('PARACETAMOL 500MG', 'NHIS', 1530, 'YES', 'DRUGS'), ('PARACETAMOL 500MG', '0301', 99, 'NO', "
                 "'DRUGS'), ('ARTEMETHER INJECTION', '0102', null, 'NO', '')",
                 "insert into LabServiceNHIS (drgName, company, Price, Capitated, RevType) values ('FULL BLOOD COUNT', "
                 "'0201', -5, 'YES', 'LABORATORY')",
                 "insert into drugs (drgName, drgCatName, Capitated) values ('DOCTOR''S MIX', 'SYRUPS', 'YES')",
                 "insert into hServiceNHIS (service, company, Price, Capitated) values ('WOUND DRESSING', '0102', "
                 "1000, 'YES')",
             })
            billing.run(row);
    }

    TariffAnswer resolve(const TariffPolicy& policy, const QString& kind, const TariffVisit& visit,
                         const QString& item) {
        return resolveTariff(billing, policy, *tariffKind(kind, policy), visit, item, "0001");
    }
};
ORVANE_ON_EACH_ENGINE(Tariff);

TEST_P(Tariff, FallsBackFromClientToPrivateToMaster) {
    const struct {
        const char *kind, *category, *client, *item, *price, *quantity, *stock, *itemCategory, *capitated, *revType;
        QString fallback = {};
    } cases[] = {
        {"DRUG", "HMO", "0201", "PARACETAMOL 500MG", "40.00", "0", "500", "TABLETS", "YES", "DRUGS", {}},
        {"DRUG", "PHIS", "0201", "PARACETAMOL 500MG", "40.00", "0", "500", "TABLETS", "YES", "DRUGS", {}},
        {"DRUG", "PRIVATE", "0001", "PARACETAMOL 500MG", "50.00", "0", "500", "TABLETS", "NO", "DRUGS", {}},
        {"DRUG", "NHIS", "0301", "PARACETAMOL 500MG", "1,530.00", "0", "500", "TABLETS", "YES", "DRUGS", {}},
        {"DRUG", "HMO", "0201", "AMOXICILLIN 500MG", "120.00", "0", "500", "TABLETS", "NO", "LABORATORY", NoPrice},
        {"DRUG", "MTHLY", "0102", "ARTEMETHER INJECTION", "850.00", "0", "500", "INJECTIONS", "NO", "", NoPrice},
        {"DRUG", "HMO", "0201", "ARTEMETHER INJECTION", "850.00", "0", "500", "INJECTIONS", "NO", "", NoTemplate},
        {"LAB", "HMO", "0201", "FULL BLOOD COUNT", "3,500.00", "1", "***", "HAEMATOLOGY", "NO", "LABORATORY", NoPrice},
        {"INVESTIGATION", "HMO", "0201", "MALARIA PARASITE", "1,200.00", "1", "***", "PARASITOLOGY", "NO",
         "LABORATORY"},
        {"SERVICE", "MTHLY", "0102", "WOUND DRESSING", "1,000.00", "1", "***", "NURSING", "NO", "", {}},
        {"DRUG", "HMO", "0201", "DOCTOR'S MIX", "0", "1", "0", "SYRUPS", "YES", "", NoTemplate},
        {"DRUG", "PRIVATE", "0001", "DOCTOR'S MIX", "0", "1", "0", "SYRUPS", "NO", "", NoTemplate},
        {"SERVICE", "PRIVATE", "0001", "NO SUCH THING", "0", "0", "0", "", "", "", NoTemplate},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.category) + " " + c.item);
        const TariffAnswer got = resolve(BillPatTariff, c.kind, {c.category, c.client, "NO"}, c.item);
        EXPECT_EQ((QStringList{got.price, got.quantity, got.stock, got.category, got.capitated, got.revType}),
                  (QStringList{c.price, c.quantity, c.stock, c.itemCategory, c.capitated, c.revType}));
        EXPECT_EQ(got.fallback, c.fallback);
    }
}

TEST_P(Tariff, AdjustmentKnowsFewerClientsAndKinds) {
    EXPECT_EQ(resolve(BillPatAdjustTariff, "DRUG", {"PHIS", "0201", "NO"}, "PARACETAMOL 500MG").capitated, "NO");
    EXPECT_EQ(resolve(BillPatAdjustTariff, "DRUG", {"HMO", "0201", "NO"}, "PARACETAMOL 500MG").capitated, "YES");
    EXPECT_EQ(
        resolve(BillPatAdjustTariff, BillPatAdjustTariff.laboratory, {"HMO", "0201", "NO"}, "MALARIA PARASITE").price,
        "1,200.00");
    EXPECT_EQ(tariffKind("INVESTIGATION", BillPatAdjustTariff), nullptr);
    EXPECT_EQ(tariffKind("INVESTIGATION", BillPatTariff), tariffKind("LAB", BillPatTariff));
}

TEST_P(Tariff, CapitationHoldsOnlyForCapitatedClients) {
    const struct {
        const char *category, *feeForService, *flag, *verified;
    } cases[] = {{"HMO", "NO", "YES", "YES"},    {"NHIS", "NO", "YES", "YES"}, {"PHIS", "NO", "YES", "YES"},
                 {"HMO", "YES", "YES", "NO"},    {"HMO", "NO", "", "NO"},      {"HMO", "NO", "NO", "NO"},
                 {"PRIVATE", "NO", "YES", "NO"}, {"MTHLY", "NO", "YES", "NO"}};
    for (const auto& c : cases)
        EXPECT_EQ(verifiedCapitation(BillPatTariff, {c.category, "0201", c.feeForService}, c.flag), c.verified)
            << c.category << c.feeForService << c.flag;
}

TEST_P(Tariff, ChosenFlagsGoToTheLowestTemplateRowOfTheClient) {
    billing.run(
        "insert into LabServiceNHIS (drgName, company, Price, Capitated) values ('MALARIA PARASITE', '0201', 1, 'NO')");
    const TariffVisit hmo{"HMO", "0201", "NO"};
    save<Saved>([&](Books& books) -> Given<Saved> {
        rememberTemplateFlags(books, *tariffKind("LAB", BillPatTariff), hmo, "MALARIA PARASITE", "YES", "OTHERS");
        rememberTemplateFlags(books, *tariffKind("DRUG", BillPatTariff), {"NHIS", "0301", "NO"}, "PARACETAMOL 500MG",
                              "NO", "SERVICES");
        rememberTemplateFlags(books, *tariffKind("SERVICE", BillPatTariff), hmo, "WOUND DRESSING", "YES", "SERVICES");
        return Saved{};
    });
    EXPECT_EQ(scalar("select count(*) from LabServiceNHIS where Capitated='YES' and RevType='OTHERS'"), "1");
    EXPECT_EQ(scalar("select Price from LabServiceNHIS where Capitated='YES' and RevType='OTHERS'"), "1200");
    EXPECT_EQ(scalar("select company from DrugNHIS where RevType='SERVICES'"), "NHIS");
    EXPECT_EQ(scalar("select count(*) from hServiceNHIS where Capitated='YES' and RevType='SERVICES'"), "0")
        << "the HMO has no row for this service";
}

TEST(BaseCost, UndoesAMarkUp) {
    const struct {
        double stated, percent;
        std::optional<double> base;
    } cases[] = {{120, 20, 100}, {1000, 33, 751.88}, {2500, 0, 2500}, {0, 20, 0}, {100, -50, 200}, {120, -100, {}}};
    for (const auto& test : cases)
        EXPECT_EQ(baseCost(test.stated, test.percent), test.base) << test.stated << ' ' << test.percent;
}

} // namespace
} // namespace orvane
