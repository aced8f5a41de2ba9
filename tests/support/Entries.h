#pragma once

#include "play/Hand.h"
#include "session/Program.h"

namespace orvane {

// What users enter on the real screens, for proofs, kills, faults and benches alike: each function opens its screen,
// enters up to the last press and gives the hand that makes it, on "OKButton" where nothing else is said. What a user
// could not do raises DataError. Amounts are typed texts, in naira.

/// The screen, opened or brought forward.
Hand openScreen(Program& program, const QString& form);

/// Searches a patient by name on the attendance screen and picks him by his number.
Hand findPatient(Program& program, const QString& name, const QString& pno);
/// The rest of his attendance.
void completeAttendance(Hand& hand, const QString& clinic = "OPD", const QString& officerID = "E001");

Hand enterDeposit(Program& program, const QString& bill, const QString& amount);
/// "cmdOK" loads and collates the bill.
Hand findBill(Program& program, const QString& bill);
Hand loadBill(Program& program, const QString& bill);
/// Cash for the bill that is loaded; its save then gives a receipt.
void enterCash(Hand& hand, const QString& payFor, const QString& amount);
Hand enterReceipt(Program& program, const QString& bill, const QString& amount);
/// The reversal of the receipt that is selected on the receipt screen.
Hand enterReversal(Program& program);
Hand enterManualReceipt(Program& program, const QString& bill, const QString& number, const QString& billed,
                        const QString& paid);
Hand enterDiscount(Program& program, const QString& bill, const QString& amount);
/// One of the screens that change an item, opened on it; the item's bill is loaded.
Hand openAdjustment(Program& program, const QString& form, const QString& bill, const QString& item);
/// "cmdSave" saves it.
Hand enterAdjustment(Program& program, const QString& bill, const QString& item, const QString& qty,
                     const QString& price);

/// The number on the receipt that the last press has shown, which is closed. Raises DataError where none is.
QString takeReceipt(Program& program);

} // namespace orvane
