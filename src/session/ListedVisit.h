#pragma once

#include <QDate>
#include <QString>

namespace orvane {

/// What an entry of a patient list stands for: a visit, or its bill, which bears the visit's number.
struct ListedVisit {
    QString consultID, pno, patient;
    QDate date = {};
};

} // namespace orvane
