// What the parts of one statement cost: composing it, translating it, wording an amount.
#include "data/dialect/Sql.h"
#include "data/dialect/Statement.h"
#include "data/dialect/Translator.h"
#include "data/words/FigToWrd.h"
#include "data/words/Money.h"

#include <benchmark/benchmark.h>

namespace orvane {

namespace {

Sql waitingItems() {
    Sql sql("select * from qryBillAccum where attendedTo=0  and  consultID='");
    sql << QStringLiteral("001OFL0000001")
        << "'  and ClientCat not in ('HMO','PHIS','NHIS')  and SNo not in (Select SNo from BillingDetails)";
    return sql;
}

void composeStatement(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(waitingItems().parts().form());
}
BENCHMARK(composeStatement);

void translateStatement(benchmark::State& state) {
    const QString tsql = waitingItems().text();
    const Engine engine = state.range(0) == 0 ? Engine::Sqlite : Engine::Postgresql;
    for (auto _ : state)
        benchmark::DoNotOptimize(translate(tsql, engine));
}
BENCHMARK(translateStatement)->Arg(0)->Arg(1);

/// The same when a statement of its kind came before.
void translateKeptStatement(benchmark::State& state) {
    const Sql sql = waitingItems();
    const Engine engine = state.range(0) == 0 ? Engine::Sqlite : Engine::Postgresql;
    for (auto _ : state)
        benchmark::DoNotOptimize(statementOf(sql.parts(), engine));
}
BENCHMARK(translateKeptStatement)->Arg(0)->Arg(1);

void wordAmount(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(figToWrd().amountToWords(987654321.25));
}
BENCHMARK(wordAmount);

void showAmount(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(formatNumber(1234567.5, "#,###.00"));
}
BENCHMARK(showAmount);

} // namespace

} // namespace orvane

BENCHMARK_MAIN();
