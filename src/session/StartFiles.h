#pragma once

#include "session/Program.h"

#include <QSet>

namespace orvane {

/// Reads made.sys: the last "SVR" line gives session.gServerName, the last "HNO" line session.gHospID; a value starts
/// at the fifth character. False when the file is missing, which its box has said then. Raises DataError when the file
/// cannot be read as text.
bool readMadeSys(Program& program);

/// Reads sysdoc.sys: its last line, taken as it stands, is session.gUsername. False when the file is missing, which its
/// box has said then. Raises DataError when the file cannot be read as text.
bool readSysDoc(Program& program);

/// The names, in lower case, of the menu entries that the section [menu] of orvane.ini turns on ("mnuRct = 1"). None
/// without the file. Raises DataError when the file cannot be read as text.
QSet<QString> readMenuEntriesTurnedOn(const QString& homeFolder);

/// Whether the section [print] of orvane.ini has receipts on a roll of 80 mm ("paper = 80mm"). Without it, or with
/// "paper = A4", they come on A4. Raises DataError for anything else there.
bool readRollPaper(const QString& homeFolder);

/// The company data folder of the journal: what the section [journal] of orvane.ini names ("folder = //share/company"),
/// seen from the home folder; without it, the folder "journal" there. Raises DataError for anything else in the section.
QString readJournalFolder(const QString& homeFolder);

} // namespace orvane
