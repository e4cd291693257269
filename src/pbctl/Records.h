#ifndef PBCTL_RECORDS_H
#define PBCTL_RECORDS_H

#include <string>
#include <vector>

#include "Sdk.h"

namespace pbctl
{

// Prints contacts: lines with tabs between the columns and a line of titles, or an array of JSON.
class RecordPrinter
{
public:
    RecordPrinter(const std::vector<Field>& fields, bool json);
    void print(int id, const std::vector<std::u16string>& values);
    void finish();

private:
    const std::vector<Field>& m_fields;
    const bool m_json;
    bool m_any = false;
};

// Prints all of a contact, a line each: its fields, its groups and what is kept with it.
void printContact(const Contact& contact, const std::vector<Field>& fields, const std::vector<std::string>& groups);

} // namespace pbctl

#endif // PBCTL_RECORDS_H
