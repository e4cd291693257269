#include "csv/ColumnGuess.h"

#include <algorithm>
#include <tuple>

#include "csv/TitleWords.h"

namespace orva
{

namespace
{

bool contains(const TitleWords& words, const std::string& title)
{
    return std::find(words.begin(), words.end(), title) != words.end();
}

int indexOf(const std::vector<std::string>& titles, const std::string& title)
{
    const auto found = std::find(titles.begin(), titles.end(), title);
    return found == titles.end() ? -1 : static_cast<int>(found - titles.begin());
}

// The column of the first word that is a title; of several columns with that title, the first.
int find(const std::vector<std::string>& titles, const TitleWords& words)
{
    for (const char* word : words)
        if (const int column = indexOf(titles, word); column >= 0)
            return column;
    return -1;
}

// All columns whose titles are words, in the order of the words.
std::vector<int> findAll(const std::vector<std::string>& titles, const TitleWords& words)
{
    std::vector<int> columns;
    for (const char* word : words)
        for (std::size_t i = 0; i < titles.size(); ++i)
            if (titles[i] == word)
                columns.push_back(static_cast<int>(i));
    return columns;
}

// "phone1value" of pairs that are numbered from 1: the columns of value and label, each -1 where there is none.
struct Pair {
    int value;
    int label;
};

Pair pairOf(const std::vector<std::string>& titles, const char* what, int number)
{
    const std::string stem = what + std::to_string(number);
    const int label = indexOf(titles, stem + "label");
    return {indexOf(titles, stem + "value"), label >= 0 ? label : indexOf(titles, stem + "type")};
}

} // namespace

ColumnGuess::ColumnGuess(const std::vector<std::string>& titles)
{
    std::vector<std::string> plain;
    plain.reserve(titles.size());
    for (const std::string& title : titles)
        plain.push_back(normalisedTitle(title));
    findNames(plain);
    findPhones(plain);
    findEmails(plain);
    company = find(plain, knownTitles().company);
    note = find(plain, knownTitles().note);
    groups = find(plain, knownTitles().groups);
}

// A whole name if there is one. Beside a first name, a column called just "Name" is the last name, unless there is
// one for that, too.
void ColumnGuess::findNames(const std::vector<std::string>& titles)
{
    const KnownTitles& known = knownTitles();
    const int plain = find(titles, known.plainName);
    fullName = find(titles, known.fullName);
    filedName = find(titles, known.filedName);
    firstName = find(titles, known.firstName);
    middleName = find(titles, known.middleName);
    lastName = find(titles, known.lastName);
    if (plain < 0 || plain == firstName)
        return;
    if (firstName < 0 || lastName >= 0)
        fullName = plain;
    else
        lastName = plain;
}

void ColumnGuess::findPhones(const std::vector<std::string>& titles)
{
    const KnownTitles& known = knownTitles();
    for (int number = 1;; ++number) {
        const Pair pair = pairOf(titles, "phone", number);
        if (pair.value < 0)
            break;
        phones.push_back({pair.value, pair.label, Kind::Any});
    }
    const TitleWords none;
    const std::tuple<const TitleWords*, const TitleWords*, Kind> kinds[] = {
        {&known.mobile, &none, Kind::Mobile},
        {&known.office, &known.officeLabel, Kind::Office},
        {&known.home, &known.homeLabel, Kind::Home},
        {&known.phone, &none, Kind::Any},
        {&known.fax, &none, Kind::Fax},
    };
    for (const auto& [words, labels, kind] : kinds) {
        std::vector<int> columns = findAll(titles, *words);
        if (columns.empty())
            columns = findAll(titles, *labels);
        for (const int column : columns)
            phones.push_back({column, -1, kind});
    }
}

void ColumnGuess::findEmails(const std::vector<std::string>& titles)
{
    for (int number = 1;; ++number) {
        const Pair pair = pairOf(titles, "email", number);
        if (pair.value < 0)
            break;
        emails.push_back(pair.value);
    }
    for (const int column : findAll(titles, knownTitles().email))
        if (std::find(emails.begin(), emails.end(), column) == emails.end())
            emails.push_back(column);
}

ColumnGuess::Kind ColumnGuess::kindOf(const std::string& label)
{
    const KnownTitles& known = knownTitles();
    const std::string plain = normalisedTitle(label);
    // "Home Fax" is no number of a home.
    if (contains(known.fax, plain) || plain.find("fax") != std::string::npos)
        return Kind::Fax;
    if (contains(known.mobile, plain))
        return Kind::Mobile;
    if (contains(known.office, plain) || contains(known.officeLabel, plain))
        return Kind::Office;
    return contains(known.home, plain) || contains(known.homeLabel, plain) ? Kind::Home : Kind::Any;
}

} // namespace orva
