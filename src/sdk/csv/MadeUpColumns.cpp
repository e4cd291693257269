#include "csv/MadeUpColumns.h"

#include <algorithm>
#include <strings.h>

namespace orva
{

namespace
{

using Kind = ColumnGuess::Kind;

constexpr std::string_view between = " ::: "; // several values in one cell
constexpr std::string_view blanks = " \t\r\n";

std::string_view trimmed(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(blanks);
    return begin == std::string_view::npos ? std::string_view()
                                           : text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}

template <typename Take>
void eachValue(std::string_view cell, Take&& take)
{
    while (!cell.empty()) {
        const std::size_t end = cell.find(between);
        if (const std::string_view value = trimmed(cell.substr(0, end)); !value.empty())
            take(value);
        cell = end == std::string_view::npos ? std::string_view() : cell.substr(end + between.size());
    }
}

bool sameKey(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && strncasecmp(a.data(), b.data(), a.size()) == 0;
}

// Han, kana and Hangul, in UTF-8: of three octets from U+2E80 on, or of four from U+20000 on.
bool beginsIdeographic(std::string_view text)
{
    const auto lead = text.empty() ? 0 : static_cast<unsigned char>(text.front());
    return (lead >= 0xE3 && lead <= 0xED) || lead == 0xF0;
}

std::string joinedName(std::string_view first, std::string_view middle, std::string_view last)
{
    if (beginsIdeographic(last) && (first.empty() || beginsIdeographic(first)))
        return std::string(last).append(first);
    std::string name(first);
    for (const std::string_view part : {middle, last})
        if (!part.empty())
            name.append(name.empty() ? "" : " ").append(part);
    return name;
}

} // namespace

MadeUpColumns::MadeUpColumns(const std::vector<std::string>& titles) : m_guess(titles), m_fileTitles(titles)
{
    for (const std::string_view key : fieldKeys) {
        m_places.push_back({key});
        for (std::size_t i = 0; i < titles.size(); ++i)
            if (sameKey(titles[i], key))
                m_places.back().own = static_cast<int>(i);
    }
    const bool parts = m_guess.firstName >= 0 || m_guess.lastName >= 0 || m_guess.company >= 0;
    const bool named = parts || m_guess.fullName >= 0 || m_guess.filedName >= 0;
    const bool left = numbersMayBeLeft() || m_guess.emails.size() > 1;
    if (isOurs())
        return;
    add(m_places[NamePlace], named, !parts);
    add(m_places[MobilePlace], mayHold(Kind::Mobile, 1), !numbersMayBeLeft());
    add(m_places[OfficePlace], mayHold(Kind::Office, 3), !numbersMayBeLeft());
    add(m_places[HomePlace], mayHold(Kind::Home, 2), !numbersMayBeLeft());
    add(m_places[EmailPlace], !m_guess.emails.empty(), m_guess.emails.size() == 1);
    const bool made = std::any_of(m_places.begin() + MobilePlace, m_places.begin() + RemarkPlace,
                                  [](const Place& place) { return place.column >= 0; });
    add(m_places[RemarkPlace], m_guess.note >= 0 || left || made, !left && !made);
    add(m_places[NumberPlace], !m_guess.phones.empty(), m_guess.phones.size() == 1);
}

// A file that has our own titles needs none of these.
bool MadeUpColumns::isOurs() const
{
    return std::all_of(m_fileTitles.begin(), m_fileTitles.end(), [](const std::string& title) {
        return sameKey(title, "Groups") || std::any_of(std::begin(fieldKeys), std::end(fieldKeys),
                                                       [&title](std::string_view key) { return sameKey(title, key); });
    });
}

// Whether a row can hold more numbers, or others, than there are fields for.
bool MadeUpColumns::numbersMayBeLeft() const
{
    const std::vector<ColumnGuess::Phone>& phones = m_guess.phones;
    for (const ColumnGuess::Phone& phone : phones) {
        const auto same = std::count_if(phones.begin(), phones.end(),
                                        [&phone](const ColumnGuess::Phone& other) { return other.kind == phone.kind; });
        if (same > 1 || phone.label >= 0 || phone.kind == Kind::Fax || (phone.kind == Kind::Any && phones.size() > 1))
            return true;
    }
    return false;
}

// Whether a number of a kind can stand in a row. Those of no kind fill the places one after the other.
bool MadeUpColumns::mayHold(Kind kind, std::ptrdiff_t place) const
{
    const std::vector<ColumnGuess::Phone>& phones = m_guess.phones;
    const bool known = std::any_of(phones.begin(), phones.end(), [kind](const ColumnGuess::Phone& phone) {
        return phone.kind == kind || phone.label >= 0;
    });
    return known || std::count_if(phones.begin(), phones.end(),
                                  [](const ColumnGuess::Phone& phone) { return phone.kind == Kind::Any; }) >= place;
}

void MadeUpColumns::add(Place& place, bool wanted, bool sameAsOwn)
{
    if (!wanted || (sameAsOwn && place.own >= 0))
        return;
    place.column = static_cast<int>(m_fileTitles.size() + m_titles.size());
    m_titles.emplace_back(place.key);
}

int MadeUpColumns::forField(std::string_view key) const
{
    const auto place =
        std::find_if(m_places.begin(), m_places.end(), [key](const Place& known) { return known.key == key; });
    if (place == m_places.end())
        return -1;
    if (place->column >= 0 || place->own >= 0)
        return place->column >= 0 ? place->column : place->own;
    // A file of the card's contacts has one number, one of the computer's a mobile one.
    const Place& other = key == fieldKeys[NumberPlace] ? m_places[MobilePlace] : m_places[NumberPlace];
    return key == fieldKeys[NumberPlace] || key == fieldKeys[MobilePlace] ? other.own : -1;
}

// Whether a number from there may be one of a field.
bool MadeUpColumns::mayStandUnder(std::string_view key, const ColumnGuess::Phone& phone)
{
    switch (phone.kind) {
    case Kind::Mobile:
        return key == fieldKeys[MobilePlace] || key == fieldKeys[NumberPlace];
    case Kind::Office:
        return key == fieldKeys[OfficePlace] || key == fieldKeys[NumberPlace];
    case Kind::Home:
        return key == fieldKeys[HomePlace] || key == fieldKeys[NumberPlace];
    case Kind::Any:
        return true;
    case Kind::Fax:
        break;
    }
    return false;
}

std::vector<int> MadeUpColumns::sourcesOf(int column) const
{
    const auto place =
        std::find_if(m_places.begin(), m_places.end(), [column](const Place& p) { return p.column == column; });
    if (column < 0 || place == m_places.end())
        return {column};
    std::vector<int> sources;
    if (place->key == fieldKeys[NamePlace]) {
        sources = {m_guess.fullName, m_guess.filedName,  m_guess.firstName,
                   m_guess.lastName, m_guess.middleName, m_guess.company};
    } else if (place->key == fieldKeys[EmailPlace]) {
        sources = m_guess.emails;
    } else {
        const bool remark = place->key == fieldKeys[RemarkPlace];
        if (remark)
            sources.push_back(m_guess.note);
        for (const ColumnGuess::Phone& phone : m_guess.phones)
            if (remark || mayStandUnder(place->key, phone))
                sources.insert(sources.end(), {phone.column, phone.label});
        if (remark)
            sources.insert(sources.end(), m_guess.emails.begin(), m_guess.emails.end());
    }
    sources.erase(std::remove(sources.begin(), sources.end(), -1), sources.end());
    return sources;
}

bool MadeUpColumns::usedBy(const int* map, int fields) const
{
    return std::any_of(map, map + fields, [this](int entry) {
        return entry >= static_cast<int>(m_fileTitles.size()) &&
               entry < static_cast<int>(m_fileTitles.size() + m_titles.size());
    });
}

void MadeUpColumns::addToNote(const std::string& label, std::string_view text)
{
    m_note.append(m_note.empty() ? "" : "\n").append(label).append(label.empty() ? "" : ": ").append(text);
}

// A second number of a kind, or one that nobody answers, goes to the note. The text that holds it.
const std::string* MadeUpColumns::takeNumber(std::string_view number, const std::string& label, Kind kind)
{
    std::string* place = kind == Kind::Mobile   ? &m_mobile
                         : kind == Kind::Office ? &m_office
                         : kind == Kind::Home   ? &m_home
                                                : nullptr;
    if (kind == Kind::Any)
        for (std::string* free : {&m_office, &m_home, &m_mobile})
            place = free->empty() ? free : place;
    if (place != nullptr && place->empty()) {
        *place = number;
        return place;
    }
    addToNote(label, number);
    return &m_note;
}

// The numbers of a row that have a kind, or those that have none.
void MadeUpColumns::takeNumbers(const Row& row, bool ofAKind)
{
    for (const ColumnGuess::Phone& phone : m_guess.phones) {
        const std::string_view cell = row.column(phone.column);
        if (cell.empty())
            continue;
        std::string label = m_fileTitles[static_cast<std::size_t>(phone.column)];
        if (phone.label >= 0) {
            // The preferred one is marked by an asterisk.
            std::string_view told = row.column(phone.label);
            while (!told.empty() && (told.front() == '*' || told.front() == ' '))
                told.remove_prefix(1);
            label = told;
        }
        const Kind kind = phone.label >= 0 ? ColumnGuess::kindOf(label) : phone.kind;
        if ((kind != Kind::Any) == ofAKind)
            eachValue(cell, [&](std::string_view number) {
                addPiece(phone.column, cell, number, takeNumber(number, label, kind));
            });
    }
}

void MadeUpColumns::takeEmails(const Row& row)
{
    for (const int column : m_guess.emails) {
        const std::string_view cell = row.column(column);
        eachValue(cell, [&](std::string_view email) {
            const bool first = m_email.empty() || email == m_email;
            if (first)
                m_email = email;
            else
                addToNote(std::string(), email);
            addPiece(column, cell, email, first ? &m_email : &m_note);
        });
    }
}

void MadeUpColumns::addPiece(int column, std::string_view cell, std::string_view value, const std::string* in)
{
    m_pieces.push_back({column, in, static_cast<std::size_t>(value.data() - cell.data()), value.size()});
}

std::string MadeUpColumns::nameOf(const Row& row) const
{
    const auto text = [&row](int column) { return trimmed(row.column(column)); };
    std::string name(row.column(m_guess.fullName));
    if (trimmed(name).empty())
        name = joinedName(text(m_guess.firstName), text(m_guess.middleName), text(m_guess.lastName));
    for (const int other : {m_guess.filedName, m_guess.company})
        if (name.empty())
            name = text(other);
    return name.empty() ? m_email : name;
}

const std::string& MadeUpColumns::valueOf(std::string_view key) const
{
    if (key == fieldKeys[NamePlace])
        return m_name;
    if (key == fieldKeys[OfficePlace])
        return m_office;
    if (key == fieldKeys[HomePlace])
        return m_home;
    if (key == fieldKeys[EmailPlace])
        return m_email;
    if (key == fieldKeys[RemarkPlace])
        return m_note;
    if (key == fieldKeys[MobilePlace] || !m_mobile.empty())
        return m_mobile;
    return m_home.empty() ? m_office : m_home; // the best there is
}

std::vector<MadeUpColumns::Unused> MadeUpColumns::unusedBy(const Row& row, const int* map, int fields) const
{
    std::vector<const std::string*> used;
    for (const Place& place : m_places)
        if (place.column >= 0 && std::find(map, map + fields, place.column) != map + fields)
            used.push_back(&valueOf(place.key));
    const auto isMapped = [&](int column) { return std::find(map, map + fields, column) != map + fields; };
    std::vector<Unused> unused;
    for (const Piece& piece : m_pieces)
        if (std::find(used.begin(), used.end(), piece.in) == used.end() && !isMapped(piece.column))
            unused.push_back({piece.column, std::string(row.column(piece.column).substr(piece.begin, piece.length))});
    const std::string_view company = trimmed(row.column(m_guess.company));
    if (company != m_name && !company.empty() && !isMapped(m_guess.company))
        unused.push_back({m_guess.company, std::string(company)});
    return unused;
}

void MadeUpColumns::appendTo(Row& row)
{
    m_mobile.clear();
    m_office.clear();
    m_home.clear();
    m_email.clear();
    m_note = row.column(m_guess.note);
    m_pieces.clear();
    takeNumbers(row, true);
    takeNumbers(row, false);
    takeEmails(row);
    m_name = nameOf(row);
    row.resize(static_cast<int>(m_fileTitles.size()));
    for (const std::string& title : m_titles)
        row.add(valueOf(title));
}

} // namespace orva
