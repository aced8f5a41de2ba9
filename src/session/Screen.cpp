#include "session/Screen.h"

#include <QPointer>
#include <QScopedValueRollback>

namespace orvane {

namespace {

const QString unknownText = QStringLiteral(
    "The connection to the database broke while this was being saved. It is not known whether it was saved.\n\n"
    "How to find out: press the same button again when the server is back. This screen then looks whether it was "
    "saved, and does not save it twice.");
const QString stillUnknownText =
    QStringLiteral("The database cannot be asked yet, so it is still not known whether the entry was saved. Please "
                   "press the same button again when the server is back.");
const QString savedText = "The entry was saved before the connection broke. It is not saved again.";
const QString notSavedText = "The entry was not saved when the connection broke. Please check it and save it again.";
const QString leftOpenText = QStringLiteral(
    "It is still not known whether the last entry was saved. Please look it up before you enter it again.");

/// A fault in what follows a save must not look as if nothing had been saved.
void doAfterSave(QString& followedSave, const std::function<void()>& follow) {
    const QScopedValueRollback<QString> thisSave(followedSave);
    try {
        follow();
    } catch (const DataError& fault) {
        throw DataError("The entry was saved. Only what follows it could not be done:\n" + fault.description(),
                        fault.statement(), fault.code());
    }
}

} // namespace

bool Screen::findPatient() {
    // An entry of which nobody knows whether it was saved stays as it is.
    if (m_openSave || !patientTaker())
        return false;
    const QPointer<Screen> self(this);
    session.sFoundPNo.clear();
    program.openModal("frmPatientFinder");
    // While the finder was in front the program may have ended.
    if (self && !session.sFoundPNo.isEmpty())
        userEvent([this] {
            if (const PatientTaker take = patientTaker())
                take(session.sFoundPNo);
        });
    return true;
}

void Screen::takeOnly(ComboBox& list, const QString& nothing) {
    QVector<int> entries; // without a blank one
    for (int i = 0; i < list.count(); ++i)
        if (list.itemData(i).isValid())
            entries << i;
    if (entries.isEmpty())
        program.box(nothing);
    else if (entries.size() == 1)
        list.setListIndex(entries.first());
    else
        list.setFocus();
}

bool Screen::passes(std::initializer_list<Check> checks) {
    for (const Check& check : checks) {
        if (!check.failed)
            continue;
        program.box(check.text, Icon::None, check.title);
        if (check.focus)
            check.focus->setFocus();
        return false;
    }
    return true;
}

bool Screen::saveErased(const AnySave& wanted) {
    if (settlesSave() || (wanted.allowed && !wanted.allowed()))
        return false;
    if (!wanted.question.isEmpty() &&
        !program.question(wanted.question, wanted.title, wanted.consent, wanted.detail ? wanted.detail() : QString()))
        return false;
    if (wanted.prepare && !wanted.prepare())
        return false;
    if (const std::optional<Refusal> refusal = runStep(wanted)) {
        if (wanted.refused)
            wanted.refused(*refusal);
        else
            program.box(refusalText(*refusal));
        return false;
    }
    doAfterSave(program.followedSave, wanted.follow);
    return true;
}

std::optional<Refusal> Screen::runStep(const AnySave& wanted) {
    ui().setBusy(true);
    try {
        const std::optional<Refusal> refusal = wanted.step();
        ui().setBusy(false);
        if (!refusal)
            keepSaved(wanted.words());
        return refusal;
    } catch (const CommitUnknown& fault) {
        m_openSave = {fault.ticket(), wanted.words, wanted.follow, lockAllBut(wanted.button)};
        throw CommitUnknown(unknownText, fault.statement(), fault.ticket());
    }
}

/// What was entered is in the database, and its words stay readable whatever follows.
void Screen::keepSaved(const QString& words) {
    entrySaved();
    if (program.onSaved && !words.isEmpty())
        program.onSaved(words);
}

bool Screen::settlesSave() {
    if (!m_openSave)
        return false;
    const CommitOutcome outcome = program.data().outcomeOf(m_openSave->ticket);
    if (outcome == CommitOutcome::Unknown) {
        program.box(stillUnknownText);
        return true;
    }
    const OpenSave settled = *std::exchange(m_openSave, std::nullopt);
    for (Control* control : settled.locked)
        control->setEnabled(true);
    program.box(outcome == CommitOutcome::Saved ? savedText : notSavedText);
    if (outcome == CommitOutcome::Saved) {
        keepSaved(settled.words());
        doAfterSave(program.followedSave, settled.follow);
    }
    return true;
}

/// Whoever closes the screen is told what is known by then. An entry that was not saved stays, to be saved again.
bool Screen::Form_Unload() {
    if (!settlesSave())
        return true;
    if (!m_openSave)
        return false;
    program.box(leftOpenText);
    return true;
}

/// The way out stays open too; labels and tabs only show.
QList<Control*> Screen::lockAllBut(const Control& button) {
    QList<Control*> locked;
    for (Control* control : controls())
        if (control->isEnabled() && control != &button && control != cancelButton() &&
            control->kind() != ControlKind::Label && control->kind() != ControlKind::TabStrip)
            locked << control;
    for (Control* control : locked)
        control->setEnabled(false);
    return locked;
}

} // namespace orvane
