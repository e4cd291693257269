#include "Numbers.h"

#include <algorithm>
#include <stdexcept>

#include "base/EmailText.h"
#include "base/NumberText.h"
#include "orva/orva_care.h"

namespace pbctl
{

std::vector<std::size_t> cleanNumbers(int memory, const std::vector<Field>& fields, std::vector<std::u16string>& values)
{
    const auto note =
        std::find_if(fields.begin(), fields.end(), [](const Field& field) { return field.kind == "Remaik"; });
    std::vector<std::size_t> refused;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (fields[i].kind != "Mobile" && fields[i].kind != "Number")
            continue;
        unsigned short* number = nullptr;
        unsigned short* extension = nullptr;
        const long code =
            ORVA_Care_CleanNumber(memory, units(values[i]), &number, note == fields.end() ? nullptr : &extension);
        if (code == ORVA_E_NUMBER || code == ORVA_E_TOO_LONG) {
            refused.push_back(i);
            continue;
        }
        check(code, "cleaning a number");
        const orva::NumberText cleaned{takeText(number), takeText(extension)};
        values[i] = cleaned.number;
        if (cleaned.extension.empty())
            continue;
        std::u16string& noted = values[static_cast<std::size_t>(note - fields.begin())];
        noted += (noted.empty() ? u"" : u"\n") + orva::extensionNote(cleaned);
    }
    return refused;
}

void requireEmails(const std::vector<Field>& fields, const std::vector<std::u16string>& values)
{
    for (std::size_t i = 0; i < fields.size(); ++i)
        if (fields[i].kind == "Email" && !orva::isEmailText(values[i]))
            throw std::runtime_error(fields[i].key + ": not an e-mail address that the form takes");
}

} // namespace pbctl
