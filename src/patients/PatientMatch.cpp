#include "patients/PatientMatch.h"

#include <QStringList>
#include <algorithm>
#include <array>

namespace orvane {

namespace {

constexpr char fieldEnd = '\t';
constexpr std::size_t leastTelephone = 7; ///< digits

/// Capitals, digits and "/" in words with one blank between them.
QString plainWords(const QString& text) {
    QString plain;
    for (const QChar c : text.normalized(QString::NormalizationForm_D)) {
        if (c.isMark() || c == QLatin1Char('\'') || c == QChar(0x2019))
            continue;
        plain += c.isLetterOrNumber() || c == QLatin1Char('/') ? c.toUpper() : QChar(' ');
    }
    return plain.simplified();
}

/// A number as it is written, in capitals.
std::string plainNumber(const QString& text) {
    QString plain;
    for (const QChar c : text.trimmed())
        if (c.isPrint())
            plain += c.toUpper();
    return plain.toStdString();
}

bool isDigits(std::string_view text) {
    return !text.empty() && std::all_of(
                                text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// A telephone of this country is the same with its code and without.
std::string homeNumber(const std::string& digits) {
    constexpr std::size_t withCode = 13;
    const bool abroad = digits.size() == withCode && digits.starts_with("234") && isDigits(digits);
    return abroad ? '0' + digits.substr(3) : digits;
}

std::string plainTelephone(const QString& text) {
    std::string digits;
    for (const QChar c : text)
        if (c >= QLatin1Char('0') && c <= QLatin1Char('9'))
            digits += c.toLatin1();
    return homeNumber(digits);
}

std::string_view withoutZeros(std::string_view number) {
    return number.substr(std::min(number.find_first_not_of('0'), number.size()));
}

bool isNumber(std::string_view number, const std::string& typed) {
    const std::string_view shortNumber = withoutZeros(number), shortTyped = withoutZeros(typed);
    if (number == typed || (shortNumber == shortTyped && !shortTyped.empty()))
        return true;
    return isDigits(shortTyped) && shortNumber.starts_with(shortTyped) && shortNumber[shortTyped.size()] == '/';
}

struct Fields {
    std::string_view number, oldNumber, telephone, name;
};

Fields fieldsOf(std::string_view line) {
    std::array<std::string_view, 4> fields;
    auto at = line.begin();
    for (std::string_view& field : fields) {
        const auto end = std::find(at, line.end(), fieldEnd);
        field = std::string_view(at == end ? at : at + 1, end); // behind its blank
        at = end == line.end() ? end : end + 1;
    }
    return {fields[0], fields[1], fields[2], fields[3]};
}

} // namespace

PatientQuery::PatientQuery(const QString& text) : number(plainNumber(text)) {
    for (const QString& word : plainWords(text).split(QLatin1Char(' '), Qt::SkipEmptyParts))
        words.push_back(homeNumber(word.toStdString()));
    for (const std::string& word : words)
        name += name.empty() ? word : ' ' + word;
}

bool PatientQuery::hasLetter() const {
    return std::any_of(
        name.begin(), name.end(), [](char c) { return c != ' ' && c != '/' && (c < '0' || c > '9'); });
}

std::string patientLine(const QString& number, const QString& oldNumber, const QString& telephone,
                        const QString& name) {
    return ' ' + plainNumber(number) + fieldEnd + ' ' + plainNumber(oldNumber) + fieldEnd + ' ' +
           plainTelephone(telephone) + fieldEnd + ' ' + plainWords(name).toStdString();
}

std::string_view numberIn(std::string_view line) {
    return fieldsOf(line).number;
}

std::string_view nameIn(std::string_view line) {
    return fieldsOf(line).name;
}

bool holdsWords(std::string_view line, const PatientQuery& query) {
    return std::all_of(
        query.words.begin(), query.words.end(),
        [line](const std::string& word) { return line.find(word) != std::string_view::npos; });
}

PatientMatch matchOf(std::string_view line, const PatientQuery& query) {
    if (query.isEmpty())
        return PatientMatch::None;
    const Fields patient = fieldsOf(line);
    if (isNumber(patient.number, query.number))
        return PatientMatch::Number;
    const std::string& word = query.words.front();
    const bool isTelephone = query.words.size() == 1 && word.size() >= leastTelephone && patient.telephone == word;
    if (patient.oldNumber == query.number || isTelephone)
        return PatientMatch::OtherNumber;
    if (patient.number.starts_with(query.number))
        return PatientMatch::NumberHead;
    if (patient.name.starts_with(query.name))
        return PatientMatch::NameHead;
    const bool heads = std::all_of(query.words.begin(), query.words.end(), [line](const std::string& part) {
        return line.find(' ' + part) != std::string_view::npos;
    });
    if (heads)
        return PatientMatch::WordHeads;
    return holdsWords(line, query) ? PatientMatch::AnyPart : PatientMatch::None;
}

} // namespace orvane
