#include "Formats.h"

#include <strings.h>

namespace pbctl
{

bool isCardFile(const Arguments& arguments, const std::string& file)
{
    const std::string format = arguments.value("format");
    if (arguments.has("format") && format != "vcf" && format != "csv")
        throw UsageError("--format takes vcf or csv, not \"" + format + "\"");
    if (!format.empty())
        return format == "vcf";
    return file.size() > 4 && strcasecmp(file.c_str() + file.size() - 4, ".vcf") == 0;
}

} // namespace pbctl
