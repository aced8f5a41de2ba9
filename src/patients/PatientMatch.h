#pragma once

#include <QString>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// How a patient answers a search, the best first.
enum class PatientMatch {
    Number,      ///< his file number, with or without its leading zeros and its hospital
    OtherNumber, ///< his old number or his telephone
    NumberHead,  ///< the first characters of his file number
    NameHead,    ///< the first letters of his name
    WordHeads,   ///< each word begins a word of his name or another of his numbers
    AnyPart,     ///< each word stands somewhere
    None
};

/// What a search asks for, in capitals, without accents and apostrophes.
struct PatientQuery {
    explicit PatientQuery(const QString& text);
    bool isEmpty() const { return words.empty(); }
    bool hasLetter() const;

    std::string number;             ///< the text as a number
    std::string name;               ///< the words in their order
    std::vector<std::string> words; ///< in any order; each must be found
};

/// What is searched of a patient, in one line of UTF-8 without a line break: file number, old number, telephone, name.
/// A blank stands before each of them and before each word of the name, which is how the beginning of a word is found.
std::string patientLine(const QString& number, const QString& oldNumber, const QString& telephone, const QString& name);
std::string_view numberIn(std::string_view line); ///< the file number, in capitals
std::string_view nameIn(std::string_view line);
bool holdsWords(std::string_view line, const PatientQuery& query); ///< each somewhere
PatientMatch matchOf(std::string_view line, const PatientQuery& query);

} // namespace orvane
