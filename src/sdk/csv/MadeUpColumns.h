#ifndef SDK_CSV_MADEUPCOLUMNS_H
#define SDK_CSV_MADEUPCOLUMNS_H

#include <string>
#include <string_view>
#include <vector>

#include "csv/ColumnGuess.h"
#include "csv/RowReader.h"

namespace orva
{

// The keys of the fields that columns are made for: those of the PC's phonebook, then the number of a card.
inline constexpr std::string_view fieldKeys[] = {"Name",  "Mobile", "officePhone", "homePhone",
                                                 "email", "remark", "Number"};

// Their places in that order.
enum FieldPlace { NamePlace, MobilePlace, OfficePlace, HomePlace, EmailPlace, RemarkPlace, NumberPlace };

/*
 * Columns that a file does not have, made of those it has: one for each field that no single column of the file feeds
 * under the field's own key. They stand behind the file's columns, under the keys of the fields.
 *
 * A name is the whole one, else joined of its parts, else the company or the e-mail address. A number goes where its
 * title or, in a file that has a column for that, its label says; one without a kind into the first place that is
 * free. Several values in a cell ("1 ::: 2") are several numbers. What finds no place, such as a second mobile number
 * or a fax number, stands in the note, a line each.
 */
class MadeUpColumns
{
public:
    // Titles in UTF-8, in the order of the columns.
    explicit MadeUpColumns(const std::vector<std::string>& titles);

    // In their order.
    const std::vector<std::string>& titles() const { return m_titles; }

    // The column for a field: one of the file's or one of these; -1 if there is none.
    int forField(std::string_view key) const;

    // The file's column with the names of groups, or -1.
    int groups() const { return m_guess.groups; }

    // The file's columns that one of these may be made of; of a column of the file, itself.
    std::vector<int> sourcesOf(int column) const;

    // Whether any entry of a field map is one of these.
    bool usedBy(const int* map, int fields) const;

    // Puts the values behind a row of the file. What the row has beyond the file's titles goes.
    void appendTo(Row& row);

    // A value of the file that a field map takes from none of these.
    struct Unused {
        int column;
        std::string value;
    };

    // Those among the numbers and addresses of the row that this was done for last, and its company where the name is
    // another.
    std::vector<Unused> unusedBy(const Row& row, const int* map, int fields) const;
    int company() const { return m_guess.company; }

private:
    struct Place {
        std::string_view key;
        int own = -1;    // a column of the file that is as good
        int column = -1; // among these
    };

    void add(Place& place, bool wanted, bool sameAsOwn);
    bool isOurs() const;
    bool numbersMayBeLeft() const;
    bool mayHold(ColumnGuess::Kind kind, std::ptrdiff_t place) const;
    static bool mayStandUnder(std::string_view key, const ColumnGuess::Phone& phone);
    void takeNumbers(const Row& row, bool ofAKind);
    const std::string* takeNumber(std::string_view number, const std::string& label, ColumnGuess::Kind kind);
    void takeEmails(const Row& row);
    void addToNote(const std::string& label, std::string_view text);
    void addPiece(int column, std::string_view cell, std::string_view value, const std::string* in);
    std::string nameOf(const Row& row) const;
    const std::string& valueOf(std::string_view key) const;

    ColumnGuess m_guess;
    std::vector<std::string> m_fileTitles;
    std::vector<std::string> m_titles;
    std::vector<Place> m_places; // by the keys, in their order

    // A value of the row at hand, and which of the texts below holds it.
    struct Piece {
        int column;
        const std::string* in;
        std::size_t begin; // in the column
        std::size_t length;
    };

    // Of the row at hand.
    std::string m_name, m_mobile, m_office, m_home, m_email, m_note;
    std::vector<Piece> m_pieces;
};

} // namespace orva

#endif // SDK_CSV_MADEUPCOLUMNS_H
