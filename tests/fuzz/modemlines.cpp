// What a modem may send: cut into lines the same however it comes in pieces, and every line read for every purpose. The
// first octet says how large the pieces are.

#include <vector>

#include "Scratch.h"
#include "modem/AtDialog.h"
#include "modem/DialogRecord.h"
#include "modem/LineReader.h"
#include "modem/PhonebookLines.h"

using namespace orva;

namespace
{

std::vector<std::string> cut(std::string_view bytes, std::size_t piece)
{
    LineReader reader;
    std::vector<std::string> lines;
    std::string line;
    while (!bytes.empty()) {
        const std::string_view some = bytes.substr(0, piece);
        bytes.remove_prefix(some.size());
        reader.feed(some);
        while (reader.next(line)) {
            MUST(!line.empty() && line.size() <= LineReader::longest);
            MUST(line.find_first_of("\r\n") == std::string::npos);
            lines.push_back(line);
        }
        MUST(reader.size() <= LineReader::longest + some.size());
    }
    return lines;
}

void readEverything(const std::string& line)
{
    Reply reply;
    readFinalResult(line, &reply);
    readStorageStatus(line);
    readStorageNames(line);
    const StorageShape shape = readStorageShape(line);
    MUST(shape.first <= shape.last);
    const std::string masked = maskedLine(line, "AT+CPBR=1,50", 42);
    maskedCommand(line, 42);
    const std::optional<EntryLine> entry = readEntryLine(line);
    if (!entry)
        return;
    MUST(entry->location >= 0);
    writableTail(entry->tail);
    // A record replays only if its lines still say the same location.
    const std::optional<EntryLine> again = readEntryLine(masked);
    MUST(!again || line.substr(0, 6) != "+CPBR:" || again->location == entry->location);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 1)
        return 0;
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    const std::vector<std::string> whole = cut(bytes, bytes.size() + 1);
    MUST(cut(bytes, data[0] % 16U + 1) == whole);
    for (const std::string& line : whole)
        readEverything(line);
    return 0;
}
