// find.

#include <clocale>
#include <cstdio>
#include <cwctype>

#include "Commands.h"
#include "Records.h"
#include "Sdk.h"
#include "orva/orva_care.h"

namespace pbctl
{

namespace
{

// Small letters, whatever the user's locale is.
std::u16string folded(const std::u16string& text)
{
    static const locale_t letters = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    std::u16string out = text;
    for (char16_t& unit : out) {
        const bool whole = unit < 0xD800 || unit > 0xDFFF;
        if (whole && letters != nullptr)
            unit = static_cast<char16_t>(::towlower_l(unit, letters));
    }
    return out;
}

constexpr std::size_t endCompared = 6; // numbers of one telephone end alike

// What numbers of one telephone have in common; empty for a text that is none.
std::u16string keyOf(const std::u16string& number)
{
    unsigned short* key = nullptr;
    return ORVA_Care_NumberKey(units(number), &key) == ORVA_OK ? takeText(key) : std::u16string();
}

bool endsLike(const std::u16string& one, const std::u16string& other)
{
    return one.size() >= endCompared && other.size() >= endCompared &&
           one.compare(one.size() - endCompared, endCompared, other, other.size() - endCompared, endCompared) == 0;
}

bool isNumber(const Field& field)
{
    return field.kind == "Mobile" || field.kind == "Number";
}

} // namespace

int runFind(const Arguments& arguments)
{
    arguments.require(1, 1, {"memory", "json"});
    const int memory = arguments.memory();
    const std::vector<Field> fields = fieldsOf(memory);
    const std::u16string given = toSdk(textIn(arguments.words()[1]));
    const std::u16string text = folded(given);
    if (text.empty())
        throw UsageError("what is to be found?");
    // "+49 (0)171 555" finds what it is stored as.
    unsigned short* cleaned = nullptr;
    std::u16string number;
    if (ORVA_Care_CleanNumber(memory, units(given), &cleaned, nullptr) == ORVA_OK)
        number = takeText(cleaned);
    const std::u16string key = keyOf(number);
    RecordPrinter printer(fields, arguments.has("json"));
    int found = 0;
    forEachRecord(memory, fields, [&](int id, const std::vector<std::u16string>& values) {
        for (std::size_t i = 0; i < fields.size(); ++i) {
            const bool same = folded(values[i]).find(text) != std::u16string::npos ||
                              (!number.empty() && isNumber(fields[i]) &&
                               (values[i].find(number) != std::u16string::npos ||
                                (endsLike(values[i], number) && keyOf(values[i]) == key)));
            if (!same)
                continue;
            printer.print(id, values);
            ++found;
            return;
        }
    });
    printer.finish();
    return found > 0 ? done : failed;
}

} // namespace pbctl
