#include "data/engine/ExactSum.h"

#include <cmath>
#include <sqlite3.h>

namespace orvane {

namespace {

constexpr double unitsInNaira = 10'000;
constexpr double mostUnits = 1e15; ///< below it a double holds every unit

/// The rows of a group so far. All zero is an empty one: that is what the engine gives.
struct Sum {
    sqlite3_int64 rows, reals, inexact; ///< how many: not null; not whole numbers; in no whole units
    sqlite3_int64 units, whole;
    bool overflown;
    double plain; ///< as doubles add up

    void add(sqlite3_value* value, int sign);
    void addWhole(sqlite3_int64 number, int sign);
    void addReal(double number, int sign);
    void addUnits(sqlite3_int64 number);
};

void Sum::add(sqlite3_value* value, int sign) {
    const int type = sqlite3_value_numeric_type(value);
    if (type == SQLITE_NULL)
        return;
    rows += sign;
    if (type == SQLITE_INTEGER)
        addWhole(sqlite3_value_int64(value), sign);
    else
        addReal(sqlite3_value_double(value), sign);
}

void Sum::addWhole(sqlite3_int64 number, int sign) {
    plain += sign * double(number);
    overflown = __builtin_add_overflow(whole, sign * number, &whole) || overflown;
    if (std::abs(double(number)) * unitsInNaira < mostUnits)
        addUnits(sign * number * sqlite3_int64(unitsInNaira));
    else
        inexact += sign;
}

void Sum::addReal(double number, int sign) {
    plain += sign * number;
    reals += sign;
    const double scaled = std::nearbyint(number * unitsInNaira);
    if (std::abs(scaled) < mostUnits && scaled / unitsInNaira == number)
        addUnits(sign * sqlite3_int64(scaled));
    else
        inexact += sign;
}

void Sum::addUnits(sqlite3_int64 number) {
    overflown = __builtin_add_overflow(units, number, &units) || overflown;
}

Sum* sumOf(sqlite3_context* context) {
    return static_cast<Sum*>(sqlite3_aggregate_context(context, sizeof(Sum)));
}

template <int sign>
void step(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (Sum* sum = sumOf(context))
        sum->add(arguments[0], sign);
    else
        sqlite3_result_error_nomem(context);
}

void give(sqlite3_context* context) {
    const Sum* sum = sumOf(context);
    if (!sum || sum->rows == 0)
        sqlite3_result_null(context);
    else if (sum->reals == 0 && sum->overflown)
        sqlite3_result_error(context, "integer overflow", -1);
    else if (sum->reals == 0)
        sqlite3_result_int64(context, sum->whole);
    else if (sum->inexact == 0 && !sum->overflown)
        sqlite3_result_double(context, double(sum->units) / unitsInNaira);
    else
        sqlite3_result_double(context, sum->plain);
}

} // namespace

void installExactSum(sqlite3* handle) {
    sqlite3_create_window_function(handle, "sum", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, step<1>, give, give,
                                   step<-1>, nullptr);
}

} // namespace orvane
