#include "patients/PatientLines.h"

#include <algorithm>
#include <cstring>

namespace orvane {

namespace {

constexpr char lineEnd = '\n';

} // namespace

/// Looks at 64 places at once, which the compiler turns into a few vector instructions, for the first, the middle and
/// the last character of the word; only where all three stand it is compared.
std::size_t findWord(std::string_view text, std::string_view word, std::size_t from) {
    constexpr std::size_t places = 64;
    const std::size_t last = word.size() - 1, middle = word.size() / 2;
    const char first = word.front(), between = word[middle], end = word.back();
    for (; from + places + last <= text.size(); from += places) {
        const char* at = text.data() + from;
        unsigned char found = 0;
        for (std::size_t i = 0; i < places; ++i)
            found |= static_cast<unsigned char>((at[i] == first) & (at[i + middle] == between) & (at[i + last] == end));
        if (!found)
            continue;
        if (const void* hit = memmem(at, places + last, word.data(), word.size()))
            return std::size_t(static_cast<const char*>(hit) - text.data());
    }
    return text.find(word, from);
}

void PatientLines::add(std::string_view line) {
    m_text += line;
    m_text += lineEnd;
}

/// The next line from `at` on that holds the word, and `at` behind it; an empty one when there is none.
std::string_view PatientLines::nextLine(std::string_view word, std::size_t& at) const {
    const std::size_t place = findWord(m_text, word, at);
    if (place == std::string::npos)
        return {};
    const std::size_t before = place == 0 ? std::string::npos : m_text.rfind(lineEnd, place - 1);
    const std::size_t begin = before == std::string::npos ? 0 : before + 1;
    at = m_text.find(lineEnd, place) + 1;
    return std::string_view(m_text).substr(begin, at - 1 - begin);
}

/// Whose file number it is without its leading zeros and its hospital: he could lie behind many others that hold its
/// digits.
void PatientLines::addShortNumbers(const PatientQuery& query, std::vector<std::string_view>& found) const {
    std::string number = query.words.front();
    number.erase(0, number.find_first_not_of('0'));
    if (query.hasLetter() || query.words.size() > 1 || number.empty() || number.front() == '/')
        return;
    if (number.find('/') == std::string::npos)
        number += '/';
    for (std::size_t at = 0;;) {
        const std::string_view line = nextLine(number, at);
        if (line.empty())
            return;
        if (line.find_first_not_of(" 0") == line.find(number))
            found.push_back(line);
    }
}

std::vector<std::string_view> PatientLines::find(const PatientQuery& query, std::size_t limit) const {
    std::vector<std::string_view> heads, others;
    if (query.isEmpty())
        return heads;
    const auto& word = *std::max_element(query.words.begin(), query.words.end(),
                                         [](const auto& a, const auto& b) { return a.size() < b.size(); });
    addShortNumbers(query, heads);
    const std::string head = ' ' + word;
    for (std::size_t at = 0; heads.size() < limit;) {
        // When there are enough of the others, only the better ones are looked for: they are fewer.
        const std::string_view line = nextLine(others.size() < limit ? word : head, at);
        if (line.empty())
            break;
        if (!holdsWords(line, query))
            continue;
        const PatientMatch match = matchOf(line, query);
        if (match <= PatientMatch::WordHeads)
            heads.push_back(line);
        else if (match == PatientMatch::AnyPart && others.size() < limit)
            others.push_back(line);
    }
    heads.insert(heads.end(), others.begin(), others.end());
    return heads;
}

} // namespace orvane
