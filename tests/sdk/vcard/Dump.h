#ifndef TESTS_SDK_VCARD_DUMP_H
#define TESTS_SDK_VCARD_DUMP_H

#include <fstream>
#include <sstream>
#include <string>

#include "vcard/CardReader.h"
#include "vcard/CardText.h"

namespace dump
{

// One property a line, the way that the references beside the cards and the other reader have it:
// number of the card, group, name, types and texts, with "|" between components and "," between their values.

inline std::string shown(const std::string& text)
{
    std::string out;
    for (const char c : text)
        out += c == '\n' ? std::string("\\n") : c == '\t' ? std::string("\\t") : std::string(1, c);
    return out;
}

inline std::string texts(const orva::CardProperty& property, orva::CardVersion version)
{
    std::string out;
    if (property.is("CATEGORIES")) {
        for (const std::string& value : orva::cardList(property, version))
            out += (out.empty() ? "" : "|") + shown(value);
        return out;
    }
    if (!property.is("N") && !property.is("ORG"))
        return shown(orva::cardText(property, version));
    bool first = true;
    for (const auto& component : orva::cardComponents(property, version)) {
        out += first ? "" : "|";
        first = false;
        for (std::size_t i = 0; i < component.size(); ++i)
            out += (i == 0 ? "" : ",") + shown(component[i]);
    }
    return out;
}

inline std::string types(const orva::CardProperty& property)
{
    std::string out;
    for (const char* type : {"CELL", "FAX", "HOME", "PREF", "VOICE", "WORK"})
        if (property.hasType(type))
            out += (out.empty() ? "" : ",") + std::string(type);
    return out;
}

inline std::string cards(std::istream& in, const orva::CardReport& report)
{
    orva::CardReader reader(in, report);
    std::ostringstream out;
    orva::Card card;
    for (int number = 1; reader.next(card); ++number)
        for (const orva::CardProperty& property : card.properties)
            for (const char* name : {"FN", "N", "TEL", "EMAIL", "ORG", "NOTE", "CATEGORIES"})
                if (property.is(name))
                    out << number << '\t' << property.group() << '\t' << name << '\t' << types(property) << '\t'
                        << texts(property, card.version) << '\n';
    return out.str();
}

inline std::string contentOf(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

} // namespace dump

#endif // TESTS_SDK_VCARD_DUMP_H
