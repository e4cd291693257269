#ifndef SDK_VCARD_CARD_H
#define SDK_VCARD_CARD_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orva
{

// vCard 2.1 (the versit Consortium's of 1996), 3.0 (RFC 2426) and 4.0 (RFC 6350).
enum class CardVersion { V21, V30, V40 };

// "TYPE=home,work" or, in 2.1, a bare "HOME", which has no name. Values are without quotation marks and, but in 2.1,
// with the circumflexes of RFC 6868 taken out.
struct CardParameter {
    std::string name;
    std::vector<std::string> values;

    bool operator==(const CardParameter& other) const { return name == other.name && values == other.values; }
};

// How the value of a property is coded on top of its charset.
enum class CardEncoding { None, QuotedPrintable, Base64 };

// A line of a card, unfolded: "group.NAME;PARAMETER=...:value". What was read keeps the octets it was read from, for as
// long as it is not changed.
class CardProperty
{
public:
    explicit CardProperty(std::string name, std::string group = std::string());

    // A line that is none of the kind: it has no name, and its text is its value.
    static CardProperty unreadable(std::string text);

    // As written; names are the same in upper and lower case (RFC 6350, 3.3).
    const std::string& group() const { return m_group; }
    const std::string& name() const { return m_name; }
    bool is(std::string_view name) const;
    bool readable() const { return !m_name.empty(); }

    const std::vector<CardParameter>& parameters() const { return m_parameters; }

    // The first parameter of a name; null if there is none.
    const CardParameter* parameter(std::string_view name) const;

    // Whether it is of a type, in any of the forms TYPE=a,b TYPE="a,b" TYPE=a;TYPE=b ;A;B.
    bool hasType(std::string_view type) const;

    CardEncoding encoding() const;

    // As written, without folds and soft line breaks, but with its escapes and in its encoding.
    const std::string& value() const { return m_value; }

    // Each forgets the octets that the property was read from.
    void setParameters(std::vector<CardParameter> parameters);
    void setValue(std::string value);

    // The octets it was read from, with all line ends and blank lines behind; empty for what is new or changed.
    const std::string& octets() const { return m_octets; }
    void setOctets(std::string octets) { m_octets = std::move(octets); }

    // The line of the file that it begins in, counted from 1; 0 for a new one.
    int line() const { return m_line; }
    void setLine(int line) { m_line = line; }

private:
    std::string m_group;
    std::string m_name;
    std::vector<CardParameter> m_parameters;
    std::string m_value;
    std::string m_octets;
    int m_line = 0;
};

// What lies between BEGIN:VCARD and END:VCARD, in its order, VERSION included.
struct Card {
    CardVersion version = CardVersion::V30;
    std::vector<CardProperty> properties;
    std::string lineEnd = "\r\n"; // of what is new in it
    std::string begin;            // the octets of those two lines; empty in a new card
    std::string end;
    int line = 0; // of BEGIN:VCARD in its file, from 1

    // A card with nothing in it but its version.
    static Card empty(CardVersion version);

    // The first property of a name; null if there is none.
    const CardProperty* find(std::string_view name) const;
};

// Whether two names are the same but for the case of ASCII letters.
bool sameCardName(std::string_view a, std::string_view b);

} // namespace orva

#endif // SDK_VCARD_CARD_H
