// Recorded dialogs (LINKHAND_MODEM_LOG), replayed: each file of the folder is a modem that answers as the real one did,
// and what is read from it stands beside it. A file without its reference fails.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "base/Text.h"
#include "modem/AtPhonebook.h"
#include "sdk/modem/ScriptedChannel.h"
#include "support/Check.h"

using namespace orva;

namespace
{

std::string unescaped(const std::string& text)
{
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.compare(i, 2, "\\x") == 0 && i + 3 < text.size()) {
            out.push_back(static_cast<char>(std::stoi(text.substr(i + 2, 2), nullptr, 16)));
            i += 3;
        } else {
            out.push_back(text[i]);
        }
    }
    return out;
}

// The answers of a record by their commands, in order.
void fill(scripted::Channel& channel, std::istream& record)
{
    std::string line;
    std::string command;
    std::string answer;
    const auto flush = [&] {
        if (!command.empty())
            channel.answers[command].push_back(answer.empty() ? "<silence>" : answer);
        answer.clear();
    };
    while (std::getline(record, line)) {
        const std::size_t mark = line.find(' ');
        if (mark == std::string::npos || mark + 2 >= line.size())
            continue;
        const std::string text = unescaped(line.substr(mark + 3));
        if (line[mark + 1] == '>') {
            flush();
            command = text;
        } else if (line[mark + 1] == '<') {
            answer += "\r\n" + text + "\r\n";
        }
    }
    flush();
}

std::string readFrom(const std::filesystem::path& file)
{
    scripted::Channel channel;
    std::ifstream record(file);
    fill(channel, record);
    AtDialog dialog(channel);
    AtPhonebook book(dialog);
    if (!book.start())
        return "nobody answers\n";
    std::string text = "card " + std::to_string(static_cast<int>(book.cardState())) + "\n";
    for (const std::string& name : book.storages()) {
        if (name != "SM" && name != "ME")
            continue;
        const PhonebookStorage storage = book.open(name);
        text += name + " " + std::to_string(storage.used) + "/" + std::to_string(storage.capacity) + " " +
                std::to_string(storage.alphaLength) + " " + std::to_string(storage.numberLength) + "\n";
        for (const PhonebookEntry& entry : book.readAll(storage))
            text += std::to_string(entry.location) + "\t" + entry.number + "\t" + toUtf8(entry.alpha) + "\n";
    }
    return text;
}

} // namespace

TEST(everyRecordedDialogGivesItsEntries)
{
    REQUIRE(std::getenv("LINKHAND_SOURCE_DIR") != nullptr);
    const std::filesystem::path folder =
        std::filesystem::path(std::getenv("LINKHAND_SOURCE_DIR")) / "tests/sdk/modem/dialogs";
    std::vector<std::filesystem::path> records;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".log")
            records.push_back(entry.path());
    }
    std::sort(records.begin(), records.end());
    CHECK(!records.empty());
    for (const std::filesystem::path& record : records) {
        std::ifstream in(record.string() + ".expected");
        const std::string expected{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
        const std::string read = readFrom(record);
        if (!check::equal(read, expected, record.filename().c_str(), __FILE__, __LINE__))
            std::printf("%s\n", read.c_str());
    }
}

TEST(aCardsDescriptionThatEndsTooEarlyTellsNoLength)
{
    for (const char* description : {"62048202", "6208820442210026", "620882044221", "62088204422100"}) {
        scripted::Channel channel;
        channel.answers["AT+CRSM=192,28474"] = {std::string("\r\n+CRSM: 144,0,\"") + description + "\"\r\n\r\nOK\r\n"};
        channel.answers["AT+CPBS=\"SM\""] = {"\r\nOK\r\n"};
        channel.answers["AT+CPBS=\"SM\";+CPBR=?"] = {"\r\n+CPBR: (1-5)\r\n\r\nOK\r\n"};
        AtDialog dialog(channel);
        AtPhonebook book(dialog);
        REQUIRE(book.start());
        const PhonebookStorage storage = book.open("SM");
        const bool whole = std::string_view(description) == "6208820442210026";
        CHECK_EQ(storage.alphaLength, whole ? 0x26 - 14 : 14);
        CHECK_EQ(channel.count("AT+CRSM=192,28474"), 1U);
    }
}

CHECK_MAIN
