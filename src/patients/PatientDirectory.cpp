#include "patients/PatientDirectory.h"

#include "data/rows/Recordset.h"

#include <algorithm>

namespace orvane {

namespace {

const Sql columns("PNo,OldPNo,pPhoneNo,fullname from hPatients where ");

std::string lineOf(const Recordset& patient) {
    return patientLine(patient.text(0), patient.text(1), patient.text(2), patient.text(3));
}

/// A text as the head of a "like", which has no characters of its own meaning.
QString likeHead(QString text) {
    for (const char sign : {'%', '_', '[', ']'})
        text.remove(QLatin1Char(sign));
    return text.trimmed();
}

/// What the indexes know: whose numbers or name begin with the text.
std::vector<std::string> askIndexes(Connection& connection, const QString& text) {
    const QString head = likeHead(text);
    if (head.isEmpty())
        return {};
    const Sql statements[] = {
        Sql("select top 50 ") << columns << "PNo like '" << head << "%' order by PNo",
        Sql("select top 50 ") << columns << "OldPNo like '" << head << "%' order by OldPNo",
        Sql("select top 50 ") << columns << "fullname like '" << head << "%' order by fullname",
    };
    std::vector<std::string> lines;
    for (const Sql& statement : statements)
        for (Recordset patient(connection, statement); !patient.eof(); patient.moveNext())
            lines.push_back(lineOf(patient));
    return lines;
}

} // namespace

bool PatientDirectory::readOn(Connection& connection) {
    constexpr int page = 2000;
    Recordset patients(connection, Sql("select top 2000 ") << columns << "PNo > '" << m_last << "' order by PNo");
    const bool more = patients.count() == page;
    for (; !patients.eof(); patients.moveNext()) {
        m_lines.add(lineOf(patients));
        m_last = patients.text(0);
    }
    m_whole = m_whole || !more;
    return more;
}

std::vector<PatientDirectory::Found> PatientDirectory::find(Connection& connection, const QString& text) const {
    const PatientQuery query(text);
    const std::vector<std::string> indexed = askIndexes(connection, text);
    std::vector<std::string_view> lines = m_lines.find(query, mostFound);
    lines.insert(lines.end(), indexed.begin(), indexed.end());

    // A patient who is known twice, and differently since he was read, counts as he is found best.
    struct Candidate {
        PatientMatch match;
        std::string_view name, number;
        auto operator<=>(const Candidate&) const = default;
    };
    std::vector<Candidate> candidates;
    for (const std::string_view line : lines)
        candidates.push_back({matchOf(line, query), nameIn(line), numberIn(line)});
    std::sort(candidates.begin(), candidates.end());

    std::vector<Found> found;
    for (const Candidate& candidate : candidates) {
        const QString number = QString::fromUtf8(candidate.number.data(), qsizetype(candidate.number.size()));
        const auto same = [&](const Found& other) { return other.number == number; };
        if (candidate.match != PatientMatch::None && std::none_of(found.begin(), found.end(), same))
            found.push_back({candidate.match, number});
        if (int(found.size()) == mostFound)
            break;
    }
    return found;
}

} // namespace orvane
