#pragma once

#include "books/Books.h"
#include "books/Given.h"

#include <optional>

namespace orvane {

/// The base private cost of what the billing manual states for a client type: its mark-up of `percent` undone, in naira
/// and whole kobo. None at -100 percent and below, where nothing is left of a price.
std::optional<double> baseCost(double stated, double percent);

/// What is kept of a drug or service.
struct DrugPrice {
    QString drug;
    QString unitDosage; ///< for billing; a number as it was typed
    double cost = 0;    ///< naira, the base private cost
};

/// Refuses a name that no drug or service bears: none is added here.
Given<Saved> changeDrugPrice(Books& books, const DrugPrice& price);

/// Adds every row of the working table drugsxxx to the drugs. One that is there already is a fault, and none is added.
void takePriceLoad(Books& books);

} // namespace orvane
