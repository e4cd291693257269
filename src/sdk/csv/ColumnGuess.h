#ifndef SDK_CSV_COLUMNGUESS_H
#define SDK_CSV_COLUMNGUESS_H

#include <string>
#include <vector>

namespace orva
{

struct KnownTitles;

// Which columns of a file hold what, told from their titles as mail programs, address books and spreadsheets in a few
// languages write them. Titles are compared without regard to case, blanks and punctuation. -1 stands for no column.
class ColumnGuess
{
public:
    enum class Kind { Mobile, Office, Home, Any, Fax };

    struct Phone {
        int column;
        int label; // the column that tells of each row what the number is, or -1
        Kind kind; // of a number without a label that is known
    };

    // Titles in UTF-8, in the order of the columns.
    explicit ColumnGuess(const std::vector<std::string>& titles);

    // What a label of a number, such as "Mobile", says.
    static Kind kindOf(const std::string& label);

    int fullName = -1;
    int filedName = -1;
    int firstName = -1;
    int middleName = -1;
    int lastName = -1;
    int company = -1;
    int note = -1;
    int groups = -1;
    std::vector<Phone> phones; // those that come first are preferred
    std::vector<int> emails;

private:
    void findNames(const std::vector<std::string>& titles);
    void findPhones(const std::vector<std::string>& titles);
    void findEmails(const std::vector<std::string>& titles);
};

} // namespace orva

#endif // SDK_CSV_COLUMNGUESS_H
