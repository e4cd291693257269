#ifndef SDK_MODEM_PHONEBOOKLINES_H
#define SDK_MODEM_PHONEBOOKLINES_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orva
{

// An answer to +CPBR as it came, cut into its fields (3GPP TS 27.007, 8.12).
struct EntryLine {
    int location = 0;
    std::string number;
    int type = 0;     // of the number; 0 for none given
    std::string text; // the alpha identifier, still coded
    std::string tail; // what stands behind it, with the comma it begins with

    bool empty() const { return number.empty() && text.empty(); }
};

// Whether the first field of an entry's line is a location, which tells nothing of anybody. Some write it in quotes; a
// longer one could be somebody's number.
bool isLocation(std::string_view field);

// Reads an entry whatever its spacing, its quotation marks or the fields behind it; nothing for a line without a
// location.
std::optional<EntryLine> readEntryLine(std::string_view line);

// What +CPBS? tells; -1 for a figure that is not told.
struct StorageStatus {
    std::string storage;
    int used = -1;
    int total = -1;
};
StorageStatus readStorageStatus(std::string_view line);

// What +CPBR=? tells; -1 for what is not told.
struct StorageShape {
    int first = -1;
    int last = -1;
    int numberLength = -1;
    int textLength = -1;
    int moreLengths = 0; // of fields behind the text, which can be written then
};
StorageShape readStorageShape(std::string_view line);

// The storages that +CPBS=? lists, however it punctuates them.
std::vector<std::string> readStorageNames(std::string_view line);

// The fields of a tail as +CPBW wants them, where the sign of a hidden entry stands last.
std::string writableTail(std::string_view tail);

// The values of a line such as "1,2,\"a\"", without their quotation marks.
std::vector<std::string> splitFields(std::string_view text);

} // namespace orva

#endif // SDK_MODEM_PHONEBOOKLINES_H
