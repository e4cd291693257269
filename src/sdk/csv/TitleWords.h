#ifndef SDK_CSV_TITLEWORDS_H
#define SDK_CSV_TITLEWORDS_H

#include <string>
#include <vector>

namespace orva
{

// The titles that mail programs, address books and spreadsheets give their columns in a few languages, as
// normalisedTitle() makes them, in order of preference.
using TitleWords = std::vector<const char*>;

struct KnownTitles {
    TitleWords fullName;
    TitleWords filedName;
    TitleWords plainName;
    TitleWords firstName;
    TitleWords middleName;
    TitleWords lastName;
    TitleWords company;
    TitleWords mobile;
    TitleWords office;
    TitleWords officeLabel; // which as a title may also be that of something else
    TitleWords home;
    TitleWords homeLabel;
    TitleWords phone; // of no kind
    TitleWords fax;   // and what else nobody speaks into
    TitleWords email;
    TitleWords note;
    TitleWords groups;
};

const KnownTitles& knownTitles();

// Lower case, and nothing but letters and digits. UTF-8.
std::string normalisedTitle(const std::string& title);

} // namespace orva

#endif // SDK_CSV_TITLEWORDS_H
