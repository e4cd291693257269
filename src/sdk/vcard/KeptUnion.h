#ifndef SDK_VCARD_KEPTUNION_H
#define SDK_VCARD_KEPTUNION_H

#include <string>
#include <vector>

#include "vcard/Card.h"

namespace orva
{

/*
 * Kept lines of several contacts in one: what they have in common stands there once. Properties that belong together by
 * the group before their names ("item1.TEL", "item1.X-ABLabel") stay together, under another group where two contacts
 * use the same.
 */
class KeptUnion
{
public:
    explicit KeptUnion(const std::string& lines);

    void add(const std::string& lines);
    void add(const CardProperty& property);

    // Octet for octet those of the beginning if nothing came to them.
    std::string lines() const;

private:
    using Properties = std::vector<CardProperty>;

    void addTogether(const Properties& together);
    bool holds(const Properties& together) const;
    std::string freeGroup() const;

    const std::string m_first;
    Properties m_properties;
    bool m_changed = false;
};

} // namespace orva

#endif // SDK_VCARD_KEPTUNION_H
