#pragma once

#include "billing/Tariff.h"
#include "session/Program.h"

namespace orvane {

/// The fields of an entry line that an item's lookup reads and fills.
struct TariffFields {
    ComboBox& cboCat;
    ComboBox& cboDrug;
    TextBox& txtPrice;
    TextBox& txtQty;
    Label& lblStock;
    Label& lblCat;
    Label& lblInfo;
    ComboBox& cboFFS2;
    ComboBox* cboRev; ///< null on a screen without revenue types
};

/// The whole lookup for the item named by cboDrug, run when the user picks it: the fields take its price, quantity,
/// stock, category, capitation and revenue type. An empty client or category stops with its message. Raises DataError.
void onItemPicked(Program& program, const TariffPolicy& policy, const TariffFields& fields, const TariffVisit& visit);

/// Takes back what the item before left: price, stock and quantity 0, no category, no information, no revenue type.
void resetTariffFields(const TariffFields& fields);

} // namespace orvane
