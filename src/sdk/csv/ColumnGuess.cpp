#include "csv/ColumnGuess.h"

#include <algorithm>

#include "base/Unicode.h"
#include "csv/ContactRows.h"

namespace orva
{

namespace
{

using Words = std::vector<const char*>; // in order of preference, as normalised() makes them

const Words fullName = {"fullname",          "displayname",       "formattedname",    "anzeigename",
                        "vollständigername", "vollername",        "nomcomplet",       "nomàafficher",
                        "nombrecompleto",    "nombreparamostrar", "nomevisualizzato", "отображаемоеимя",
                        "полноеимя",         "contactname",       "contact",          "kontakt"};
const Words filedName = {"fileas", "fileunder", "speichernunter"};
const Words plainName = {"name", "nom", "nombre", "nome", "naam", "имя"};
const Words firstName = {"firstname",    "givenname",     "vorname", "prénom",
                         "nombredepila", "nomebattesimo", "имя",     "nombre"};
const Words lastName = {"lastname",     "familyname", "surname",  "nachname", "familienname",
                        "nomdefamille", "apellidos",  "apellido", "cognome",  "фамилия"};
const Words mobile = {"mobile",
                      "mobilephone",
                      "mobilenumber",
                      "mobilephonenumber",
                      "cellphone",
                      "cellularnumber",
                      "cell",
                      "cellular",
                      "mobiltelefon",
                      "mobiltelnr",
                      "mobilnummer",
                      "mobil",
                      "handy",
                      "handynummer",
                      "telmobile",
                      "télmobile",
                      "téléphonemobile",
                      "téléphoneportable",
                      "portable",
                      "teléfonomóvil",
                      "móvil",
                      "celular",
                      "cellulare",
                      "telefonocellulare",
                      "мобильныйтелефон",
                      "мобильный",
                      "phone1value",
                      "primaryphone",
                      "number",
                      "phone",
                      "phonenumber",
                      "telephone",
                      "telephonenumber",
                      "telefon",
                      "telefonnummer",
                      "rufnummer",
                      "nummer",
                      "tel",
                      "téléphone",
                      "teléfono",
                      "telefono",
                      "телефон"};
const Words office = {"officephone",         "office",          "workphone",         "businessphone",
                      "telefongeschäftlich", "teldienstlich",   "telefondienstlich", "telefonarbeit",
                      "geschäftlich",        "téléphonebureau", "telprofessionnel",  "teléfonodeltrabajo",
                      "telefonoufficio",     "рабочийтелефон",  "companymainphone",  "phone2value"};
const Words home = {"homephone",         "home",        "telefonprivat",      "telprivat",          "privat",
                    "téléphonedomicile", "teldomicile", "teléfonoparticular", "telefonoabitazione", "домашнийтелефон",
                    "phone3value"};
const Words email = {"email",
                     "emailaddress",
                     "primaryemail",
                     "email1value",
                     "email1",
                     "emailadresse",
                     "primäreemailadresse",
                     "adressedemessagerie",
                     "adresseélectronique",
                     "direccióndecorreoelectrónico",
                     "correoelectrónico",
                     "indirizzoemail",
                     "mail",
                     "адресэлпочты",
                     "электроннаяпочта"};
const Words note = {"remark",   "notes",     "note",      "notizen",     "notiz",
                    "comments", "comment",   "bemerkung", "bemerkungen", "kommentar",
                    "notas",    "remarques", "anmerkung", "anmerkungen", "заметки"};
const Words groupNames = {"groups",          "group",      "categories", "category",     "labels",
                          "groupmembership", "kategorien", "kategorie",  "gruppen",      "gruppe",
                          "catégories",      "categorías", "groupes",    "categorylist", "категории"};

char16_t lowered(char16_t c)
{
    const bool upper = (c >= u'A' && c <= u'Z') || (c >= 0x00C0 && c <= 0x00DE && c != 0x00D7) ||
                       (c >= 0x0391 && c <= 0x03A9) || (c >= 0x0410 && c <= 0x042F);
    return static_cast<char16_t>(upper ? c + 0x20 : c);
}

bool counts(char16_t c)
{
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'z') ||
           (c >= 0x00C0 && c != 0x00D7 && c != 0x00F7 && c < 0x2000) || c >= 0x3040;
}

// Lower case, and nothing but letters and digits.
std::string normalised(const std::string& title)
{
    std::u16string units;
    appendUtf16(title, units);
    std::u16string kept;
    for (const char16_t c : units)
        if (const char16_t low = lowered(c); counts(low))
            kept.push_back(low);
    std::string out;
    appendUtf8(kept, out);
    return out;
}

// The column of the first word that is a title; of several columns with that title, the first.
int find(const std::vector<std::string>& titles, const Words& words)
{
    for (const char* word : words) {
        const auto found = std::find(titles.begin(), titles.end(), word);
        if (found != titles.end())
            return static_cast<int>(found - titles.begin());
    }
    return -1;
}

// A whole name if there is one. Beside a first name, a column called just "Name" is the last name, unless there is
// one for that, too.
int findName(const std::vector<std::string>& titles)
{
    const int full = find(titles, fullName);
    const int plain = find(titles, plainName);
    const int first = find(titles, firstName);
    int last = find(titles, lastName);
    if (plain >= 0 && (first < 0 || (last >= 0 && first != plain)))
        return plain;
    if (full >= 0)
        return full;
    if (last < 0 && plain != first)
        last = plain;
    if (first >= 0 && last >= 0)
        return joinedColumns(first, last);
    const int either = std::max({first, last, plain});
    return either >= 0 ? either : find(titles, filedName);
}

} // namespace

ColumnGuess::ColumnGuess(const std::vector<std::string>& titles)
{
    std::vector<std::string> plain;
    plain.reserve(titles.size());
    for (const std::string& title : titles)
        plain.push_back(normalised(title));
    m_name = findName(plain);
    m_mobile = find(plain, mobile);
    m_office = find(plain, office);
    m_home = find(plain, home);
    m_email = find(plain, email);
    m_note = find(plain, note);
    m_groups = find(plain, groupNames);
}

int ColumnGuess::forLabel(std::string_view labelId) const
{
    if (labelId == "ID_STR_NAME")
        return m_name;
    if (labelId == "ID_STR_MOBILE_PHONE")
        return m_mobile;
    if (labelId == "ID_STR_BUSINESS_PHONE")
        return m_office;
    if (labelId == "ID_STR_HOME_PHONE")
        return m_home;
    if (labelId == "ID_STR_EMAIL")
        return m_email;
    if (labelId == "ID_STR_NOTES")
        return m_note;
    return -1;
}

} // namespace orva
