#ifndef PBCTL_IMPORTFINDINGS_H
#define PBCTL_IMPORTFINDINGS_H

#include <map>
#include <string>
#include <vector>

#include "orva/orva_care.h"

namespace pbctl
{

// What did not come out of a file as it stands there: said as long as anybody would read that, and counted.
class ImportFindings
{
public:
    // Of a source in a format (ORVA_FORMAT_...), on its way into a memory.
    ImportFindings(int format, int memory) : m_format(format), m_memory(memory) {}

    // Says what an import has found.
    void sayThoseOf(void* import);

    bool any() const { return m_said > 0 || !m_columns.empty() || !m_left.empty(); }

    // Says how many more there were, and which columns or properties were left.
    void finish() const;

private:
    void say(const std::string& text);
    void take(const ORVA_FINDING* finding, const ORVA_FINDING* end);
    bool count(const ORVA_FINDING& finding);
    std::string reasonOf(const ORVA_FINDING& finding) const;

    const int m_format;
    const int m_memory;
    int m_said = 0;
    std::vector<std::string> m_columns;
    std::string m_refused;             // the columns of a contact that was not taken, so far
    std::map<std::string, int> m_left; // of cards
};

// What an import has kept beside the fields, as "2 ADR, 1 PHOTO"; empty for nothing.
std::string keptText(void* import);

} // namespace pbctl

#endif // PBCTL_IMPORTFINDINGS_H
