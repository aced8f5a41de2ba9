#include "billing/TariffEntry.h"

namespace orvane {

namespace {

void showAnswer(Program& program, const TariffPolicy& policy, const TariffFields& fields, const TariffAnswer& answer) {
    if (!answer.fallback.isEmpty()) {
        fields.lblInfo.setText(answer.fallback);
        if (policy.announcesFallback)
            program.box(answer.fallback);
    }
    fields.lblStock.setText(answer.stock);
    fields.lblCat.setText(answer.category);
    fields.txtQty.setText(answer.quantity);
    fields.txtPrice.setText(answer.price);
}

/// A type that the list does not hold leaves the box as it is.
void showRevenueType(const Program& program, ComboBox& cboRev, const QString& revType) {
    if (!revType.isEmpty())
        cboRev.setText(revType);
    else if (program.session.gRevTypeRpt == "YES")
        cboRev.setListIndex(-1);
    else
        cboRev.setText("OTHERS");
}

} // namespace

void resetTariffFields(const TariffFields& fields) {
    fields.txtPrice.setText("0");
    fields.lblStock.setText("0");
    fields.lblCat.clear();
    fields.lblInfo.clear();
    fields.txtQty.setText("0");
    if (fields.cboRev)
        fields.cboRev->setListIndex(-1);
}

void onItemPicked(Program& program, const TariffPolicy& policy, const TariffFields& fields, const TariffVisit& visit) {
    if (fields.cboDrug.listIndex() <= 0)
        return;
    if (policy.refusesEmptyClient && visit.clientCategory.isEmpty()) {
        program.box("Client Tariff Category cannot be empty please select Patient");
        fields.cboDrug.setText({});
        return;
    }
    if (fields.cboCat.text().isEmpty()) {
        program.box("Please specify Category");
        fields.cboCat.setFocus();
        return;
    }
    resetTariffFields(fields);
    QString capitated, revType;
    if (const TariffKind* kind = tariffKind(fields.cboCat.text(), policy)) {
        Connection connection = program.openBilling();
        const TariffAnswer answer =
            resolveTariff(connection, policy, *kind, visit, fields.cboDrug.text(), program.session.gPrivateTariff);
        showAnswer(program, policy, fields, answer);
        capitated = answer.capitated;
        revType = answer.revType;
    }
    // Cleared first: a flag that is neither YES nor NO must not leave the one of the item before.
    fields.cboFFS2.setListIndex(-1);
    fields.cboFFS2.setText(capitated.isEmpty() ? "NO" : capitated);
    if (fields.cboRev)
        showRevenueType(program, *fields.cboRev, revType);
    fields.cboFFS2.setText(verifiedCapitation(policy, visit, fields.cboFFS2.text()));
}

} // namespace orvane
